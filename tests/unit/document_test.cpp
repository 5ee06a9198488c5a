#include "tests/unit/editor_fixture.h"

namespace tessera::document_test {
namespace {

using namespace installation;

// -- Opening a file that cannot be read

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

TEST_F(EditorTest, WithoutTheSettingASaveNeverTouchesTotalCommander) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_TRUE(Calls.empty());
}

TEST_F(EditorTest, SaveAndRestartClosesWritesAndStarts) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  Files.Writes = 0;
  Clock.OnDoEvents = [this] {
    const std::wstring pause = Files.Writes == 0 ? L"pause before the write" : L"pause after it";
    if (Calls.back() != pause) Calls.push_back(pause);
  };
  Editor.FileSaveAndRestart();
  EXPECT_EQ(Calls,
            (Log{L"SetForeground 7", L"SendClose 7", L"pause before the write", L"SetForeground 7",
                 L"pause after it", L"Start C:\\TC\\Totalcmd.exe /i=\"C:\\TC\\Wincmd.ini\""}));
  EXPECT_FALSE(Editor.Document().Modified());
  EXPECT_EQ(Editor.Options().AlwaysRestartTC, 0);
}

// One that runs with more rights than this program: a second one beside it would help nobody.
TEST_F(EditorTest, ATotalCommanderThatMayNotBeClosedIsNotStartedAgain) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Programs.CloseIsAllowed = false;
  Start();
  Assign(Pack, L"X");
  Editor.FileSaveAndRestart();
  EXPECT_EQ(Calls, (Log{L"SetForeground 7", L"SendClose 7"}));
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
  EXPECT_FALSE(Editor.Document().Modified()) << "the keys are saved";
}

TEST_F(EditorTest, WithTheSettingEverySaveRestartsAndOneThatIsNotRunningIsStarted) {
  StoredSettings() = "[Tessera]\r\nAlwaysRestartTC=1\r\n";
  Start();
  Assign(Pack, L"X");
  Programs.StartSucceeds = false;
  MessageBoxes.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(Editor.QueryUnload());
  EXPECT_EQ(Calls, (Log{L"Start C:\\TC\\Totalcmd.exe /i=\"C:\\TC\\Wincmd.ini\""}));
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
  EXPECT_EQ(MessageBoxes.Shown.size(), 1U) << "a start that fails is not told";
  Assign(Pack, L"Y");
  Editor.FileSaveAndRestart();
  EXPECT_EQ(Calls.size(), 2U);
  EXPECT_EQ(Editor.Options().AlwaysRestartTC, 1);
}

TEST_F(EditorTest, NothingIsDoneTwiceWhileASavePauses) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  Clock.OnDoEvents = [this] {
    EXPECT_TRUE(Editor.Document().Busy());
    Editor.FileSave();
    Editor.Work(&HotkeyPanel::Delete);
    Editor.Work(&CommandList::ToggleSortedList);
    EXPECT_FALSE(Editor.QueryUnload());
  };
  Editor.FileSaveAndRestart();
  Clock.OnDoEvents = nullptr;
  EXPECT_FALSE(Editor.Document().Busy());
  EXPECT_EQ(std::count(Calls.begin(), Calls.end(), L"SendClose 7"), 1);
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"X");
}

TEST_F(EditorTest, SaveAndRestartIsEnabledOnlyWhileTotalCommanderRunsAndChangesWait) {
  Start();
  Assign(Pack, L"X");
  Editor.RefreshRestartItems();
  EXPECT_FALSE(Editor.Document().SaveAndRestartEnabled());
  EXPECT_FALSE(Editor.Document().RestartButtonEnabled());
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Editor.RefreshRestartItems();
  EXPECT_TRUE(Editor.Document().SaveAndRestartEnabled());
  EXPECT_TRUE(Editor.Document().RestartButtonEnabled());
  Editor.FileSave();
  Editor.RefreshRestartItems();
  EXPECT_FALSE(Editor.Document().SaveAndRestartEnabled());
  EXPECT_TRUE(Editor.Document().RestartButtonEnabled());
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

// -- Saves that fail, and what else a save keeps

TEST_F(EditorTest, ASaveThatFailsBeeps) {
  Start();
  Assign(Pack, L"X");
  Files.ReplaceErrors.assign(100, FileError::AccessDenied);
  Editor.FileSave();
  EXPECT_TRUE(Editor.Document().Modified());
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
}

TEST_F(EditorTest, ItDoesNotCloseOverASaveThatFailed) {
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Files.ReplaceErrors.assign(100, FileError::AccessDenied);
  EXPECT_FALSE(Editor.QueryUnload());
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

// -- Keys that two rows hold

/// F3, a default of View, is Pack's, and then Copy's: the question names the default alone, so both
/// hold it.
class TwiceHeldKeyTest : public EditorTest {
 protected:
  TwiceHeldKeyTest() {
    Ini() = "[Shortcuts]\r\nF3=cm_Pack\r\n";
    Start();
    MessageBoxes.Answers = {BoxAnswer::Yes};
    Assign(Copy, L"F3");
  }

  [[nodiscard]] std::wstring KeysOf(std::size_t position) const {
    return Editor.Document().Rows().At(position).CurrentKeys;
  }
};

TEST_F(TwiceHeldKeyTest, IsSavedForTheRowThatGotItLast) {
  ASSERT_EQ(KeysOf(Copy), L"F3");
  ASSERT_EQ(KeysOf(Pack), L"F3");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\n");
}

TEST_F(TwiceHeldKeyTest, StaysWithThatRowAfterSavesAndOpens) {
  Editor.FileSave();
  Editor.OpenShortcutFile(false, IniFile, false);
  ASSERT_EQ(KeysOf(Copy), L"F3");
  ASSERT_EQ(KeysOf(Pack), L"F3") << "the keys of the first open are carried over";
  Assign(View, L"F9");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nF9=cm_View\r\n");
}

TEST_F(TwiceHeldKeyTest, GoesToTheOtherRowOnceAnEditTakesIt) {
  Assign(Copy, L"F9");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF9=cm_Copy\r\nF3=cm_Pack\r\n");
  Ini() = "[Shortcuts]\r\nF3=cm_Copy\r\n";
  Editor.OpenShortcutFile(false, IniFile, false);
  Assign(View, L"F8");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Pack\r\nF8=cm_View\r\n") << "read only: the last wins";
}

TEST_F(EditorTest, TotalCommanderIsStartedAgainAfterASaveThatFailed) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  Files.ReplaceErrors.assign(100, FileError::AccessDenied);
  Editor.FileSaveAndRestart();
  EXPECT_TRUE(Editor.Document().Modified());
  ASSERT_FALSE(Calls.empty());
  EXPECT_EQ(Calls.back(), L"Start C:\\TC\\Totalcmd.exe /i=\"C:\\TC\\Wincmd.ini\"");
}

}  // namespace
}  // namespace tessera::document_test
