#include "app/Borders.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace tessera::borders_test {
namespace {

struct Case {
  std::int16_t Fixed;
  std::int16_t Flat;
  Border List;
  Border Toolbar;
};

TEST(Borders, EachSettingMeansAnotherThingForListAndToolbar) {
  for (const Case& each :
       {Case{0, 0, Border::None, Border::Line}, Case{1, 0, Border::Sunken, Border::Sunken},
        Case{0, 1, Border::None, Border::None}, Case{1, 1, Border::Line, Border::None},
        Case{2, 2, Border::Line, Border::None}, Case{-1, 0, Border::Sunken, Border::Sunken}}) {
    Settings settings;
    settings.FixedBorders = each.Fixed;
    settings.FlatUserInterface = each.Flat;
    EXPECT_EQ(ListBorder(settings), each.List) << each.Fixed << each.Flat;
    EXPECT_EQ(ToolbarBorder(settings), each.Toolbar) << each.Fixed << each.Flat;
  }
}

}  // namespace
}  // namespace tessera::borders_test
