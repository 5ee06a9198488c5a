// The window's place, from the settings and back.
#include "app/Placement.h"

#include <gtest/gtest.h>

#include <span>
#include <vector>

#include "app/Twips.h"

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
  const std::vector<Screen> screens{{{0, 0, 1920, 1040}}, {{1920, 0, 1280, 1024}}};
  for (const Area& window : {Area{0, 0, 574, 482}, Area{2000, 100, 600, 400},
                             Area{-200, 300, 600, 400}, Area{-5, -5, 1930, 1050}}) {
    EXPECT_EQ(MakeReachable(window, screens, 96), window);
  }
}

TEST(Placement, WindowOffEveryScreenMovesIntoTheFirst) {
  const std::vector<Screen> screens{{{0, 0, 1920, 1040}}, {{1920, 0, 1280, 1024}}};
  EXPECT_EQ(MakeReachable({4000, 100, 600, 400}, screens, 96), (Area{1320, 100, 600, 400}));
  EXPECT_EQ(MakeReachable({100, -400, 600, 400}, screens, 96), (Area{100, 0, 600, 400}));
  EXPECT_EQ(MakeReachable({-900, 2000, 600, 400}, screens, 96), (Area{0, 640, 600, 400}));
  EXPECT_EQ(MakeReachable({5000, 0, 3000, 2000}, screens, 96), (Area{0, 0, 1920, 1040}));
}

TEST(Placement, WindowThatOnlyTouchesAScreenIsOffIt) {
  const std::vector<Screen> screens{{{0, 0, 1920, 1040}}};
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
  const std::vector<Screen> screens{{{0, 0, 1920, 1040}}};
  EXPECT_EQ(MakeReachable({1879, 100, 120, 400}, screens, 96).Left, 1879);
  EXPECT_EQ(MakeReachable({1880, 100, 120, 400}, screens, 96).Left, 1800);
}

TEST(Placement, WindowStaysWhereThereAreNoScreens) {
  EXPECT_EQ(MakeReachable({4000, 100, 600, 400}, {}, 96), (Area{4000, 100, 600, 400}));
}

TEST(Placement, StoredTwipsArePixelsOfTheScreen) {
  std::vector<Screen> screens{{{0, 0, 1920, 1040}, 96}};
  const Settings settings = StoredAt(1500, 750, 15000, 9000);
  EXPECT_EQ(StoredPlace(settings, {.Screens = screens, .Dpi = 96}), (Area{100, 50, 1000, 600}));
  screens.front().Dpi = 144;
  EXPECT_EQ(StoredPlace(settings, {.Screens = screens, .Dpi = 144}), (Area{150, 75, 1500, 900}));
  EXPECT_EQ(StoredPlace(settings, {.Screens = {}, .Dpi = 144}), (Area{150, 75, 1500, 900}));
}

/// Where a window comes back that was closed with its corner there, on a screen of that resolution.
Area BackFrom(int left, int top, int dpi, std::span<const Screen> screens) {
  const auto twips = [dpi](int pixels) { return static_cast<short>(PixelsToTwips(pixels, dpi)); };
  return StoredPlace(StoredAt(twips(left), twips(top), twips(600), twips(400)),
                     {.Screens = screens, .Dpi = screens.front().Dpi});
}

TEST(Placement, WindowComesBackToItsScreenWhereResolutionsDiffer) {
  const std::vector<Screen> fineAtTheRight{{{0, 0, 1920, 1040}, 96}, {{1920, 0, 3840, 2080}, 192}};
  EXPECT_EQ(BackFrom(100, 50, 96, fineAtTheRight), (Area{100, 50, 600, 400}));
  EXPECT_EQ(BackFrom(1201, 51, 96, fineAtTheRight), (Area{1201, 51, 600, 400}));
  EXPECT_EQ(BackFrom(2401, 50, 192, fineAtTheRight), (Area{2401, 50, 600, 400}));
  EXPECT_EQ(BackFrom(2400, 51, 192, fineAtTheRight), (Area{2400, 51, 600, 400}));
  EXPECT_EQ(BackFrom(4000, 50, 192, fineAtTheRight), (Area{4000, 50, 600, 400}));

  const std::vector<Screen> coarseAtTheRight{{{0, 0, 3840, 2080}, 192},
                                             {{3840, 0, 1920, 1040}, 96}};
  EXPECT_EQ(BackFrom(2400, 101, 192, coarseAtTheRight), (Area{2400, 101, 600, 400}));
  const std::vector<Screen> coarseAtTheLeft{{{0, 0, 3840, 2080}, 192},
                                            {{-1920, 0, 1920, 1040}, 96}};
  EXPECT_EQ(BackFrom(-1900, 100, 96, coarseAtTheLeft), (Area{-1900, 100, 600, 400}));
  EXPECT_EQ(BackFrom(100, 100, 192, coarseAtTheLeft), (Area{100, 100, 600, 400}));
}

TEST(Placement, WindowComesBackToAnyOfThreeScreens) {
  const std::vector<Screen> screens{
      {{0, 0, 2560, 1400}, 144}, {{-1920, 200, 1920, 1040}, 96}, {{2560, -300, 3840, 2080}, 192}};
  EXPECT_EQ(BackFrom(301, 40, 144, screens), (Area{301, 40, 600, 400}));
  EXPECT_EQ(BackFrom(-1500, 700, 96, screens), (Area{-1500, 700, 600, 400}));
  EXPECT_EQ(BackFrom(-3, 1239, 96, screens), (Area{-3, 1239, 600, 400}));
  EXPECT_EQ(BackFrom(2561, -299, 192, screens), (Area{2561, -299, 600, 400}));
  EXPECT_EQ(BackFrom(4001, 901, 192, screens), (Area{4001, 901, 600, 400}));
}

TEST(Placement, ResolutionOfTheWindowServesWhereNoScreenHoldsTheStoredPlace) {
  const std::vector<Screen> screens{{{0, 0, 1920, 1040}, 96}, {{1920, 0, 3840, 2080}, 192}};
  const Settings settings = StoredAt(-150, -75, 9000, 6000);
  EXPECT_EQ(ResolutionOfStoredPlace(settings, screens, 144), 144);
  EXPECT_EQ(ResolutionOfStoredPlace(settings, {}, 120), 120);
}

TEST(Placement, StoredPlaceBelongsToAScreenUpToItsEdges) {
  const std::vector<Screen> screens{{{0, 0, 100, 50}, 192}};
  const auto isThere = [&](int left, int top) {
    const auto twips = [](int pixels) { return static_cast<short>(PixelsToTwips(pixels, 192)); };
    return ResolutionOfStoredPlace(StoredAt(twips(left), twips(top), 0, 0), screens, 96) == 192;
  };
  EXPECT_TRUE(isThere(0, 0));
  EXPECT_TRUE(isThere(99, 49));
  EXPECT_FALSE(isThere(-1, 0));
  EXPECT_FALSE(isThere(0, -1));
  EXPECT_FALSE(isThere(100, 0));
  EXPECT_FALSE(isThere(0, 50));
}

TEST(Placement, TwipsOfNoWholePixelsAreReadWithTheCoarserResolution) {
  const std::vector<Screen> screens{{{0, 0, 3840, 2080}, 192}, {{0, 0, 1920, 1040}, 96}};
  EXPECT_EQ(ResolutionOfStoredPlace(StoredAt(1003, 1002, 0, 0), screens, 192), 96);
}

TEST(Placement, WindowIsEnlargedToTheSmallestSizeAndStillReachable) {
  const std::vector<Screen> screens{{{0, 0, 800, 600}}};
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
