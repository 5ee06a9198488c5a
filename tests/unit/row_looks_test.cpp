// The colours of the rows of the command list, and how far their texts run.
#include <gtest/gtest.h>

#include "app/RowLooks.h"

namespace tessera::row_looks_test {
namespace {

constexpr Rgb Black = 0x000000;
constexpr Rgb White = 0xFFFFFF;
constexpr Rgb Gray = 0xA0A0A0;
constexpr Rgb Blue = 0xD77800;
constexpr Rgb Red = 0x0000FF;

/// As on most screens.
constexpr ListColors Usual{
    .Text = Black, .Back = White, .Highlight = Blue, .HighlightText = White, .Shadow = Gray};

CellColors Selected(const ListColors& colors, bool hasFocus) {
  return ColorsOfRow(colors, true, hasFocus);
}

TEST(RowLooks, ContrastIsThatOfLightness) {
  EXPECT_NEAR(Contrast(Black, White), 21, 0.01);
  EXPECT_NEAR(Contrast(White, Black), 21, 0.01);
  EXPECT_NEAR(Contrast(Red, Red), 1, 0.01);
  EXPECT_NEAR(Contrast(White, Red), 4.0, 0.01);
  EXPECT_NEAR(Contrast(White, 0x767676), 4.54, 0.01);
  EXPECT_NEAR(Contrast(Black, 0x0A0A0A), 1.06, 0.01);
}

TEST(RowLooks, RowsHaveTheColorsOfTheUser) {
  constexpr ListColors Own{.Text = 0x00FFFF, .Back = 0x400000};
  EXPECT_EQ(ColorsOfRow(Own, false, false), (CellColors{.Text = 0x00FFFF, .Back = 0x400000}));
  EXPECT_EQ(ColorsOfRow(Own, false, true), (CellColors{.Text = 0x00FFFF, .Back = 0x400000}));
}

TEST(RowLooks, SelectedRowIsHighlightedWhileTheListHasTheFocus) {
  EXPECT_EQ(Selected(Usual, true), (CellColors{.Text = White, .Back = Blue}));
}

TEST(RowLooks, SelectedRowIsClearlyVisibleWithoutTheFocusToo) {
  EXPECT_EQ(Selected(Usual, false), (CellColors{.Text = Black, .Back = Gray}));
}

TEST(RowLooks, TextOfTheSelectedRowIsTheUsersWhereItCanBeRead) {
  ListColors colors = Usual;
  colors.Text = 0x800000;
  EXPECT_EQ(Selected(colors, false).Text, 0x800000U);
  colors.Text = 0x808080;
  EXPECT_EQ(Selected(colors, false).Text, Black);
  colors.Shadow = 0x404040;
  EXPECT_EQ(Selected(colors, false).Text, White);
}

TEST(RowLooks, HighContrastKeepsToTheSystemsPairOfColors) {
  constexpr ListColors Black1{.Text = White,
                              .Back = Black,
                              .Highlight = 0xFFEB1A,
                              .HighlightText = Black,
                              .Shadow = 0x808080,
                              .HighContrast = true};
  EXPECT_EQ(Selected(Black1, false), (CellColors{.Text = Black, .Back = 0xFFEB1A}));
  EXPECT_EQ(Selected(Black1, true), Selected(Black1, false));
}

TEST(RowLooks, SelectedRowStandsOutFromAnyBackground) {
  for (const Rgb back : {White, Black, Gray, Blue, Red, Rgb{0xC0C0C0}, Rgb{0x808080}}) {
    for (const bool hasFocus : {true, false}) {
      ListColors colors = Usual;
      colors.Back = back;
      for (const Rgb text : {Black, White, back}) {
        colors.Text = text;
        const CellColors row = Selected(colors, hasFocus);
        EXPECT_GE(Contrast(row.Back, back), 2) << std::hex << back << " " << text;
        EXPECT_GE(Contrast(row.Back, row.Text), 4.4) << std::hex << back << " " << text;
      }
    }
  }
}

TEST(RowLooks, SystemColorsThatDoNotStandOutGiveWayToTheUsersExchanged) {
  constexpr ListColors Alike{.Text = 0x000080,
                             .Back = White,
                             .Highlight = 0xF0F0F0,
                             .HighlightText = Black,
                             .Shadow = 0xE0E0E0};
  for (const bool hasFocus : {true, false}) {
    EXPECT_EQ(Selected(Alike, hasFocus), (CellColors{.Text = White, .Back = 0x000080}));
  }
}

TEST(RowLooks, OverriddenDefaultIsRedOnTheListsOwnColor) {
  CommandEntry row;
  const CellColors highlighted{.Text = White, .Back = Blue};
  EXPECT_EQ(ColorsOfCell(Usual, highlighted, row, Column::Defaults), highlighted);
  row.DefaultKeysAreRed = true;
  for (const Column column : AllColumns) {
    EXPECT_EQ(ColorsOfCell(Usual, highlighted, row, column),
              column == Column::Defaults ? (CellColors{.Text = Red, .Back = White}) : highlighted);
  }
}

TEST(RowLooks, HeadingRunsOverAllColumnsWhenItsOwnIsTheFirst) {
  CommandEntry heading;
  heading.Tag = CommentBlockTag;
  CommandEntry command;
  command.Tag = L"300";
  EXPECT_TRUE(RunsOverAllColumns(heading, {0, 1, 2, 3}));
  EXPECT_TRUE(RunsOverAllColumns(heading, {0, 3, 1, 2}));
  EXPECT_FALSE(RunsOverAllColumns(heading, {1, 0, 2, 3})) << "another column stands before it";
  EXPECT_FALSE(RunsOverAllColumns(heading, {3, 2, 1, 0}));
  EXPECT_FALSE(RunsOverAllColumns(command, {0, 1, 2, 3}));
}

}  // namespace
}  // namespace tessera::row_looks_test
