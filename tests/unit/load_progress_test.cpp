#include <gtest/gtest.h>

#include "app/LoadProgress.h"
#include "tests/support/FakeClock.h"

namespace tessera::load_progress_test {
namespace {

TEST(LoadProgress, StartsWithRoomFor1500Steps) {
  FakeClock clock;
  LoadProgress progress(clock, [](const LoadProgress&) {});
  EXPECT_FALSE(progress.Visible());
  progress.Start();
  EXPECT_TRUE(progress.Visible());
  EXPECT_EQ(progress.Maximum(), 1500);
  EXPECT_EQ(progress.Value(), 1);
}

TEST(LoadProgress, GrowsBy300WithEachStepBeyondItsFirstMaximum) {
  FakeClock clock;
  LoadProgress progress(clock, [](const LoadProgress&) {});
  progress.Start();
  for (int step = 1; step < 1500; ++step) progress.Step();
  EXPECT_EQ(progress.Value(), 1500);
  EXPECT_EQ(progress.Maximum(), 1500);
  progress.Step();
  EXPECT_EQ(progress.Maximum(), 1800);
  progress.Step();
  EXPECT_EQ(progress.Maximum(), 2100);
  EXPECT_EQ(progress.Value(), 1502);
}

TEST(LoadProgress, IsShownUntilTheEnd) {
  bool visible = false;
  FakeClock clock;
  LoadProgress progress(clock, [&](const LoadProgress& bar) { visible = bar.Visible(); });
  progress.Start();
  EXPECT_TRUE(visible);
  progress.Finish();
  EXPECT_FALSE(visible);
}

TEST(LoadProgress, HandlesNoEventsWhileALoadIsShort) {
  int shown = 0;
  FakeClock clock;
  LoadProgress progress(clock, [&](const LoadProgress&) { ++shown; });
  progress.Start();
  clock.Seconds += 0.03F;
  for (int step = 0; step < 1500; ++step) progress.Step();
  progress.Finish();
  EXPECT_EQ(shown, 2);
  EXPECT_EQ(clock.DoEventsCount, 0);
}

TEST(LoadProgress, IsShownAndHandlesEventsEvery50MillisecondsHoweverLongTheLoad) {
  int shown = 0;
  FakeClock clock;
  LoadProgress progress(clock, [&](const LoadProgress&) { ++shown; });
  progress.Start();
  for (int part = 0; part < 1000; ++part) {
    clock.Seconds += 0.03125F;
    for (int step = 0; step < 100; ++step) progress.Step();
  }
  EXPECT_EQ(clock.DoEventsCount, 500);
  EXPECT_EQ(shown, 501);
}

TEST(LoadProgress, HandlesEventsAfterJust50Milliseconds) {
  FakeClock clock;
  clock.Seconds = 0;
  LoadProgress progress(clock, [](const LoadProgress&) {});
  progress.Start();
  for (int step = 0; step < 16; ++step) progress.Step();
  EXPECT_EQ(clock.DoEventsCount, 0) << "no time has passed";
  clock.Seconds = 0.05F;
  for (int step = 1; step < 16; ++step) progress.Step();
  EXPECT_EQ(clock.DoEventsCount, 0) << "it looks at each 16th step";
  progress.Step();
  EXPECT_EQ(clock.DoEventsCount, 1);
}

TEST(LoadProgress, HandlesEventsWhenMidnightHasPassed) {
  FakeClock clock;
  clock.Seconds = 86399;
  LoadProgress progress(clock, [](const LoadProgress&) {});
  progress.Start();
  clock.Seconds = 1;
  for (int step = 0; step < 100; ++step) progress.Step();
  EXPECT_EQ(clock.DoEventsCount, 1);
}

TEST(LoadProgress, StaysWithinWhatABarCanShowHoweverLongTheLoad) {
  FakeClock clock;
  LoadProgress progress(clock, [](const LoadProgress&) {});
  progress.Start();
  for (int step = 0; step < 8000000; ++step) progress.Step();
  EXPECT_GT(progress.Maximum(), 1999999000);
  EXPECT_LE(progress.Value(), progress.Maximum());
}

}  // namespace
}  // namespace tessera::load_progress_test
