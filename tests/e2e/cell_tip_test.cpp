// The tips over the cells of the command list.
#include <string>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::cell_tip_test {
namespace {

class CellTipTest : public EndToEndTest {
 protected:
  /// Rests over a cell, and gives what the tip says.
  std::wstring TipOver(int position, int column) {
    BringToFront(window_->Handle());
    const RECT row = window_->CellRectangle(position, 0);
    const RECT cell = window_->CellRectangle(position, column);
    // The first cell is given as all of its row.
    const LONG left = column == 0 ? row.left + 30 : cell.left;
    MoveTo({left + 10, (cell.top + cell.bottom) / 2});
    WaitFor("a tip", [&] { return !window_->CellTip().empty(); });
    return window_->CellTip();
  }

  void ExpectNoTipOver(int position, int column) {
    const RECT cell = window_->CellRectangle(position, column);
    MoveTo({cell.left + 10, (cell.top + cell.bottom) / 2});
    WaitFor("the tip to go", [&] { return window_->CellTip().empty(); });
  }
};

TEST_F(CellTipTest, CutCellShowsItsWholeText) {
  StartAndLoad();
  const int cut = window_->FindCommand(L"cm_SrcQuickInternalOnly");
  ASSERT_GE(cut, 0);
  const RowTexts row = window_->Row(cut);
  EXPECT_EQ(TipOver(cut, 0), row[0]);
  EXPECT_EQ(TipOver(cut, 1), row[1]);
  ExpectNoTipOver(cut, 2);
}

TEST_F(CellTipTest, OverriddenDefaultTellsWhichCommandHasTheKey) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  window_->ClickControl(IDC_chkCtrlAlt0);
  window_->ChooseKey(L"F5");
  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  Answer(NextBox(), IDYES);
  WaitForKeys(L"cm_SrcTree", L"Ctrl + F5");
  EXPECT_EQ(TipOver(window_->FindCommand(L"cm_SrcByDateTime"), 2),
            L"Current hotkey for :  cm_SrcTree");
}

}  // namespace
}  // namespace tessera::e2e::cell_tip_test
