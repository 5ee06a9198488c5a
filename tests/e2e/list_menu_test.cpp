// The context menu of the list, and the menus of the toolbars' buttons by keyboard.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

#include "resources/resource.h"
#include "tests/e2e/Clipboard.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/MenuPicture.h"
#include "tests/e2e/StartResolution.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::list_menu_test {
namespace {

class ListMenuTest : public EndToEndTest {
 protected:
  HWND WaitForMenu() {
    WaitFor("the menu to open", [&] { return !window_->OpenMenus().empty(); });
    return window_->OpenMenus().front();
  }

  HWND OpenByMouse(const std::wstring& command) {
    const int row = window_->FindCommand(command);
    BringToFront(window_->Handle());
    RightClick(CenterOf(window_->CellRectangle(row, 1)));
    const HWND menu = WaitForMenu();
    EXPECT_EQ(window_->SelectedRow(), row);
    return menu;
  }

  /// By Tab.
  void GoTo(int control) {
    const auto focus = [&] {
      GUITHREADINFO info{};
      info.cbSize = sizeof info;
      GetGUIThreadInfo(GetWindowThreadProcessId(window_->Handle(), nullptr), &info);
      return info.hwndFocus;
    };
    WaitFor("the focus", [&] {
      if (window_->HasFocus(control)) return true;
      const HWND former = focus();
      Press(VK_TAB);
      WaitFor("the next control", [&] { return focus() != former; });
      return false;
    });
  }

  void UseContextMenuKey() {
    WriteBytes(folder_.SettingsFile(), "[Tessera]\r\nUseContextMenuKey=1\r\n");
  }
};

TEST_F(ListMenuTest, RightButtonOpensItForTheRowUnderThePointer) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  const HWND menu = OpenByMouse(L"cm_SrcComments");
  EXPECT_FALSE(WaitForMenuEntry(menu, L"Assign Hotkey").Enabled);
  EXPECT_TRUE(WaitForMenuEntry(menu, L"Add Hotkey").Enabled);
  EXPECT_TRUE(WaitForMenuEntry(menu, L"Delete All Hotkeys").Enabled);
  EXPECT_TRUE(WaitForMenuEntry(menu, L"Copy Command Name").Enabled);
  const MenuEntry copyRow = WaitForMenuEntry(menu, L"Copy Row");
  const MenuEntry copyTable = WaitForMenuEntry(menu, L"Copy as Table");
  const MenuEntry page = WaitForMenuEntry(menu, L"Keys as a page...");
  EXPECT_TRUE(copyRow.Enabled && copyTable.Enabled && page.Enabled);
  EXPECT_GT(page.Top - copyTable.Top, copyTable.Top - copyRow.Top) << "a line is between them";
  window_->CloseMenus();
  // As assistive programs may ask for it.
  const HWND list = window_->Control(IDC_ListView1);
  const auto open = [&](POINT place) {
    PostMessageW(window_->Handle(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list),
                 MAKELPARAM(place.x, place.y));
  };
  for (const int row : {3, 0}) {
    open(CenterOf(window_->CellRectangle(row, 1)));
    EXPECT_EQ(WaitForMenuEntry(WaitForMenu(), L"Copy Row").Enabled, row != 0);
    EXPECT_EQ(window_->SelectedRow(), row);
    window_->CloseMenus();
  }
  open(CenterOf(RectangleOf(window_->Control(IDC_Frame1))));
  Select(L"cm_SrcTree");  // answered after it
  EXPECT_FALSE(window_->InMenu());
}

TEST_F(ListMenuTest, CopiesGoToTheClipboard) {
  StartAndLoad();
  OpenByMouse(L"cm_SrcComments");
  SetClipboardText(L"before");
  Press(VK_UP);
  Press(VK_UP);
  Press(VK_RETURN);
  WaitFor("the table", [] { return ClipboardText() != L"before"; });
  const std::string html = ClipboardHtml();
  EXPECT_TRUE(html.starts_with("Version:0.9\r\nStartHTML:")) << html.substr(0, 100);
  EXPECT_NE(html.find("<td>cm_SrcComments</td>"), std::string::npos);
  EXPECT_NE(html.find("<s>"), std::string::npos) << "the folder has overridden defaults";
  EXPECT_NE(ClipboardText().find(L"cm_SrcComments"), std::wstring::npos);
  OpenByMouse(L"cm_SrcComments");
  Press(VK_UP);
  Press(VK_UP);
  Press(VK_UP);
  Press(VK_RETURN);
  const RowTexts row = RowOf(L"cm_SrcComments");
  const std::wstring text = row[0] + L"\t" + row[1] + L"\t" + row[2] + L"\t" + row[3];
  WaitFor("the row", [&] { return ClipboardText() == text; });
  EXPECT_EQ(ClipboardHtml(), "");
}

TEST_F(ListMenuTest, ContextMenuKeyAndShiftF10OpenItAtTheSelectedRow) {
  StartAndLoad();
  Select(L"cm_SrcComments");
  SelectNext();
  const RECT row = window_->CellRectangle(window_->SelectedRow(), 0);
  Send(window_->Control(IDC_ListView1), LVM_ENSUREVISIBLE,
       static_cast<WPARAM>(window_->RowCount() - 1));
  Press(VK_APPS);
  const HWND menu = WaitForMenu();
  const RECT shown = window_->CellRectangle(window_->SelectedRow(), 0);
  EXPECT_LE(shown.top, row.top) << "scrolled back to";
  EXPECT_NEAR(RectangleOf(menu).top, shown.bottom, 4);
  window_->CloseMenus();
  PressTogether(std::array<WORD, 2>{VK_SHIFT, VK_F10});
  EXPECT_TRUE(WaitForMenuEntry(WaitForMenu(), L"Copy Row").Enabled);
  window_->CloseMenus();
  WaitFor("box Shift to be checked", [&] { return window_->BoxChecked(IDC_chkCtrlAlt2); });
  Press(VK_SHIFT);
  WaitFor("the next press to clear it", [&] { return !window_->BoxChecked(IDC_chkCtrlAlt2); });
}

TEST_F(ListMenuTest, WhereTheContextMenuKeyStandsForAltItOpensForHeadingsOnly) {
  UseContextMenuKey();
  StartAndLoad();
  window_->ClickRow(0);
  Press(VK_APPS);
  const HWND menu = WaitForMenu();
  EXPECT_FALSE(WaitForMenuEntry(menu, L"Copy Row").Enabled);
  EXPECT_NEAR(RectangleOf(menu).top, window_->CellRectangle(0, 0).bottom, 4);
  window_->CloseMenus();
  Select(L"cm_SrcComments");
  // Some systems send it for such a key.
  PostMessageW(window_->Handle(), WM_CONTEXTMENU,
               reinterpret_cast<WPARAM>(window_->Control(IDC_ListView1)), -1);
  Press(VK_APPS);
  WaitFor("box Alt to be checked", [&] { return window_->BoxChecked(IDC_chkCtrlAlt1); });
  Press(VK_F7);
  WaitFor("the key after it to be chosen", [&] { return window_->ChosenKey() == L"F7"; });
  EXPECT_FALSE(window_->InMenu());
}

TEST_F(ListMenuTest, OpensBesideThePointerWhereTextsRunFromTheRight) {
  const StartResolution resolution(192);
  folder_.UseLanguageFile(folder_.ShippedLanguage(L"Arabic.lng"));
  StartAndLoad();
  const HWND menu = OpenByMouse(L"cm_SrcComments");
  POINT pointer{};
  GetCursorPos(&pointer);
  EXPECT_NEAR(RectangleOf(menu).right, pointer.x, 4);
  EXPECT_NEAR(RectangleOf(menu).top, pointer.y, 4);
  window_->CloseMenus();
}

TEST_F(ListMenuTest, DownOpensTheMenuOfAToolbarsButton) {
  constexpr int DeletePlace = 2;
  constexpr int OptionsPlace = 5;
  StartAndLoad();
  Select(L"cm_SrcComments");
  GoTo(IDC_Toolbar2);
  Send(window_->Control(IDC_Toolbar2), TB_SETHOTITEM, DeletePlace);
  Press(VK_DOWN);
  const HWND menu = WaitForMenu();
  EXPECT_TRUE(WaitForMenuEntry(menu, L"Delete All Hotkeys").Enabled);
  const RECT button = window_->ButtonRectangle(IDC_Toolbar2, IDM_delete);
  const RECT place = RectangleOf(menu);
  EXPECT_NEAR(place.left, button.left, 4);
  // Above it where there is no room below.
  EXPECT_LE(std::min(std::abs(place.top - button.bottom), std::abs(place.bottom - button.top)), 4);
  window_->CloseMenus();
  EXPECT_TRUE(window_->HasFocus(IDC_Toolbar2));
  GoTo(IDC_Toolbar1);
  for (const int hot : {OptionsPlace, -1}) {  // neither has a menu
    Send(window_->Control(IDC_Toolbar1), TB_SETHOTITEM, static_cast<WPARAM>(hot));
    EXPECT_EQ(Send(window_->Control(IDC_Toolbar1), TB_GETHOTITEM), hot);
    Press(VK_DOWN);
    Press(VK_CONTROL);  // handled after it
    WaitFor("box Ctrl to change", [&] { return window_->BoxChecked(IDC_chkCtrlAlt0); });
    EXPECT_FALSE(window_->InMenu());
    Press(VK_CONTROL);
    WaitFor("box Ctrl to change", [&] { return !window_->BoxChecked(IDC_chkCtrlAlt0); });
    GoTo(IDC_Toolbar1);
  }
  Send(window_->Control(IDC_Toolbar1), TB_SETHOTITEM, 0);
  Press(VK_DOWN);
  WaitForMenu();
  window_->CloseMenus();
}

}  // namespace
}  // namespace tessera::e2e::list_menu_test
