// What windows and controls are like after each helper.
#include "platform/win32/Controls.h"

#include <gtest/gtest.h>

namespace tessera::controls_test {
namespace {

class ControlsTest : public testing::Test {
 protected:
  ControlsTest() { ShowWindow(window_, SW_SHOWNOACTIVATE); }
  ~ControlsTest() override { DestroyWindow(window_); }

  HWND Make(const wchar_t* className) {
    const HWND made = CreateControl(window_, className, 7, WS_VISIBLE);
    SetWindowPos(made, nullptr, 11, 12, 50, 40, SWP_NOZORDER);
    return made;
  }

  static RECT Inside(HWND control) {
    RECT inside{};
    GetClientRect(control, &inside);
    return inside;
  }

  HWND window_ =
      CreateWindowW(L"STATIC", L"", WS_POPUP, 100, 60, 200, 90, nullptr, nullptr, nullptr, nullptr);
};

TEST_F(ControlsTest, ClassHasTheArrowAndTheColorOfButtons) {
  RegisterWindowClass(L"TesseraControlsTest", DefWindowProcW, CS_DROPSHADOW, 40);
  WNDCLASSEXW made{};
  made.cbSize = sizeof made;
  ASSERT_TRUE(GetClassInfoExW(GetModuleHandleW(nullptr), L"TesseraControlsTest", &made));
  EXPECT_EQ(made.style, UINT{CS_DROPSHADOW});
  EXPECT_EQ(made.cbWndExtra, 40);
  EXPECT_EQ(made.hCursor, LoadCursorW(nullptr, IDC_ARROW));
  EXPECT_EQ(made.hbrBackground, GetSysColorBrush(COLOR_BTNFACE));
}

TEST_F(ControlsTest, MessageFontGrowsWithTheResolutionAndKeepsTheCharacterSet) {
  const LOGFONTW font = MessageFont(96, RUSSIAN_CHARSET);
  EXPECT_NE(font.lfFaceName[0], L'\0');
  EXPECT_EQ(font.lfCharSet, RUSSIAN_CHARSET);
  EXPECT_EQ(MessageFont(192, RUSSIAN_CHARSET).lfHeight, 2 * font.lfHeight);
}

TEST_F(ControlsTest, ControlIsMadeWithoutTextAndSize) {
  const HWND made = CreateControl(window_, WC_EDITW, 7, ES_NUMBER, WS_EX_RIGHT);
  EXPECT_EQ(GetDlgItem(window_, 7), made);
  EXPECT_EQ(TextOf(made), L"");
  EXPECT_EQ(WindowArea(made), (Area{100, 60, 0, 0}));
  EXPECT_NE(GetWindowLongPtrW(made, GWL_STYLE) & ES_NUMBER, 0);
  EXPECT_NE(GetWindowLongPtrW(made, GWL_EXSTYLE) & WS_EX_RIGHT, 0);
}

TEST_F(ControlsTest, TextBoxesAreToldFromOthers) {
  EXPECT_TRUE(IsTextBox(Make(WC_EDITW)));
  EXPECT_FALSE(IsTextBox(Make(WC_BUTTONW)));
  EXPECT_FALSE(IsTextBox(Make(WC_STATICW)));
  EXPECT_FALSE(IsTextBox(nullptr));
}

TEST_F(ControlsTest, TextIsSetAndReadAsAWhole) {
  const HWND control = Make(WC_BUTTONW);
  for (const wchar_t* const text : {L"a text", L"", L"\u0141\u00F3d\u017A"}) {
    SetText(control, text);
    EXPECT_EQ(TextOf(control), text);
  }
}

TEST_F(ControlsTest, ControlIsEnabledAndDisabled) {
  const HWND control = Make(WC_BUTTONW);
  for (const bool enabled : {false, false, true, true}) {
    SetEnabled(control, enabled);
    EXPECT_EQ(IsWindowEnabled(control) != FALSE, enabled);
  }
}

TEST_F(ControlsTest, FrameFollowsItsStyleInPlace) {
  const HWND control = Make(WC_STATICW);
  const Area place = WindowArea(control);
  const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
  SetStyleBits(control, GWL_STYLE, WS_BORDER, true);
  EXPECT_EQ(GetWindowLongPtrW(control, GWL_STYLE), style | WS_BORDER);
  EXPECT_EQ(Inside(control).right, 48);
  EXPECT_EQ(WindowArea(control), place);
  SetStyleBits(control, GWL_STYLE, WS_BORDER, false);
  EXPECT_EQ(GetWindowLongPtrW(control, GWL_STYLE), style);
  EXPECT_EQ(Inside(control).right, 50);
}

TEST_F(ControlsTest, MarkOfAMnemonicTakesNoRoom) {
  const auto font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
  const Size size = TextSize(window_, font, L"Save");
  EXPECT_GT(size.Width, size.Height);
  EXPECT_GT(size.Height, 5);
  EXPECT_EQ(TextSize(window_, font, L"&Save").Width, size.Width);
  EXPECT_GT(TextSize(window_, font, L"&Save", DT_NOPREFIX).Width, size.Width);
}

TEST_F(ControlsTest, ColorOfTheSettingsIsItselfOrOneOfTheSystem) {
  EXPECT_EQ(ColorOf(0x00563412), RGB(0x12, 0x34, 0x56));
  EXPECT_EQ(ColorOf(static_cast<int>(0x80000000U | COLOR_BTNFACE)), GetSysColor(COLOR_BTNFACE));
}

TEST_F(ControlsTest, AreaHasItsCornerAndItsSize) {
  EXPECT_EQ(AreaOf({10, 20, 110, 70}), (Area{10, 20, 100, 50}));
  EXPECT_EQ(WindowArea(window_), (Area{100, 60, 200, 90}));
  const HWND control = Make(WC_STATICW);
  Place(control, {1, 2, 30, 40});
  EXPECT_EQ(WindowArea(control), (Area{101, 62, 30, 40}));
}

TEST_F(ControlsTest, FrameIsWhatStandsAroundTheInside) {
  const HMENU bar = CreateMenu();
  AppendMenuW(bar, MF_STRING, 1, L"File");
  const HWND framed = CreateWindowW(L"STATIC", L"", WS_OVERLAPPEDWINDOW, 100, 60, 300, 200, nullptr,
                                    nullptr, nullptr, nullptr);
  for (const bool withMenuBar : {false, true}) {
    if (withMenuBar) SetMenu(framed, bar);
    const RECT inside = Inside(framed);
    const Size frame = FrameSize(framed, static_cast<int>(GetDpiForWindow(framed)), withMenuBar);
    EXPECT_EQ(frame.Width, 300 - inside.right);
    EXPECT_EQ(frame.Height, 200 - inside.bottom);
  }
  DestroyWindow(framed);
}

TEST_F(ControlsTest, ScreenHasItsRoomAndTheGivenResolution) {
  RECT room{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0);
  EXPECT_EQ(WorkArea(window_), AreaOf(room));
  const std::vector<Screen> screens = Screens(123);
  ASSERT_FALSE(screens.empty());
  EXPECT_EQ(screens.front().WorkArea, AreaOf(room));
  if (screens.size() == 1) EXPECT_EQ(screens.front().Dpi, 123);
}

TEST_F(ControlsTest, DirectionReachesAllThatIsInTheWindowAndIsPainted) {
  const HWND first = Make(WC_STATICW);
  const HWND second = Make(WC_STATICW);
  for (const bool rightToLeft : {true, false}) {
    UpdateWindow(window_);
    ValidateRect(window_, nullptr);
    SetRightToLeft(window_, rightToLeft);
    for (const HWND each : {window_, first, second}) EXPECT_EQ(IsRightToLeft(each), rightToLeft);
    EXPECT_TRUE(GetUpdateRect(window_, nullptr, FALSE));
  }
}

}  // namespace
}  // namespace tessera::controls_test
