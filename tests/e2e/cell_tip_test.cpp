// The tips over the cells of the command list.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <chrono>
#include <string>
#include <utility>

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
    ExpectNoTipAt({cell.left + 10, (cell.top + cell.bottom) / 2});
  }

  void ExpectNoTipAt(POINT place) {
    MoveTo(place);
    WaitForNoTip();
    const auto end = Clock::now() + 2 * delay_;
    WaitFor("the time of a tip",
            [&] { return !window_->CellTip().empty() || Clock::now() >= end; });
    EXPECT_EQ(window_->CellTip(), L"");
  }

  void WaitForNoTip() const {
    WaitFor("the tip to go", [&] { return window_->CellTip().empty(); });
  }

 private:
  using Clock = std::chrono::steady_clock;
  Clock::duration delay_ = std::chrono::milliseconds(GetDoubleClickTime());  // the system's
};

TEST_F(CellTipTest, CutCellShowsItsWholeTextOnceThePointerHasMovedAndUntilRowsMayMove) {
  // The window comes up with a cut cell beneath the pointer.
  const POINT rest{640, 512};
  WriteBytes(folder_.SettingsFile(),
             "[Tessera]\r\nMainWindowLeft=8700\r\nMainWindowTop=5700\r\n"
             "ColumnHeadersSize=1500,1500,1500,1500\r\n");
  MoveTo(rest);
  StartAndLoad();
  const RECT first = window_->CellRectangle(0, 0);
  const int row = (rest.y - first.top) / (first.bottom - first.top);
  ASSERT_GT(row, 0);
  ASSERT_GT(rest.x, first.left);
  ASSERT_LT(rest.x, window_->CellRectangle(row, 1).left);
  ExpectNoTipAt(rest);
  const int cut = window_->FindCommand(L"cm_SrcQuickInternalOnly");
  int column = 0;
  for (const auto& [message, detail] :
       {std::pair(WM_VSCROLL, SB_ENDSCROLL), std::pair(WM_MOUSEWHEEL, 0),
        std::pair(WM_KEYDOWN, VK_F13)}) {
    EXPECT_EQ(TipOver(cut, column), window_->Row(cut).at(static_cast<std::size_t>(column)));
    PostMessageW(window_->Control(IDC_ListView1), static_cast<UINT>(message),
                 static_cast<WPARAM>(detail), 0);
    WaitForNoTip();
    column = 1 - column;
  }
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
  window_->Command(IDM_undo);
  WaitForNoTip();
}

}  // namespace
}  // namespace tessera::e2e::cell_tip_test
