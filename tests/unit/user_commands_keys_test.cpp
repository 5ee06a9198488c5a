// Keys of the user's own commands are taken, found and saved, and lines without a row are kept.
#include <cstddef>
#include <string>

#include "tests/unit/user_rows.h"

namespace tessera::user_commands_keys_test {
namespace {

using namespace installation;
using namespace user_rows;

TEST_F(UserRowsTest, TakeKeysAreAskedAboutAndSaved) {
  Start();
  Assign(Yours, L"X");
  MessageBoxes.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};
  Assign(Pack, L"X");
  Assign(View, 2, L"F5");
  ASSERT_EQ(MessageBoxes.Shown.size(), 2U);
  EXPECT_NE(MessageBoxes.Shown[0].Text.find(L"em_Yours"), std::wstring::npos);
  EXPECT_NE(MessageBoxes.Shown[1].Text.find(L"em_Mine"), std::wstring::npos);
  EXPECT_EQ(Keys(Mine), L"---");
  EXPECT_EQ(Keys(Yours), L"---");
  Assign(Yours, 1, L"Y");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nA+F5=cm_View\r\nX=cm_Pack\r\nC+Y=em_Yours\r\n");
  EXPECT_FALSE(Files.Contents.contains(IniFile + L".dropped"));
}

TEST_F(UserRowsTest, AreFoundAsHoldersOfTheirKeysAfterAFurtherOpen) {
  Start();
  Reopen();
  const RowKey mine = Rows().At(Mine).Key;
  const HotkeyNotation notation;
  EXPECT_EQ(Rows().HoldersOf(L"Alt + F5", notation).Currents, std::vector{mine});
  Editor.Work(&CommandList::SelectRow, std::size_t{Mine});
  Editor.Work(&HotkeyPanel::Delete);
  EXPECT_TRUE(Rows().HoldersOf(L"Alt + F5", notation).Currents.empty());
  Assign(Mine, L"X");
  EXPECT_EQ(Rows().HoldersOf(L"X", notation).Currents, std::vector{mine});
  Editor.Work(&CommandList::Undo);
  Editor.Work(&CommandList::Undo);
  EXPECT_EQ(Keys(Mine), L"Alt + F5");
  EXPECT_EQ(Rows().HoldersOf(L"Alt + F5", notation).Currents, std::vector{mine});
}

TEST_F(UserRowsTest, AreSavedAsTheyWereReadWhateverElseChanges) {
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nX=cm_Pack\r\nA+F5=em_Mine\r\n");
  Reopen();
  Assign(View, L"Y");
  Editor.FileSave();
  EXPECT_NE(Ini().find("A+F5=em_Mine\r\n"), std::string::npos);
  EXPECT_FALSE(Files.Contents.contains(IniFile + L".dropped"));
}

TEST_F(UserRowsTest, KeepTheKeyThatAnEditGaveThemAtAFurtherOpen) {
  Start();
  // The default alone is asked about, so that both rows hold the key.
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Assign(Mine, L"F3");
  Editor.FileSave();
  Ini() = "[Shortcuts]\r\nF3=em_Mine\r\n";
  Reopen();
  EXPECT_EQ(Keys(Copy), L"F3");
  EXPECT_EQ(Keys(Mine), L"F3");
  Editor.Work(&CommandList::ToggleSortedList);
  Editor.Work(&CommandList::SelectRow, std::size_t{0});
  Compose(7, L"Z");
  Editor.Work(&HotkeyPanel::Assign);
  Editor.FileSave();
  EXPECT_NE(Ini().find("F3=em_Mine\r\n"), std::string::npos) << Ini();
}

TEST_F(UserRowsTest, LinesOfOwnCommandsWithoutARowAreKept) {
  const std::string lines = "A+F6=em_gone\r\nF8=EM_other\r\n";
  for (const bool isGone : {true, false}) {
    if (isGone) {
      Files.Contents.erase(UserFile);
    } else {
      UserCommands() = std::string(5 << 20, ' ');
    }
    Ini() = "[Shortcuts]\r\nF3=cm_Copy\r\n" + lines + "F9=cm_Exit 1\r\n";
    tessera::Editor editor(Seams, [](const LoadProgress&) {});
    editor.Load();
    editor.Activate();
    editor.Work(&CommandList::SelectRow, std::size_t{Copy});
    editor.Work(&HotkeyPanel::Delete);
    editor.FileSave();
    EXPECT_FALSE(editor.Document().Modified());
    EXPECT_EQ(Ini(), "[Shortcuts]\r\n" + lines);
    EXPECT_TRUE(Files.Contents[IniFile + L".dropped"].ends_with("\r\nF9=cm_Exit 1\r\n"));
  }
}

TEST_F(UserRowsTest, WithoutTheSettingTheyAreDropped) {
  StoredSettings() = "";
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nX=cm_Pack\r\n");
  EXPECT_TRUE(Files.Contents[IniFile + L".dropped"].ends_with("\r\nA+F5=em_mine\r\n"));
}

}  // namespace
}  // namespace tessera::user_commands_keys_test
