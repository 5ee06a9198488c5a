// Closing and starting Total Commander: what is done to it, and in what order.
#include <gtest/gtest.h>

#include "settings/commander/RestartTotalCommander.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/FakePrograms.h"
#include "tests/support/FaultyFiles.h"

namespace tessera::restart_total_commander_test {
namespace {

class RestartTotalCommanderTest : public testing::Test {
 protected:
  RestartTotalCommanderTest() { environment_.Variables[L"Commander_Path"] = L"C:\\TC"; }

  bool Run(bool closeIt) {
    RestartRequest request;
    request.WincmdPath = L"C:\\My Files\\Wincmd.ini";
    request.CloseIt = closeIt;
    return Run(request);
  }
  bool Run(const RestartRequest& request) {
    return RestartTotalCommander(programs_, clock_, files_, environment_, request) !=
           RestartResult::NotAllowed;
  }

  Log log_;
  FakePrograms programs_{log_};
  FakeClock clock_{log_};
  FaultyFiles files_;
  FakeEnvironment environment_;
};

TEST_F(RestartTotalCommanderTest, CloseSendsOneRequestThenPauses) {
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  Run(true);
  EXPECT_EQ(log_, (Log{L"SetForeground 7", L"SendClose 7", L"DoEvents"}));
}

TEST_F(RestartTotalCommanderTest, CloseHandlesEventsUntilTheAnswer) {
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  programs_.PollsBeforeAnswer = 1000;
  EXPECT_TRUE(Run(true));
  EXPECT_EQ(programs_.PollsBeforeAnswer, 0);
  EXPECT_GE(clock_.DoEventsCount, 1000);
  EXPECT_EQ(log_, (Log{L"SetForeground 7", L"SendClose 7", L"DoEvents"})) << "one request";
}

TEST_F(RestartTotalCommanderTest, CloseWaitsForTenMinutesAtMost) {
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  programs_.PollsBeforeAnswer = -1;
  EXPECT_TRUE(Run(true)) << "a window that merely stays changes nothing";
  EXPECT_EQ(clock_.SleptMilliseconds, 600000 + 500);
}

TEST_F(RestartTotalCommanderTest, OneThatMayNotBeAskedToCloseIsTold) {
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  programs_.CloseIsAllowed = false;
  EXPECT_FALSE(Run(true));
}

TEST_F(RestartTotalCommanderTest, CloseOnlyPausesWhenItIsNotRunning) {
  Run(true);
  EXPECT_EQ(log_, Log{L"DoEvents"});
}

TEST_F(RestartTotalCommanderTest, StartPausesThenStartsWithTheQuotedPath) {
  Run(false);
  EXPECT_EQ(log_,
            (Log{L"DoEvents", L"Start C:\\TC\\Totalcmd.exe /i=\"C:\\My Files\\Wincmd.ini\""}));
}

TEST_F(RestartTotalCommanderTest, StartBringsARunningOneToTheForeground) {
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  Run(false);
  EXPECT_EQ(log_.front(), L"SetForeground 7");
  EXPECT_EQ(log_.size(), 3U);
}

TEST_F(RestartTotalCommanderTest, StartWithoutIniPassesNoArguments) {
  RestartRequest request;
  request.WithIni = false;
  Run(request);
  EXPECT_EQ(log_.back(), L"Start C:\\TC\\Totalcmd.exe");
}

TEST_F(RestartTotalCommanderTest, UnsetCommanderPathMeansTheRootOfTheDrive) {
  environment_.Variables.clear();
  files_.Contents = {{L"C:\\Tessera\\vantor.ini", "[Common]\r\nTCInstallDir=C:\\TC\r\n"}};
  Run(false);
  EXPECT_EQ(log_.back(), L"Start \\Totalcmd.exe /i=\"C:\\My Files\\Wincmd.ini\"");
}

TEST_F(RestartTotalCommanderTest, ReferencesInCommanderPathAreExpanded) {
  environment_.Variables = {{L"Commander_Path", L"%drive%\\TC\\"}, {L"drive", L"D:"}};
  Run(false);
  EXPECT_EQ(log_.back(), L"Start D:\\TC\\Totalcmd.exe /i=\"C:\\My Files\\Wincmd.ini\"");
}

TEST_F(RestartTotalCommanderTest, The64BitProgramStartsOnlyWhenItIsAlone) {
  files_.Contents = {{L"C:\\TC\\Totalcmd64.exe", ""}};
  Run(false);
  EXPECT_EQ(log_.back(), L"Start C:\\TC\\Totalcmd64.exe /i=\"C:\\My Files\\Wincmd.ini\"");

  files_.Contents[L"C:\\TC\\Totalcmd.exe"] = "";
  Run(false);
  EXPECT_EQ(log_.back(), L"Start C:\\TC\\Totalcmd.exe /i=\"C:\\My Files\\Wincmd.ini\"");

  environment_.Variables[L"Commander_Path"] = L"\\\\server\\TC";
  files_.Contents[L"\\\\server\\TC\\Totalcmd64.exe"] = "";
  Run(false);
  EXPECT_EQ(log_.back(), L"Start \\\\server\\TC\\Totalcmd64.exe /i=\"C:\\My Files\\Wincmd.ini\"");
  files_.Contents[L"\\\\server\\TC\\Totalcmd.exe"] = "";
  Run(false);
  EXPECT_EQ(log_.back(), L"Start \\\\server\\TC\\Totalcmd.exe /i=\"C:\\My Files\\Wincmd.ini\"");
}

TEST_F(RestartTotalCommanderTest, FailedStartIsIgnored) {
  programs_.StartSucceeds = false;
  EXPECT_NO_THROW(Run(false));
  EXPECT_EQ(log_.size(), 2U);
}

TEST(FindTotalCommander, LooksForItsWindowClass) {
  Log log;
  FakePrograms programs(log);
  programs.Windows[L"OTHER"] = 5;
  EXPECT_EQ(FindTotalCommander(programs), 0U);
  programs.Windows[L"TTOTAL_CMD"] = 9;
  EXPECT_EQ(FindTotalCommander(programs), 9U);
}

TEST(Pause, LastsHalfASecondWhileEventsAreHandled) {
  FakeClock clock;
  Pause(clock);
  EXPECT_EQ(clock.SleptMilliseconds, 500);
  EXPECT_GT(clock.DoEventsCount, 50);
}

TEST(Pause, LastsHalfASecondAtMidnightToo) {
  FakeClock clock;
  clock.Seconds = 86399.75;
  Pause(clock);
  EXPECT_EQ(clock.SleptMilliseconds, 500);
}

TEST(Pause, LastsHalfASecondWhenTheTimeIsSetBack) {
  FakeClock clock;
  int events = 0;
  clock.OnDoEvents = [&] {
    if (++events == 10) clock.SetBackBy = 3600;
  };
  Pause(clock);
  EXPECT_EQ(clock.SleptMilliseconds, 500);
}

TEST(Pause, EndsWhenTheTimeIsSetToItsEnd) {
  FakeClock clock;
  clock.OnDoEvents = [&] { clock.SetBackBy = -0.495; };
  Pause(clock);
  EXPECT_EQ(clock.SleptMilliseconds, 5);
}

TEST(Pause, IsNoneWhenItWouldNotEndAfterMidnight) {
  for (const double seconds : {-0.5, -100.0}) {
    FakeClock clock;
    clock.Seconds = seconds;
    Pause(clock);
    EXPECT_EQ(clock.DoEventsCount, 0) << seconds;
  }
}

TEST_F(RestartTotalCommanderTest, AStartThatFailsIsTold) {
  programs_.StartSucceeds = false;
  EXPECT_EQ(RestartTotalCommander(programs_, clock_, files_, environment_, {.WincmdPath = L"x"}),
            RestartResult::NotStarted);
}

TEST_F(RestartTotalCommanderTest, TheRunningProgramIsThatOfItsWindow) {
  EXPECT_EQ(RunningTotalCommander(programs_), L"");
  programs_.Windows[L"TTOTAL_CMD"] = 7;
  EXPECT_EQ(RunningTotalCommander(programs_), L"") << "the system does not tell";
  for (const wchar_t* const path : {L"D:\\TC\\TOTALCMD.EXE", L"D:\\TC\\totalcmd64.exe"}) {
    programs_.Paths[7] = path;
    EXPECT_EQ(RunningTotalCommander(programs_), path);
  }
  for (const wchar_t* const path :
       {L"D:\\TC\\other.exe", L"D:\\Totalcmd.exe\\x.exe", L"Totalcmd"}) {
    programs_.Paths[7] = path;
    EXPECT_EQ(RunningTotalCommander(programs_), L"");
  }
}

}  // namespace
}  // namespace tessera::restart_total_commander_test
