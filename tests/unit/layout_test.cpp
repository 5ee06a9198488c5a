// The geometry of the main window.
#include "app/Layout.h"

#include <gtest/gtest.h>

#include <utility>

namespace tessera::layout_test {
namespace {

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

TEST(Layout, PanelControlsStandSideBySideInTheMiddleOfThePanel) {
  const PanelLayout layout = LayOutPanel({.Label = {40, 16},
                                          .Boxes = {Size{20, 16}, Size{30, 16}, Size{40, 16}},
                                          .ChooserHeight = 22,
                                          .Toolbar = {90, 24}},
                                         96);
  EXPECT_EQ(layout.Label, (Area{10, 12, 40, 16}));
  EXPECT_EQ(layout.Boxes,
            (std::array{Area{62, 10, 42, 20}, Area{116, 10, 52, 20}, Area{180, 10, 62, 20}}));
  EXPECT_EQ(layout.Chooser, (Area{254, 9, 150, 22}));
  EXPECT_EQ(layout.Toolbar, (Area{416, 8, 90, 24}));
  EXPECT_EQ(layout.Whole.Width, 516);
  EXPECT_EQ(layout.Whole.Height, 40);
}

TEST(Layout, LineTakesWhatTheButtonsBesideItLeave) {
  const StatusRow row =
      LayOutStatusRow({.TextHeight = 16, .Captions = {{30, 16}, {50, 16}}}, 500, 40, 96);
  EXPECT_EQ(row.Line, (Area{10, 40, 350, 24}));
  EXPECT_EQ(row.Buttons, (std::vector{Area{366, 40, 54, 24}, Area{426, 40, 74, 24}}));
  EXPECT_EQ(row.Height, 30);
  EXPECT_EQ(LayOutStatusRow({.TextHeight = 32}, 500, 40, 192).Line, (Area{20, 40, 480, 48}));
}

TEST(Layout, LineHasNoNegativeWidth) {
  EXPECT_EQ(LayOutStatusRow({.TextHeight = 16, .Captions = {{30, 16}}}, 40, 0, 96).Line.Width, 0);
}

TEST(Layout, AllKeysButtonStandsOverTheRightEndOfTheChooser) {
  const PanelLayout layout = LayOutPanel({.ChooserHeight = 21}, 96);
  EXPECT_EQ(layout.Chooser, (Area{124, 8, 150, 21}));
  EXPECT_EQ(layout.AllKeysButton, (Area{257, 11, 15, 16}));
  EXPECT_EQ(LayOutPanel({.ChooserHeight = 42}, 192).AllKeysButton, (Area{514, 22, 30, 32}));
}

TEST(Layout, AllKeysButtonNeverReachesBeyondTheChooser) {
  const auto inChooserOf = [](int height) {
    const PanelLayout layout = LayOutPanel({.ChooserHeight = height}, 192);
    const Area& button = layout.AllKeysButton;
    return std::pair(button.Top - layout.Chooser.Top, button.Height);
  };
  EXPECT_EQ(inChooserOf(39), std::pair(6, 32));
  EXPECT_EQ(inChooserOf(38), std::pair(3, 32));
  EXPECT_EQ(inChooserOf(35), std::pair(1, 32));
  EXPECT_EQ(inChooserOf(31), std::pair(1, 29));
}

TEST(Layout, SmallestWindowHasRoomForThePanelAndSomeRows) {
  EXPECT_EQ(SmallestInside({500, 40}, 96).Width, 510);
  EXPECT_EQ(SmallestInside({500, 40}, 192).Height, 360);
}

TEST(Layout, ProgressBarStandsInTheMiddleOfTheList) {
  EXPECT_EQ(PlaceProgressBar({5, 31, 790, 520}, 96), (Area{240, 282, 320, 18}));
}

TEST(Layout, CentredThingIsNoWiderThanItsRoom) {
  EXPECT_EQ(Centred({5, 10, 200, 100}, 100, 20), (Area{55, 50, 100, 20}));
  EXPECT_EQ(Centred({5, 10, 60, 100}, 100, 20), (Area{5, 50, 60, 20}));
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

TEST(Layout, FindBoxStandsAtTheEndOfTheToolbarFlushWithTheList) {
  const Area toolbar{0, 0, 800, 30};
  const Area box = PlaceFindBox(toolbar, 250, {120, 16}, 96);
  EXPECT_EQ(box, (Area{651, 4, 144, 22}));
  const Area list = LayOutMainWindow(800, 600, 30, 50).ListView1;
  EXPECT_EQ(box.Left + box.Width, list.Left + list.Width);
  EXPECT_EQ(PlaceFindBox({0, 0, 1600, 60}, 500, {240, 32}, 192), (Area{1307, 8, 288, 44}));
}

TEST(Layout, FindBoxHasNoSizeWhereTheToolbarHasNoRoomForIt) {
  const Size cue{120, 16};
  EXPECT_GT(PlaceFindBox({0, 0, 411, 30}, 250, cue, 96).Width, 0);
  EXPECT_EQ(PlaceFindBox({0, 0, 410, 30}, 250, cue, 96), Area{});
  EXPECT_GT(PlaceFindBox({0, 0, 800, 22}, 250, cue, 96).Width, 0);
  EXPECT_EQ(PlaceFindBox({0, 0, 800, 21}, 250, cue, 96), Area{}) << "too low";
  EXPECT_EQ(PlaceFindBox({0, 0, 800, 0}, 250, cue, 96), Area{}) << "the toolbar is hidden";
}

}  // namespace

}  // namespace tessera::layout_test
