// Helpers around controls and fonts.
#include "platform/win32/Controls.h"

#include <oleacc.h>
#include <shellscalingapi.h>

#include <array>
#include <optional>

#include "platform/win32/Components.h"
#include "platform/win32/SystemFunction.h"
#include "text/Text.h"

namespace tessera {
namespace {

// No library of the toolchain has these.
constexpr GUID AccessibleProperties{
    0xb5f8350b, 0x0548, 0x48b1, {0xa6, 0xee, 0x88, 0xbd, 0x00, 0xb4, 0xa5, 0xe7}};
constexpr GUID AccessibleInterface{
    0x6e26e776, 0x04f0, 0x495d, {0x80, 0xe4, 0x33, 0x30, 0x35, 0x2e, 0x31, 0x69}};
constexpr GUID AccessibleName{
    0x608d3df8, 0x8128, 0x4aa7, {0xa4, 0x28, 0xf5, 0x5e, 0x49, 0x26, 0x72, 0x91}};

BOOL CALLBACK AddMonitor(HMONITOR monitor, HDC /*context*/, RECT* /*area*/, LPARAM result) {
  reinterpret_cast<std::vector<HMONITOR>*>(result)->push_back(monitor);
  return TRUE;
}

/// Empty when the monitor has gone.
std::optional<MONITORINFO> InformationOf(HMONITOR monitor) {
  MONITORINFO information{};
  information.cbSize = sizeof information;
  if (GetMonitorInfoW(monitor, &information) == FALSE) return std::nullopt;
  return information;
}

/// `otherwise` where the system does not tell.
int ResolutionOf(HMONITOR monitor, int otherwise) {
  auto* const ask = SystemFunction<decltype(GetDpiForMonitor)>(L"shcore.dll", "GetDpiForMonitor");
  UINT horizontal{};
  UINT vertical{};
  const bool told =
      ask != nullptr && SUCCEEDED(ask(monitor, MDT_EFFECTIVE_DPI, &horizontal, &vertical));
  return told ? static_cast<int>(horizontal) : otherwise;
}

HWND CreateUnplaced(HWND parent, const wchar_t* className, DWORD style, DWORD extendedStyle,
                    int id = 0) {
  return CreateWindowExW(extendedStyle, className, L"", style, 0, 0, 0, 0, parent,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                         GetModuleHandleW(nullptr), nullptr);
}

/// Calls a function with the names of controls for screen readers, where the system has these.
template <typename Use>
void UseAccessibleNames(Use use) {
  const UniqueComponent services = CreateComponent(AccessibleProperties, AccessibleInterface);
  if (services != nullptr) use(static_cast<IAccPropServices&>(*services));
}

}  // namespace

void RegisterWindowClass(const wchar_t* name, WNDPROC procedure, UINT style, int extraBytes) {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.style = style;
  windowClass.lpfnWndProc = procedure;
  windowClass.cbWndExtra = extraBytes;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  windowClass.lpszClassName = name;
  RegisterClassExW(&windowClass);
}

LOGFONTW MessageFont(int dpi, int characterSet) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0,
                             static_cast<UINT>(dpi));
  metrics.lfMessageFont.lfCharSet = static_cast<BYTE>(characterSet);
  return metrics.lfMessageFont;
}

void GiveFont(HWND control, HFONT font) {
  SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

HWND CreatePopup(HWND owner, const wchar_t* className, DWORD style, DWORD extendedStyle) {
  return CreateUnplaced(owner, className, WS_POPUP | style, extendedStyle);
}

HWND CreateControl(HWND parent, const wchar_t* className, int id, DWORD style,
                   DWORD extendedStyle) {
  return CreateUnplaced(parent, className, WS_CHILD | WS_CLIPSIBLINGS | style, extendedStyle, id);
}

std::vector<HWND> ChildrenOf(HWND window) {
  std::vector<HWND> children;
  for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    children.push_back(child);
  }
  return children;
}

bool IsTextBox(HWND window) {
  std::array<wchar_t, 8> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return EqualIgnoringCase(name.data(), WC_EDITW);
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

void SetText(HWND window, const std::wstring& text) {
  if (TextOf(window) != text) SetWindowTextW(window, text.c_str());
}

void SetAccessibleName(HWND control, const std::wstring& name) {
  UseAccessibleNames([&](IAccPropServices& names) {
    names.SetHwndPropStr(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, AccessibleName,
                         name.c_str());
  });
}

void ClearAccessibleName(HWND control) {
  UseAccessibleNames([&](IAccPropServices& names) {
    names.ClearHwndProps(control, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, &AccessibleName,
                         1);
  });
}

void SetEnabled(HWND control, bool enabled) {
  if ((IsWindowEnabled(control) != FALSE) != enabled) EnableWindow(control, enabled ? TRUE : FALSE);
}

void SetStyleBits(HWND control, int styleIndex, DWORD bits, bool on) {
  const auto style = static_cast<DWORD>(GetWindowLongPtrW(control, styleIndex));
  const DWORD wanted = on ? style | bits : style & ~bits;
  if (wanted == style) return;
  SetWindowLongPtrW(control, styleIndex, static_cast<LONG_PTR>(wanted));
  SetWindowPos(control, nullptr, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

Size TextSize(HWND control, HFONT font, const std::wstring& text, UINT format) {
  const WindowContext context(control);
  const SelectedObject selected(context.Get(), font);
  RECT room{};
  DrawTextW(context.Get(), text.c_str(), static_cast<int>(text.size()), &room,
            DT_CALCRECT | DT_SINGLELINE | format);
  return {room.right, room.bottom};
}

bool IsHeld(int key) { return GetKeyState(key) < 0; }

COLORREF ColorOf(int setting) {
  const auto bits = static_cast<unsigned>(setting);
  return (bits & 0x80000000U) != 0 ? GetSysColor(static_cast<int>(bits & 0xFFU))
                                   : bits & 0x00FFFFFFU;
}

Area AreaOf(const RECT& rectangle) {
  return {rectangle.left, rectangle.top, rectangle.right - rectangle.left,
          rectangle.bottom - rectangle.top};
}

Size FrameSize(HWND window, int dpi, bool withMenuBar) {
  RECT frame{};
  AdjustWindowRectExForDpi(
      &frame, static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)), withMenuBar ? TRUE : FALSE,
      static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE)), static_cast<UINT>(dpi));
  return {frame.right - frame.left, frame.bottom - frame.top};
}

Area WindowArea(HWND window) {
  RECT rectangle{};
  GetWindowRect(window, &rectangle);
  return AreaOf(rectangle);
}

Area WorkArea(HWND window) {
  const auto information = InformationOf(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
  return information ? AreaOf(information->rcWork) : Area{};
}

std::vector<Screen> Screens(int dpi) {
  std::vector<HMONITOR> monitors;
  EnumDisplayMonitors(nullptr, nullptr, AddMonitor, reinterpret_cast<LPARAM>(&monitors));
  std::vector<Screen> screens;
  for (const HMONITOR monitor : monitors) {
    const auto information = InformationOf(monitor);
    if (!information) continue;
    const bool primary = (information->dwFlags & MONITORINFOF_PRIMARY) != 0;
    // A single one is not asked: the library for that would delay the start.
    screens.insert(
        primary ? screens.begin() : screens.end(),
        {AreaOf(information->rcWork), monitors.size() > 1 ? ResolutionOf(monitor, dpi) : dpi});
  }
  return screens;
}

void Place(HWND control, const Area& area) {
  SetWindowPos(control, nullptr, area.Left, area.Top, area.Width, area.Height,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

bool IsRightToLeft(HWND window) {
  return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
}

void SetRightToLeft(HWND window, bool rightToLeft) {
  if (IsRightToLeft(window) == rightToLeft) return;
  SetStyleBits(window, GWL_EXSTYLE, WS_EX_LAYOUTRTL, rightToLeft);
  InvalidateRect(window, nullptr, TRUE);
  for (const HWND child : ChildrenOf(window)) SetRightToLeft(child, rightToLeft);
}

}  // namespace tessera
