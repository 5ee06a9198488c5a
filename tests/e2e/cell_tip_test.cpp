// The tips over the cells of the command list.
#include <chrono>
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
    const auto start = Clock::now();
    MoveTo({left + 10, (cell.top + cell.bottom) / 2});
    WaitFor("a tip", [&] { return !window_->CellTip().empty(); });
    delay_ = Clock::now() - start;
    return window_->CellTip();
  }

  /// Rests over a cell twice as long as the last tip took to come.
  void ExpectNoTipOver(int position, int column) {
    const RECT cell = window_->CellRectangle(position, column);
    MoveTo({cell.left + 10, (cell.top + cell.bottom) / 2});
    WaitFor("the tip to go", [&] { return window_->CellTip().empty(); });
    const auto end = Clock::now() + 2 * delay_;
    WaitFor("the time of a tip",
            [&] { return !window_->CellTip().empty() || Clock::now() >= end; });
    EXPECT_EQ(window_->CellTip(), L"");
  }

 private:
  using Clock = std::chrono::steady_clock;
  Clock::duration delay_{};
};

TEST_F(CellTipTest, CutCellShowsItsWholeText) {
  StartAndLoad();
  const int cut = window_->FindCommand(L"cm_SrcQuickInternalOnly");
  ASSERT_GE(cut, 0);
  const RowTexts row = window_->Row(cut);
  EXPECT_EQ(TipOver(cut, 0), row[0]);
  EXPECT_EQ(TipOver(cut, 1), row[1]);
  ExpectNoTipOver(window_->FindCommand(L"cm_SrcTree"), 1);
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
