// The grid on which dialogs are laid out.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "dialogs/DialogLayout.h"

namespace tessera::dialog_layout_test {
namespace {

constexpr DialogMetrics Metrics{.Dpi = 96, .TextHeight = 13};

TEST(DialogLayout, RowsAreStackedAndWideEnoughForTheirTexts) {
  constexpr MeasuredControl Controls[] = {{ControlKind::CheckBox, 0, 100},
                                          {ControlKind::CheckBox, 0, 400}};
  const PagesLayout layout = LayOutPages(Controls, Metrics, 200);
  EXPECT_EQ(layout.Controls[0], (Area{0, 0, 124, 17}));
  EXPECT_EQ(layout.Controls[1], (Area{0, 24, 424, 17}));
  EXPECT_EQ(layout.Width, 446);
  EXPECT_EQ(layout.Height, 41);
}

TEST(DialogLayout, RowsGrowWithTallText) {
  constexpr DialogMetrics Tall{.Dpi = 96, .TextHeight = 40};
  constexpr MeasuredControl Controls[] = {{ControlKind::CheckBox, 0, 100},
                                          {ControlKind::OptionButton, 0, 100},
                                          {ControlKind::Button, 0, 100}};
  const PagesLayout layout = LayOutPages(Controls, Tall, 200);
  EXPECT_EQ(layout.Controls[0].Height, 43);
  EXPECT_EQ(layout.Controls[1].Height, 43);
  EXPECT_EQ(layout.Controls[2].Height, 48);
}

TEST(DialogLayout, FrameWithoutATextKeepsNoRoomForOne) {
  constexpr MeasuredControl Controls[] = {{ControlKind::Frame, 0, 0},
                                          {ControlKind::CheckBox, 0, 100}};
  EXPECT_EQ(LayOutPages(Controls, Metrics, 200).Controls[1].Top, 3 + 7);
}

TEST(DialogLayout, FrameEnclosesWhatFollowsIt) {
  constexpr MeasuredControl Controls[] = {{ControlKind::Frame, 0, 50},
                                          {ControlKind::CheckBox, 0, 100},
                                          {ControlKind::Frame, 0, 50},
                                          {ControlKind::Button, 0, 60}};
  const PagesLayout layout = LayOutPages(Controls, Metrics, 300);
  const Area& frame = layout.Controls[0];
  const Area& box = layout.Controls[1];
  EXPECT_EQ(frame.Width, 300);
  EXPECT_GT(box.Left, frame.Left);
  EXPECT_GE(box.Top, frame.Top + Metrics.TextHeight);
  EXPECT_LT(box.Top + box.Height, frame.Top + frame.Height);
  EXPECT_GT(layout.Controls[2].Top, frame.Top + frame.Height);
  EXPECT_EQ(layout.Height, layout.Controls[2].Top + layout.Controls[2].Height);
}

TEST(DialogLayout, SwatchesAreAlignedBesideTheirLabels) {
  constexpr MeasuredControl Controls[] = {{ControlKind::Label, 0, 40},
                                          {ControlKind::Swatch, 0, 0},
                                          {ControlKind::Label, 0, 90},
                                          {ControlKind::Swatch, 0, 0}};
  const PagesLayout layout = LayOutPages(Controls, Metrics, 0);
  EXPECT_EQ(layout.Controls[0], (Area{0, 5, 90, 13}));
  EXPECT_EQ(layout.Controls[1].Left, layout.Controls[3].Left);
  EXPECT_GE(layout.Controls[1].Left, 90);
  EXPECT_EQ(layout.Controls[3].Top, layout.Controls[1].Top + layout.Controls[1].Height + 7);
}

TEST(DialogLayout, TextBoxLeavesRoomForItsButton) {
  constexpr MeasuredControl Controls[] = {{ControlKind::TextBox, 0, 0},
                                          {ControlKind::SideButton, 0, 9}};
  const PagesLayout layout = LayOutPages(Controls, Metrics, 400);
  const Area& text = layout.Controls[0];
  const Area& button = layout.Controls[1];
  EXPECT_EQ(text, (Area{0, 1, 363, 20}));
  EXPECT_EQ(button, (Area{370, 0, 30, 23}));
}

TEST(DialogLayout, TextBoxInAFrameLeavesRoomForItsButtonToo) {
  constexpr MeasuredControl Controls[] = {
      {ControlKind::Frame, 0, 50}, {ControlKind::TextBox, 0, 0}, {ControlKind::SideButton, 0, 9}};
  const PagesLayout layout = LayOutPages(Controls, Metrics, 400);
  const Area& frame = layout.Controls[0];
  const Area& text = layout.Controls[1];
  const Area& button = layout.Controls[2];
  EXPECT_EQ(text.Left, 11);
  EXPECT_EQ(text.Left + text.Width + 7, button.Left);
  EXPECT_EQ(button.Left + button.Width + 11, frame.Left + frame.Width);
}

TEST(DialogLayout, WidestLabelMakesRoomForTheSwatches) {
  constexpr MeasuredControl Controls[] = {{ControlKind::Frame, 0, 50},
                                          {ControlKind::Label, 0, 300},
                                          {ControlKind::Swatch, 0, 0},
                                          {ControlKind::Label, 0, 40},
                                          {ControlKind::Swatch, 0, 0}};
  const PagesLayout layout = LayOutPages(Controls, Metrics, 200);
  const Area& swatch = layout.Controls[2];
  EXPECT_GE(swatch.Left, layout.Controls[1].Left + 300);
  EXPECT_LE(swatch.Left + swatch.Width + 11, layout.Width);
}

TEST(DialogLayout, PagesAreAsWideAsTheirWidestRowInAFrame) {
  const std::pair<std::vector<MeasuredControl>, int> rows[] = {
      {{{ControlKind::Label, 0, 40}, {ControlKind::Swatch, 0, 0}}, 40 + 11 + 64},
      {{{ControlKind::TextBox, 0, 0}, {ControlKind::SideButton, 0, 9}}, 260 + 7 + 30},
      {{{ControlKind::Button, 0, 20}}, 75},
      {{{ControlKind::Button, 0, 60}}, 60 + 24},
      {{{ControlKind::OptionButton, 0, 60}}, 60 + 24},
  };
  for (const auto& [controls, width] : rows) {
    EXPECT_EQ(LayOutPages(controls, Metrics, 0).Width, width + 2 * 11);
  }
}

TEST(DialogLayout, PagesWithoutControlsTakeNoHeight) {
  const PagesLayout layout = LayOutPages({}, Metrics, 200);
  EXPECT_EQ(layout.Width, 200);
  EXPECT_EQ(layout.Height, 0);
}

TEST(DialogLayout, PagesAreAsHighAsTheHighestWhereverItIs) {
  constexpr MeasuredControl Controls[] = {{ControlKind::CheckBox, 0, 10},
                                          {ControlKind::CheckBox, 0, 10},
                                          {ControlKind::CheckBox, 1, 10},
                                          {ControlKind::CheckBox, 2, 10}};
  EXPECT_EQ(LayOutPages(Controls, Metrics, 0).Height, 41);
}

TEST(DialogLayout, PagesHaveTheSameSize) {
  constexpr MeasuredControl Controls[] = {{ControlKind::CheckBox, 0, 500},
                                          {ControlKind::CheckBox, 1, 10},
                                          {ControlKind::CheckBox, 1, 10}};
  const PagesLayout layout = LayOutPages(Controls, Metrics, 0);
  EXPECT_EQ(layout.Controls[1].Top, 0);
  EXPECT_EQ(layout.Height, 41);
  EXPECT_GE(layout.Width, 500);
}

TEST(DialogLayout, ButtonsEndBelowTheEndOfThePages) {
  constexpr int TextWidths[] = {20, 100};
  const DialogLayout dialog = LayOutDialog({}, {0, 0, 289, 28}, TextWidths, Metrics);
  EXPECT_EQ(dialog.Buttons[0], (Area{94, 50, 75, 23}));
  EXPECT_EQ(dialog.Buttons[1], (Area{176, 50, 124, 23}));
  EXPECT_EQ(dialog.Inside.Width, 300 + 11);
  EXPECT_EQ(dialog.Inside.Height, 50 + 23 + 11);
}

TEST(DialogLayout, TabsAndWhatIsInThemStandWithinTheMargin) {
  PagesLayout pages{.Controls = {{0, 0, 50, 17}, {13, 24, 60, 18}}, .Width = 90, .Height = 42};
  const DialogLayout dialog = LayOutDialog(pages, {-14, -30, 118, 86}, {}, Metrics);
  EXPECT_EQ(dialog.Tabs, (Area{11, 11, 118, 86}));
  EXPECT_EQ(dialog.Controls, (std::vector<Area>{{25, 41, 50, 17}, {38, 65, 60, 18}}));
}

TEST(DialogLayout, PagesAreAsWideAsWhatIsAroundThemNeeds) {
  EXPECT_EQ(NarrowestPages({}, Metrics), 210);
  EXPECT_EQ(NarrowestPages({.Title = 200}, Metrics), 270);
  EXPECT_EQ(NarrowestPages({.Title = 200, .Tabs = {100, 200}}, Metrics), 126 + 226);
  EXPECT_EQ(NarrowestPages({.Tabs = {100}, .Buttons = {200, 20, 100}}, Metrics),
            224 + 7 + 75 + 7 + 124 + 7);
  EXPECT_EQ(NarrowestPages({.Tabs = {200}}, {.Dpi = 120}), 263) << "210 at this resolution";
  EXPECT_EQ(NarrowestPages({.Tabs = {300}}, {.Dpi = 120}), 300 + 2 * 13 + 8);
}

TEST(DialogLayout, GrowsWithTheResolution) {
  constexpr DialogMetrics Double{.Dpi = 192, .TextHeight = 26};
  EXPECT_EQ(DialogMargin(Metrics), 11);
  EXPECT_EQ(DialogMargin(Double), 22);
  const auto buttons = [](const DialogMetrics& metrics, std::vector<int> texts) {
    return LayOutDialog({}, {}, texts, metrics).Buttons;
  };
  const std::vector<Area> small = buttons(Metrics, {20, 100});
  const std::vector<Area> large = buttons(Double, {40, 200});
  EXPECT_EQ(large[0].Height, 2 * small[0].Height);
  EXPECT_EQ(large[1].Width, 2 * small[1].Width);
  EXPECT_EQ(large[1].Left - large[0].Left, 2 * (small[1].Left - small[0].Left));
}

}  // namespace
}  // namespace tessera::dialog_layout_test
