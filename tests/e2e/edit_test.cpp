// Giving keys to commands, and taking them away, by keyboard and mouse.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <algorithm>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/MenuPicture.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::edit_test {
namespace {

using EditTest = EndToEndTest;

constexpr COLORREF Red = RGB(255, 0, 0);
const std::vector<int> YesNo{IDYES, IDNO};

TEST_F(EditTest, TakingADefaultKeyAsksFirst) {
  StartAndLoad();
  const std::vector<RowTexts> before = window_->Rows();
  ASSERT_EQ(RowOf(L"cm_SrcByDateTime")[2], L"Ctrl + F5");
  Select(L"cm_SrcTree");
  {
    const HeldKey ctrl(VK_CONTROL);
    WaitFor("box Ctrl to be checked", [&] { return window_->BoxChecked(IDC_chkCtrlAlt0); });
    WaitFor("the chooser to have the focus", [&] { return window_->HasFocus(IDC_Combo1); });
    window_->ChooseKey(L"F5");
  }
  WaitFor("button assign to be enabled",
          [&] { return window_->ButtonEnabled(IDC_Toolbar2, IDM_assign); });

  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  const Box first = NextBox();
  EXPECT_EQ(Utf8(first.Text),
            "Default hotkey for :  cm_SrcByDateTime\t\n\n"
            "Do you want assign it to :  cm_SrcTree\t");
  EXPECT_EQ(first.Title, L"Tessera");
  EXPECT_EQ(first.Buttons, YesNo);
  EXPECT_EQ(first.DefaultButton, IDNO);
  Answer(first, IDNO);
  EXPECT_TRUE(SameRows(window_->Rows(), before));
  EXPECT_FALSE(Modified());

  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  Answer(NextBox(), IDYES);
  WaitForKeys(L"cm_SrcTree", L"Ctrl + F5");
  EXPECT_EQ(RowOf(L"cm_SrcByDateTime")[2], L"Ctrl + F5 *");
  EXPECT_TRUE(Modified());
  const RECT cell = window_->CellRectangle(window_->FindCommand(L"cm_SrcByDateTime"), 2);
  WaitFor("the default key to be red", [&] { return CountPixels(cell, Red) > 0; });
  // Drawn before it.
  EXPECT_EQ(CountPixels(window_->CellRectangle(window_->FindCommand(L"cm_SrcByDateTime"), 1), Red),
            0);
  Select(L"cm_SrcByDateTime");
  const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
  const RECT beside = window_->CellRectangle(window_->SelectedRow(), 3);
  WaitFor("the row to stand out", [&] { return CountPixels(beside, highlight) > 0; });
  WaitFor("the red key, which can be read in it", [&] {
    return CountPixels(cell, Red) > 0 &&
           CountPixels(cell, highlight) < CountPixels(cell, GetSysColor(COLOR_WINDOW));
  });
}

TEST_F(EditTest, TakingAnotherCommandsKeyAsksFirst) {
  StartAndLoad();
  ASSERT_EQ(RowOf(L"cm_SrcBySize")[3], L"Ctrl + Alt + Shift + B");
  Select(L"cm_SrcTree");
  for (const WORD modifier : {WORD{VK_CONTROL}, WORD{VK_SHIFT}}) Press(modifier);
  WaitFor("box Shift to be checked", [&] { return window_->BoxChecked(IDC_chkCtrlAlt2); });
  window_->ClickControl(IDC_chkCtrlAlt1);
  window_->ChooseKey(L"B");
  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  const Box box = NextBox();
  EXPECT_EQ(Utf8(box.Text),
            "Current hotkey for :  cm_SrcBySize\n\nDo you want assign it to :  cm_SrcTree");
  EXPECT_EQ(box.DefaultButton, IDNO);
  AnswerByKey(box.Window, VK_RETURN);
  EXPECT_EQ(RowOf(L"cm_SrcTree")[3], L"---");

  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  Answer(NextBox(), IDYES);
  WaitForKeys(L"cm_SrcTree", L"Ctrl + Alt + Shift + B");
  EXPECT_EQ(RowOf(L"cm_SrcBySize")[3], L"---");
}

TEST_F(EditTest, TakingAStartMenuKeyAsksFirst) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  window_->ClickControl(IDC_chkCtrlAlt0);
  window_->ClickControl(IDC_chkCtrlAlt1);
  window_->ChooseKey(L"F4");
  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  const Box box = NextBox();
  EXPECT_EQ(Utf8(box.Text),
            "Current hotkey for :  [&Calculator] in your Total Commander Start Menu\n\n"
            "Do you want assign it to :  cm_SrcTree");
  EXPECT_EQ(box.Buttons, YesNo);
  EXPECT_EQ(box.DefaultButton, IDNO);
  AnswerByKey(box.Window, 'Y');
  WaitForKeys(L"cm_SrcTree", L"Ctrl + Alt + F4");
}

TEST_F(EditTest, EnterAssignsTheChosenKeyAndResetsThePanel) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  window_->ClickControl(IDC_chkCtrlAlt1);
  window_->ChooseKey(L"Z");
  Press(VK_RETURN);
  WaitForKeys(L"cm_SrcTree", L"Alt + Z");
  WaitFor("no key to be chosen", [&] { return window_->ChosenKey().empty(); });
  EXPECT_FALSE(window_->BoxChecked(IDC_chkCtrlAlt1));
  EXPECT_TRUE(window_->HasFocus(IDC_ListView1));
  EXPECT_FALSE(window_->ButtonEnabled(IDC_Toolbar2, IDM_assign));
}

TEST_F(EditTest, EnterAndEscapeCloseTheDroppedDownChooserAndDoNoMore) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  window_->ClickControl(IDC_chkCtrlAlt1);
  const HWND chooser = window_->Control(IDC_Combo1);
  const RECT place = RectangleOf(chooser);
  const auto waitForList = [&](bool open) {
    WaitFor(open ? "the chooser's list" : "the chooser's list to close",
            [&] { return (Send(chooser, CB_GETDROPPEDSTATE) != 0) == open; });
  };
  for (const WORD key : {WORD{VK_RETURN}, WORD{VK_ESCAPE}}) {
    Click({place.left + 10, (place.top + place.bottom) / 2});
    waitForList(true);
    const std::wstring before = window_->ChosenKey();
    Press(VK_DOWN);
    WaitFor("another key", [&] { return window_->ChosenKey() != before; });
    Press(key);
    waitForList(false);
    EXPECT_TRUE(window_->HasFocus(IDC_Combo1));
    EXPECT_TRUE(window_->BoxChecked(IDC_chkCtrlAlt1));
    EXPECT_EQ(RowOf(L"cm_SrcTree")[3], L"---");
    EXPECT_FALSE(Modified());
  }
}

TEST_F(EditTest, FocusComesBackToWhereItWas) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  Press(VK_CONTROL);
  WaitFor("the chooser to have the focus", [&] { return window_->HasFocus(IDC_Combo1); });

  window_->Command(IDM_delall);
  Answer(NextBox(), IDNO);
  WaitFor("the chooser to have the focus again", [&] { return window_->HasFocus(IDC_Combo1); });

  const HWND other = CreateWindowW(L"STATIC", L"another program", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9,
                                   nullptr, nullptr, nullptr, nullptr);
  BringToFront(other);
  WaitFor("the focus to go", [&] { return !window_->HasFocus(IDC_Combo1); });
  BringToFront(window_->Handle());
  WaitFor("the chooser to have the focus again", [&] { return window_->HasFocus(IDC_Combo1); });
  DestroyWindow(other);
}

TEST_F(EditTest, ALetterLeadsToTheNextRowThatBeginsWithIt) {
  StartAndLoad();
  const std::vector<RowTexts> rows = window_->Rows();
  Select(L"cm_SrcTree");
  const std::ptrdiff_t selected = window_->SelectedRow();
  const wchar_t letter = rows.begin()[selected][0].front();
  const auto begins = [letter](const RowTexts& row) { return row[0].starts_with(letter); };
  const auto first = std::ranges::find_if(rows, begins) - rows.begin();
  const auto next = std::find_if(rows.begin() + selected + 1, rows.end(), begins) - rows.begin();
  ASSERT_LT(first, selected);
  ASSERT_LT(next, static_cast<std::ptrdiff_t>(rows.size()));
  Type({&letter, 1});
  WaitFor("another row", [&] { return window_->SelectedRow() != static_cast<int>(selected); });
  EXPECT_EQ(window_->SelectedRow(), next);
}

TEST_F(EditTest, AClickBesideTheRowsKeepsTheSelectedOne) {
  StartAndLoad();
  const HWND list = window_->Control(IDC_ListView1);
  for (WPARAM column = 0; column < 4; ++column) Send(list, LVM_SETCOLUMNWIDTH, column, LPARAM{90});
  Select(L"cm_SrcTree");
  SelectNext();
  const int selected = window_->SelectedRow();
  const int seen = window_->RowCount() / 2;
  Send(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(seen));
  const LRESULT top = Send(list, LVM_GETTOPINDEX);
  const RECT last = window_->CellRectangle(seen, 3);
  Click({last.right + 30, (last.top + last.bottom) / 2});
  window_->ClickControl(IDC_chkCtrlAlt0);  // answered after the click on the list
  WaitFor("box Ctrl to be checked", [&] { return window_->BoxChecked(IDC_chkCtrlAlt0); });
  EXPECT_EQ(window_->SelectedRow(), selected);
  EXPECT_EQ(Send(list, LVM_GETTOPINDEX), top) << "nothing scrolls";
}

TEST_F(EditTest, AKeypadOperatorIsGivenAsNum) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  window_->ClickControl(IDC_chkCtrlAlt0);
  window_->ClickControl(IDC_chkCtrlAlt2);
  window_->ChooseKey(L"/");
  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  WaitForKeys(L"cm_SrcTree", L"Ctrl + Shift + Num /");
}

TEST_F(EditTest, ASecondKeyIsAdded) {
  const auto addEnabled = [&] {
    const HWND menu = window_->OpenButtonMenu(IDC_Toolbar2, IDM_assign);
    const bool enabled = WaitForMenuEntry(menu, L"Add Hotkey").Enabled;
    window_->CloseMenus();
    return enabled;
  };
  StartAndLoad();
  Select(L"cm_SrcTree");
  window_->ChooseKey(L"Z");
  EXPECT_FALSE(addEnabled()) << "there is no first key";
  Select(L"cm_SrcComments");
  ASSERT_EQ(RowOf(L"cm_SrcComments")[3], L"Ctrl + Alt + F1");
  window_->ClickControl(IDC_chkCtrlAlt1);
  window_->ChooseKey(L"Z");
  EXPECT_TRUE(addEnabled());
  window_->ChooseFromButtonMenu(IDC_Toolbar2, IDM_assign, 1);
  WaitForKeys(L"cm_SrcComments", L"Ctrl + Alt + F1 = Alt + Z");
  EXPECT_TRUE(Modified());
}

TEST_F(EditTest, AKeyReplacesTheFormerOnes) {
  StartAndLoad();
  Select(L"cm_EditNewFile");
  ASSERT_EQ(RowOf(L"cm_EditNewFile")[3], L"Ctrl + Alt + Shift + N = Alt + INS");
  window_->ClickControl(IDC_chkCtrlAlt1);
  window_->ChooseKey(L"Z");
  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  WaitForKeys(L"cm_EditNewFile", L"Alt + Z");
}

TEST_F(EditTest, DeleteKeyTakesTheKeysAwayAndFreesTheDefaultOnes) {
  StartAndLoad();
  ASSERT_EQ(RowOf(L"cm_RenameSingleFile")[3], L"F2");
  const std::wstring marked = RowOf(L"cm_RereadSource")[2];
  ASSERT_TRUE(marked.ends_with(L" *")) << Utf8(marked);
  Select(L"cm_RenameSingleFile");
  const RECT cell = window_->CellRectangle(window_->SelectedRow(), 3);
  const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
  WaitFor("the row to stand out", [&] { return CountPixels(cell, highlight) > 0; });
  const int withKey = CountPixels(cell, highlight);
  Press(VK_DELETE);
  WaitForKeys(L"cm_RenameSingleFile", L"---");
  WaitFor("the cell to show it", [&] { return CountPixels(cell, highlight) != withKey; });
  EXPECT_EQ(RowOf(L"cm_RereadSource")[2], marked.substr(0, marked.size() - 2));
  EXPECT_TRUE(Modified());
}

TEST_F(EditTest, DeleteButtonTakesTheKeysAndTheIconAway) {
  StartAndLoad();
  Select(L"cm_VerticalPanels");
  const RECT icon = window_->IconRectangle(window_->SelectedRow());
  const auto blank = [&icon] {
    const std::vector<DWORD> pixels = TakePicture(icon).Pixels;
    return std::ranges::count(pixels, pixels.front()) == std::ssize(pixels);
  };
  WaitFor("the row's icon", [&] { return !blank(); });
  window_->ClickButton(IDC_Toolbar2, IDM_delete);
  WaitForKeys(L"cm_VerticalPanels", L"---");
  WaitFor("the icon to go", blank);
}

TEST_F(EditTest, DeletingAllKeysAsksFirst) {
  StartAndLoad();
  const std::vector<RowTexts> before = window_->Rows();
  Select(L"cm_SrcTree");
  const int selected = window_->SelectedRow();
  const HWND menu = window_->OpenButtonMenu(IDC_Toolbar2, IDM_delete);
  EXPECT_TRUE(WaitForMenuEntry(menu, L"Delete All Hotkeys").Enabled);
  Press(VK_DOWN);
  Press(VK_RETURN);
  const Box box = NextBox();
  EXPECT_EQ(Utf8(box.Text),
            "You are about to delete Current Hotkeys for ALL commands.\n\nAre you sure?");
  EXPECT_EQ(box.DefaultButton, IDNO);
  Answer(box, IDNO);
  EXPECT_TRUE(SameRows(window_->Rows(), before));
  EXPECT_FALSE(Modified());

  window_->ChooseFromButtonMenu(IDC_Toolbar2, IDM_delete, 1);
  Answer(NextBox(), IDYES);
  WaitFor("the change to be known", [&] { return Modified(); });
  for (const RowTexts& row : WithoutHeadings(window_->Rows())) {
    EXPECT_EQ(row[3], L"---") << Utf8(row[1]);
  }
  EXPECT_EQ(window_->SelectedRow(), selected);
}

TEST_F(EditTest, RowWithTheListsFocusAloneIsNotEdited) {
  StartAndLoad();
  Select(L"cm_VerticalPanels");
  window_->FocusByAutomation(window_->SelectedRow() - 2);
  window_->ClickButton(IDC_Toolbar2, IDM_delete);
  WaitForKeys(L"cm_VerticalPanels", L"---");
}

TEST_F(EditTest, ListFindsRowsByTheirDescriptionsAndWhatIsTypedByTheirNamesToo) {
  StartAndLoad();
  const int row = window_->FindCommand(L"cm_SrcTree");
  EXPECT_EQ(window_->FindItem(LVFI_STRING, window_->Row(row)[0]), row);
  EXPECT_EQ(window_->FindItem(LVFI_STRING, L"cm_SrcTree"), -1);
  EXPECT_EQ(window_->FindItem(LVFI_STRING | LVFI_PARTIAL, L"cm_SrcTree"), row);
  EXPECT_EQ(window_->FindItem(LVFI_STRING), 0) << "which begins with no letter, as any row";
  EXPECT_EQ(window_->FindItem(LVFI_PARAM), -1);
}

TEST_F(EditTest, ModifierKeysToggleTheirBoxes) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  const std::array<std::pair<WORD, int>, 3> modifiers{
      {{VK_CONTROL, IDC_chkCtrlAlt0}, {VK_MENU, IDC_chkCtrlAlt1}, {VK_SHIFT, IDC_chkCtrlAlt2}}};
  for (const bool checked : {true, false}) {
    for (const auto& [key, box] : modifiers) {
      Press(key);
      WaitFor("box " + std::to_string(box) + " to change",
              [&, box = box] { return window_->BoxChecked(box) == checked; });
      WaitFor("the chooser to have the focus", [&] { return window_->HasFocus(IDC_Combo1); });
      EXPECT_FALSE(window_->InMenu());
    }
  }
}

TEST_F(EditTest, TheContextMenuKeyStandsInForAlt) {
  WriteBytes(folder_.SettingsFile(), "[Tessera]\r\nUseContextMenuKey=1\r\n");
  StartAndLoad();
  Select(L"cm_SrcTree");
  for (const bool checked : {true, false}) {
    Press(VK_APPS);
    WaitFor("box Alt to change", [&] { return window_->BoxChecked(IDC_chkCtrlAlt1) == checked; });
    WaitFor("the chooser to have the focus", [&] { return window_->HasFocus(IDC_Combo1); });
  }
  Press(VK_MENU);
  WaitFor("the menu bar", [&] { return window_->InMenu(); });
  window_->CloseMenus();
  EXPECT_FALSE(window_->BoxChecked(IDC_chkCtrlAlt1));
}

TEST_F(EditTest, EscapeAndBackspaceResetThePanel) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  for (const WORD key : {WORD{VK_ESCAPE}, WORD{VK_BACK}}) {
    window_->ClickControl(IDC_chkCtrlAlt0);
    window_->ChooseKey(L"F7");
    Press(key);
    WaitFor("no key to be chosen", [&] { return window_->ChosenKey().empty(); });
    EXPECT_FALSE(window_->BoxChecked(IDC_chkCtrlAlt0));
    EXPECT_TRUE(window_->HasFocus(IDC_ListView1));
  }
  EXPECT_FALSE(Modified());
}

TEST_F(EditTest, KeysOnAHeadingRowDoNothing) {
  StartAndLoad();
  const std::vector<RowTexts> before = window_->Rows();
  window_->ClickRow(0);
  Press(VK_CONTROL);
  Press(VK_DELETE);
  Press(VK_DOWN);  // the list has handled the keys before it once this one shows
  WaitFor("row 1 to be selected", [&] { return window_->SelectedRow() == 1; });
  EXPECT_FALSE(window_->BoxChecked(IDC_chkCtrlAlt0));
  EXPECT_FALSE(Modified());
  EXPECT_TRUE(SameRows(window_->Rows(), before));
}

}  // namespace
}  // namespace tessera::e2e::edit_test
