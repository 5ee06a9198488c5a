// Files that cannot be read: nothing that stands in them is lost, and Wincmd.ini is asked about.
#include "tests/support/FaultyFiles.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::unread_files_test {
namespace {

using namespace installation;

/// More errors than an open waits for.
constexpr std::size_t HeldForGood = 100;

TEST_F(EditorTest, AnUnreadableFileIsToldAndTriedAgain) {
  Editor.Load();
  Files.ReadErrors.assign(3 * HeldForGood, FileError::Other);
  MessageBoxes.Answers = {BoxAnswer::Retry, BoxAnswer::Retry, BoxAnswer::Cancel};
  Editor.Activate();
  ASSERT_EQ(MessageBoxes.Shown.size(), 3U);
  EXPECT_EQ(MessageBoxes.Shown[0].Text, L"Cannot read this file " + IniFile);
  EXPECT_EQ(MessageBoxes.Shown[0].Buttons, BoxButtons::RetryCancel);
  EXPECT_EQ(MessageBoxes.Shown[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(MessageBoxes.Shown[0].Default, BoxDefault::First);
}

TEST_F(EditorTest, AFileThatIsReadAtARetryIsOpenedAsAnyOther) {
  Editor.Load();
  Files.ReadErrors = {FileError::Other};
  MessageBoxes.Answers = {BoxAnswer::Retry};
  Editor.Activate();
  EXPECT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(Editor.Document().Rows().At(View).CurrentKeys, L"Ctrl + F3");
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
}

TEST_F(EditorTest, AnUnreadableFileThatIsGivenUpAtTheStartGivesNoKeysAndIsNotSaved) {
  Editor.Load();
  Files.ReadErrors = {FileError::Other};
  MessageBoxes.Answers = {BoxAnswer::Cancel};
  Editor.Activate();
  EXPECT_EQ(Editor.Document().Caption(), IniFile + L" - Tessera");
  EXPECT_EQ(Editor.Document().Rows().At(View).CurrentKeys, L"---");
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Ini(), IniContent);
  EXPECT_FALSE(Files.Contents.contains(IniFile + L".unsaved"));
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
}

TEST_F(EditorTest, AnUnreadableFileThatIsGivenUpLaterKeepsTheOpenFileAndItsChanges) {
  Start();
  Assign(Pack, L"X");
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nF9=cm_View\r\n";
  Files.ReadErrors = {FileError::Other};
  MessageBoxes.Answers = {BoxAnswer::No, BoxAnswer::Cancel};
  Editor.OpenShortcutFile(false, OtherIniFile, true);
  EXPECT_EQ(Editor.Document().Caption(), IniFile + L" - Tessera");
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"X");
  EXPECT_EQ(Editor.Document().Rows().At(View).CurrentKeys, L"Ctrl + F3");
  EXPECT_EQ(Editor.List().SelectedRow(), Pack + 1);
  EXPECT_EQ(Editor.RecentFiles().ListItems(1), IniFile);
  EXPECT_FALSE(ProgressShown.back());
  EXPECT_TRUE(Editor.Document().Modified());
  Editor.FileSave();
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
}

TEST_F(EditorTest, AnUnreadableFileBehindTheRedirectingLineIsTold) {
  Ini() = "[Shortcuts]\r\nRedirectSection=Other.ini\r\n";
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nF9=cm_View\r\n";
  Editor.Load();
  Files.ReadErrors = {FileError::None, FileError::Other};
  MessageBoxes.Answers = {BoxAnswer::Retry};
  Editor.Activate();
  ASSERT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(MessageBoxes.Shown[0].Text, L"Cannot read this file " + OtherIniFile);
  EXPECT_EQ(Editor.Document().Rows().At(View).CurrentKeys, L"F9");
}

TEST_F(EditorTest, AMissingFileIsEmptyWithoutABox) {
  Start();
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_EQ(Editor.Document().Caption(), OtherIniFile + L" - Tessera");
}

/// Files of which Wincmd.ini alone cannot be read while there is a fault.
class UnreadableIni final : public MemoryFiles {
 public:
  FileError Fault = FileError::None;

  [[nodiscard]] FileError Read(const std::wstring& path, std::string& bytes) const override {
    const bool isUnread = path == IniFile && Fault != FileError::None;
    return isUnread ? Fault : MemoryFiles::Read(path, bytes);
  }
};

TEST(UnreadFiles, AFileThatCouldNotBeReadAtTheOpenIsNotSaved) {
  for (const FileError fault : Faults) {
    SCOPED_TRACE(static_cast<int>(fault));
    SampleProgram<UnreadableIni> program;
    program.Files.Contents[IniFile] = IniContent;
    program.Files.Fault = fault;
    program.MessageBoxes.Answers = {BoxAnswer::Cancel};
    program.Start();
    program.Files.Fault = FileError::None;
    ASSERT_EQ(program.Editor.Document().Rows().Count(), 5U);
    program.Assign(Pack, 0, L"X");
    EXPECT_TRUE(program.Editor.Document().Modified());
    program.Editor.FileSave();
    EXPECT_EQ(program.Files.Contents[IniFile], IniContent);
    EXPECT_TRUE(program.Editor.Document().Modified());
    EXPECT_EQ(program.MessageBoxes.BeepCount, 1);

    program.MessageBoxes.Answers = {BoxAnswer::No};
    program.Editor.OpenShortcutFile(false, IniFile, false);
    program.Assign(Pack, 0, L"X");
    program.Editor.FileSave();
    EXPECT_FALSE(program.Editor.Document().Modified());
    EXPECT_NE(program.Files.Contents[IniFile].find("C+F3=cm_View\r\n"), std::string::npos);
  }
}

TEST_F(EditorTest, AFileThatIsHeldForAMomentIsReadAllTheSame) {
  Editor.Load();
  Files.ReadErrors.assign(3, FileError::SharingViolation);
  Editor.Activate();
  EXPECT_EQ(Editor.Document().Rows().At(1).CurrentKeys, L"F3");
  Assign(Pack, 0, L"X");
  Files.ReadErrors.assign(3, FileError::LockViolation);
  Editor.FileSave();
  EXPECT_FALSE(Editor.Document().Modified());
}

TEST_F(EditorTest, SettingsThatCouldNotBeReadAreNotReplacedByDefaults) {
  const std::string stored = "[Tessera]\r\nFontSize=20\r\n";
  for (const FileError fault : Faults) {
    StoredSettings() = stored;
    Files.ReadErrors.assign(100, fault);
    Editor.Load();
    Files.ReadErrors.clear();
    Editor.Unload({}, {});
    EXPECT_EQ(StoredSettings(), stored);
  }
}

}  // namespace
}  // namespace tessera::unread_files_test
