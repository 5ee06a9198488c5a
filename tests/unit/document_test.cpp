// The open Wincmd.ini: saving, editing, closing, and the options that act at the next open.
#include "tests/unit/editor_fixture.h"

namespace tessera::document_test {
namespace {

using namespace installation;

// -- Saving

TEST_F(EditorTest, ASaveChangesSectionShortcutsAlone) {
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Ini(),
            "[Configuration]\r\nkey=value\r\n"
            "[Shortcuts]\r\nF3=cm_Copy\r\nC+F3=cm_View\r\nX=cm_Pack\r\n"
            "[user]\r\nmenu1=Paint\r\nkey1=1\r\n"
            "[Colors]\r\nred=1\r\n");
  EXPECT_EQ(Files.Contents[IniFile + L".bak"], IniContent);
}

TEST_F(EditorTest, ASaveReleasesAStartMenuKeyThatWasTaken) {
  Start();
  Editor.Work(&HotkeyPanel::SetBox, Modifier::Ctrl, true);
  Editor.Work(&HotkeyPanel::SetBox, Modifier::Alt, true);
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Assign(Pack, L"F1");
  Editor.FileSave();
  EXPECT_NE(Ini().find("[user]\r\nmenu1=Paint\r\n[Colors]"), std::string::npos);
  EXPECT_NE(Ini().find("CA+F1=cm_Pack\r\n"), std::string::npos);
}

TEST_F(EditorTest, KeysThatNobodyTouchedAreSavedAsTheKeysThatTheyWere) {
  Ini() = "[Shortcuts]\r\nOEM_+=cm_View\r\nSC+a=cm_View\r\nc+k=cm_Copy\r\n";
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nc+k=cm_Copy\r\nOEM_+=cm_View\r\nCS+A=cm_View\r\nX=cm_Pack\r\n");
}

TEST_F(EditorTest, SavingWithoutChangesTouchesNothing) {
  StoredSettings() = "[Tessera]\r\nAlwaysRestartTC=1\r\n";
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Files.Reads = Files.Writes = Clock.DoEventsCount = 0;
  Editor.FileSave();
  Editor.FileSaveAndRestart();
  EXPECT_EQ(Files.Reads, 0);
  EXPECT_EQ(Files.Writes, 0);
  EXPECT_EQ(Clock.DoEventsCount, 0);
  EXPECT_TRUE(Calls.empty()) << "Total Commander is not even asked to close";
}

TEST_F(EditorTest, ASaveThatFailsKeepsTheChangesUnsaved) {
  Start();
  Assign(Pack, L"X");
  Files.ReplaceErrors.assign(100, FileError::AccessDenied);
  Editor.FileSave();
  EXPECT_TRUE(Editor.Document().Modified());
  EXPECT_EQ(Ini(), IniContent);
  EXPECT_NE(Files.Contents[IniFile + L".unsaved"].find("X=cm_Pack"), std::string::npos);
}

TEST_F(EditorTest, ASaveThatFailsBeeps) {
  Start();
  Assign(Pack, L"X");
  Files.ReplaceErrors.assign(100, FileError::AccessDenied);
  Editor.FileSave();
  EXPECT_TRUE(Editor.Document().Modified());
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
}

TEST_F(EditorTest, ShortcutsOfUnknownCommandsStayWhereTheSettingIsNotZero) {
  for (const char* value : {"0", "1", "2", "-1"}) {
    StoredSettings() = std::string("[Tessera]\r\nKeepUnknownShortcuts=") + value + "\r\n";
    Ini() = "[Shortcuts]\r\nF3=cm_Copy\r\nA+F5=em_own\r\n";
    tessera::Editor editor(Seams, [](const LoadProgress&) {});
    editor.Load();
    editor.Activate();
    editor.Work(&CommandList::SelectRow, Copy);
    editor.Work(&HotkeyPanel::Delete);
    editor.FileSave();
    ASSERT_FALSE(editor.Document().Modified());
    EXPECT_EQ(Ini(), *value == '0' ? "" : "[Shortcuts]\r\nA+F5=em_own\r\n") << value;
  }
}

// -- Editing

TEST_F(EditorTest, AnEditEnablesSavingAndASaveDisablesIt) {
  Start();
  Assign(Pack, L"X");
  EXPECT_TRUE(Editor.Document().Modified());
  EXPECT_TRUE(Editor.Document().SaveAndRestartEnabled());
  Editor.FileSave();
  EXPECT_FALSE(Editor.Document().Modified());
  EXPECT_FALSE(Editor.Document().SaveAndRestartEnabled());
}

TEST_F(EditorTest, ARefusedEditLeavesTheFileUnmodified) {
  Start();
  MessageBoxes.Answers = {BoxAnswer::No};
  Assign(Pack, L"F5");
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"---");
  EXPECT_FALSE(Editor.Document().Modified());
}

TEST_F(EditorTest, EditsByKeyboardAreEditsToo) {
  Start();
  Editor.Work(&CommandList::SelectRow, View);
  Editor.Work(&HotkeyPanel::KeyDown, KeyEvent{.Code = KeyCode::Delete});
  EXPECT_EQ(Editor.Document().Rows().At(View).CurrentKeys, L"---");
  EXPECT_TRUE(Editor.Document().Modified());
}

TEST_F(EditorTest, ShortcutsAreSavedInTheOrderOfTheList) {
  Start();
  Editor.Work(&CommandList::ToggleSortedList);
  Editor.Work(&CommandList::SortByColumn, 2);
  ASSERT_EQ(Editor.Document().Rows().At(1).CommandName, L"cm_Pack");
  Assign(1, L"X");
  Editor.FileSave();
  EXPECT_NE(Ini().find("[Shortcuts]\r\nF3=cm_Copy\r\nX=cm_Pack\r\nC+F3=cm_View\r\n"),
            std::string::npos);
  Editor.Work(&CommandList::SortByColumn, 2);
  Assign(2, L"Y");
  Editor.FileSave();
  EXPECT_NE(Ini().find("[Shortcuts]\r\nC+F3=cm_View\r\nX=cm_Pack\r\nY=cm_Copy\r\n"),
            std::string::npos);
}

// -- Closing

TEST_F(EditorTest, WithoutChangesItClosesWithoutAQuestion) {
  Start();
  EXPECT_TRUE(Editor.QueryUnload());
  EXPECT_TRUE(MessageBoxes.Shown.empty());
}

TEST_F(EditorTest, CancelKeepsTheProgramRunningWithItsEdits) {
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::Cancel};
  EXPECT_FALSE(Editor.QueryUnload());
  EXPECT_TRUE(Editor.Document().Modified());
  EXPECT_EQ(Ini(), IniContent);
}

TEST_F(EditorTest, NoClosesWithoutSaving) {
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::No};
  EXPECT_TRUE(Editor.QueryUnload());
  EXPECT_EQ(Ini(), IniContent);
}

TEST_F(EditorTest, YesSavesAndCloses) {
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(Editor.QueryUnload());
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
}

TEST_F(EditorTest, ItDoesNotCloseOverASaveThatFailed) {
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Files.ReplaceErrors.assign(100, FileError::AccessDenied);
  EXPECT_FALSE(Editor.QueryUnload());
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
}

// -- Options that act at the next open

/// Ticks or clears one box of the options, and closes them by OK.
void Toggle(Editor& editor, OptionBox box) {
  OptionsSelection& options = editor.BeginOptions();
  options.Click(box);
  options.Apply();
  editor.EndOptions();
}

TEST_F(EditorTest, KeepingUnknownShortcutsActsAtTheNextOpen) {
  const std::string kept = "A+F5=em_own\r\n";
  Ini() = "[Shortcuts]\r\n" + kept;
  Start();
  Toggle(Editor, OptionBox::KeepUnknownShortcuts);
  Editor.OpenShortcutFile(false, IniFile, false);
  Assign(Pack, L"X");
  Toggle(Editor, OptionBox::KeepUnknownShortcuts);
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nX=cm_Pack\r\n" + kept);
  Editor.OpenShortcutFile(false, IniFile, false);
  Assign(Pack, L"Y");
  Toggle(Editor, OptionBox::KeepUnknownShortcuts);
  Editor.FileSave();
  EXPECT_EQ(Ini().find(kept), std::string::npos);
}

TEST_F(EditorTest, AFurtherOpenShowsTheKeysOfItsFileAloneWhereFormerOnesAreForgotten) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nF9=cm_View\r\nW+Q=cm_Copy\r\n";
  Start();
  const auto keysOf = [this](std::size_t row) {
    return Editor.Document().Rows().At(row).CurrentKeys;
  };
  Toggle(Editor, OptionBox::ForgetKeysAtOpen);
  EXPECT_EQ(keysOf(View), L"Ctrl + F3");
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  EXPECT_EQ(keysOf(View), L"F9");
  EXPECT_EQ(keysOf(Copy), L"Q");
  Editor.OpenShortcutFile(false, IniFile, false);
  EXPECT_EQ(keysOf(View), L"Ctrl + F3");
  EXPECT_EQ(keysOf(Copy), L"F3");
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_NE(Ini().find("[Shortcuts]\r\nF3=cm_Copy\r\nC+F3=cm_View\r\nX=cm_Pack\r\n"),
            std::string::npos);
  EXPECT_FALSE(Files.Contents.contains(IniFile + L".dropped"));

  Toggle(Editor, OptionBox::ForgetKeysAtOpen);
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  EXPECT_EQ(keysOf(View), L"Ctrl + F3 = F9");
  EXPECT_EQ(keysOf(Heading), L"");
}

}  // namespace
}  // namespace tessera::document_test
