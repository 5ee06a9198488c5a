// What a save leaves out of section "Shortcuts", and where it is to be found afterwards.
#include "shortcuts/DroppedLines.h"
#include "shortcuts/SaveShortcuts.h"
#include "tests/support/FaultyFiles.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::dropped_lines_test {
namespace {

using namespace installation;

const std::wstring DroppedFile = IniFile + L".dropped";

/// The comment above lines of that file.
std::string Comment(const std::string& path = "C:\\TC\\Wincmd.ini") {
  return "; 2026-03-07 09:05:00 " + path + "\r\n";
}

class DroppedLinesTest : public EditorTest {
 protected:
  /// What lies beside the file after a save of a further key.
  std::string DroppedFrom(const std::string& lines) {
    Ini() = "[Shortcuts]\r\n" + lines;
    Start();
    Assign(Pack, L"X");
    Editor.FileSave();
    EXPECT_FALSE(Editor.Document().Modified());
    return Dropped();
  }

  /// "(none)" when there is no file.
  std::string Dropped() {
    const auto found = Files.Contents.find(DroppedFile);
    return found == Files.Contents.end() ? "(none)" : found->second;
  }
};

TEST_F(DroppedLinesTest, LinesWithoutARowArePutAside) {
  EXPECT_EQ(DroppedFrom("A+F5=em_Mine\r\nF3=cm_Copy\r\nF8=cm_Exit 1\r\n"),
            Comment() + "A+F5=em_Mine\r\nF8=cm_Exit 1\r\n");
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nX=cm_Pack\r\n");
}

TEST_F(DroppedLinesTest, TheirBytesStayAndEachHasItsEnd) {
  EXPECT_EQ(DroppedFrom("  A+F5 =\t\"em_\xE9\x81\" \nF8=em_two\rF9= em_last"),
            Comment() + "  A+F5 =\t\"em_\xE9\x81\" \r\nF8=em_two\r\nF9= em_last\r\n");
}

TEST_F(DroppedLinesTest, WithoutADroppedLineThereIsNoFile) {
  EXPECT_EQ(DroppedFrom("F3=cm_Copy\r\nf4=101\r\nnothing\r\n;F5=em_Mine\r\nRedirectSection=0\r\n"),
            "(none)");
}

TEST_F(DroppedLinesTest, TheyComeBehindThoseOfEarlierSaves) {
  Files.Contents[DroppedFile] = "anything";
  EXPECT_EQ(DroppedFrom("A+F5=em_Mine\r\n"), "anything" + Comment() + "A+F5=em_Mine\r\n");
  Ini() += "F6=em_more\r\n";
  Assign(View, L"Y");
  Clock.Today = {2026, 11, 22, 13, 45, 59};
  Editor.FileSave();
  EXPECT_EQ(Dropped(), "anything" + Comment() + "A+F5=em_Mine\r\n" +
                           "; 2026-11-22 13:45:59 C:\\TC\\Wincmd.ini\r\nF6=em_more\r\n");
}

TEST_F(DroppedLinesTest, KeysThatTheUserTookOrDeletedAreNotPutAside) {
  Ini() = "[Shortcuts]\r\nF3=cm_Copy\r\nC+F3=cm_View\r\nF8=102\r\n";
  Start();
  Editor.Work(&CommandList::SelectRow, std::size_t{View});
  Editor.Work(&HotkeyPanel::Delete);
  MessageBoxes.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};
  Assign(Pack, L"F3");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Pack\r\n");
  EXPECT_EQ(Dropped(), "(none)");
}

TEST_F(DroppedLinesTest, ALineThatTheUserNeverSawIsPutAsideUnlessItIsWritten) {
  Start();
  Assign(Pack, L"X");
  Ini() = "[Shortcuts]\r\nC+F3=cm_View\r\nF3=cm_Copy\r\nx=103\r\nF9=CM_View\r\n";
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nC+F3=cm_View\r\nX=cm_Pack\r\n");
  EXPECT_EQ(Dropped(), Comment() + "F9=CM_View\r\n");
}

TEST_F(DroppedLinesTest, ALineForAKeyThatTheUserGaveMeanwhileIsPutAsideToo) {
  Start();
  Assign(Pack, L"X");
  Ini() = "[Shortcuts]\r\nX=cm_View\r\nC+F3=cm_View\r\nF3=cm_Copy\r\n";
  Editor.FileSave();
  EXPECT_EQ(Dropped(), Comment() + "X=cm_View\r\n");
}

TEST_F(DroppedLinesTest, WhatASaveHasWrittenIsSeen) {
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  Editor.Work(&CommandList::SelectRow, std::size_t{Pack});
  Editor.Work(&HotkeyPanel::Delete);
  Editor.FileSave();
  EXPECT_EQ(Ini().find("cm_Pack"), std::string::npos);
  EXPECT_EQ(Dropped(), "(none)");
}

TEST_F(DroppedLinesTest, WhatAFailedSaveHasReadIsNotSeen) {
  Start();
  Assign(Pack, L"X");
  Ini() += "[Shortcuts]\r\n";
  Ini().insert(Ini().find("C+F3="), "F9=cm_Pack\r\n");
  Files.WriteErrors = {FileError::DiskFull};
  Editor.FileSave();
  EXPECT_TRUE(Editor.Document().Modified());
  Files.Contents.erase(DroppedFile);
  Editor.FileSave();
  EXPECT_FALSE(Editor.Document().Modified());
  EXPECT_EQ(Dropped(), Comment() + "F9=cm_Pack\r\n");
}

// Of two lines for one key the user knows the first one's command. The other one either has a row,
// and was there when the file was opened, or has none.
TEST_F(DroppedLinesTest, ASecondLineOfAKeyIsPutAsideWhenItHasNoRow) {
  EXPECT_EQ(DroppedFrom("F3=cm_Copy\r\nF3=cm_View\r\nF3=em_Mine\r\n"),
            Comment() + "F3=em_Mine\r\n");
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nX=cm_Pack\r\n");
}

TEST_F(DroppedLinesTest, OfLinesThatAreKeptOnlyThoseThatCannotStayArePutAside) {
  StoredSettings() = "[Tessera]\r\nKeepUnknownShortcuts=1\r\n";
  EXPECT_EQ(DroppedFrom("F5=em_a\r\nF5=em_b\r\nx=em_c\r\nF6=\r\n"),
            Comment() + "F5=em_b\r\nx=em_c\r\n");
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nX=cm_Pack\r\nF5=em_a\r\nF6=\r\n");
}

TEST_F(DroppedLinesTest, TheyLieBesideTheFileThatHoldsTheSection) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nF5=em_Mine\r\n";
  Ini() = "[Shortcuts]\r\nRedirectSection=Other.ini\r\nF6=em_hidden\r\n";
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Dropped(), "(none)");
  EXPECT_EQ(Files.Contents[OtherIniFile + L".dropped"],
            Comment("C:\\TC\\Other.ini") + "F5=em_Mine\r\n");
}

TEST_F(DroppedLinesTest, ASectionThatMovedToAFileMeanwhileHasLinesThatNobodySaw) {
  Start();
  Assign(Pack, L"X");
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nF9=cm_View\r\nF3=cm_Copy\r\n";
  Ini() = "[Shortcuts]\r\nRedirectSection=Other.ini\r\n";
  Editor.FileSave();
  EXPECT_EQ(Files.Contents[OtherIniFile + L".dropped"],
            Comment("C:\\TC\\Other.ini") + "F9=cm_View\r\n");
}

TEST_F(DroppedLinesTest, LinesOfAFileInUtf16AreWrittenAsTheyStand) {
  const auto utf16 = [](const std::string& text) {
    std::string bytes;
    for (const char character : text) bytes.append({character, '\0'});
    return bytes;
  };
  const std::string mark = "\xFF\xFE";
  Ini() = mark + utf16("[Shortcuts]\n A+F5 = em_") + "\x16\x04" + utf16("\n");
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  const std::string dropped = utf16(Comment() + " A+F5 = em_") + "\x16\x04" + utf16("\r\n");
  EXPECT_EQ(Dropped(), mark + dropped);
  Ini() += utf16(" A+F5 = em_") + "\x16\x04";
  Assign(View, L"Y");
  Editor.FileSave();
  EXPECT_EQ(Dropped(), mark + dropped + dropped);
}

TEST_F(DroppedLinesTest, APathBeyondTheCodePageIsWrittenAsSuchAValue) {
  const std::wstring path = L"C:\\\u0416\\Wincmd.ini";
  Files.Contents[path] = "[Shortcuts]\r\nF5=em_Mine\r\n";
  Start();
  Editor.OpenShortcutFile(false, path, false);
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Files.Contents[path + L".dropped"],
            "; \xEF\xBB\xBF"
            "2026-03-07 09:05:00 C:\\\xD0\x96\\Wincmd.ini\r\nF5=em_Mine\r\n");
}

TEST_F(DroppedLinesTest, ALinkIsFollowed) {
  Files.Links[IniFile] = OtherIniFile;
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nF5=em_Mine\r\n";
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Files.Contents[OtherIniFile + L".dropped"], Comment() + "F5=em_Mine\r\n");
}

TEST_F(DroppedLinesTest, WhatIsKeptForALogOffDropsNothing) {
  Ini() = "[Shortcuts]\r\nF5=em_Mine\r\n";
  Start();
  Assign(Pack, L"X");
  EXPECT_TRUE(Editor.KeepUnsaved());
  EXPECT_EQ(Dropped(), "(none)");
  EXPECT_TRUE(Files.Contents.contains(IniFile + L".unsaved"));
}

// A file that is read-only, a folder, held by another program, or on a full disk.
TEST(DroppedLines, WhatCannotBePutAsideFailsNoSave) {
  for (const FileError error : {FileError::AccessDenied, FileError::SharingViolation,
                                FileError::DiskFull, FileError::Other}) {
    SampleProgram program;
    program.Files.Contents[IniFile] = "[Shortcuts]\r\nF5=em_Mine\r\n";
    program.Start();
    program.Assign(Pack, L"X");
    program.Files.AppendErrors.assign(100, error);
    program.Editor.FileSave();
    EXPECT_FALSE(program.Editor.Document().Modified());
    EXPECT_EQ(program.Files.Contents[IniFile], "[Shortcuts]\r\nX=cm_Pack\r\n");
    EXPECT_LE(program.Clock.SleptMilliseconds, 2000);
  }
}

TEST_F(DroppedLinesTest, AFileThatIsHeldForAMomentIsWaitedFor) {
  Files.AppendErrors.assign(3, FileError::SharingViolation);
  EXPECT_EQ(DroppedFrom("F5=em_Mine\r\n"), Comment() + "F5=em_Mine\r\n");
}

// -- The outcome of a save

constexpr const wchar_t* Path = L"C:\\a.ini";

class SaveOutcomeTest : public testing::Test {
 protected:
  SaveOutcome Save() { return SaveShortcuts(catalogue_, {}, {Path}, files_, clock_, environment_); }

  Catalogue catalogue_;
  FaultyFiles files_;
  FakeClock clock_;
  FakeEnvironment environment_;
};

TEST_F(SaveOutcomeTest, TellsWhatWasDroppedAndWhere) {
  files_.Contents[Path] = "[Shortcuts]\r\nF5=em_a\r\nF6=em_b\r\n";
  const SaveOutcome outcome = Save();
  EXPECT_EQ(outcome.Error, FileError::None);
  EXPECT_EQ(outcome.Path, Path);
  EXPECT_EQ(outcome.Dropped.Lines, (std::vector<std::string>{"F5=em_a", "F6=em_b"}));
  EXPECT_EQ(outcome.Dropped.Path, std::wstring(Path) + L".dropped");
  EXPECT_EQ(outcome.Dropped.Error, FileError::None);
}

TEST_F(SaveOutcomeTest, TellsThatNothingCouldBePutAside) {
  files_.Contents[Path] = "[Shortcuts]\r\nF5=em_a\r\n";
  files_.AppendErrors.assign(100, FileError::AccessDenied);
  const SaveOutcome outcome = Save();
  EXPECT_EQ(outcome.Error, FileError::None);
  EXPECT_EQ(outcome.Dropped.Lines.size(), 1U);
  EXPECT_EQ(outcome.Dropped.Error, FileError::AccessDenied);
}

TEST_F(SaveOutcomeTest, NamesTheFileOfARedirectedSection) {
  files_.Contents[Path] = "[Shortcuts]\r\nRedirectSection=b.ini\r\n";
  files_.Contents[L"C:\\b.ini"] = "[Shortcuts]\r\nF5=em_a\r\n";
  EXPECT_EQ(Save().Path, L"C:\\b.ini");
}

/// Files that another program writes just before the first replaces.
class ChangingFiles final : public MemoryFiles {
 public:
  int Changes = 1;

  [[nodiscard]] FileStamp Stamp(const std::wstring& path) const override {
    FileStamp stamp = MemoryFiles::Stamp(path);
    if (path == Path) stamp.Time = ++stamps_;
    return stamp;
  }
  [[nodiscard]] FileError Append(const std::wstring& path, std::string_view bytes) override {
    if (Changes-- > 0) Contents[Path] += "F7=em_c\r\n";
    return MemoryFiles::Append(path, bytes);
  }

 private:
  mutable std::uint64_t stamps_ = 0;
};

TEST_F(SaveOutcomeTest, ASaveThatStartsAnewPutsEachLineAsideOnce) {
  ChangingFiles files;
  files.Contents[Path] = "[Shortcuts]\r\nF5=em_a\r\n";
  const SaveOutcome outcome = SaveShortcuts(catalogue_, {}, {Path}, files, clock_, environment_);
  EXPECT_EQ(outcome.Error, FileError::None);
  EXPECT_EQ(outcome.Dropped.Lines, (std::vector<std::string>{"F5=em_a", "F7=em_c"}));
  EXPECT_EQ(files.Contents[std::wstring(Path) + L".dropped"],
            Comment("C:\\a.ini") + "F5=em_a\r\n" + Comment("C:\\a.ini") + "F7=em_c\r\n");
}

TEST_F(SaveOutcomeTest, AFileThatCannotBeReadDropsNothing) {
  files_.Contents[Path] = "[Shortcuts]\r\nF5=em_a\r\n";
  files_.ReadErrors.assign(100, FileError::AccessDenied);
  const SaveOutcome outcome = Save();
  EXPECT_NE(outcome.Error, FileError::None);
  EXPECT_TRUE(outcome.Dropped.Lines.empty());
  EXPECT_FALSE(files_.Contents.contains(std::wstring(Path) + L".dropped"));
}

}  // namespace
}  // namespace tessera::dropped_lines_test
