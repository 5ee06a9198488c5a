// How a dialog looks: resolution, layout and colours.
#include <algorithm>
#include <vector>

#include "dialogs/frmDialog.h"
#include "localisation/Mnemonic.h"

namespace tessera {
namespace {

/// For 96 pixels an inch.
constexpr int SmallestPageWidth = 210;
constexpr int TitleRoom = 70;  ///< the close button, and what is around the title
constexpr int TabPadding = 10;

/// A device context that draws into a bitmap, which is released with it.
class BitmapContext {
 public:
  BitmapContext(HWND window, SIZE size) {
    const HDC screen = GetDC(window);
    context_ = CreateCompatibleDC(screen);
    bitmap_ = CreateCompatibleBitmap(screen, size.cx, size.cy);
    ReleaseDC(window, screen);
    former_ = SelectObject(context_, bitmap_);
  }
  ~BitmapContext() {
    DeleteDC(context_);
    DeleteObject(bitmap_);
  }
  BitmapContext(const BitmapContext&) = delete;
  BitmapContext& operator=(const BitmapContext&) = delete;

  [[nodiscard]] HDC Context() const { return context_; }

  /// The drawn bitmap as a brush.
  [[nodiscard]] Unique<HBRUSH> Brush() const {
    SelectObject(context_, former_);
    return Unique<HBRUSH>(CreatePatternBrush(bitmap_));
  }

 private:
  HDC context_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ former_ = nullptr;
};

bool IsTranslatorsControl(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::CheckBox ||
         kind == ControlKind::TextBox || kind == ControlKind::OptionButton;
}

}  // namespace

void frmDialog::ApplyDpi(int dpi, std::optional<POINT> corner) {
  if (tabs_ != nullptr) PadTabs(dpi);
  const LOGFONTW messageFont = MessageFont(dpi, settings_.FontScript);
  Unique<HFONT> font(CreateFontIndirectW(&messageFont));
  for (HWND child = GetWindow(window_, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    GiveFont(child, font.get());
  }
  font_ = std::move(font);
  metrics_ = {.Dpi = dpi, .TextHeight = TextSize(window_, font_.get(), L"Xg").Height};
  LayOut(corner);
}

void frmDialog::PadTabs(int dpi) const {
  TabCtrl_SetPadding(tabs_, Scaled(TabPadding, dpi), Scaled(4, dpi));
}

int frmDialog::TextWidth(TextId text) const {
  if (text == TextId::None) return 0;
  return TextSize(window_, font_.get(), texts_.GetLangText(text)).Width;
}

int frmDialog::TabsWidth() const {
  int width = 0;
  for (const TextId text : plan_.TabCaptions) {
    width += TextWidth(text) + 2 * Scaled(TabPadding, metrics_.Dpi) + Scaled(6, metrics_.Dpi);
  }
  return width;
}

void frmDialog::LayOut(std::optional<POINT> corner) {
  std::vector<MeasuredControl> measured;
  for (const DialogControl& control : plan_.Controls) {
    measured.push_back({control.Kind, control.Page, TextWidth(control.Caption)});
  }
  std::vector<int> buttonTexts;
  int buttonsWidth = 0;
  for (const DialogControl& button : plan_.Buttons) {
    buttonTexts.push_back(TextWidth(button.Caption));
    buttonsWidth += ButtonSize(buttonTexts.back(), metrics_).Width + DialogGap(metrics_);
  }
  const int margin = DialogMargin(metrics_);
  const int title = TextWidth(plan_.Title) + Scaled(TitleRoom, metrics_.Dpi);
  const PagesLayout pages = LayOutPages(
      measured, metrics_,
      std::max({TabsWidth(), buttonsWidth, title, Scaled(SmallestPageWidth, metrics_.Dpi)}));
  RECT around{0, 0, pages.Width, pages.Height};
  POINT origin{margin, margin};
  if (tabs_ != nullptr) {
    InflateRect(&around, margin, margin);
    TabCtrl_AdjustRect(tabs_, TRUE, &around);
    origin = {margin - around.left, margin - around.top};
    Place(tabs_, {margin, margin, around.right - around.left, around.bottom - around.top});
    DrawTabBackground({around.right - around.left, around.bottom - around.top});
  }
  PlaceAll(pages, origin);
  const int width = around.right - around.left;
  const int top = margin + around.bottom - around.top + margin;
  const std::vector<Area> areas = LayOutButtons(buttonTexts, metrics_, margin + width, top);
  for (std::size_t index = 0; index < areas.size(); ++index) {
    Place(Control(plan_.Buttons[index].Id), areas[index]);
  }
  Resize(width + 2 * margin, top + areas.front().Height + margin, corner);
}

void frmDialog::PlaceAll(const PagesLayout& pages, POINT origin) const {
  for (std::size_t index = 0; index < pages.Controls.size(); ++index) {
    Area area = pages.Controls[index];
    area.Left += origin.x;
    area.Top += origin.y;
    Place(Control(plan_.Controls[index].Id), area);
  }
}

void frmDialog::Resize(int width, int height, std::optional<POINT> corner) {
  RECT frame{0, 0, width, height};
  AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE)), FALSE,
                           static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_EXSTYLE)),
                           static_cast<UINT>(metrics_.Dpi));
  const POINT place = corner.value_or(POINT{});
  SetWindowPos(window_, nullptr, place.x, place.y, frame.right - frame.left,
               frame.bottom - frame.top,
               (corner ? 0U : SWP_NOMOVE) | SWP_NOZORDER | SWP_NOACTIVATE);
  InvalidateRect(window_, nullptr, TRUE);
}

void frmDialog::CenterForm() {
  const Area room = WorkArea(GetParent(window_));
  const Area own = WindowArea(window_);
  const Area centred = Centred(room, own.Width, own.Height);
  SetWindowPos(window_, nullptr, centred.Left, std::max(centred.Top, room.Top), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// A themed page has a colour that no function tells: the tabs draw themselves into a brush.
void frmDialog::DrawTabBackground(SIZE size) {
  const BitmapContext drawn(tabs_, size);
  SendMessageW(tabs_, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(drawn.Context()),
               PRF_CLIENT | PRF_ERASEBKGND);
  tabBackground_ = drawn.Brush();
}

// Themed controls ask the dialog, and not the tabs below them, for what is behind them.
void frmDialog::DrawBackground(HDC context) const {
  RECT inside{};
  GetClientRect(window_, &inside);
  FillRect(context, &inside, GetSysColorBrush(COLOR_BTNFACE));
  if (tabs_ == nullptr) return;
  RECT page{};
  GetWindowRect(tabs_, &page);
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&page), 2);
  POINT corner{page.left, page.top};
  LPtoDP(context, &corner, 1);
  SetBrushOrgEx(context, corner.x, corner.y, nullptr);
  FillRect(context, &page, tabBackground_.get());
}

INT_PTR frmDialog::ColorControl(HDC context, HWND control) {
  const DialogControl* const found = Find(GetDlgCtrlID(control));
  if (found == nullptr) return FALSE;
  if (settings_.ShowControlsBackColor != 0 && IsTranslatorsControl(found->Kind)) {
    SetBkColor(context, TranslatorsColor);
    return reinterpret_cast<INT_PTR>(translatorsBrush_.get());
  }
  if (tabs_ == nullptr || found->Kind == ControlKind::TextBox) return FALSE;
  POINT corner{};
  MapWindowPoints(control, tabs_, &corner, 1);
  SetBrushOrgEx(context, -corner.x, -corner.y, nullptr);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, GetSysColor(COLOR_BTNTEXT));
  return reinterpret_cast<INT_PTR>(tabBackground_.get());
}

void frmDialog::DrawSwatch(const DRAWITEMSTRUCT& draw) const {
  RECT inside = draw.rcItem;
  FrameRect(draw.hDC, &inside, GetSysColorBrush(COLOR_WINDOWTEXT));
  InflateRect(&inside, -1, -1);
  const Unique<HBRUSH> colour(CreateSolidBrush(SwatchColor(static_cast<int>(draw.CtlID))));
  FillRect(draw.hDC, &inside, colour.get());
  if ((draw.itemState & ODS_FOCUS) != 0) {
    InflateRect(&inside, -2, -2);
    SetBkColor(draw.hDC, RGB(255, 255, 255));
    SetTextColor(draw.hDC, RGB(0, 0, 0));
    DrawFocusRect(draw.hDC, &inside);
  }
}

}  // namespace tessera
