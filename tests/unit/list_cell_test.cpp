// The cells that a list may ask for, and those that there are.
#include <gtest/gtest.h>

#include <limits>

#include "app/ListCell.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::list_cell_test {
namespace {

TEST(ListCell, IsThatOfItsRowAndItsColumn) {
  const DisplayTable table = DescribedRows({L"Copy", L"Move"});
  const ShownRows rows(table);
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 4; ++column) {
      const auto cell = CellAt(rows, row, column);
      ASSERT_TRUE(cell);
      EXPECT_EQ(&cell->Row, &rows.At(static_cast<std::size_t>(row)));
      EXPECT_EQ(IndexOf(cell->Of), static_cast<std::size_t>(column));
    }
  }
}

TEST(ListCell, IsNoneOutsideOfTheRowsAndColumns) {
  const DisplayTable table = DescribedRows({L"Copy", L"Move"});
  const ShownRows rows(table);
  for (const int outside : {-1, 4, 5, std::numeric_limits<int>::min()}) {
    EXPECT_FALSE(CellAt(rows, outside, 0)) << outside;
    EXPECT_FALSE(CellAt(rows, 0, outside)) << outside;
    EXPECT_FALSE(CellAt(rows, outside, outside)) << outside;
  }
  EXPECT_FALSE(CellAt(rows, 2, 0));
  const DisplayTable empty;
  EXPECT_FALSE(CellAt(ShownRows(empty), 0, 0));
}

}  // namespace
}  // namespace tessera::list_cell_test
