// The sorted view, and the way back to file order.
#include <algorithm>

#include "resources/icons.h"
#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::sort_test {
namespace {

class SortTest : public EndToEndTest {
 protected:
  void ToggleSortedView() {
    // The button shows a click before the rows do; headings are shown in file order alone.
    const int rows = window_->RowCount();
    const bool pressed = window_->ButtonPressed(IDC_Toolbar1, IDM_mnuViewSortList);
    window_->ClickButton(IDC_Toolbar1, IDM_mnuViewSortList);
    WaitFor("the sorted view to change", [&] {
      return window_->ButtonPressed(IDC_Toolbar1, IDM_mnuViewSortList) != pressed &&
             window_->RowCount() != rows;
    });
  }

  void ExpectIconInHeader(int column, bool descending) const {
    const RECT row = window_->CellRectangle(0, 1);
    // The first cell is given as all of its row.
    const RECT cell = window_->CellRectangle(0, column);
    const RECT header{cell.left, RectangleOf(window_->Control(IDC_ListView1)).top,
                      column == 0 ? row.left : cell.right, row.top};
    WaitFor("the icon of column " + std::to_string(column), [&] {
      const COLORREF back = ColorAt({header.right - 4, (header.top + header.bottom) / 2});
      const int icon = descending ? IDI_DESCENDING : IDI_ASCENDING;
      return TakePicture(header).HoldsSomewhere(
          DrawProgramIcon(folder_.Executable(), icon, 16, back));
    });
  }

  /// Expects the rows in that order, none missing, and the one icon in that column's header.
  void ExpectSorted(std::size_t column, bool descending) {
    std::vector<RowTexts> rows = window_->Rows();
    EXPECT_TRUE(Sorted(rows, column, descending)) << "column " << column << ", " << descending;
    EXPECT_TRUE(window_->HeaderHasOwnImages());
    ExpectIconInHeader(static_cast<int>(column), descending);
    for (std::size_t header = 0; header < 4; ++header) {
      EXPECT_EQ(window_->Header(static_cast<int>(header)).HasIcon, header == column) << header;
    }
    std::vector<RowTexts> expected = WithoutHeadings(ExpectedRows(folder_));
    std::ranges::sort(rows);
    std::ranges::sort(expected);
    EXPECT_TRUE(SameRows(rows, expected));
  }

  void ClickHeaderAndWait(int column) {
    const HeaderShows before = window_->Header(column);
    window_->ClickHeader(column);
    WaitFor("the list to be sorted by column " + std::to_string(column), [&] {
      const HeaderShows now = window_->Header(column);
      return now.HasIcon && (!before.HasIcon || now.Icon != before.Icon);
    });
  }
};

TEST_F(SortTest, EachColumnSortsBothWaysAndFileOrderComesBack) {
  const std::vector<RowTexts> inFileOrder = ExpectedRows(folder_);
  StartAndLoad();
  ToggleSortedView();
  ExpectSorted(2, false);
  const int ascending = window_->Header(2).Icon;
  EXPECT_EQ(ascending, 0);
  bool descending = false;
  for (const int column : {0, 1, 3, 2}) {
    // The first click keeps the order of the column before; the second one turns it round.
    ClickHeaderAndWait(column);
    ExpectSorted(static_cast<std::size_t>(column), descending);
    ClickHeaderAndWait(column);
    descending = !descending;
    ExpectSorted(static_cast<std::size_t>(column), descending);
    EXPECT_EQ(window_->Header(column).Icon == ascending, !descending);
  }
  ToggleSortedView();
  EXPECT_TRUE(SameRows(window_->Rows(), inFileOrder));
  for (int header = 0; header < 4; ++header) EXPECT_FALSE(window_->Header(header).HasIcon);
  EXPECT_EQ(window_->SelectedRow(), 0);
}

TEST_F(SortTest, HeaderClickInFileOrderChangesNothing) {
  StartAndLoad();
  const std::vector<RowTexts> before = window_->Rows();
  window_->ClickHeader(1);
  window_->ClickRow(3);  // answered after the click on the header
  EXPECT_TRUE(SameRows(window_->Rows(), before));
  EXPECT_FALSE(window_->Header(1).HasIcon);
}

TEST_F(SortTest, KeysGivenInTheSortedViewStay) {
  std::vector<RowTexts> expected = ExpectedRows(folder_);
  StartAndLoad();
  ToggleSortedView();
  MakeAChange();
  ToggleSortedView();
  for (RowTexts& row : expected) {
    if (row[1] == L"cm_SrcShort") row[3] = L"Ctrl + Alt + K";
  }
  EXPECT_TRUE(SameRows(window_->Rows(), expected));
}

TEST_F(SortTest, SortIsFoundAgainAtTheNextStart) {
  StartAndLoad();
  ToggleSortedView();
  ClickHeaderAndWait(1);
  ClickHeaderAndWait(1);
  const std::vector<RowTexts> sorted = window_->Rows();
  const HeaderShows header = window_->Header(1);
  Close();

  Start();
  WaitFor("the rows of the sorted view",
          [&] { return window_->RowCount() == static_cast<int>(sorted.size()); });
  WaitFor("the header's icon", [&] { return window_->Header(1).HasIcon; });
  EXPECT_TRUE(window_->ButtonPressed(IDC_Toolbar1, IDM_mnuViewSortList));
  EXPECT_TRUE(SameRows(window_->Rows(), sorted));
  EXPECT_EQ(window_->Header(1).Icon, header.Icon);
}

}  // namespace
}  // namespace tessera::e2e::sort_test
