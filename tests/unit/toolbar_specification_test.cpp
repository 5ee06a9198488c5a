// The buttons that the toolbar's text stands for.
#include <gtest/gtest.h>

#include "app/ToolbarSpecification.h"

namespace tessera::toolbar_specification_test {
namespace {

TEST(ToolbarSpecification, GivesButtonsInOrderWithImagesAndToolTips) {
  const std::vector<ToolbarButton> expected{
      {ToolbarStyle::DropDown, L"open", TextId{103}, 0},
      {ToolbarStyle::DropDown, L"save", TextId{104}, 1},
      {ToolbarStyle::Separator, L"", TextId{0}, -1},
      {ToolbarStyle::Check, L"sort command list", TextId{149}, 2},
      {ToolbarStyle::Separator, L"", TextId{0}, -1},
      {ToolbarStyle::Normal, L"options", TextId{150}, 3},
  };
  EXPECT_EQ(ParseToolbar(L"5Open,5Save,3,1Sort Command List,3,0Options", L"103,104,149,150"),
            expected);
}

TEST(ToolbarSpecification, ButtonWithoutTagHasNoToolTip) {
  const std::vector<ToolbarButton> expected{{ToolbarStyle::Normal, L"a", TextId{7}, 0},
                                            {ToolbarStyle::Normal, L"b", TextId{0}, 1}};
  EXPECT_EQ(ParseToolbar(L"0A,0B", L"7"), expected);
}

TEST(ToolbarSpecification, UnknownStyleIsNormalAndEmptyItemsAreSkipped) {
  const std::vector<ToolbarButton> expected{{ToolbarStyle::Normal, L"a", TextId{1}, 0},
                                            {ToolbarStyle::Normal, L"b", TextId{2}, 1}};
  EXPECT_EQ(ParseToolbar(L"9A,,0B,", L"1,2"), expected);
  EXPECT_TRUE(ParseToolbar(L"", L"1").empty());
}

}  // namespace
}  // namespace tessera::toolbar_specification_test
