// The pop-up list of all keys.
#include <array>
#include <string>
#include <tuple>
#include <utility>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::keys_list_test {
namespace {

constexpr wchar_t KeysListClass[] = L"frmKeysList";
constexpr COLORREF Quiet = RGB(85, 85, 85);  // of keys that somebody has

class KeysListTest : public EndToEndTest {
 protected:
  void SetUp() override {
    StartAndLoad();
    // Not by a click, whose end could still be to come when a test moves the window.
    window_->SelectByAutomation(window_->FindCommand(L"cm_SrcTree"));
    WaitFor("the all-keys button", [&] { return window_->Enabled(IDC_cmdAllList); });
  }

  Dialog OpenList() {
    window_->ClickControl(IDC_cmdAllList);
    Dialog list = NextDialog(KeysListClass);
    WaitFor("the list to have the focus", [&] { return list.HasFocus(IDC_List1); });
    return list;
  }

  static std::wstring Entry(HWND list, UINT message, int index) {
    std::array<wchar_t, 64> text{};
    Send(list, message, static_cast<WPARAM>(index), text.data());
    return text.data();
  }

  static int Selected(const Dialog& list) {
    return static_cast<int>(Send(list.Control(IDC_List1), LB_GETCURSEL));
  }

  static std::wstring SelectedText(const Dialog& list) {
    return Selected(list) < 0 ? L"" : Entry(list.Control(IDC_List1), LB_GETTEXT, Selected(list));
  }

  /// On the screen.
  static RECT PlaceOf(const Dialog& list, int index) {
    RECT place{};
    const HWND entries = list.Control(IDC_List1);
    Send(entries, LB_GETITEMRECT, static_cast<WPARAM>(index), &place);
    return OnScreen(entries, place);
  }

  /// True when the text of an entry that is not selected stands at its place in that colour.
  static bool ShowsEntry(const Dialog& list, int index, COLORREF color) {
    const Picture line =
        DrawLine(Entry(list.Control(IDC_List1), LB_GETTEXT, index), SystemMetrics().lfMessageFont,
                 color, GetSysColor(COLOR_WINDOW), false);
    const Picture shown = TakePicture(PlaceOf(list, index));
    return shown.Holds(line, 2, (shown.Height - line.Height + 1) / 2);
  }

  static void MoveTo(const Dialog& list, int index) {
    for (int next = Selected(list) + 1; next <= index; ++next) {
      Press(VK_DOWN);
      WaitFor("entry " + std::to_string(next), [&] { return Selected(list) == next; });
    }
  }

  void CheckClick(const Dialog& list, int index) {
    const std::wstring key = Entry(list.Control(IDC_List1), LB_GETTEXT, index);
    Click(CenterOf(PlaceOf(list, index)));
    list.WaitUntilClosed();
    WaitFor("key " + Utf8(key), [&] { return window_->ChosenKey() == key; });
    ExpectClosed();
  }

  /// Enabled as a whole; the buttons' own states are another matter.
  [[nodiscard]] bool PanelToolbarEnabled() const { return window_->Enabled(IDC_Toolbar2); }

  void ExpectClosed() const {
    WaitFor("the panel toolbar to be enabled", [&] { return PanelToolbarEnabled(); });
    WaitFor("the chooser to have the focus", [&] { return window_->HasFocus(IDC_Combo1); });
  }
};

TEST_F(KeysListTest, HasTheNameAndTheEntriesOfTheChooser) {
  RECT title = RectangleOf(window_->Handle());
  title.bottom = title.top + GetSystemMetrics(SM_CYFRAME) + GetSystemMetrics(SM_CYCAPTION);
  const Dialog list = OpenList();
  EXPECT_EQ(list.Caption(), window_->ControlText(IDC_lblHotkey));
  const HWND entries = list.Control(IDC_List1);
  const HWND chooser = window_->Control(IDC_Combo1);
  const auto count = static_cast<int>(Send(entries, LB_GETCOUNT));
  ASSERT_GT(count, 50);
  ASSERT_EQ(count, Send(chooser, CB_GETCOUNT));
  EXPECT_EQ(Send(chooser, CB_GETMINVISIBLE), 16);
  for (int index = 0; index < count; ++index) {
    EXPECT_EQ(Entry(entries, LB_GETTEXT, index), Entry(chooser, CB_GETLBTEXT, index)) << index;
  }
  // By now the window's title would be that of one which is not active.
  EXPECT_EQ(CountPixels(title, GetSysColor(COLOR_INACTIVECAPTION)), 0) << "the list is part of it";
}

TEST_F(KeysListTest, StandsUnderThePanelFlushWithTheButtonWhereverTheyGo) {
  const Dialog open = OpenList();
  const auto expectPlace = [&] {
    const RECT button = RectangleOf(window_->Control(IDC_cmdAllList));
    const RECT panel = RectangleOf(window_->Control(IDC_Frame1));
    const RECT list = RectangleOf(open.Handle());
    EXPECT_EQ(list.right, button.right);
    const bool below = list.top == panel.bottom;
    const bool above = list.bottom == panel.top;
    EXPECT_TRUE(below || above) << list.top << " to " << list.bottom;
    if (above) {
      EXPECT_GT(panel.bottom + (list.bottom - list.top), GetSystemMetrics(SM_CYSCREEN))
          << "there was room below";
    }
  };
  expectPlace();
  const auto move = [&](int width, int height, UINT flags) {
    SetWindowPos(window_->Handle(), nullptr, 100, 50, width, height, flags | SWP_NOZORDER);
    expectPlace();
  };
  move(0, 0, SWP_NOSIZE);
  move(800, 520, SWP_NOMOVE);

  const HWND entries = open.Control(IDC_List1);
  const RECT list = RectangleOf(open.Handle());
  const RECT inside = RectangleOf(entries);
  for (const LONG margin : {inside.left - list.left, inside.top - list.top,
                            list.right - inside.right, list.bottom - inside.bottom}) {
    EXPECT_EQ(margin, 7) << "of the whole list";
  }
  const LRESULT height = Send(entries, LB_GETITEMHEIGHT);
  EXPECT_EQ(height, DrawLine(L"Xg", SystemMetrics().lfMessageFont, 0, 0, false).Height + 1);
  RECT client{};
  GetClientRect(entries, &client);
  EXPECT_EQ(client.bottom, 22 * height) << "of whole entries";
}

TEST_F(KeysListTest, ArrowKeysChangeNothingUntilEnterChooses) {
  const Dialog list = OpenList();
  EXPECT_EQ(Selected(list), LB_ERR);
  EXPECT_FALSE(PanelToolbarEnabled());
  MoveTo(list, 3);
  EXPECT_EQ(window_->ChosenKey(), L"");
  const std::wstring key = SelectedText(list);
  RECT place = PlaceOf(list, 3);
  WaitFor("the entry to stand out", [&] {
    return CountPixels(place, GetSysColor(COLOR_HIGHLIGHT)) >
           (place.right - place.left) * (place.bottom - place.top) / 2;
  });
  place.bottom = place.top + 1;
  WaitFor("the focus", [&] {
    return CountPixels(place, GetSysColor(COLOR_HIGHLIGHT)) < place.right - place.left;
  });
  place = PlaceOf(list, 5);
  place.bottom = place.top + 1;
  WaitFor("another entry, which has no focus", [&] {
    return CountPixels(place, GetSysColor(COLOR_WINDOW)) == place.right - place.left;
  });
  Press(VK_RETURN);
  list.WaitUntilClosed();
  WaitFor("the key to be chosen", [&] { return window_->ChosenKey() == key; });
  ExpectClosed();
}

TEST_F(KeysListTest, SpaceChoosesToo) {
  window_->ChooseKey(L"F5");
  const Dialog list = OpenList();
  EXPECT_EQ(SelectedText(list), L"F5");
  MoveTo(list, Selected(list) + 2);
  EXPECT_EQ(window_->ChosenKey(), L"F5");
  Press(VK_SPACE);
  list.WaitUntilClosed();
  WaitFor("the key to be chosen", [&] { return window_->ChosenKey() == L"F7"; });
  ExpectClosed();
}

TEST_F(KeysListTest, EscapeClosesItWithoutAChoice) {
  window_->ChooseKey(L"F5");
  const Dialog list = OpenList();
  MoveTo(list, Selected(list) + 1);
  Press(VK_ESCAPE);
  list.WaitUntilClosed();
  ExpectClosed();
  EXPECT_EQ(window_->ChosenKey(), L"F5");

  const Dialog again = OpenList();
  EXPECT_EQ(SelectedText(again), L"F5") << "the list starts from the chooser's key";
}

TEST_F(KeysListTest, SecondClickOnTheButtonClosesIt) {
  const Dialog list = OpenList();
  window_->ClickControl(IDC_cmdAllList);
  list.WaitUntilClosed();
  ExpectClosed();
  const Dialog again = OpenList();
  EXPECT_FALSE(PanelToolbarEnabled());
  const RECT chooser = RectangleOf(window_->Control(IDC_Combo1));
  Click({chooser.left + 10, (chooser.top + chooser.bottom) / 2});
  WaitFor("the panel toolbar for the chooser's own list", [&] { return PanelToolbarEnabled(); });
}

TEST_F(KeysListTest, ClickChooses) {
  const Dialog list = OpenList();
  CheckClick(list, 4);
}

TEST_F(KeysListTest, ClickChoosesAfterArrowKeysToo) {
  const Dialog list = OpenList();
  MoveTo(list, 2);
  CheckClick(list, 6);
}

TEST_F(KeysListTest, RightArrowInTheChooserOpensItAndItsDropDownEnablesTheToolbarAgain) {
  window_->ChooseKey(L"F5");
  Press(VK_RIGHT);
  const Dialog list = NextDialog(KeysListClass);
  EXPECT_FALSE(PanelToolbarEnabled());
  EXPECT_EQ(window_->ChosenKey(), L"F5");
  const RECT chooser = RectangleOf(window_->Control(IDC_Combo1));
  Click({chooser.left + 10, (chooser.top + chooser.bottom) / 2});
  WaitFor("the panel toolbar to be enabled", [&] { return PanelToolbarEnabled(); });
}

TEST_F(KeysListTest, ClickOnARowHidesIt) {
  const int selected = window_->SelectedRow();
  for (const int row : {selected, selected + 1}) {
    const Dialog list = OpenList();
    const RECT cells = window_->CellRectangle(row, 0);
    Click({cells.left + 40, CenterOf(cells).y});  // the list covers the other columns
    list.WaitUntilClosed();
    WaitFor("the panel toolbar to be enabled", [&] { return PanelToolbarEnabled(); });
    WaitFor("the row to be selected", [&] { return window_->SelectedRow() == row; });
  }
}

TEST_F(KeysListTest, HidesBeforeAQuestionWhichBelongsToTheMainWindow) {
  MakeAChange();
  window_->ChooseKey(L"M");
  Dialog list = OpenList();
  MoveTo(list, Selected(list) + 1);
  window_->Command(IDM_mnuFileOpen);
  const Box question = NextBox();
  EXPECT_FALSE(IsWindowVisible(list.Handle()));
  EXPECT_EQ(GetWindow(question.Window, GW_OWNER), window_->Handle());
  EXPECT_FALSE(IsWindowEnabled(window_->Handle()));
  window_->Command(IDM_mnuFileExit);
  window_->Command(IDM_mnuViewOptions);
  window_->Command(IDM_delall);
  Answer(question, IDCANCEL);
  WaitFor("the panel toolbar to be enabled", [&] { return PanelToolbarEnabled(); });
  WaitFor("the focus to be where it was before the list",
          [&] { return window_->HasFocus(IDC_cmdAllList); });
  EXPECT_TRUE(NoBoxOpen()) << "nothing else has started meanwhile";
  EXPECT_EQ(window_->ChosenKey(), L"M") << "hiding is no choice";
}

TEST_F(KeysListTest, HidesBeforeADialog) {
  for (const auto& [command, className, focus] :
       {std::tuple(IDM_mnuViewOptions, L"frmOptions", IDC_ListView1),
        std::tuple(IDM_mnuFileExportToClipboard, L"frmExportToClipboard", IDC_cmdAllList)}) {
    const Dialog list = OpenList();
    window_->Command(command);
    Dialog dialog = NextDialog(className);
    EXPECT_FALSE(IsWindowVisible(list.Handle()));
    EXPECT_EQ(GetWindow(dialog.Handle(), GW_OWNER), window_->Handle());
    dialog.CloseByKey(VK_ESCAPE);
    WaitFor("the panel toolbar to be enabled", [&] { return PanelToolbarEnabled(); });
    WaitFor("the focus", [&, focus = focus] { return window_->HasFocus(focus); });
  }
}

TEST_F(KeysListTest, IsHiddenWhileTheWindowIsMinimised) {
  const Dialog list = OpenList();
  PostMessageW(window_->Handle(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  list.WaitUntilClosed();
  Send(window_->Handle(), WM_COMMAND, IDM_mnuViewToolbar);
  EXPECT_FALSE(IsWindowVisible(list.Handle())) << "what happens meanwhile does not show it";
  PostMessageW(window_->Handle(), WM_SYSCOMMAND, SC_RESTORE, 0);
  WaitFor("the list", [&] { return IsWindowVisible(list.Handle()) != FALSE; });
}

TEST_F(KeysListTest, IsBeforeTheWindowWhenThatIsRestored) {
  // There is no room but before the window.
  PostMessageW(window_->Handle(), WM_SYSCOMMAND, SC_MAXIMIZE, 0);
  WaitFor("the panel at the lower edge of the screen", [&] {
    const RECT panel = RectangleOf(window_->Control(IDC_Frame1));
    return GetSystemMetrics(SM_CYSCREEN) - panel.bottom < panel.bottom - panel.top;
  });
  const Dialog list = OpenList();
  // The upper entries may have a focus rectangle.
  RECT place = RectangleOf(list.Control(IDC_List1));
  place.top = (place.top + place.bottom) / 2;
  constexpr int Last = 21;  // of those in view
  WaitFor("the last entry", [&] {
    return ShowsEntry(list, Last, Quiet) || ShowsEntry(list, Last, GetSysColor(COLOR_WINDOWTEXT));
  });
  Picture shown;
  WaitFor("the list to be painted", [&] {
    const Picture before = std::exchange(shown, TakePicture(place));
    return GetUpdateRect(list.Control(IDC_List1), nullptr, FALSE) == FALSE &&
           before.Pixels == shown.Pixels && CountPixels(place, GetSysColor(COLOR_WINDOWTEXT)) > 0;
  });
  PostMessageW(window_->Handle(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  list.WaitUntilClosed();
  PostMessageW(window_->Handle(), WM_SYSCOMMAND, SC_RESTORE, 0);
  WaitFor("the list before the window", [&] { return TakePicture(place).Pixels == shown.Pixels; });
}

TEST_F(KeysListTest, KeysThatSomebodyHasLookQuieterAndBearAMark) {
  constexpr int A = 12;
  constexpr int G = 18;
  const auto bearsMark = [&](const Dialog& list, int index) {
    RECT end = PlaceOf(list, index);
    end.left = (end.left + end.right) / 2;
    const int all = static_cast<int>((end.right - end.left) * (end.bottom - end.top));
    return CountPixels(end, GetSysColor(COLOR_WINDOW)) < all;
  };
  const auto isPlain = [&](const Dialog& list, int index) {
    return CountPixels(PlaceOf(list, index), GetSysColor(COLOR_WINDOWTEXT)) > 0;
  };
  window_->ClickControl(IDC_chkCtrlAlt0);
  const Dialog list = OpenList();
  WaitFor("Ctrl + A, which is taken", [&] { return bearsMark(list, A) && !isPlain(list, A); });
  WaitFor("Ctrl + G, which is free", [&] { return !bearsMark(list, G) && isPlain(list, G); });
  ASSERT_EQ(GetSysColor(COLOR_WINDOWTEXT), RGB(0, 0, 0));
  ASSERT_EQ(GetSysColor(COLOR_WINDOW), RGB(255, 255, 255));
  WaitFor("the text of the taken key", [&] { return ShowsEntry(list, A, Quiet); });
  WaitFor("the text of the free key",
          [&] { return ShowsEntry(list, G, GetSysColor(COLOR_WINDOWTEXT)); });
  const RECT taken = PlaceOf(list, A);
  const LONG middle = (taken.top + taken.bottom) / 2;
  // The middle of the mark, of a diameter of 5 and 8 from the end.
  EXPECT_EQ(CountPixels({taken.right - 11, middle, taken.right - 10, middle + 1}, Quiet), 1);
  EXPECT_EQ(CountPixels({taken.right - 8, taken.top, taken.right, taken.bottom}, Quiet), 0);
  const LONG top = (taken.top + taken.bottom - 5) / 2;
  const RECT end{(taken.left + taken.right) / 2, taken.top, taken.right, taken.bottom};
  const int mark = CountPixels({taken.right - 13, top, taken.right - 8, top + 5}, Quiet);
  EXPECT_GT(mark, 5 * 5 / 2) << "it is filled";
  EXPECT_EQ(CountPixels(end, Quiet), mark) << "and no larger";
  // Checked as a key does it, without the focus.
  Send(window_->Control(IDC_chkCtrlAlt1), BM_SETCHECK, BST_CHECKED);
  Send(window_->Control(IDC_Frame1), WM_COMMAND, MAKEWPARAM(IDC_chkCtrlAlt1, BN_CLICKED));
  WaitFor("Ctrl + Alt + A, which is free", [&] { return !bearsMark(list, A) && isPlain(list, A); });
}

TEST_F(KeysListTest, ChosenKeyCanBeAssigned) {
  window_->ClickControl(IDC_chkCtrlAlt0);
  window_->ClickControl(IDC_chkCtrlAlt1);
  const Dialog list = OpenList();
  Press('K');  // the first entry that begins so
  WaitFor("entry K", [&] { return SelectedText(list) == L"K"; });
  Press(VK_RETURN);
  list.WaitUntilClosed();
  ExpectClosed();
  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  WaitForKeys(L"cm_SrcTree", L"Ctrl + Alt + K");
}

}  // namespace
}  // namespace tessera::e2e::keys_list_test
