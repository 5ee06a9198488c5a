// How much room texts need.
#pragma once

#include <windows.h>

#include <string>

namespace tessera::e2e {

/// Texts in a font of the system, as big as the system makes it at that resolution.
class Ruler {
 public:
  Ruler(int dpi, LOGFONTW NONCLIENTMETRICSW::*font) : context_(CreateCompatibleDC(nullptr)) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0,
                               static_cast<UINT>(dpi));
    font_ = CreateFontIndirectW(&(metrics.*font));
    SelectObject(context_, font_);
  }
  ~Ruler() {
    DeleteDC(context_);
    DeleteObject(font_);
  }
  Ruler(const Ruler&) = delete;
  Ruler& operator=(const Ruler&) = delete;

  /// Of one line, in pixels.
  [[nodiscard]] SIZE Measure(const std::wstring& text) const {
    RECT room{};
    DrawTextW(context_, text.c_str(), -1, &room, DT_CALCRECT | DT_SINGLELINE);
    return {room.right, room.bottom};
  }

 private:
  HDC context_;
  HFONT font_ = nullptr;
};

}  // namespace tessera::e2e
