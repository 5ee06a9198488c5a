// The keys list's window: it tells what happens, and shows what it is told.
#include "editing/frmKeysList.h"

#include <utility>

#include "platform/win32/Guarded.h"
#include "platform/win32/InputMethod.h"
#include "resources/resource.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {
namespace {

constexpr wchar_t WindowClass[] = L"frmKeysList";
constexpr UINT_PTR ListSubclass = 1;

/// For 96 pixels an inch: 90 twips on each side of the list.
constexpr int Margin = 6;
constexpr int ListWidth = 160;
constexpr int VisibleRows = 22;
constexpr int TextMargin = 2;
constexpr int MarkSize = 5;
constexpr int MarkMargin = 8;

/// Between the text and its background, and still easy to read.
COLORREF QuietColor(COLORREF text, COLORREF back) {
  const auto mixed = [](int one, int other) { return static_cast<BYTE>((2 * one + other) / 3); };
  return RGB(mixed(GetRValue(text), GetRValue(back)), mixed(GetGValue(text), GetGValue(back)),
             mixed(GetBValue(text), GetBValue(back)));
}

void DrawMark(HDC context, const RECT& row, int dpi, COLORREF color) {
  const int size = Scaled(MarkSize, dpi);
  const int left = row.right - Scaled(MarkMargin, dpi) - size;
  const int top = (row.top + row.bottom - size) / 2;
  SelectObject(context, GetStockObject(DC_BRUSH));
  SelectObject(context, GetStockObject(DC_PEN));
  SetDCBrushColor(context, color);
  SetDCPenColor(context, color);
  Ellipse(context, left, top, left + size, top + size);
}

}  // namespace

frmKeysList::frmKeysList(Events events) : events_(std::move(events)) {}

frmKeysList::~frmKeysList() {
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  RemoveWindowSubclass(List1_, ListProcedure, ListSubclass);
}

void frmKeysList::Create(HWND owner) {
  RegisterWindowClass(WindowClass, WindowProcedure, CS_DROPSHADOW);
  window_ = CreatePopup(owner, WindowClass, WS_BORDER, WS_EX_TOOLWINDOW);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  List1_ = CreateControl(window_, WC_LISTBOXW, IDC_List1,
                         WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT |
                             LBS_OWNERDRAWFIXED | LBS_HASSTRINGS,
                         WS_EX_CLIENTEDGE);
  for (const std::wstring_view key : KeyVocabulary()) {
    ListBox_AddString(List1_, std::wstring(key).c_str());
  }
  TurnOffInputMethod(window_);
  SetWindowSubclass(List1_, ListProcedure, ListSubclass, reinterpret_cast<DWORD_PTR>(this));
}

bool frmKeysList::Created() const { return window_ != nullptr; }

void frmKeysList::ApplyFont(HFONT font, int dpi) {
  if (window_ == nullptr) return;
  GiveFont(List1_, font);
  const int rowHeight = TextSize(List1_, font, L"Xg").Height + Scaled(1, dpi);
  SendMessageW(List1_, LB_SETITEMHEIGHT, 0, rowHeight);
  const int margin = Scaled(Margin, dpi);
  const Area list{
      margin, margin, Scaled(ListWidth, dpi),
      VisibleRows * rowHeight + 2 * GetSystemMetricsForDpi(SM_CYEDGE, static_cast<UINT>(dpi))};
  Place(List1_, list);
  SetWindowPos(window_, nullptr, 0, 0, list.Width + 2 * margin + 2, list.Height + 2 * margin + 2,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmKeysList::ApplyLanguage(const std::wstring& name, bool rightToLeft) {
  if (window_ == nullptr) return;
  SetRightToLeft(window_, rightToLeft);
  SetText(window_, name);
  SetAccessibleName(List1_, name);
}

Area frmKeysList::Size() const { return WindowArea(window_); }

bool frmKeysList::Visible() const { return IsWindowVisible(window_) != FALSE; }

bool frmKeysList::HasFocus() const { return Created() && GetFocus() == List1_; }

void frmKeysList::Select(int index) {
  if (ListBox_GetCurSel(List1_) != index) ListBox_SetCurSel(List1_, index);
}

void frmKeysList::ShowTaken(std::vector<bool> taken) {
  if (taken == taken_) return;
  taken_ = std::move(taken);
  InvalidateRect(List1_, nullptr, FALSE);
}

void frmKeysList::DrawKey(const DRAWITEMSTRUCT& draw) const {
  const int former = SaveDC(draw.hDC);
  const bool selected = (draw.itemState & ODS_SELECTED) != 0;
  FillRect(draw.hDC, &draw.rcItem, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  const auto keys = KeyVocabulary();
  if (draw.itemID < keys.size()) {
    const bool taken = draw.itemID < taken_.size() && taken_[draw.itemID];
    const COLORREF text = GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT);
    const COLORREF color = taken && !selected ? QuietColor(text, GetSysColor(COLOR_WINDOW)) : text;
    const int dpi = static_cast<int>(GetDpiForWindow(window_));
    RECT place = draw.rcItem;
    place.left += Scaled(TextMargin, dpi);
    SetBkMode(draw.hDC, TRANSPARENT);
    SetTextColor(draw.hDC, color);
    const std::wstring_view key = keys[draw.itemID];
    DrawTextW(draw.hDC, key.data(), static_cast<int>(key.size()), &place,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    if (taken) DrawMark(draw.hDC, draw.rcItem, dpi, color);
  }
  RestoreDC(draw.hDC, former);
  if ((draw.itemState & ODS_FOCUS) != 0) DrawFocusRect(draw.hDC, &draw.rcItem);
}

void frmKeysList::MoveTo(const Area& area) { Place(window_, area); }

void frmKeysList::BringToFront() {
  // Where a system takes it to be before its owner already, the second alone changes nothing.
  for (const HWND place : {HWND_TOPMOST, HWND_NOTOPMOST}) {
    SetWindowPos(window_, place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

void frmKeysList::Show() {
  ShowWindow(window_, SW_SHOW);
  BringToFront();
  SetFocus(List1_);
}

void frmKeysList::Hide() { ShowWindow(window_, SW_HIDE); }

LRESULT CALLBACK frmKeysList::WindowProcedure(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
  auto* const self = reinterpret_cast<frmKeysList*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  return Guarded(window, [&] { return self->Handle(message, wParam, lParam); });
}

LRESULT frmKeysList::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND window = window_;
  switch (message) {
    case WM_COMMAND:
      if (HIWORD(wParam) == LBN_SELCHANGE) events_.Select(ListBox_GetCurSel(List1_));
      break;
    case WM_DRAWITEM:
      DrawKey(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_ACTIVATE: {
      // It takes the focus, but is part of its owner, whose title is to stay an active one.
      const WPARAM active = LOWORD(wParam) != WA_INACTIVE ? TRUE : FALSE;
      SendMessageW(GetWindow(window, GW_OWNER), WM_NCACTIVATE, active, 0);
      break;
    }
    case WM_SETFOCUS:
      SetFocus(List1_);
      break;
    case WM_CLOSE:
      events_.Close();
      return 0;
    case WM_DESTROY:
      ClearAccessibleName(List1_);
      break;
    case WM_NCDESTROY:
      List1_ = nullptr;
      window_ = nullptr;
      break;
    default:
      break;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK frmKeysList::ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                            UINT_PTR /*id*/, DWORD_PTR self) {
  const Events& events = reinterpret_cast<const frmKeysList*>(self)->events_;
  return Guarded(list, [&] {
    if (message == WM_KEYDOWN || message == WM_SYSKEYDOWN) {
      events.KeyDown(static_cast<KeyCode>(wParam));
    } else if (message == WM_LBUTTONUP) {
      events.ReleaseMouse();
    }
    return DefSubclassProc(list, message, wParam, lParam);
  });
}

}  // namespace tessera
