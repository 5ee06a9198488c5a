// How the rows of the command list look.
#include <string>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::list_looks_test {
namespace {

class ListLooksTest : public EndToEndTest {
 protected:
  static int AreaOf(const RECT& place) {
    return static_cast<int>((place.right - place.left) * (place.bottom - place.top));
  }

  /// Waits until most of a row's command cell has that colour.
  void WaitForColor(int position, COLORREF color) const {
    const RECT cell = window_->CellRectangle(position, 1);
    WaitFor("row " + std::to_string(position) + " to be of colour " + std::to_string(color),
            [&] { return CountPixels(cell, color) > AreaOf(cell) / 2; });
  }

  /// Gives the panel the focus.
  void GoToThePanel() {
    window_->ClickControl(IDC_chkCtrlAlt0);
    WaitFor("box Ctrl to have the focus", [&] { return window_->HasFocus(IDC_chkCtrlAlt0); });
  }
};

TEST_F(ListLooksTest, SelectedRowStaysVisibleWhileTheFocusIsInThePanel) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  const int row = window_->SelectedRow();
  WaitForColor(row, GetSysColor(COLOR_HIGHLIGHT));
  WaitForColor(row + 1, GetSysColor(COLOR_WINDOW));
  GoToThePanel();
  WaitForColor(row, GetSysColor(COLOR_BTNSHADOW));
  WaitForColor(row + 1, GetSysColor(COLOR_WINDOW));
}

TEST_F(ListLooksTest, SelectedRowStandsOutFromTheUsersOwnColors) {
  const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
  constexpr COLORREF Text = RGB(0, 0, 64);
  WriteBytes(folder_.SettingsFile(), "[Tessera]\r\nBackgroundColor=" + std::to_string(shadow) +
                                         "\r\nForegroundColor=" + std::to_string(Text) + "\r\n");
  StartAndLoad();
  Select(L"cm_SrcTree");
  const int row = window_->SelectedRow();
  GoToThePanel();
  WaitForColor(row + 1, shadow);
  WaitForColor(row, Text);  // the only one of them that can be told from it
}

}  // namespace
}  // namespace tessera::e2e::list_looks_test
