// What commands do, when they are enabled, and what they leave to the window.
#include "app/Commands.h"

#include <algorithm>
#include <set>

#include "resources/resource.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::commands_test {
namespace {

using namespace installation;

class CommandsTest : public EditorTest {
 protected:
  [[nodiscard]] CommandState StateOf(int id) const {
    const std::vector<CommandState> states = CommandStates(Editor);
    return *std::ranges::find(states, id, &CommandState::Id);
  }
};

TEST_F(CommandsTest, AreEnabledWhereTheyCanDoSomething) {
  using Ids = std::set<int>;
  const auto disabled = [this] {
    Ids ids;
    for (const CommandState& state : CommandStates(Editor)) {
      EXPECT_EQ(CommandEnabled(Editor, state.Id), state.Enabled) << state.Id;
      if (!state.Enabled) ids.insert(state.Id);
    }
    return ids;
  };
  Start();
  EXPECT_EQ(disabled(),
            (Ids{IDM_mnuFileSave, IDM_mnuFileSavenRestartTC, IDM_assign, IDM_new, IDM_delete,
                 IDM_undo, IDM_redo, IDM_show, IDM_copycommand, IDM_copyrow}));
  Editor.Work(&CommandList::SelectRow, View);
  Choose(L"F5");
  EXPECT_EQ(disabled(), (Ids{IDM_mnuFileSave, IDM_mnuFileSavenRestartTC, IDM_undo, IDM_redo}));
  Assign(View, L"F9");
  EXPECT_EQ(disabled(), (Ids{IDM_redo, IDM_show}));
  Editor.Work(&CommandList::Undo);
  EXPECT_EQ(disabled(), (Ids{IDM_mnuFileSave, IDM_mnuFileSavenRestartTC, IDM_undo, IDM_show}));

  Editor.Work(&CommandList::Redo);
  Editor.Work(&CommandList::SetCanSearch, false);
  Editor.RefreshRestartItems();
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Editor.ClearRecentFiles();
  EXPECT_EQ(disabled(), (Ids{IDM_mnuFileSavenRestartTC, IDM_restarttc, IDM_mnuRecentClear, IDM_redo,
                             IDM_show, IDM_find}));
}

TEST_F(CommandsTest, DisabledCommandDoesNothing) {
  Start();
  EXPECT_FALSE(CommandEnabled(Editor, IDM_mnuFileSave));
  EXPECT_EQ(RunCommand(Editor, IDM_mnuFileSave), WindowTask::None);
  EXPECT_EQ(Ini(), IniContent);
}

TEST_F(CommandsTest, SaveIsEnabledByAnEditAndSaves) {
  Start();
  Assign(Pack, L"F9");
  EXPECT_TRUE(StateOf(IDM_mnuFileSave).Enabled);
  EXPECT_EQ(RunCommand(Editor, IDM_mnuFileSave), WindowTask::None);
  EXPECT_FALSE(StateOf(IDM_mnuFileSave).Enabled);
  EXPECT_NE(Ini(), IniContent);
}

TEST_F(CommandsTest, TotalCommanderThatEndsWhileTheMenuIsOpenIsStartedAgain) {
  Start();
  for (const int id : {IDM_mnuFileSavenRestartTC, IDM_restarttc}) {
    Assign(Pack, id == IDM_restarttc ? L"F9" : L"F8");
    Programs.Windows[L"TTOTAL_CMD"] = 7;
    Editor.RefreshRestartItems();
    Programs.Windows.clear();
    Calls.clear();
    RunCommand(Editor, id);
    EXPECT_FALSE(Editor.Document().Modified()) << id;
    ASSERT_FALSE(Calls.empty()) << id;
    EXPECT_EQ(Calls.back(), L"Start C:\\TC\\Totalcmd.exe /i=\"C:\\TC\\Wincmd.ini\"");
  }
}

TEST_F(CommandsTest, SaveAndRestartNeedsNoMenuToHaveBeenOpen) {
  Start();
  for (const int id : {IDM_mnuFileSavenRestartTC, IDM_restarttc}) {
    Assign(Pack, id == IDM_restarttc ? L"F9" : L"F8");
    RunCommand(Editor, id);
    EXPECT_FALSE(Editor.Document().Modified()) << id;
  }
}

TEST_F(CommandsTest, ChecksFollowTheSettings) {
  Start();
  EXPECT_TRUE(StateOf(IDM_mnuViewToolbar).Checked);
  EXPECT_EQ(RunCommand(Editor, IDM_mnuViewToolbar), WindowTask::LayOut);
  EXPECT_FALSE(StateOf(IDM_mnuViewToolbar).Checked);
  EXPECT_FALSE(StateOf(IDM_mnuViewSortList).Checked);
  EXPECT_EQ(RunCommand(Editor, IDM_mnuViewSortList), WindowTask::ShowSelectedRow);
  EXPECT_TRUE(StateOf(IDM_mnuViewSortList).Checked);
}

TEST_F(CommandsTest, NoCommandIsCheckedThatSwitchesNothing) {
  Start();
  for (const CommandState& state : CommandStates(Editor)) {
    EXPECT_EQ(state.Checked, state.Id == IDM_mnuViewToolbar) << state.Id;
  }
}

TEST_F(CommandsTest, OpenAndRecentFilesLeaveTheSelectedRowToBeShown) {
  Start();
  EXPECT_EQ(RunCommand(Editor, IDM_mnuFileOpen), WindowTask::ShowSelectedRow);
  EXPECT_EQ(Dialogs.OpenRequests.size(), 1U);
  Assign(Pack, L"F9");
  MessageBoxes.Answers = {BoxAnswer::No};
  EXPECT_EQ(RunCommand(Editor, IDM_mnuFileRecentFiles1), WindowTask::ShowSelectedRow);
  EXPECT_FALSE(Editor.Document().Modified());
}

TEST_F(CommandsTest, WindowDoesItsOwnCommands) {
  Start();
  EXPECT_EQ(RunCommand(Editor, IDM_mnuFileExportToClipboard), WindowTask::ShowExport);
  EXPECT_EQ(RunCommand(Editor, IDM_mnuViewOptions), WindowTask::ShowOptions);
  EXPECT_EQ(RunCommand(Editor, IDM_mnuFileExit), WindowTask::Close);
}

TEST_F(CommandsTest, OpenKeysListDisablesThePanelToolbarAlone) {
  Start();
  Editor.Work(&CommandList::SelectRow, Copy);
  EXPECT_TRUE(StateOf(IDM_delete).EnabledOnPanel);
  Editor.Work(&KeysList::ToggleKeysList);
  EXPECT_FALSE(StateOf(IDM_delete).EnabledOnPanel);
  EXPECT_TRUE(StateOf(IDM_delete).Enabled);
}

TEST_F(CommandsTest, CopiesAreOfTheSelectedCommand) {
  Start();
  Editor.Work(&CommandList::SelectRow, View);
  RunCommand(Editor, IDM_copycommand);
  EXPECT_EQ(Clipboard.Texts.back(), L"cm_View");
  RunCommand(Editor, IDM_copyrow);
  EXPECT_NE(Clipboard.Texts.back().find(L"\tcm_View\t"), std::wstring::npos);
  EXPECT_EQ(Clipboard.Texts.back().find(L'\n'), std::wstring::npos);
  RunCommand(Editor, IDM_copytable);
  EXPECT_EQ(Clipboard.Htmls.size(), 1U);
  EXPECT_EQ(Clipboard.Texts.size(), 3U);
  EXPECT_EQ(MessageBoxes.BeepCount, 0);
  Clipboard.IsHeld = true;
  for (const int id : {IDM_copycommand, IDM_copyrow, IDM_copytable}) RunCommand(Editor, id);
  EXPECT_EQ(MessageBoxes.BeepCount, 3);
}

TEST_F(CommandsTest, OfAHeadingThereIsNothingToCopy) {
  Start();
  ASSERT_FALSE(Editor.List().CommandSelected());
  for (const int id : {IDM_copycommand, IDM_copyrow}) {
    EXPECT_FALSE(StateOf(id).Enabled);
    RunCommand(Editor, id);
  }
  Editor.CopyCommandName();
  Editor.CopyRow();
  EXPECT_TRUE(Clipboard.Texts.empty());
  EXPECT_TRUE(StateOf(IDM_copytable).Enabled);
}

TEST_F(CommandsTest, OtherNumbersAreNoCommands) {
  EXPECT_TRUE(IsCommand(IDM_mnuFileRecentFiles16));
  for (const int id : {0, IDC_Combo1, IDM_mnuFileRecentFiles16 + 1}) {
    EXPECT_FALSE(IsCommand(id)) << id;
    EXPECT_FALSE(CommandEnabled(Editor, id)) << id;
    EXPECT_EQ(RunCommand(Editor, id), WindowTask::None) << id;
  }
}

TEST_F(CommandsTest, FindNeedsABoxToTypeIn) {
  Start();
  EXPECT_TRUE(StateOf(IDM_find).Enabled);
  EXPECT_EQ(RunCommand(Editor, IDM_find), WindowTask::FocusFindBox);
  Editor.Work(&CommandList::SetCanSearch, false);
  EXPECT_FALSE(StateOf(IDM_find).Enabled);
  EXPECT_EQ(RunCommand(Editor, IDM_find), WindowTask::None);
}

}  // namespace

}  // namespace tessera::commands_test
