#include "app/SilentSystem.h"
#include "tests/support/FaultyFiles.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::silent_system_test {
namespace {

class SilentSystemTest : public EditorTest {
 protected:
  SilentSystem Silent{Seams};
};

TEST_F(SilentSystemTest, FilesAreReadAndNotChanged) {
  const auto before = Files.Contents;
  tessera::Files& files = Silent.Seams().Files;
  std::string bytes;
  EXPECT_EQ(files.Read(IniFile, bytes), FileError::None);
  EXPECT_EQ(bytes, IniContent);
  EXPECT_TRUE(files.Exists(IniFile));
  EXPECT_EQ(files.Stamp(IniFile), Files.Stamp(IniFile));
  EXPECT_EQ(files.Resolve(L"c:\\tc\\wincmd.INI"), IniFile);
  EXPECT_FALSE(files.IsReadOnly(IniFile));
  EXPECT_EQ(files.Write(IniFile, "x"), FileError::Other);
  EXPECT_EQ(files.Append(IniFile, "x"), FileError::Other);
  EXPECT_EQ(files.Replace(IniFile, IncFile, OtherIniFile), FileError::Other);
  EXPECT_EQ(files.Move(IniFile, OtherIniFile), FileError::Other);
  EXPECT_EQ(files.Remove(IniFile), FileError::Other);
  EXPECT_EQ(Files.Contents, before);
}

TEST_F(SilentSystemTest, ProtectedFilesAreKnownAsSuch) {
  FaultyFiles files;
  files.ReadOnly = {IniFile};
  EXPECT_TRUE(ReadOnlyFiles(files).IsReadOnly(IniFile));
  EXPECT_FALSE(ReadOnlyFiles(files).IsReadOnly(IncFile));
}

TEST_F(SilentSystemTest, FileIsUnreadWhenItsLastReadFailed) {
  tessera::Files& files = Silent.Seams().Files;
  std::string bytes;
  EXPECT_EQ(files.Read(L"C:\\none", bytes), FileError::NotFound);
  EXPECT_FALSE(Silent.Files().Unread().has_value());
  Files.ReadErrors = {FileError::SharingViolation};
  EXPECT_EQ(files.Read(IniFile, bytes), FileError::SharingViolation);
  EXPECT_EQ(Silent.Files().Unread(), IniFile);
  EXPECT_EQ(files.Read(IniFile, bytes), FileError::None);
  EXPECT_FALSE(Silent.Files().Unread().has_value());
}

TEST_F(SilentSystemTest, InputIsWhatWasReadOrLookedFor) {
  std::string bytes;
  static_cast<void>(Silent.Seams().Files.Read(IniFile, bytes));
  static_cast<void>(Silent.Seams().Files.Read(L"C:\\none", bytes));
  Files.Links[L"C:\\link"] = IniFile;
  for (const wchar_t* const path : {L"c:\\tc\\WINCMD.ini", L"C:\\NONE", L"C:\\link"}) {
    EXPECT_TRUE(Silent.Files().IsInput(path)) << Encode(path);
  }
  EXPECT_FALSE(Silent.Files().IsInput(IncFile));
}

TEST_F(SilentSystemTest, BoxesAreAnsweredSoThatNothingIsDone) {
  tessera::MessageBoxes& boxes = Silent.Seams().MessageBoxes;
  const auto answer = [&](BoxButtons buttons) {
    return boxes.Show(L"Text", buttons, BoxIcon::Question);
  };
  EXPECT_EQ(answer(BoxButtons::Ok), BoxAnswer::Ok);
  EXPECT_EQ(answer(BoxButtons::YesNo), BoxAnswer::No);
  EXPECT_EQ(answer(BoxButtons::YesNoCancel), BoxAnswer::Cancel);
  EXPECT_EQ(answer(BoxButtons::RetryCancel), BoxAnswer::Cancel);
  boxes.Beep();
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_EQ(MessageBoxes.BeepCount, 0);
}

TEST_F(SilentSystemTest, FirstBoxIsRemembered) {
  EXPECT_EQ(Silent.Boxes().FirstText(), L"");
  for (const wchar_t* const text : {L"One", L"Two"}) {
    Silent.Seams().MessageBoxes.Show(text, BoxButtons::Ok, BoxIcon::Critical);
  }
  EXPECT_EQ(Silent.Boxes().FirstText(), L"One");
}

TEST_F(SilentSystemTest, DialogsAreCancelled) {
  Dialogs.OpenAnswers = {L"C:\\a"};
  tessera::Dialogs& dialogs = Silent.Seams().Dialogs;
  FontRecord font;
  EXPECT_FALSE(dialogs.Open({}).has_value());
  EXPECT_FALSE(dialogs.Save({}).has_value());
  EXPECT_FALSE(dialogs.Color().has_value());
  EXPECT_FALSE(dialogs.Font(font));
  EXPECT_TRUE(Dialogs.OpenRequests.empty());
}

}  // namespace
}  // namespace tessera::silent_system_test
