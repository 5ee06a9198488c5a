#include "tests/unit/editor_fixture.h"

namespace tessera::editor_edits_test {
namespace {

using namespace installation;

/// Everything that events can set off; told apart from the rest of a test by happening while the
/// editor is busy.
void DoEverything(Editor& editor) {
  // First, since the options reset the panel, which would hide what the others do to it.
  editor.BeginOptions();
  editor.EndOptions();
  editor.BeginExport();
  editor.EndExport();
  editor.SelectRow(View);
  editor.SetBox(Modifier::Ctrl, true);
  editor.ChooseKey(3);
  editor.AssignKey();
  editor.AddKey();
  editor.DeleteKeys();
  editor.DeleteAllKeys();
  for (const KeyCode code : {KeyCode::Enter, KeyCode::Delete, KeyCode::Ctrl}) {
    editor.KeyDown({.Code = code, .CtrlHeld = true});
    editor.KeyUp({.Code = code});
  }
  editor.TimerTick();
  editor.ToggleKeysList();
  editor.SelectInKeysList(5);
  editor.KeyDownInKeysList(KeyCode::Enter);
  editor.ClickColumn(2);
  editor.ToggleSortedList();
  editor.FileOpen();
  editor.OpenFile(OtherIniFile);
  editor.OpenRecentFile(1);
  editor.ClearRecentFiles();
  editor.FileSave();
  editor.FileSaveAndRestart();
  editor.Activate();
  EXPECT_FALSE(editor.QueryUnload());
}

/// What the user sees of the rows and the panel.
std::vector<std::wstring> Shown(const Editor& editor) {
  std::vector<std::wstring> texts{editor.Caption(), editor.Panel().ComposeKey(),
                                  std::to_wstring(editor.List().SelectedRow())};
  for (std::size_t row = 0; row < editor.Rows().Count(); ++row) {
    for (const Column column : {Column::Command, Column::Defaults, Column::Current}) {
      texts.emplace_back(CellText(editor.Rows().At(row), column));
    }
  }
  return texts;
}

// -- Editing

TEST_F(EditorTest, AnEditEnablesSavingAndASaveDisablesIt) {
  Start();
  Assign(Pack, L"X");
  EXPECT_TRUE(Editor.Modified());
  EXPECT_TRUE(Editor.SaveAndRestartEnabled());
  Editor.FileSave();
  EXPECT_FALSE(Editor.Modified());
  EXPECT_FALSE(Editor.SaveAndRestartEnabled());
}

TEST_F(EditorTest, ARefusedEditLeavesTheFileUnmodified) {
  Start();
  MessageBoxes.Answers = {BoxAnswer::No};
  Assign(Pack, L"F5");
  EXPECT_EQ(Editor.Rows().At(Pack).CurrentKeys, L"---");
  EXPECT_FALSE(Editor.Modified());
}

TEST_F(EditorTest, EditsByKeyboardAreEditsToo) {
  Start();
  Editor.SelectRow(View);
  Editor.KeyDown({.Code = KeyCode::Delete});
  EXPECT_EQ(Editor.Rows().At(View).CurrentKeys, L"---");
  EXPECT_TRUE(Editor.Modified());
}

TEST_F(EditorTest, APositionOutsideTheListSelectsNothingElse) {
  Start();
  Editor.SelectRow(View);
  Editor.SelectRow(5);
  Editor.SelectRow(static_cast<std::size_t>(-1));
  EXPECT_EQ(Editor.List().SelectedRow(), 3U);
}

TEST_F(EditorTest, TheStoredContextMenuKeyStandsForAltFromItsFirstPress) {
  for (const char* value : {"1", "2", "-1"}) {
    StoredSettings() = std::string("[Tessera]\r\nUseContextMenuKey=") + value + "\r\n";
    tessera::Editor editor(Seams, [](const LoadProgress&) {});
    editor.Load();
    editor.Activate();
    editor.SelectRow(Pack);
    editor.KeyDown({.Code = KeyCode::ContextMenu});
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

// -- While a load or a save runs

TEST_F(EditorTest, EventsDuringALoadChangeNothing) {
  Start();
  int disturbances = 0;
  tessera::Editor* busyEditor = nullptr;
  tessera::Editor editor(Seams, [&](const LoadProgress&) {
    if (busyEditor != nullptr && busyEditor->Busy()) {
      ++disturbances;
      DoEverything(*busyEditor);
    }
  });
  busyEditor = &editor;
  Clock.StepPerReading = 1;  // a long load
  editor.Load();
  editor.Activate();
  EXPECT_GT(disturbances, 2);
  EXPECT_EQ(Shown(editor), Shown(Editor));
  EXPECT_FALSE(editor.Modified());
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_TRUE(Dialogs.OpenRequests.empty());
  EXPECT_TRUE(Clipboard.Texts.empty());
  EXPECT_EQ(Ini(), IniContent);
}

TEST_F(EditorTest, EventsDuringASaveChangeNothing) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  const std::vector<std::wstring> before = Shown(Editor);
  Clock.OnDoEvents = [this] { DoEverything(Editor); };
  Editor.FileSaveAndRestart();
  Clock.OnDoEvents = nullptr;
  EXPECT_GT(Clock.DoEventsCount, 0);
  // The options, which the window does not open at such a time, reset the panel.
  EXPECT_EQ(Editor.Panel().ChosenKey(), NoKeyChosen);
  Choose(L"X");
  EXPECT_EQ(Shown(Editor), before);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_TRUE(Clipboard.Texts.empty());
  EXPECT_EQ(std::count(Calls.begin(), Calls.end(), L"SendClose 7"), 1);
  EXPECT_NE(Ini().find("X=cm_Pack\r\n"), std::string::npos);
}

TEST_F(EditorTest, AMissingRecentFileStaysInTheListDuringASave) {
  StoredSettings() = "[Tessera]\r\nRecentFiles1=C:\\gone.ini\r\n";
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  Clock.OnDoEvents = [this] { Editor.OpenRecentFile(2); };
  Editor.FileSaveAndRestart();
  EXPECT_GT(Clock.DoEventsCount, 0);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_EQ(Editor.RecentFiles().ListItems(2), L"C:\\gone.ini");
}

TEST_F(EditorTest, AKeyReleasedDuringASaveTurnsNoToggle) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  int pauses = 0;
  Clock.OnDoEvents = [&] {
    if (pauses++ == 0) Editor.KeyUp({.Code = KeyCode::Shift});
  };
  Editor.FileSaveAndRestart();
  EXPECT_GT(pauses, 0);
  Clock.OnDoEvents = nullptr;
  Editor.KeyDown({.Code = KeyCode::Shift, .ShiftHeld = true});
  EXPECT_TRUE(Editor.Panel().BoxChecked(Modifier::Shift));
}

// -- Order

TEST_F(EditorTest, TheStoredSortIsAppliedAtStart) {
  StoredSettings() = "[Tessera]\r\nSortedList=1\r\nSortedColumn=2\r\nSortOrder=1\r\n";
  Start();
  ASSERT_EQ(Editor.Rows().Count(), 3U);
  EXPECT_EQ(Editor.Rows().At(0).CommandName, L"cm_View");
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
    ASSERT_EQ(editor.Rows().Count(), 3U);
    EXPECT_EQ(editor.Rows().At(0).DefaultKeys, L"F5");
    EXPECT_EQ(editor.Rows().At(1).DefaultKeys, L"F3 *");
    EXPECT_EQ(editor.Rows().At(2).DefaultKeys, L"---");
  }
}

TEST_F(EditorTest, AStoredFourthColumnReachesTheColumnClickAsNone) {
  StoredSettings() = "[Tessera]\r\nSortedList=1\r\nSortedColumn=4\r\n";
  Start();
  EXPECT_EQ(Editor.Options().SortedColumn, 0);
  EXPECT_EQ(Editor.List().IconOf(Column::Current), HeaderIcon::None);
}

TEST_F(EditorTest, ShortcutsAreSavedInTheOrderOfTheList) {
  Start();
  Editor.ToggleSortedList();
  Editor.ClickColumn(2);
  ASSERT_EQ(Editor.Rows().At(1).CommandName, L"cm_Pack");
  Assign(1, L"X");
  Editor.FileSave();
  EXPECT_NE(Ini().find("[Shortcuts]\r\nF3=cm_Copy\r\nX=cm_Pack\r\nC+F3=cm_View\r\n"),
            std::string::npos);
  Editor.ClickColumn(2);
  Assign(2, L"Y");
  Editor.FileSave();
  EXPECT_NE(Ini().find("[Shortcuts]\r\nC+F3=cm_View\r\nX=cm_Pack\r\nY=cm_Copy\r\n"),
            std::string::npos);
}

// -- The keys list

TEST_F(EditorTest, AChoiceInTheKeysListIsTheChoosers) {
  Start();
  Editor.SelectRow(Pack);
  EXPECT_EQ(Editor.ToggleKeysList().FocusTo, PanelReaction::Focus::Unchanged);
  EXPECT_TRUE(Editor.AllKeys().Visible());
  Editor.SelectInKeysList(5);
  EXPECT_EQ(Editor.Panel().ChosenKey(), 5);
  EXPECT_FALSE(Editor.AllKeys().Visible());
  Editor.ChooseKey(7);
  EXPECT_EQ(Editor.AllKeys().Selection(), 7);
}

TEST_F(EditorTest, SelectingARowClosesTheKeysList) {
  Start();
  Editor.SelectRow(Pack);
  Editor.ToggleKeysList();
  Editor.SelectRow(View);
  EXPECT_FALSE(Editor.AllKeys().Visible());
  Editor.ToggleKeysList();
  Editor.ToggleSortedList();
  EXPECT_FALSE(Editor.AllKeys().Visible());
}

TEST_F(EditorTest, OpeningAFileClosesTheKeysList) {
  Start();
  Editor.SelectRow(Pack);
  Editor.ToggleKeysList();
  ASSERT_TRUE(Editor.AllKeys().Visible());
  Editor.OpenFile(IniFile);
  EXPECT_FALSE(Editor.AllKeys().Visible());
}

TEST_F(EditorTest, TheKeysListFollowsAResetOfThePanel) {
  Start();
  Editor.SelectRow(Pack);
  Editor.ChooseKey(7);
  ASSERT_EQ(Editor.AllKeys().Selection(), 7);
  Editor.KeyDown({.Code = KeyCode::Escape});
  EXPECT_EQ(Editor.AllKeys().Selection(), NoKeyChosen);
  Editor.ChooseKey(7);
  Editor.BeginOptions();
  Editor.EndOptions();
  EXPECT_EQ(Editor.AllKeys().Selection(), NoKeyChosen);
}

TEST_F(EditorTest, TheKeysListDoesNotOpenForAHeadingRow) {
  Start();
  Editor.SelectRow(Heading);
  Editor.ToggleKeysList();
  EXPECT_FALSE(Editor.AllKeys().Visible());
}

}  // namespace
}  // namespace tessera::editor_edits_test
