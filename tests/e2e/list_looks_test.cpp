// How the rows of the command list look.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <string>

#include "resources/icons.h"
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

  /// Waits until a row's command stands at its place in the font of FontStyle 15.
  void WaitForText(int position, const std::wstring& text, COLORREF color, COLORREF back) const {
    constexpr int Margin = 6;  // pixels
    LOGFONTW font{};
    font.lfHeight = -16;  // of 12 points
    font.lfWeight = FW_BOLD;
    font.lfItalic = font.lfStrikeOut = font.lfUnderline = TRUE;
    lstrcpyW(font.lfFaceName, L"Tahoma");
    const Picture line = DrawLine(text, font, color, back, false);
    const RECT cell = window_->CellRectangle(position, 1);
    ASSERT_GT(cell.right - cell.left, Margin + line.Width);
    WaitFor("the text of row " + std::to_string(position), [&] {
      const Picture shown = TakePicture(cell);
      return shown.Holds(line, Margin, (shown.Height - line.Height + 1) / 2);
    });
  }

  /// Gives the panel the focus.
  void GoToThePanel() {
    window_->ClickControl(IDC_chkCtrlAlt0);
    WaitFor("box Ctrl to have the focus", [&] { return window_->HasFocus(IDC_chkCtrlAlt0); });
  }
};

TEST_F(ListLooksTest, SelectedRowStaysVisibleWhileTheFocusIsInThePanel) {
  StartAndLoad();
  WaitForColor(0, GetSysColor(COLOR_HIGHLIGHT));
  Select(L"cm_SrcTree");
  const int row = window_->SelectedRow();
  WaitForColor(row, GetSysColor(COLOR_HIGHLIGHT));
  WaitForColor(0, GetSysColor(COLOR_WINDOW));
  RECT left = window_->CellRectangle(0, 0);
  left.right = left.left + 2;
  EXPECT_EQ(CountPixels(left, GetSysColor(COLOR_HIGHLIGHT)), 0) << "nothing of it stays";
  WaitForColor(row + 1, GetSysColor(COLOR_WINDOW));
  GoToThePanel();
  WaitForColor(row, GetSysColor(COLOR_BTNSHADOW));
  WaitForColor(row + 1, GetSysColor(COLOR_WINDOW));
}

TEST_F(ListLooksTest, RowsHaveTheUsersColorsAndFontAndTheSelectedOneStandsOut) {
  const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
  constexpr COLORREF Text = RGB(0, 0, 64);
  WriteBytes(folder_.SettingsFile(), "[Tessera]\r\nBackgroundColor=" + std::to_string(shadow) +
                                         "\r\nForegroundColor=" + std::to_string(Text) +
                                         "\r\nFontName=Tahoma\r\nFontSize=12\r\nFontStyle=15\r\n");
  StartAndLoad();
  Select(L"cm_SrcTree");
  const int row = window_->SelectedRow();
  GoToThePanel();
  WaitForColor(row + 1, shadow);
  WaitForColor(row, Text);  // the only one of them that can be told from it
  WaitForText(row, L"cm_SrcTree", shadow, Text);
  WaitForText(window_->FindCommand(L"cm_SrcShort"), L"cm_SrcShort", Text, shadow);
  const HWND list = window_->Control(IDC_ListView1);
  EXPECT_EQ(static_cast<COLORREF>(Send(list, LVM_GETBKCOLOR)), shadow) << "beside the rows, too";
  EXPECT_EQ(static_cast<COLORREF>(Send(list, LVM_GETTEXTCOLOR)), Text);
}

TEST_F(ListLooksTest, HeadingsAndRowsWithKeysHaveTheirIcons) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  const auto waitForIcon = [&](int row, int id) {
    const Picture icon = DrawProgramIcon(folder_.Executable(), id, 16, GetSysColor(COLOR_WINDOW));
    const RECT place = window_->IconRectangle(row);
    WaitFor("the icon of row " + std::to_string(row),
            [&] { return TakePicture(place).HoldsSomewhere(icon); });
  };
  waitForIcon(0, IDI_COMMENTBLOCK);
  waitForIcon(window_->FindCommand(L"cm_SrcShort"), IDI_HASKEY);
}

TEST_F(ListLooksTest, HeadingRunsOverAllColumnsWhenTheDescriptionIsTheFirst) {
  StartAndLoad();
  const RowTexts heading = window_->Row(0);
  ASSERT_EQ(heading[1], L"");
  Select(L"cm_SrcTree");
  const auto hasText = [&](int column) {
    const RECT cell = window_->CellRectangle(0, column);
    return CountPixels(cell, GetSysColor(COLOR_WINDOW)) < AreaOf(cell);
  };
  WaitFor("the heading to go on in the second column", [&] { return hasText(1); });
  EXPECT_EQ(window_->Row(0), heading);
  window_->SetColumnOrder({1, 0, 2, 3});
  InvalidateRect(window_->Control(IDC_ListView1), nullptr, TRUE);  // as after a drag of the header
  WaitFor("the heading to be cut at its column", [&] { return !hasText(1) && !hasText(2); });
  EXPECT_EQ(window_->Row(0), heading);
}

TEST_F(ListLooksTest, HeadingStaysWholeAndCellsAreCutWhenAColumnChangesItsWidth) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  WaitForColor(0, GetSysColor(COLOR_WINDOW));
  RECT place = window_->CellRectangle(0, 0);
  place.right = place.left + 400;  // pixels: more than the first column, less than all after it
  const std::vector<DWORD> before = TakePicture(place).Pixels;
  const auto narrow = [&](int width) {
    Send(window_->Control(IDC_ListView1), LVM_SETCOLUMNWIDTH, 0, width);
    const RECT second = window_->CellRectangle(1, 1);
    WaitFor("the column to be narrower",
            [&] { return CountPixels(second, GetSysColor(COLOR_WINDOW)) < AreaOf(second); });
    const RECT margin{second.left, second.top, second.left + 5, second.bottom};
    WaitFor("what is in it to be cut",
            [&] { return CountPixels(margin, GetSysColor(COLOR_WINDOW)) == AreaOf(margin); });
  };
  narrow(60);
  WaitFor("the heading to be as it was", [&] { return TakePicture(place).Pixels == before; });
  narrow(12);  // less than an icon
}

}  // namespace
}  // namespace tessera::e2e::list_looks_test
