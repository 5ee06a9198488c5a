#include <gtest/gtest.h>

#include "app/LoadProgress.h"

namespace tessera {
namespace {

TEST(LoadProgress, StartsWithRoomFor1500Steps) {
  LoadProgress progress([](const LoadProgress&) {});
  EXPECT_FALSE(progress.Visible());
  progress.Start();
  EXPECT_TRUE(progress.Visible());
  EXPECT_EQ(progress.Maximum(), 1500);
  EXPECT_EQ(progress.Value(), 1);
}

TEST(LoadProgress, GrowsBy300WithEachStepBeyondItsFirstMaximum) {
  LoadProgress progress([](const LoadProgress&) {});
  progress.Start();
  for (int step = 1; step < 1500; ++step) {
    progress.Step();
  }
  EXPECT_EQ(progress.Value(), 1500);
  EXPECT_EQ(progress.Maximum(), 1500);
  progress.Step();
  EXPECT_EQ(progress.Maximum(), 1800);
  progress.Step();
  EXPECT_EQ(progress.Maximum(), 2100);
  EXPECT_EQ(progress.Value(), 1502);
}

TEST(LoadProgress, IsShownAtMostOncePerPercentAndAtTheEnd) {
  int shown = 0;
  bool visible = false;
  LoadProgress progress([&](const LoadProgress& bar) {
    ++shown;
    visible = bar.Visible();
  });
  progress.Start();
  for (int step = 0; step < 100000; ++step) {
    progress.Step();
  }
  EXPECT_TRUE(visible);
  progress.Finish();
  EXPECT_FALSE(visible);
  EXPECT_GT(shown, 100);
  EXPECT_LT(shown, 250);
}

TEST(LoadProgress, StaysWithinWhatABarCanShowHoweverLongTheLoad) {
  LoadProgress progress([](const LoadProgress&) {});
  progress.Start();
  for (int step = 0; step < 8000000; ++step) {
    progress.Step();
  }
  EXPECT_GT(progress.Maximum(), 1999999000);
  EXPECT_LE(progress.Value(), progress.Maximum());
}

}  // namespace
}  // namespace tessera
