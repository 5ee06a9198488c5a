// The geometry of the main window.
#include "app/Layout.h"

#include <gtest/gtest.h>

namespace tessera::layout_test {

namespace {

TEST(Layout, TwipsArePixelsAtAnyResolution) {
  struct Case {
    int Twips;
    int Dpi;
    int Pixels;
  };
  for (const Case& given : {Case{3000, 96, 200}, Case{3000, 144, 300}, Case{3000, 192, 400},
                            Case{0, 96, 0}, Case{-150, 96, -10}, Case{7, 96, 0}, Case{8, 96, 1}}) {
    EXPECT_EQ(TwipsToPixels(given.Twips, given.Dpi), given.Pixels) << given.Twips;
  }
}

TEST(Layout, PixelsSurviveTheWayThroughTwips) {
  for (const int dpi : {96, 120, 144, 168, 192, 288}) {
    for (int pixels = -2000; pixels <= 2000; ++pixels) {
      ASSERT_EQ(TwipsToPixels(PixelsToTwips(pixels, dpi), dpi), pixels) << dpi;
    }
  }
}

TEST(Layout, UnchangedLengthKeepsItsTwips) {
  EXPECT_EQ(PixelsToTwips(133, 96, 2000), 2000);
  EXPECT_EQ(PixelsToTwips(134, 96, 2000), 2010);
}

TEST(Layout, ListFillsTheWindowBetweenToolbarAndPanel) {
  const MainLayout layout = LayOutMainWindow(800, 600, 30, 50);
  EXPECT_EQ(layout.Toolbar1, (Area{0, 0, 800, 30}));
  EXPECT_EQ(layout.ListView1, (Area{5, 31, 790, 520}));
  EXPECT_EQ(layout.Frame1.Left, 5);
  EXPECT_EQ(layout.Frame1.Top, 551);
  EXPECT_EQ(layout.Frame1.Height, 50);
}

TEST(Layout, HidingTheToolbarMovesTheListUpAndGrowsItByTheToolbar) {
  const Area shown = LayOutMainWindow(800, 600, 30, 50).ListView1;
  const Area hidden = LayOutMainWindow(800, 600, 0, 50).ListView1;
  EXPECT_EQ(hidden.Top, 1);
  EXPECT_EQ(hidden.Height, shown.Height + 30);
}

TEST(Layout, TooSmallAWindowGivesNoNegativeSize) {
  const MainLayout layout = LayOutMainWindow(4, 20, 30, 50);
  EXPECT_EQ(layout.ListView1.Width, 0);
  EXPECT_EQ(layout.ListView1.Height, 0);
}

TEST(Layout, RowItemsStandSideBySideInTheMiddleOfTheRow) {
  const std::vector<RowItem> items{{10, 40, 20}, {6, 50, 30}};
  EXPECT_EQ(LayOutRow(items, 40), (std::vector<Area>{{10, 10, 40, 20}, {56, 5, 50, 30}}));
}

TEST(Layout, AllKeysButtonStandsOverTheRightEndOfTheChooser) {
  const Area chooser{200, 8, 150, 21};
  EXPECT_EQ(PlaceAllKeysButton(chooser, 96), (Area{333, 11, 15, 16}));
  EXPECT_EQ(PlaceAllKeysButton(chooser, 192), (Area{316, 14, 30, 32}));
}

TEST(Layout, CentredThingIsNoWiderThanItsRoom) {
  EXPECT_EQ(Centred({5, 10, 200, 100}, 100, 20), (Area{55, 50, 100, 20}));
  EXPECT_EQ(Centred({5, 10, 60, 100}, 100, 20), (Area{5, 50, 60, 20}));
}

TEST(Layout, WindowOnAScreenStaysWhereItIs) {
  const std::vector<Area> screens{{0, 0, 1920, 1040}, {1920, 0, 1280, 1024}};
  for (const Area& window : {Area{0, 0, 574, 482}, Area{2000, 100, 600, 400},
                             Area{-200, 300, 600, 400}, Area{-5, -5, 1930, 1050}}) {
    EXPECT_EQ(MakeReachable(window, screens, 96), window);
  }
}

TEST(Layout, WindowOffEveryScreenMovesIntoTheFirst) {
  const std::vector<Area> screens{{0, 0, 1920, 1040}, {1920, 0, 1280, 1024}};
  EXPECT_EQ(MakeReachable({4000, 100, 600, 400}, screens, 96), (Area{1320, 100, 600, 400}));
  EXPECT_EQ(MakeReachable({100, -400, 600, 400}, screens, 96), (Area{100, 0, 600, 400}));
  EXPECT_EQ(MakeReachable({-900, 2000, 600, 400}, screens, 96), (Area{0, 640, 600, 400}));
  EXPECT_EQ(MakeReachable({5000, 0, 3000, 2000}, screens, 96), (Area{0, 0, 1920, 1040}));
}

TEST(Layout, WindowStaysWhereThereAreNoScreens) {
  EXPECT_EQ(MakeReachable({4000, 100, 600, 400}, {}, 96), (Area{4000, 100, 600, 400}));
}

TEST(Layout, KeysListOpensUnderThePanelFlushWithTheButton) {
  const Area screen{0, 0, 1280, 1000};
  const Area panel{100, 500, 600, 40};
  const Area button{400, 510, 15, 16};
  EXPECT_EQ(PlaceKeysList({panel, button, screen}, 160, 300), (Area{255, 540, 160, 300}));
}

TEST(Layout, KeysListIsFlushWithTheLeftEndFromRightToLeft) {
  const Area screen{0, 0, 1280, 1000};
  const Area panel{100, 500, 600, 40};
  const Area button{400, 510, 15, 16};
  EXPECT_EQ(PlaceKeysList({panel, button, screen, true}, 160, 300), (Area{400, 540, 160, 300}));
}

TEST(Layout, KeysListOpensAboveThePanelWithoutRoomBelow) {
  const Area screen{0, 0, 1280, 1000};
  const Area panel{100, 800, 600, 40};
  const Area button{400, 810, 15, 16};
  EXPECT_EQ(PlaceKeysList({panel, button, screen}, 160, 300), (Area{255, 500, 160, 300}));
}

TEST(Layout, KeysListStaysOnTheScreen) {
  const Area screen{1280, 0, 1280, 400};
  const Area panel{1200, 200, 600, 40};
  const Area button{1300, 210, 15, 16};
  EXPECT_EQ(PlaceKeysList({panel, button, screen}, 160, 300), (Area{1280, 0, 160, 300}));
}

TEST(Layout, ColumnPositionsAndOrderAreInverse) {
  const std::array<int, 4> positions{3, 1, 4, 2};
  EXPECT_EQ(OrderOfPositions(positions), (std::array<int, 4>{1, 3, 0, 2}));
  EXPECT_EQ(PositionsOfOrder(OrderOfPositions(positions)), positions);
}

TEST(Layout, WindowThatOnlyTouchesAScreenIsOffIt) {
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

TEST(Layout, NarrowWindowIsMovedByItsMiddleThird) {
  const std::vector<Area> screens{{0, 0, 1920, 1040}};
  EXPECT_EQ(MakeReachable({1879, 100, 120, 400}, screens, 96).Left, 1879);
  EXPECT_EQ(MakeReachable({1880, 100, 120, 400}, screens, 96).Left, 1800);
}

TEST(Layout, KeysListThatJustFitsOpensUnderThePanel) {
  const Area panel{100, 500, 600, 40};
  const Area button{400, 510, 15, 16};
  EXPECT_EQ(PlaceKeysList({panel, button, {0, 0, 1280, 840}}, 160, 300).Top, 540);
  EXPECT_EQ(PlaceKeysList({panel, button, {0, 0, 1280, 839}}, 160, 300).Top, 200);
}

TEST(Layout, KeysListLargerThanItsScreenStartsAtTheScreensCorner) {
  const Area screen{100, 100, 200, 200};
  const Area panel{100, 450, 600, 40};
  const Area button{150, 460, 15, 16};
  EXPECT_EQ(PlaceKeysList({panel, button, screen, true}, 300, 300), (Area{100, 100, 300, 300}));
}

}  // namespace

}  // namespace tessera::layout_test
