// Texts fit into their controls in every language and at every usual resolution, and the window
// follows a change of the resolution.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/RemoteMemory.h"
#include "tests/e2e/Ruler.h"
#include "tests/e2e/StartResolution.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::resolution_test {
namespace {

constexpr std::array Resolutions{96, 144, 192};

bool IsOfClass(HWND window, const wchar_t* name) {
  std::array<wchar_t, 64> own{};
  GetClassNameW(window, own.data(), own.size());
  return lstrcmpiW(own.data(), name) == 0;
}

BOOL CALLBACK AddWindow(HWND window, LPARAM windows) {
  reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

/// All controls of a window, hidden ones too.
std::vector<HWND> ControlsOf(const Window& window) {
  std::vector<HWND> controls;
  EnumChildWindows(window.Handle(), AddWindow, reinterpret_cast<LPARAM>(&controls));
  return controls;
}

class ResolutionTest : public EndToEndTest {
 protected:
  /// The name of a shipped language file; empty for the built-in texts.
  void StartWith(const std::wstring& language) {
    WriteBytes(folder_.SettingsFile(), "[Tessera]\r\n");
    if (!language.empty()) folder_.UseLanguageFile(folder_.ShippedLanguage(language));
    Start();
    memory_ = std::make_unique<RemoteMemory>(program_->Process(), sizeof(RECT));
    WaitFor("the first row to be selected", [&] { return window_->SelectedRow() == 0; });
  }

  /// The memory goes first, which is the program's.
  void Close() {
    memory_.reset();
    EndToEndTest::Close();
  }

  /// With a language file that has those texts.
  void StartWithTexts(const std::string& texts) {
    const std::wstring name = L"Own.lng";
    WriteBytes(folder_.ShippedLanguage(name), "[UserLanguage]\r\n" + texts);
    StartWith(name);
  }

  /// Tells a window that it stands on a screen of that resolution now, where it should take that
  /// place.
  void ChangeResolution(const Window& window, int dpi, const RECT& suggested) const {
    memory_->Put(suggested);
    Send(window.Handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), memory_->At());
  }

  /// The size that a control asks for itself.
  template <typename Size>
  [[nodiscard]] Size Ask(HWND control, UINT message, WPARAM first = 0) const {
    memory_->Put(Size{});
    Send(control, message, first, memory_->At());
    return memory_->Get<Size>();
  }

  [[nodiscard]] SIZE NeededBy(HWND control, const Ruler& ruler) const {
    const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
    if (IsOfClass(control, WC_STATICW)) return ruler.Measure(TextOf(control));
    if (IsOfClass(control, TOOLBARCLASSNAMEW)) return Ask<SIZE>(control, TB_GETMAXSIZE);
    if (IsOfClass(control, WC_TABCONTROLW)) {
      const auto last = static_cast<WPARAM>(Send(control, TCM_GETITEMCOUNT) - 1);
      EXPECT_EQ(Send(control, TCM_GETROWCOUNT), 1) << "rows of tabs";
      const RECT tab = Ask<RECT>(control, TCM_GETITEMRECT, last);
      return {tab.right, tab.bottom};
    }
    if (!IsOfClass(control, WC_BUTTONW) || (style & BS_ICON) != 0) return {};
    switch (style & BS_TYPEMASK) {
      case BS_OWNERDRAW:
        return {};
      case BS_GROUPBOX:
        return ruler.Measure(L"  " + TextOf(control) + L"  ");
      default:
        return Ask<SIZE>(control, BCM_GETIDEALSIZE);
    }
  }

  /// Every control has the room that it needs, inside of what it stands on.
  void ExpectThatAllFits(const Window& window, int dpi) const {
    const Ruler ruler(dpi, &NONCLIENTMETRICSW::lfMessageFont);
    int measured = 0;
    for (const HWND control : ControlsOf(window)) {
      const int id = GetDlgCtrlID(control);
      EXPECT_EQ(GetWindowLongPtrW(control, GWL_EXSTYLE) & WS_EX_DLGMODALFRAME, 0)
          << id << " has a dialog's frame, which takes room";
      if (id == IDC_lblListView1 || id == IDC_lblFind) continue;  // never shown
      const SIZE needed = NeededBy(control, ruler);
      if (needed.cx == 0) continue;
      ++measured;
      RECT inside{};
      GetClientRect(control, &inside);
      RECT around{};
      GetClientRect(GetParent(control), &around);
      RECT place = RectangleOf(control);
      MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
      const bool fits = needed.cx <= inside.right && needed.cy <= inside.bottom &&
                        place.left >= 0 && place.top >= 0 && place.right <= around.right &&
                        place.bottom <= around.bottom;
      EXPECT_TRUE(fits) << Utf8(TextOf(control)) << " (" << id << ") needs " << needed.cx << " x "
                        << needed.cy << " and has " << inside.right << " x " << inside.bottom
                        << ", at " << place.left << ", " << place.top << " in " << around.right
                        << " x " << around.bottom;
    }
    EXPECT_GE(measured, 6) << "controls with texts";
  }

  void ExpectThatTheTitleFits(const Window& window, int dpi) const {
    const RECT place = RectangleOf(window.Handle());
    const Ruler ruler(dpi, &NONCLIENTMETRICSW::lfCaptionFont);
    const auto metric = [dpi](int which) {
      return GetSystemMetricsForDpi(which, static_cast<UINT>(dpi));
    };
    EXPECT_LE(ruler.Measure(window.Caption()).cx + metric(SM_CXSIZE) + 4 * metric(SM_CXFIXEDFRAME),
              place.right - place.left)
        << Utf8(window.Caption());
  }

  /// The tabs and the controls on their pages have the room around them that they ask for.
  void ExpectRoomAroundPages(const Dialog& dialog, int dpi, LONG margin) const {
    const HWND tabs = dialog.Control(IDC_tbsOptions);
    const Ruler ruler(dpi, &NONCLIENTMETRICSW::lfMessageFont);
    const SIZE text = ruler.Measure(dialog.TabText(IDC_tbsOptions, 0));
    const RECT tab = Ask<RECT>(tabs, TCM_GETITEMRECT);
    EXPECT_GE(tab.right - tab.left, text.cx + 2 * MulDiv(10, dpi, 96));
    RECT page{};
    GetClientRect(tabs, &page);
    memory_->Put(page);
    Send(tabs, TCM_ADJUSTRECT, FALSE, memory_->At());
    page = OnScreen(tabs, memory_->Get<RECT>());
    const RECT frame = RectangleOf(dialog.Control(IDC_Frame1));
    EXPECT_EQ(frame.left - page.left, margin);
    EXPECT_EQ(frame.top - page.top, margin);
    EXPECT_EQ(page.right - frame.right, margin);
  }

  /// What a dialog that reads from the left shows ends everywhere at the same distance from its
  /// edges.
  void ExpectEvenMargins(const Dialog& dialog, int dpi) const {
    const bool hasTabs = GetDlgItem(dialog.Handle(), IDC_tbsOptions) != nullptr;
    RECT inside{};
    GetClientRect(dialog.Handle(), &inside);
    inside = OnScreen(dialog.Handle(), inside);
    const RECT pages = RectangleOf(dialog.Control(hasTabs ? IDC_tbsOptions : IDC_Frame1));
    const RECT button = RectangleOf(dialog.Control(hasTabs ? IDC_cmdApply : IDC_cmdCancel));
    const LONG margin = pages.left - inside.left;
    EXPECT_GT(margin, 0);
    EXPECT_EQ(pages.top - inside.top, margin);
    EXPECT_EQ(inside.right - pages.right, margin);
    EXPECT_EQ(button.top - pages.bottom, margin);
    EXPECT_EQ(inside.right - button.right, margin);
    // A caption that is higher at a resolution is so from the start on.
    if (GetDpiForWindow(dialog.Handle()) == static_cast<UINT>(dpi)) {
      EXPECT_EQ(inside.bottom - button.bottom, margin);
    }
    if (hasTabs) ExpectRoomAroundPages(dialog, dpi, margin);
  }

  void ExpectGoodLayout(const Dialog& dialog, int dpi) const {
    ExpectThatAllFits(dialog, dpi);
    ExpectThatTheTitleFits(dialog, dpi);
    ExpectEvenMargins(dialog, dpi);
  }

  /// Opens a dialog of the program, calls `look` with it, and closes it.
  template <typename Look>
  void WithDialog(int command, const std::wstring& className, Look look) {
    window_->Command(command);
    const Dialog dialog = NextDialog(className);
    look(dialog);
    PostMessageW(dialog.Handle(), WM_CLOSE, 0, 0);
    dialog.WaitUntilClosed();
  }

  template <typename Look>
  void WithEachDialog(Look look) {
    WithDialog(IDM_mnuViewOptions, L"frmOptions", look);
    WithDialog(IDM_mnuFileExportToClipboard, L"frmExportToClipboard", look);
  }

  /// The files that are shipped; the template among them has the English texts.
  [[nodiscard]] std::vector<std::wstring> Languages() const {
    std::vector<std::wstring> names;
    for (const auto& file : std::filesystem::directory_iterator(folder_.Program() + L"Languages")) {
      names.push_back(file.path().filename().wstring());
    }
    return names;
  }

  [[nodiscard]] std::map<int, std::array<LONG, 4>> Places() const {
    std::map<int, std::array<LONG, 4>> places;
    for (const HWND control : ControlsOf(*window_)) {
      const RECT place = RectangleOf(control);
      places[GetDlgCtrlID(control)] = {place.left, place.top, place.right, place.bottom};
    }
    return places;
  }

  /// Of the program, for what its windows are told and asked.
  std::unique_ptr<RemoteMemory> memory_;
};

TEST_F(ResolutionTest, TextsFitInEveryLanguage) {
  const std::vector<std::wstring> languages = Languages();
  ASSERT_GT(languages.size(), 9U);
  for (const std::wstring& language : languages) {
    SCOPED_TRACE(Utf8(language));
    StartWith(language);
    WithEachDialog([&](const Dialog& dialog) {
      for (const int dpi : Resolutions) {
        SCOPED_TRACE(std::to_string(dpi) + " pixels an inch");
        ChangeResolution(dialog, dpi, RectangleOf(dialog.Handle()));
        ExpectThatAllFits(dialog, dpi);
        ExpectThatTheTitleFits(dialog, dpi);
      }
    });
    for (const int dpi : Resolutions) {
      SCOPED_TRACE(std::to_string(dpi) + " pixels an inch");
      ChangeResolution(*window_, dpi, {20, 20, 30, 30});  // the window gets its smallest size
      ExpectThatAllFits(*window_, dpi);
      EXPECT_TRUE(window_->Visible(IDC_txtFind)) << "beside the toolbar's buttons";
    }
    Close();
  }
}

TEST_F(ResolutionTest, ProgramStartsInIt) {
  int toolbarHeight = 0;
  for (const int dpi : Resolutions) {
    SCOPED_TRACE(std::to_string(dpi) + " pixels an inch");
    const StartResolution resolution(static_cast<DWORD>(dpi));
    StartWith(L"German.lng");
    const RECT toolbar = RectangleOf(window_->Control(IDC_Toolbar1));
    EXPECT_GT(toolbar.bottom - toolbar.top, toolbarHeight);
    toolbarHeight = toolbar.bottom - toolbar.top;
    ExpectThatAllFits(*window_, dpi);
    WithEachDialog([&](const Dialog& dialog) { ExpectGoodLayout(dialog, dpi); });
    Close();
  }
}

TEST_F(ResolutionTest, PanelHasRoomInAWindowThatStaysAndItsAllKeysButtonStandsInTheChooser) {
  StartWith(L"");
  for (const int dpi : Resolutions) {
    SCOPED_TRACE(std::to_string(dpi) + " pixels an inch");
    ChangeResolution(*window_, dpi, {20, 20, 1220, 920});
    const RECT chooser = RectangleOf(window_->Control(IDC_Combo1));
    const RECT button = RectangleOf(window_->Control(IDC_cmdAllList));
    EXPECT_GT(chooser.bottom - chooser.top, MulDiv(16, dpi, 96)) << "with its font";
    EXPECT_GT(button.left, chooser.left);
    EXPECT_GT(button.top, chooser.top);
    EXPECT_LT(button.right, chooser.right);
    EXPECT_LT(button.bottom, chooser.bottom);
    EXPECT_GE(RectangleOf(window_->Control(IDC_lblStatus)).top, chooser.bottom);
    EXPECT_LE(RectangleOf(window_->Control(IDC_cmdUndo)).bottom,
              RectangleOf(window_->Control(IDC_Frame1)).bottom);
  }
}

TEST_F(ResolutionTest, DialogMovesToThePlaceThatComesWithIt) {
  StartWithTexts("1008=All of this is as I want it\r\n1009=Nothing of this is as I want it\r\n");
  WithEachDialog([&](const Dialog& dialog) {
    ExpectGoodLayout(dialog, 96);  // with buttons that are wider than all else
    const RECT former = RectangleOf(dialog.Handle());
    const RECT suggested{31, 43, 831, 643};
    ChangeResolution(dialog, 192, suggested);
    const RECT followed = RectangleOf(dialog.Handle());
    EXPECT_EQ(followed.left, suggested.left);
    EXPECT_EQ(followed.top, suggested.top);
    EXPECT_GT(followed.right - followed.left, former.right - former.left) << "as its texts need";
  });
}

TEST_F(ResolutionTest, DialogIsLaidOutTheSameEachTime) {
  // Tabs in the one, and a title in the other, that are wider than all else.
  StartWithTexts(
      "1002=The looks of all windows\r\n1004=The colors and the font\r\n"
      "1005=What the program does\r\n1006=The language of all\r\n"
      "407=Which of all the columns are to be exported now?\r\n");
  WithEachDialog([&](const Dialog& dialog) {
    const RECT first = RectangleOf(dialog.Handle());
    for (const int dpi : {96, 192, 96}) {
      ChangeResolution(dialog, dpi, first);
      ExpectGoodLayout(dialog, dpi);
    }
    // After other fonts and colours, too.
    for (const auto& [message, what] :
         {std::pair{WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS}, std::pair{WM_SYSCOLORCHANGE, 0}}) {
      SetWindowPos(dialog.Control(IDC_cmdOK), nullptr, 0, 0, 1, 1, SWP_NOZORDER | SWP_NOACTIVATE);
      Send(dialog.Handle(), static_cast<UINT>(message), static_cast<WPARAM>(what));
      ExpectGoodLayout(dialog, 96);
    }
    const RECT last = RectangleOf(dialog.Handle());
    EXPECT_NE(EqualRect(&first, &last), FALSE)
        << first.right - first.left << " wide, then " << last.right - last.left;
  });
}

TEST_F(ResolutionTest, WindowFollowsItThereAndBack) {
  StartWith(L"");
  const RECT place = RectangleOf(window_->Handle());
  const auto places = Places();
  const auto widths = window_->ColumnWidths();
  const RECT suggested{30, 40, 1030, 840};
  ChangeResolution(*window_, 144, suggested);
  const RECT followed = RectangleOf(window_->Handle());
  EXPECT_NE(EqualRect(&followed, &suggested), FALSE);
  for (std::size_t column = 0; column < widths.size(); ++column) {
    EXPECT_NEAR(window_->ColumnWidths().at(column), widths.at(column) * 3 / 2, 1);
  }
  EXPECT_NE(Places(), places);
  EXPECT_TRUE(window_->HeaderHasOwnImages());
  ChangeResolution(*window_, 96, place);
  EXPECT_EQ(Places(), places);
  EXPECT_EQ(window_->ColumnWidths(), widths);
  // All is laid out again after other fonts and looks, too.
  for (const auto& [message, what] :
       {std::pair{WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS}, std::pair{WM_SYSCOLORCHANGE, 0},
        std::pair{WM_THEMECHANGED, 0}}) {
    SetWindowPos(window_->Control(IDC_ListView1), nullptr, 0, 0, 9, 9,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_NE(Places(), places);
    Send(window_->Handle(), static_cast<UINT>(message), static_cast<WPARAM>(what));
    EXPECT_EQ(Places(), places) << message;
  }
}

}  // namespace
}  // namespace tessera::e2e::resolution_test
