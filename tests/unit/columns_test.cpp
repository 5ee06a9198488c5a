// The columns between the settings and the screen.
#include "app/Columns.h"

#include <gtest/gtest.h>

namespace tessera::columns_test {
namespace {

TEST(Columns, ColumnPositionsAndOrderAreInverse) {
  const std::array<int, 4> positions{3, 1, 4, 2};
  EXPECT_EQ(OrderOfPositions(positions), (std::array<int, 4>{1, 3, 0, 2}));
  EXPECT_EQ(PositionsOfOrder(OrderOfPositions(positions)), positions);
}

TEST(Columns, NoWidthIsNegative) {
  EXPECT_EQ(WidthsInPixels({3000, 2000, -15, 0}, 96), (std::array<int, 4>{200, 133, 0, 0}));
}

TEST(Columns, OnlyTheWidthThatTheUserChangedGetsNewTwips) {
  const ColumnLayout stored{.Positions = {1, 2, 3, 4}, .Widths = {3000, 2000, 2000, 2001}};
  const ColumnLayout columns = ColumnsToStore(stored, {1, 0, 2, 3}, {200, 134, 133, 133}, 96);
  EXPECT_EQ(columns.Positions, (std::array<int, 4>{2, 1, 3, 4}));
  EXPECT_EQ(columns.Widths, (std::array<int, 4>{3000, 2010, 2000, 2001}));
}

}  // namespace

}  // namespace tessera::columns_test
