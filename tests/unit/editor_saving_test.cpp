#include "tests/unit/editor_fixture.h"

namespace tessera {
namespace {

// -- Saving

TEST_F(EditorTest, ASaveChangesSectionShortcutsAlone) {
  Start();
  Assign(Pack, L"X");
  editor_.FileSave();
  EXPECT_EQ(Ini(),
            "[Configuration]\r\nkey=value\r\n"
            "[Shortcuts]\r\nF3=cm_Copy\r\nC+F3=cm_View\r\nX=cm_Pack\r\n"
            "[user]\r\nmenu1=Paint\r\nkey1=1\r\n"
            "[Colors]\r\nred=1\r\n");
  EXPECT_EQ(files_.Contents[iniPath + L".bak"], iniContent);
}

TEST_F(EditorTest, ASaveReleasesAStartMenuKeyThatWasTaken) {
  Start();
  editor_.SetBox(Modifier::Ctrl, true);
  editor_.SetBox(Modifier::Alt, true);
  messageBoxes_.Answers = {BoxAnswer::Yes};
  Assign(Pack, L"F1");
  editor_.FileSave();
  EXPECT_NE(Ini().find("[user]\r\nmenu1=Paint\r\n[Colors]"), std::string::npos);
  EXPECT_NE(Ini().find("CA+F1=cm_Pack\r\n"), std::string::npos);
}

TEST_F(EditorTest, SavingWithoutChangesTouchesNothing) {
  SettingsFile() = "[Tessera]\r\nAlwaysRestartTC=1\r\n";
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  files_.Reads = files_.Writes = clock_.DoEventsCount = 0;
  editor_.FileSave();
  editor_.FileSaveAndRestart();
  EXPECT_EQ(files_.Reads, 0);
  EXPECT_EQ(files_.Writes, 0);
  EXPECT_EQ(clock_.DoEventsCount, 0);
  EXPECT_TRUE(log_.empty()) << "Total Commander is not even asked to close";
}

TEST_F(EditorTest, ASaveThatFailsKeepsTheChangesUnsaved) {
  Start();
  Assign(Pack, L"X");
  files_.ReplaceErrors.assign(100, FileError::AccessDenied);
  editor_.FileSave();
  EXPECT_TRUE(editor_.Modified());
  EXPECT_EQ(Ini(), iniContent);
  EXPECT_NE(files_.Contents[iniPath + L".unsaved"].find("X=cm_Pack"), std::string::npos);
}

TEST_F(EditorTest, WithoutTheSettingASaveNeverTouchesTotalCommander) {
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  editor_.FileSave();
  EXPECT_TRUE(log_.empty());
}

TEST_F(EditorTest, SaveAndRestartClosesWritesAndStarts) {
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  files_.Writes = 0;
  clock_.OnDoEvents = [this] {
    const std::wstring pause = files_.Writes == 0 ? L"pause before the write" : L"pause after it";
    if (log_.back() != pause) {
      log_.push_back(pause);
    }
  };
  editor_.FileSaveAndRestart();
  EXPECT_EQ(log_,
            (Log{L"SetForeground 7", L"SendClose 7", L"pause before the write", L"SetForeground 7",
                 L"pause after it", L"Start C:\\TC\\Totalcmd.exe /i=\"C:\\TC\\Wincmd.ini\""}));
  EXPECT_FALSE(editor_.Modified());
  EXPECT_EQ(editor_.Options().AlwaysRestartTC, 0);
}

TEST_F(EditorTest, WithTheSettingEverySaveRestartsAndOneThatIsNotRunningIsStarted) {
  SettingsFile() = "[Tessera]\r\nAlwaysRestartTC=1\r\n";
  Start();
  Assign(Pack, L"X");
  programs_.StartSucceeds = false;
  messageBoxes_.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(editor_.QueryUnload());
  EXPECT_EQ(log_, (Log{L"Start C:\\TC\\Totalcmd.exe /i=\"C:\\TC\\Wincmd.ini\""}));
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
  EXPECT_EQ(messageBoxes_.Shown.size(), 1U) << "a start that fails is not told";
  Assign(Pack, L"Y");
  editor_.FileSaveAndRestart();
  EXPECT_EQ(log_.size(), 2U);
  EXPECT_EQ(editor_.Options().AlwaysRestartTC, 1);
}

TEST_F(EditorTest, NothingIsDoneTwiceWhileASavePauses) {
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  clock_.OnDoEvents = [this] {
    EXPECT_TRUE(editor_.Busy());
    editor_.FileSave();
    editor_.DeleteKeys();
    editor_.ToggleSortedList();
    EXPECT_FALSE(editor_.QueryUnload());
  };
  editor_.FileSaveAndRestart();
  clock_.OnDoEvents = nullptr;
  EXPECT_FALSE(editor_.Busy());
  EXPECT_EQ(std::count(log_.begin(), log_.end(), L"SendClose 7"), 1);
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"X");
}

TEST_F(EditorTest, SaveAndRestartIsEnabledOnlyWhileTotalCommanderRunsAndChangesWait) {
  Start();
  Assign(Pack, L"X");
  editor_.RefreshRestartItems();
  EXPECT_FALSE(editor_.SaveAndRestartEnabled());
  EXPECT_FALSE(editor_.RestartButtonEnabled());
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  editor_.RefreshRestartItems();
  EXPECT_TRUE(editor_.SaveAndRestartEnabled());
  EXPECT_TRUE(editor_.RestartButtonEnabled());
  editor_.FileSave();
  editor_.RefreshRestartItems();
  EXPECT_FALSE(editor_.SaveAndRestartEnabled());
  EXPECT_TRUE(editor_.RestartButtonEnabled());
}

// -- Closing

TEST_F(EditorTest, WithoutChangesItClosesWithoutAQuestion) {
  Start();
  EXPECT_TRUE(editor_.QueryUnload());
  EXPECT_TRUE(messageBoxes_.Shown.empty());
}

TEST_F(EditorTest, CancelKeepsTheProgramRunningWithItsEdits) {
  Start();
  Assign(Pack, L"X");
  messageBoxes_.Answers = {BoxAnswer::Cancel};
  EXPECT_FALSE(editor_.QueryUnload());
  EXPECT_TRUE(editor_.Modified());
  EXPECT_EQ(Ini(), iniContent);
}

TEST_F(EditorTest, NoClosesWithoutSaving) {
  Start();
  Assign(Pack, L"X");
  messageBoxes_.Answers = {BoxAnswer::No};
  EXPECT_TRUE(editor_.QueryUnload());
  EXPECT_EQ(Ini(), iniContent);
}

TEST_F(EditorTest, YesSavesAndCloses) {
  Start();
  Assign(Pack, L"X");
  messageBoxes_.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(editor_.QueryUnload());
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
}

TEST_F(EditorTest, ASaveThatFailsBeeps) {
  Start();
  Assign(Pack, L"X");
  files_.ReplaceErrors.assign(100, FileError::AccessDenied);
  editor_.FileSave();
  EXPECT_TRUE(editor_.Modified());
  EXPECT_EQ(messageBoxes_.BeepCount, 1);
}

TEST_F(EditorTest, ItDoesNotCloseOverASaveThatFailed) {
  Start();
  Assign(Pack, L"X");
  messageBoxes_.Answers = {BoxAnswer::Yes};
  files_.ReplaceErrors.assign(100, FileError::AccessDenied);
  EXPECT_FALSE(editor_.QueryUnload());
  EXPECT_EQ(messageBoxes_.BeepCount, 1);
}

}  // namespace
}  // namespace tessera
