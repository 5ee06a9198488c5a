// The window's place, from the settings and back.
#include "app/Placement.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessera::placement_test {
namespace {

Settings StoredAt(short left, short top, short width, short height) {
  Settings settings;
  settings.MainWindowLeft = left;
  settings.MainWindowTop = top;
  settings.MainWindowWidth = width;
  settings.MainWindowHeight = height;
  return settings;
}

TEST(Placement, WindowOnAScreenStaysWhereItIs) {
  const std::vector<Area> screens{{0, 0, 1920, 1040}, {1920, 0, 1280, 1024}};
  for (const Area& window : {Area{0, 0, 574, 482}, Area{2000, 100, 600, 400},
                             Area{-200, 300, 600, 400}, Area{-5, -5, 1930, 1050}}) {
    EXPECT_EQ(MakeReachable(window, screens, 96), window);
  }
}

TEST(Placement, WindowOffEveryScreenMovesIntoTheFirst) {
  const std::vector<Area> screens{{0, 0, 1920, 1040}, {1920, 0, 1280, 1024}};
  EXPECT_EQ(MakeReachable({4000, 100, 600, 400}, screens, 96), (Area{1320, 100, 600, 400}));
  EXPECT_EQ(MakeReachable({100, -400, 600, 400}, screens, 96), (Area{100, 0, 600, 400}));
  EXPECT_EQ(MakeReachable({-900, 2000, 600, 400}, screens, 96), (Area{0, 640, 600, 400}));
  EXPECT_EQ(MakeReachable({5000, 0, 3000, 2000}, screens, 96), (Area{0, 0, 1920, 1040}));
}

TEST(Placement, WindowThatOnlyTouchesAScreenIsOffIt) {
  const std::vector<Area> screens{{0, 0, 1920, 1040}};
  const auto placed = [&](int left, int top) {
    return MakeReachable({left, top, 600, 400}, screens, 96);
  };
  // What counts is the title bar without its ends, 100 pixels each.
  EXPECT_EQ(placed(1819, 100).Left, 1819);
  EXPECT_EQ(placed(1820, 100).Left, 1320);
  EXPECT_EQ(placed(-499, 100).Left, -499);
  EXPECT_EQ(placed(-500, 100).Left, 0);
  EXPECT_EQ(placed(100, 1039).Top, 1039);
  EXPECT_EQ(placed(100, 1040).Top, 640);
  EXPECT_EQ(placed(100, -8).Top, -8);
  EXPECT_EQ(placed(100, -9).Top, 0);
}

TEST(Placement, NarrowWindowIsMovedByItsMiddleThird) {
  const std::vector<Area> screens{{0, 0, 1920, 1040}};
  EXPECT_EQ(MakeReachable({1879, 100, 120, 400}, screens, 96).Left, 1879);
  EXPECT_EQ(MakeReachable({1880, 100, 120, 400}, screens, 96).Left, 1800);
}

TEST(Placement, WindowStaysWhereThereAreNoScreens) {
  EXPECT_EQ(MakeReachable({4000, 100, 600, 400}, {}, 96), (Area{4000, 100, 600, 400}));
}

TEST(Placement, StoredTwipsArePixelsOfTheScreen) {
  const std::vector<Area> screens{{0, 0, 1920, 1040}};
  const Settings settings = StoredAt(1500, 750, 15000, 9000);
  EXPECT_EQ(StoredPlace(settings, {.Screens = screens, .Dpi = 96}), (Area{100, 50, 1000, 600}));
  EXPECT_EQ(StoredPlace(settings, {.Screens = screens, .Dpi = 144}), (Area{150, 75, 1500, 900}));
}

TEST(Placement, WindowIsEnlargedToTheSmallestSizeAndStillReachable) {
  const std::vector<Area> screens{{0, 0, 800, 600}};
  const Surroundings around{
      .SmallestWidth = 500, .SmallestHeight = 300, .Screens = screens, .Dpi = 96};
  EXPECT_EQ(StoredPlace(StoredAt(150, 150, 1500, 1500), around), (Area{10, 10, 500, 300}));
  EXPECT_EQ(StoredPlace(StoredAt(30000, 150, 1500, 1500), around), (Area{300, 10, 500, 300}));
}

TEST(Placement, MaximisedWindowIsRestoredToTheFirstSize) {
  EXPECT_EQ(RestoredSize(96), (Area{0, 0, 667, 467}));
}

TEST(Placement, WindowThatNobodyMovedKeepsItsStoredTwips) {
  const Settings stored = StoredAt(30000, 7, 8, 9);
  const Area placed{300, 10, 500, 300};
  const WindowPlacement placement =
      PlacementToStore({.Place = placed, .Maximised = true}, placed, stored);
  EXPECT_EQ(placement.Left, 30000);
  EXPECT_EQ(placement.Top, 7);
  EXPECT_EQ(placement.Width, 8);
  EXPECT_EQ(placement.Height, 9);
  EXPECT_TRUE(placement.Maximised);
  EXPECT_FALSE(placement.Minimised);
}

TEST(Placement, MovedWindowIsStoredButForTheLengthsThatStayed) {
  const Settings stored = StoredAt(1501, 750, 7500, 4500);
  const WindowPlacement placement =
      PlacementToStore({.Place = {100, 60, 500, 300}, .Dpi = 96}, {100, 50, 500, 300}, stored);
  EXPECT_EQ(placement.Left, 1501);
  EXPECT_EQ(placement.Top, 900);
  EXPECT_EQ(placement.Width, 7500);
  EXPECT_EQ(placement.Height, 4500);
}

}  // namespace

}  // namespace tessera::placement_test
