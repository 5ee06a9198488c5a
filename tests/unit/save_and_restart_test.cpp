// Saves that close Total Commander before and start it again afterwards.
#include "app/StatusLine.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::save_and_restart_test {
namespace {

using namespace installation;

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
  Assign(Pack, L"Y");
  EXPECT_TRUE(Editor.Document().SaveAndRestartEnabled()) << "until the menu opens";
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

// -- Total Commander, closed by a save and not found again

class LostCommanderTest : public EditorTest {
 protected:
  LostCommanderTest() {
    Start();
    Programs.Windows[L"TTOTAL_CMD"] = 7;
    Programs.Paths[7] = L"D:\\TC\\TOTALCMD64.EXE";
    Programs.OnClose = [this] { Programs.Windows.clear(); };
    Programs.StartSucceeds = false;
  }

  void Select(std::size_t position) { Editor.Work(&CommandList::SelectRow, position); }
  [[nodiscard]] std::wstring Line() const { return StatusText(Editor); }

  void SaveAndRestart() {
    Assign(Pack, L"F9");
    Editor.Work(&HotkeyPanel::ResetPanel);
    Editor.FileSaveAndRestart();
  }
};

TEST_F(LostCommanderTest, IsToldAndShowStartsIt) {
  SaveAndRestart();
  EXPECT_EQ(Line(), L"Wincmd.ini is saved. Total Commander is closed and was not found again.");
  EXPECT_TRUE(Editor.ShowStartsCommander());
  Programs.StartSucceeds = true;
  Calls.clear();
  Editor.Show();
  EXPECT_EQ(Calls, Log({L"Start D:\\TC\\TOTALCMD64.EXE /i=\"" + IniFile + L"\""}));
  EXPECT_FALSE(Editor.ShowEnabled());
  EXPECT_EQ(Line(), L"Pack files");
}

TEST_F(LostCommanderTest, IsToldAfterAFailedSaveToo) {
  Files.WriteErrors.assign(100, FileError::DiskFull);
  SaveAndRestart();
  EXPECT_TRUE(Line().starts_with(L"Not saved: the disk is full"));
  EXPECT_TRUE(Line().ends_with(L"Total Commander is closed and was not found again."));
  EXPECT_TRUE(Editor.ShowStartsCommander());
}

TEST_F(LostCommanderTest, NothingIsToldOfOneThatStays) {
  Programs.OnClose = nullptr;
  SaveAndRestart();
  EXPECT_EQ(Line(), L"Wincmd.ini is saved.");
  EXPECT_FALSE(Editor.ShowEnabled());
}

TEST_F(LostCommanderTest, AProgramOfAnotherNameIsNotStarted) {
  Programs.Paths[7] = L"D:\\TC\\viewer.exe";
  SaveAndRestart();
  EXPECT_TRUE(Line().ends_with(L"Total Commander is closed and was not found again."));
  EXPECT_FALSE(Editor.ShowEnabled());
}

TEST_F(LostCommanderTest, NothingIsToldOfOneThatWasNotRunning) {
  Programs.Windows.clear();
  SaveAndRestart();
  EXPECT_EQ(Line(), L"Wincmd.ini is saved.");
  EXPECT_FALSE(Editor.ShowEnabled());
}

TEST_F(LostCommanderTest, AComposedKeyComesFirst) {
  SaveAndRestart();
  Choose(L"F9");
  EXPECT_FALSE(Editor.ShowStartsCommander());
  EXPECT_FALSE(Editor.ShowEnabled()) << "the selected command itself has it";
}

TEST_F(LostCommanderTest, AnotherRowEndsIt) {
  SaveAndRestart();
  Select(View);
  EXPECT_EQ(Line(), L"View a file");
  EXPECT_FALSE(Editor.ShowEnabled());
}

}  // namespace
}  // namespace tessera::save_and_restart_test
