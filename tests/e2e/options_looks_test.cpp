// The looks of the options dialog, and the colours and the font that are picked in it.
// clang-format off
#include <windows.h>  // must come first
#include <colordlg.h>
#include <commctrl.h>
#include <dlgs.h>
// clang-format on

#include <string>
#include <tuple>
#include <vector>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::options_looks_test {
namespace {

/// Of a page of tabs, by the theme that Wine begins with.
constexpr COLORREF ThemedPage = RGB(255, 255, 255);

constexpr int ColorAndFont = 1;  // the tab's number

class OptionsLooksTest : public EndToEndTest {
 protected:
  void SetUp() override { StartAndLoad(); }

  Dialog OpenColorAndFont() {
    window_->ChooseFromMenu('V', 'O');
    Dialog dialog = NextDialog(L"frmOptions");
    if (dialog.ChosenTab(IDC_tbsOptions) != ColorAndFont) {
      dialog.ClickTab(IDC_tbsOptions, ColorAndFont);
    }
    return dialog;
  }

  static void WaitForApply(const Dialog& dialog) {
    WaitFor("Apply to be enabled", [&] { return dialog.Enabled(IDC_cmdApply); });
  }

  /// One of the system's dialogs, which has a control of that ID.
  [[nodiscard]] HWND NextSystemDialog(int control) const {
    return WaitFor("a dialog of the system", [&]() -> HWND {
      for (const HWND window : VisibleWindows(program_->Id(), L"#32770")) {
        if (GetDlgItem(window, control) != nullptr) return window;
      }
      return nullptr;
    });
  }

  static constexpr COLORREF FirstBasic = RGB(255, 128, 128);

  /// In the colour dialog that is open: the one in the corner of the basic colours.
  void PickFirstBasicColor() {
    constexpr int FromTheCorner = 8;  // pixels: inside the first cell
    const HWND colors = NextSystemDialog(COLOR_BOX1);
    const RECT place = RectangleOf(GetDlgItem(colors, COLOR_BOX1));
    BringToFront(colors);
    Click({place.left + FromTheCorner, place.top + FromTheCorner});
    AnswerByKey(colors, VK_RETURN);
  }

  /// Goes down in a list of the font dialog.
  static void ChooseByKeys(HWND fonts, int list, const std::wstring& wanted) {
    const HWND control = GetDlgItem(fonts, list);
    const RECT place = RectangleOf(control);
    Click({place.left + 10, place.top + 10});
    WaitFor(Utf8(wanted), [&] {
      const std::wstring text = TextOf(control);
      if (text == wanted) return true;
      Press(VK_DOWN);
      WaitFor("what follows " + Utf8(text), [&] { return TextOf(control) != text; });
      return false;
    });
  }

  [[nodiscard]] COLORREF ListColor(UINT message) const {
    return static_cast<COLORREF>(Send(window_->Control(IDC_ListView1), message));
  }
};

TEST_F(OptionsLooksTest, TextsStandOnTheColorOfThePage) {
  Dialog dialog = OpenColorAndFont();
  const Picture text = DrawLine(L"Foreground", SystemMetrics().lfMessageFont,
                                GetSysColor(COLOR_BTNTEXT), ThemedPage, false);
  const RECT label = RectangleOf(dialog.Control(IDC_Label3));
  WaitFor("the label's text", [&] { return TakePicture(label).Holds(text, 0, 0); });
  dialog.ClickTab(IDC_tbsOptions, 0);
  const RECT box = RectangleOf(dialog.Control(IDC_chkFixedBorders));
  const int most = (box.right - box.left) * (box.bottom - box.top) / 2;
  constexpr int SmoothedEdges = 50;  // pixels of letters that have that colour by chance
  WaitFor("the box on the page's colour, and none of the dialog's", [&] {
    return CountPixels(box, ThemedPage) > most &&
           CountPixels(box, GetSysColor(COLOR_BTNFACE)) < SmoothedEdges;
  });
  const RECT tabs = RectangleOf(dialog.Control(IDC_tbsOptions));
  const RECT beside{tabs.left - 4, tabs.top, tabs.left, tabs.bottom};
  WaitFor("the dialog's colour beside the page", [&] {
    return CountPixels(beside, GetSysColor(COLOR_BTNFACE)) == 4 * (tabs.bottom - tabs.top);
  });
}

TEST_F(OptionsLooksTest, PickedColorStaysAfterCancel) {
  const std::vector<std::tuple<int, UINT, std::string>> swatches{
      {IDC_lblColorChange0, LVM_GETTEXTCOLOR, "ForegroundColor"},
      {IDC_lblColorChange1, LVM_GETBKCOLOR, "BackgroundColor"}};
  for (const auto& [swatch, message, setting] : swatches) {
    ASSERT_NE(ListColor(message), FirstBasic);
    Dialog dialog = OpenColorAndFont();
    dialog.ClickControl(swatch);
    const HWND colors = NextSystemDialog(COLOR_BOX1);
    EXPECT_EQ(IsWindowEnabled(dialog.Handle()), FALSE);
    AnswerByKey(colors, VK_ESCAPE);
    EXPECT_FALSE(dialog.Enabled(IDC_cmdApply)) << "nothing was picked";
    dialog.ClickControl(swatch);
    PickFirstBasicColor();
    WaitForApply(dialog);
    const RECT place = RectangleOf(dialog.Control(swatch));
    const LONG width = place.right - place.left;
    const LONG height = place.bottom - place.top;
    const auto waitForColor = [&] {
      WaitFor("the swatch's colour", [&] { return CountPixels(place, FirstBasic) > width; });
    };
    waitForColor();
    dialog.CloseBy(IDC_cmdCancel);
    WaitFor("the list's colour",
            [&, &message = message] { return ListColor(message) == FirstBasic; });
    WaitFor("the setting", [&, &message = message, &setting = setting] {
      return Setting(setting) == std::to_string(ListColor(message));
    });

    // The swatch shows the colour that the list has.
    dialog = OpenColorAndFont();
    waitForColor();
    if (!dialog.HasFocus(swatch)) {
      WaitFor("the whole swatch and its frame", [&] {
        return CountPixels(place, FirstBasic) == (width - 2) * (height - 2) &&
               CountPixels(place, GetSysColor(COLOR_WINDOWTEXT)) == 2 * (width + height) - 4;
      });
    }
    dialog.CloseBy(IDC_cmdCancel);
  }
}

TEST_F(OptionsLooksTest, PickedFontIsTheListsAfterCancelToo) {
  const auto rowHeight = [&] {
    const RECT cell = window_->CellRectangle(0, 1);
    return cell.bottom - cell.top;
  };
  const LONG before = rowHeight();
  Dialog dialog = OpenColorAndFont();
  dialog.ClickControl(IDC_cmdChangeFont);
  HWND fonts = NextSystemDialog(cmb3);
  const HWND colors = GetDlgItem(fonts, cmb4);
  const auto color = static_cast<WPARAM>(Send(colors, CB_GETCURSEL));
  EXPECT_EQ(Send(colors, CB_GETITEMDATA, color), 0) << "black";
  EXPECT_EQ(IsWindowEnabled(dialog.Handle()), FALSE);
  AnswerByKey(fonts, VK_ESCAPE);
  EXPECT_EQ(dialog.ChosenTab(IDC_tbsOptions), ColorAndFont);  // answered after the font dialog
  EXPECT_TRUE(dialog.HasFocus(IDC_cmdChangeFont));
  EXPECT_FALSE(dialog.Enabled(IDC_cmdApply));
  EXPECT_EQ(Setting("FontSize"), "10");
  dialog.ClickControl(IDC_cmdChangeFont);
  fonts = NextSystemDialog(cmb3);
  BringToFront(fonts);
  ChooseByKeys(fonts, cmb2, L"Bold");
  ChooseByKeys(fonts, cmb3, L"12");
  for (const int effect : {chx1, chx2}) Click(CenterOf(RectangleOf(GetDlgItem(fonts, effect))));
  const std::wstring name = TextOf(GetDlgItem(fonts, cmb1));
  AnswerByKey(fonts, VK_RETURN);
  WaitForApply(dialog);
  dialog.ClickControl(IDC_cmdChangeFont);
  fonts = NextSystemDialog(cmb3);
  EXPECT_EQ(TextOf(GetDlgItem(fonts, cmb1)), name);
  EXPECT_EQ(TextOf(GetDlgItem(fonts, cmb2)), L"Bold");
  EXPECT_EQ(TextOf(GetDlgItem(fonts, cmb3)), L"12");
  for (const int effect : {chx1, chx2}) {
    EXPECT_EQ(Send(GetDlgItem(fonts, effect), BM_GETCHECK), BST_CHECKED) << effect;
  }
  AnswerByKey(fonts, VK_ESCAPE);
  dialog.CloseBy(IDC_cmdCancel);
  WaitFor("the setting", [&] { return Setting("FontSize") == "12"; });
  EXPECT_EQ(Setting("FontStyle"), "13");
  EXPECT_EQ(Setting("FontName"), Utf8(name));
  WaitFor("higher rows", [&] { return rowHeight() > before; });
}

}  // namespace
}  // namespace tessera::e2e::options_looks_test
