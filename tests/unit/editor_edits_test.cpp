#include "tests/unit/editor_fixture.h"

namespace tessera {
namespace {

// -- Editing

TEST_F(EditorTest, AnEditEnablesSavingAndASaveDisablesIt) {
  Start();
  Assign(Pack, L"X");
  EXPECT_TRUE(editor_.Modified());
  EXPECT_TRUE(editor_.SaveAndRestartEnabled());
  editor_.FileSave();
  EXPECT_FALSE(editor_.Modified());
  EXPECT_FALSE(editor_.SaveAndRestartEnabled());
}

TEST_F(EditorTest, ARefusedEditLeavesTheFileUnmodified) {
  Start();
  boxes_.Answers = {BoxAnswer::No};
  Assign(Pack, L"F5");
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"---");
  EXPECT_FALSE(editor_.Modified());
}

TEST_F(EditorTest, EditsByKeyboardAreEditsToo) {
  Start();
  editor_.SelectRow(View);
  editor_.KeyDown({.Code = KeyCode::Delete});
  EXPECT_EQ(editor_.Rows().At(View).CurrentKeys, L"---");
  EXPECT_TRUE(editor_.Modified());
}

TEST_F(EditorTest, APositionOutsideTheListSelectsNothingElse) {
  Start();
  editor_.SelectRow(View);
  editor_.SelectRow(5);
  editor_.SelectRow(static_cast<std::size_t>(-1));
  EXPECT_EQ(editor_.List().SelectedRow(), 3U);
}

// -- Order

TEST_F(EditorTest, TheStoredSortIsAppliedAtStart) {
  SettingsFile() = "[Tessera]\r\nSortedList=1\r\nSortedColumn=2\r\nSortOrder=1\r\n";
  Start();
  ASSERT_EQ(editor_.Rows().Count(), 3U);
  EXPECT_EQ(editor_.Rows().At(0).CommandName, L"cm_View");
  EXPECT_EQ(editor_.List().IconOf(Column::Command), HeaderIcon::Descending);
}

TEST_F(EditorTest, StoredSortValuesOutOfRangeAreRepairedAtStart) {
  for (const char* column : {"0", "7"}) {
    SettingsFile() =
        "[Tessera]\r\nSortedList=1\r\nSortOrder=5\r\nSortedColumn=" + std::string(column) + "\r\n";
    Editor editor(system_, [](const LoadProgress&) {});
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
  SettingsFile() = "[Tessera]\r\nSortedList=1\r\nSortedColumn=4\r\n";
  Start();
  EXPECT_EQ(editor_.Options().SortedColumn, 0);
  EXPECT_EQ(editor_.List().IconOf(Column::Current), HeaderIcon::None);
}

TEST_F(EditorTest, ShortcutsAreSavedInTheOrderOfTheList) {
  Start();
  editor_.ToggleSortedList();
  editor_.ClickColumn(2);
  ASSERT_EQ(editor_.Rows().At(1).CommandName, L"cm_Pack");
  Assign(1, L"X");
  editor_.FileSave();
  EXPECT_NE(Ini().find("[Shortcuts]\r\nF3=cm_Copy\r\nX=cm_Pack\r\nC+F3=cm_View\r\n"),
            std::string::npos);
  editor_.ClickColumn(2);
  Assign(2, L"Y");
  editor_.FileSave();
  EXPECT_NE(Ini().find("[Shortcuts]\r\nC+F3=cm_View\r\nX=cm_Pack\r\nY=cm_Copy\r\n"),
            std::string::npos);
}

// -- The keys list

TEST_F(EditorTest, AChoiceInTheKeysListIsTheChoosers) {
  Start();
  editor_.SelectRow(Pack);
  EXPECT_EQ(editor_.ToggleKeysList().FocusTo, PanelReaction::Focus::Unchanged);
  EXPECT_TRUE(editor_.AllKeys().Visible());
  editor_.SelectInKeysList(5);
  EXPECT_EQ(editor_.Panel().ChosenKey(), 5);
  EXPECT_FALSE(editor_.AllKeys().Visible());
  editor_.ChooseKey(7);
  EXPECT_EQ(editor_.AllKeys().Selection(), 7);
}

TEST_F(EditorTest, SelectingARowClosesTheKeysList) {
  Start();
  editor_.SelectRow(Pack);
  editor_.ToggleKeysList();
  editor_.SelectRow(View);
  EXPECT_FALSE(editor_.AllKeys().Visible());
  editor_.ToggleKeysList();
  editor_.ToggleSortedList();
  EXPECT_FALSE(editor_.AllKeys().Visible());
}

TEST_F(EditorTest, TheKeysListDoesNotOpenForAHeadingRow) {
  Start();
  editor_.SelectRow(Heading);
  editor_.ToggleKeysList();
  EXPECT_FALSE(editor_.AllKeys().Visible());
}

}  // namespace
}  // namespace tessera
