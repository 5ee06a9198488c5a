#include "tests/unit/editor_fixture.h"

namespace tessera::editor_test {
namespace {

using namespace installation;

// -- Opening

TEST_F(EditorTest, TheFirstActivationShowsEveryRowInFileOrder) {
  Start();
  ASSERT_EQ(Editor.Document().Rows().Count(), 5U);
  EXPECT_EQ(Editor.Document().Rows().At(Heading).Description, L"[___File___]");
  EXPECT_EQ(Editor.Document().Rows().At(Copy).CommandName, L"cm_Copy");
  EXPECT_EQ(Editor.Document().Rows().At(Copy).DefaultKeys, L"F5");
  EXPECT_EQ(Editor.Document().Rows().At(Copy).CurrentKeys, L"F3");
  EXPECT_EQ(Editor.Document().Rows().At(View).DefaultKeys, L"F3 *");
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"---");
  EXPECT_EQ(Editor.Document().Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
  EXPECT_EQ(Editor.List().SelectedRow(), 1U);
  EXPECT_FALSE(Editor.Document().Modified());
  EXPECT_TRUE(MessageBoxes.Shown.empty());
}

TEST_F(EditorTest, KeysAreShownInTheStoredNotation) {
  StoredSettings() =
      "[Tessera]\r\nMultiHotkeySeparator=|\r\nUndefinedHotkey=none\r\nReverseOrderHotkey=1\r\n";
  Ini() = "[Shortcuts]\r\nC+F3=cm_View\r\nF4=cm_View\r\n";
  Start();
  EXPECT_EQ(Editor.Document().Rows().At(View).CurrentKeys, L"F3 + Ctrl | F4");
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"none");
}

TEST_F(EditorTest, ASecondActivationDoesNothing) {
  Start();
  const int reads = Files.Reads;
  Files.Contents.erase(IncFile);
  Files.Contents.erase(IniFile);
  Editor.Activate();
  EXPECT_EQ(Files.Reads, reads);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_EQ(Editor.Document().Rows().Count(), 5U);
}

TEST_F(EditorTest, AnOpenReadsEachInputFileOnce) {
  Editor.Load();
  Files.Reads = 0;
  Editor.Activate();
  EXPECT_EQ(Files.Reads, 4) << "Wincmd.ini, Totalcmd.inc, the default keys, and, for the recent "
                               "files, the settings";
}

TEST_F(EditorTest, ASaveReadsAndWritesItsFileOnce) {
  Start();
  Assign(Pack, L"X");
  Files.Reads = Files.Writes = Files.Replaces = 0;
  Editor.FileSave();
  EXPECT_EQ(Files.Reads, 1);
  EXPECT_EQ(Files.Writes, 1);
  EXPECT_EQ(Files.Replaces, 1);
}

TEST_F(EditorTest, TheProgressBarIsShownWhileALoadRuns) {
  Start();
  ASSERT_GE(ProgressShown.size(), 2U);
  EXPECT_TRUE(ProgressShown.front());
  EXPECT_FALSE(ProgressShown.back());
}

TEST_F(EditorTest, ASecondOpenAppendsItsKeysToThoseOfTheFirst) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nA+V=cm_View\r\n";
  Start();
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  EXPECT_EQ(Editor.Document().Rows().At(View).CurrentKeys, L"Ctrl + F3 = Alt + V");
  EXPECT_EQ(Editor.Document().Caption(), L"C:\\TC\\Other.ini - Tessera");
}

TEST_F(EditorTest, ASecondOpenWithUnsavedChangesAsksFirst) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::Cancel};
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  ASSERT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(MessageBoxes.Shown[0].Text, L"Save changes to  C:\\TC\\Wincmd.ini\n");
  EXPECT_EQ(MessageBoxes.Shown[0].Buttons, BoxButtons::YesNoCancel);
  EXPECT_EQ(MessageBoxes.Shown[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"X");
  EXPECT_TRUE(Editor.Document().Modified());

  MessageBoxes.Answers = {BoxAnswer::Cancel};
  Editor.FileOpen();
  EXPECT_TRUE(Dialogs.OpenRequests.empty());

  MessageBoxes.Answers = {BoxAnswer::No};
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"---");
  EXPECT_FALSE(Editor.Document().Modified());
  EXPECT_EQ(Ini(), IniContent);
}

TEST_F(EditorTest, ASecondOpenForgetsWhichKeysWereEdited) {
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::No};
  Editor.OpenShortcutFile(false, IniFile, false);
  MessageBoxes.Shown.clear();
  Assign(Copy, L"X");
  EXPECT_TRUE(MessageBoxes.Shown.empty()) << "the key is free again";
}

TEST_F(EditorTest, YesSavesBeforeASecondOpen) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Editor.OpenShortcutFile(false, OtherIniFile, true);
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
  EXPECT_EQ(Editor.Document().Caption(), L"C:\\TC\\Other.ini - Tessera");
}

TEST_F(EditorTest, ItDoesNotOpenOverASaveThatFailed) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Files.ReplaceErrors.assign(100, FileError::AccessDenied);
  Editor.OpenShortcutFile(false, OtherIniFile, true);
  EXPECT_EQ(Editor.Document().Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"X");
  EXPECT_TRUE(Editor.Document().Modified());
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
}

TEST_F(EditorTest, ASecondOpenForgetsTheEditedKeysInTheIndexes) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::No};
  Editor.OpenShortcutFile(false, OtherIniFile, true);
  MessageBoxes.Shown.clear();
  Assign(Copy, L"X");
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_EQ(Editor.Document().Rows().At(Copy).CurrentKeys, L"X");
}

TEST_F(EditorTest, TheDefaultKeysAreLookedUpAgainAtEveryOpen) {
  Start();
  Files.Contents[DataFile] = "[TC Default Hotkeys]\r\n103=F8\r\n";
  Editor.OpenShortcutFile(false, IniFile, true);
  EXPECT_EQ(Editor.Document().Rows().At(Copy).DefaultKeys, L"---");
  EXPECT_EQ(Editor.Document().Rows().At(Pack).DefaultKeys, L"F8");
}

TEST_F(EditorTest, FileOpenTakesTheChosenFile) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Start();
  Dialogs.OpenAnswers = {OtherIniFile};
  Editor.FileOpen();
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Alt + V");
  EXPECT_EQ(Dialogs.OpenRequests[0].Filter, L"Wincmd.ini (*.ini)|*.ini|All Files (*.*)|*.*");
}

TEST_F(EditorTest, ACancelledFileOpenChangesNothing) {
  Start();
  Editor.FileOpen();
  EXPECT_EQ(Editor.Document().Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
  EXPECT_EQ(Editor.Document().Rows().Count(), 5U);
}

// -- The end

TEST_F(EditorTest, UnloadStoresWindowColumnsAndSort) {
  Start();
  Editor.Work(&CommandList::ToggleSortedList);
  Editor.Unload({.Left = 100, .Top = 200, .Width = 9000, .Height = 8000},
                {{2, 1, 4, 3}, {100, 200, 300, 400}});
  for (const char* line :
       {"MainWindowLeft=100", "MainWindowTop=200", "MainWindowWidth=9000", "MainWindowHeight=8000",
        "MainWindowMaxmized=0", "ColumnHeadersPosition=2,1,4,3",
        "ColumnHeadersSize=100,200,300,400", "SortedList=1"}) {
    EXPECT_NE(StoredSettings().find(std::string(line) + "\r\n"), std::string::npos) << line;
  }
}

TEST_F(EditorTest, UnloadInFileOrderStoresTheSortThatIsNext) {
  StoredSettings() = "[Tessera]\r\nSortedList=1\r\nSortedColumn=2\r\nSortOrder=0\r\n";
  Start();
  Editor.Work(&CommandList::ToggleSortedList);
  Editor.Unload({}, {});
  for (const char* line : {"SortedList=0", "SortedColumn=3", "SortOrder=1"}) {
    EXPECT_NE(StoredSettings().find(std::string(line) + "\r\n"), std::string::npos) << line;
  }
}

TEST_F(EditorTest, AMinimisedWindowKeepsItsStoredPlace) {
  StoredSettings() = "[Tessera]\r\nMainWindowLeft=77\r\nMainWindowWidth=9000\r\n";
  Start();
  Editor.Unload({.Minimised = true, .Left = -32000, .Width = 10}, {});
  EXPECT_NE(StoredSettings().find("MainWindowLeft=77\r\n"), std::string::npos);
  EXPECT_NE(StoredSettings().find("MainWindowWidth=9000\r\n"), std::string::npos);
}

TEST_F(EditorTest, AMaximisedWindowStoresThatAlone) {
  StoredSettings() = "[Tessera]\r\nMainWindowLeft=77\r\nMainWindowWidth=9000\r\n";
  Start();
  Editor.Unload({.Maximised = true, .Left = -8, .Width = 20000}, {});
  EXPECT_NE(StoredSettings().find("MainWindowLeft=77\r\n"), std::string::npos);
  EXPECT_NE(StoredSettings().find("MainWindowMaxmized=1\r\n"), std::string::npos);
}

// -- Order

TEST_F(EditorTest, TheStoredSortIsAppliedAtStart) {
  StoredSettings() = "[Tessera]\r\nSortedList=1\r\nSortedColumn=2\r\nSortOrder=1\r\n";
  Start();
  ASSERT_EQ(Editor.Document().Rows().Count(), 3U);
  EXPECT_EQ(Editor.Document().Rows().At(0).CommandName, L"cm_View");
  EXPECT_EQ(Editor.List().IconOf(Column::Command), HeaderIcon::Descending);
}

TEST_F(EditorTest, StoredSortValuesOutOfRangeAreRepairedAtStart) {
  for (const char* column : {"0", "7"}) {
    StoredSettings() =
        "[Tessera]\r\nSortedList=1\r\nSortOrder=5\r\nSortedColumn=" + std::string(column) + "\r\n";
    tessera::Editor editor(Seams, [](const LoadProgress&) {});
    editor.Load();
    editor.Activate();
    EXPECT_EQ(editor.Options().SortedColumn, 3);
    EXPECT_EQ(editor.Options().SortOrder, 1);
    EXPECT_EQ(editor.List().IconOf(Column::Defaults), HeaderIcon::Descending);
    ASSERT_EQ(editor.Document().Rows().Count(), 3U);
    EXPECT_EQ(editor.Document().Rows().At(0).DefaultKeys, L"F5");
    EXPECT_EQ(editor.Document().Rows().At(1).DefaultKeys, L"F3 *");
    EXPECT_EQ(editor.Document().Rows().At(2).DefaultKeys, L"---");
  }
}

TEST_F(EditorTest, AStoredFourthColumnReachesTheColumnClickAsNone) {
  StoredSettings() = "[Tessera]\r\nSortedList=1\r\nSortedColumn=4\r\n";
  Start();
  EXPECT_EQ(Editor.Options().SortedColumn, 0);
  EXPECT_EQ(Editor.List().IconOf(Column::Current), HeaderIcon::None);
}

// -- Work on the rows

TEST_F(EditorTest, APositionOutsideTheListSelectsNothingElse) {
  Start();
  Editor.Work(&CommandList::SelectRow, View);
  Editor.Work(&CommandList::SelectRow, 5);
  Editor.Work(&CommandList::SelectRow, static_cast<std::size_t>(-1));
  EXPECT_EQ(Editor.List().SelectedRow(), 3U);
}

TEST_F(EditorTest, AChoiceInTheKeysListIsTheChoosers) {
  Start();
  Editor.Work(&CommandList::SelectRow, Pack);
  EXPECT_EQ(Editor.Work(&KeysList::ToggleKeysList).FocusTo, Reaction::Focus::Unchanged);
  EXPECT_TRUE(Editor.AllKeys().Visible());
  Editor.Work(&KeysList::Select, 5);
  EXPECT_EQ(Editor.Panel().ChosenKey(), 5);
  EXPECT_FALSE(Editor.AllKeys().Visible());
  Editor.Work(&HotkeyPanel::ChooseKey, 7);
  EXPECT_EQ(Editor.AllKeys().Selection(), 7);
}

TEST_F(EditorTest, SelectingARowClosesTheKeysList) {
  Start();
  Editor.Work(&CommandList::SelectRow, Pack);
  Editor.Work(&KeysList::ToggleKeysList);
  Editor.Work(&CommandList::SelectRow, View);
  EXPECT_FALSE(Editor.AllKeys().Visible());
  Editor.Work(&KeysList::ToggleKeysList);
  Editor.Work(&CommandList::ToggleSortedList);
  EXPECT_FALSE(Editor.AllKeys().Visible());
}

TEST_F(EditorTest, TheKeysListDoesNotOpenForAHeadingRow) {
  Start();
  Editor.Work(&CommandList::SelectRow, Heading);
  Editor.Work(&KeysList::ToggleKeysList);
  EXPECT_FALSE(Editor.AllKeys().Visible());
}

TEST_F(EditorTest, AnyNumberButNoughtReversesTheOrderOfKeys) {
  for (const char* value : {"0", "1", "2", "-1"}) {
    StoredSettings() = std::string("[Tessera]\r\nReverseOrderHotkey=") + value + "\r\n";
    tessera::Editor editor(Seams, [](const LoadProgress&) {});
    editor.Load();
    editor.Activate();
    EXPECT_EQ(editor.Document().Rows().At(View).CurrentKeys,
              *value == '0' ? L"Ctrl + F3" : L"F3 + Ctrl");
  }
}

TEST_F(EditorTest, TheStoredContextMenuKeyStandsForAltFromItsFirstPress) {
  for (const char* value : {"1", "2", "-1"}) {
    StoredSettings() = std::string("[Tessera]\r\nUseContextMenuKey=") + value + "\r\n";
    tessera::Editor editor(Seams, [](const LoadProgress&) {});
    editor.Load();
    editor.Activate();
    editor.Work(&CommandList::SelectRow, Pack);
    editor.Work(&HotkeyPanel::KeyDown, KeyEvent{.Code = KeyCode::ContextMenu});
    EXPECT_TRUE(editor.Panel().BoxChecked(Modifier::Alt)) << value;
  }
}

TEST_F(EditorTest, TheToolbarGoesAndComesBack) {
  Start();
  ASSERT_EQ(Editor.Options().ToolbarVisible, 1);
  Editor.ToggleToolbar();
  EXPECT_EQ(Editor.Options().ToolbarVisible, 0);
  Editor.ToggleToolbar();
  EXPECT_EQ(Editor.Options().ToolbarVisible, 1);
}

TEST_F(EditorTest, OpeningAFileClosesTheKeysList) {
  Start();
  Editor.Work(&CommandList::SelectRow, Pack);
  Editor.Work(&KeysList::ToggleKeysList);
  ASSERT_TRUE(Editor.AllKeys().Visible());
  Editor.OpenShortcutFile(false, IniFile, true);
  EXPECT_FALSE(Editor.AllKeys().Visible());
}

TEST_F(EditorTest, TheKeysListFollowsAChoiceInTheChooser) {
  Start();
  Editor.Work(&CommandList::SelectRow, Pack);
  Editor.Work(&KeysList::ToggleKeysList);
  Editor.Work(&KeysList::KeyDown, KeyCode{40});
  Editor.Work(&KeysList::Select, 5);
  ASSERT_EQ(Editor.AllKeys().Selection(), 5);
  Editor.Work(&HotkeyPanel::ChooseKey, 7);
  EXPECT_EQ(Editor.AllKeys().Selection(), 7);
  EXPECT_TRUE(Editor.AllKeys().Visible());
}

TEST_F(EditorTest, TheKeysListFollowsAResetOfThePanel) {
  Start();
  Editor.Work(&CommandList::SelectRow, Pack);
  Editor.Work(&HotkeyPanel::ChooseKey, 7);
  ASSERT_EQ(Editor.AllKeys().Selection(), 7);
  Editor.Work(&HotkeyPanel::KeyDown, KeyEvent{.Code = KeyCode::Escape});
  EXPECT_EQ(Editor.AllKeys().Selection(), NoKeyChosen);
  Editor.Work(&HotkeyPanel::ChooseKey, 7);
  Editor.BeginOptions();
  Editor.EndOptions();
  EXPECT_EQ(Editor.AllKeys().Selection(), NoKeyChosen);
}

}  // namespace
}  // namespace tessera::editor_test
