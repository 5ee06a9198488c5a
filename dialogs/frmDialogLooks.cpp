// How a dialog looks: resolution, layout and colours.
#include <algorithm>
#include <utility>
#include <vector>

#include "dialogs/frmDialog.h"
#include "localisation/Mnemonic.h"

namespace tessera {
namespace {

bool IsTranslatorsControl(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::CheckBox ||
         kind == ControlKind::TextBox || kind == ControlKind::OptionButton;
}

}  // namespace

void frmDialog::ApplyDpi(int dpi, std::optional<POINT> corner) {
  if (tabs_ != nullptr) PadTabs(dpi);
  const LOGFONTW messageFont = MessageFont(dpi, settings_.FontScript);
  Unique<HFONT> font(CreateFontIndirectW(&messageFont));
  for (const HWND child : ChildrenOf(window_)) GiveFont(child, font.get());
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

void frmDialog::LayOut(std::optional<POINT> corner) {
  std::vector<MeasuredControl> measured;
  for (const DialogControl& control : plan_.Controls) {
    measured.push_back({control.Kind, control.Page, TextWidth(control.Caption)});
  }
  OuterTexts outer{.Title = TextWidth(plan_.Title)};
  for (const TextId tab : plan_.TabCaptions) outer.Tabs.push_back(TextWidth(tab));
  for (const DialogControl& button : plan_.Buttons) {
    outer.Buttons.push_back(TextWidth(button.Caption));
  }
  PagesLayout pages = LayOutPages(measured, metrics_, NarrowestPages(outer, metrics_));
  RECT around{0, 0, pages.Width, pages.Height};
  if (tabs_ != nullptr) {
    const int margin = DialogMargin(metrics_);
    InflateRect(&around, margin, margin);
    TabCtrl_AdjustRect(tabs_, TRUE, &around);
  }
  const DialogLayout layout =
      LayOutDialog(std::move(pages), AreaOf(around), outer.Buttons, metrics_);
  if (tabs_ != nullptr) {
    Place(tabs_, layout.Tabs);
    DrawTabBackground({layout.Tabs.Width, layout.Tabs.Height});
  }
  PlaceAll(plan_.Controls, layout.Controls);
  PlaceAll(plan_.Buttons, layout.Buttons);
  Resize(layout.Inside, corner);
}

void frmDialog::PlaceAll(std::span<const DialogControl> controls,
                         const std::vector<Area>& areas) const {
  for (auto area = areas.begin(); const DialogControl& control : controls) {
    Place(Control(control.Id), *area++);
  }
}

void frmDialog::Resize(const Size& inside, std::optional<POINT> corner) {
  const Size frame = FrameSize(window_, metrics_.Dpi);
  const POINT place = corner.value_or(POINT{});
  SetWindowPos(window_, nullptr, place.x, place.y, inside.Width + frame.Width,
               inside.Height + frame.Height,
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
  const WindowContext screen(tabs_);
  const Unique<HDC> context(CreateCompatibleDC(screen.Get()));
  const Unique<HBITMAP> bitmap(CreateCompatibleBitmap(screen.Get(), size.cx, size.cy));
  {
    const SelectedObject target(context.get(), bitmap.get());
    SendMessageW(tabs_, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(context.get()),
                 PRF_CLIENT | PRF_ERASEBKGND);
  }
  tabBackground_.reset(CreatePatternBrush(bitmap.get()));
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
