// What the screen shows: single pixels, and a picture of it to keep of a test that failed.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tessera::e2e {

/// Writes the screen to a new .bmp file in the temporary directory whose name begins with `name`,
/// and gives its path; an empty text when there is no picture.
[[nodiscard]] std::wstring SaveScreenshot(const std::wstring& name);

/// Colours, line by line from the top.
struct Picture {
  int Width = 0;
  int Height = 0;
  std::vector<DWORD> Pixels;

  [[nodiscard]] DWORD At(int x, int y) const;

  /// True when `part` is to be seen in it at that place, which must lie inside.
  [[nodiscard]] bool Holds(const Picture& part, int left, int top) const;

  /// True when an icon is to be seen in it at any place.
  [[nodiscard]] bool HoldsSomewhere(const Picture& icon) const;
};

/// The rectangle must lie on the screen.
[[nodiscard]] Picture TakePicture(const RECT& rectangle);

[[nodiscard]] COLORREF ColorAt(POINT place);

/// The part of a rectangle that lies on the screen; an empty one for none.
[[nodiscard]] RECT PartOnScreen(const RECT& rectangle);

/// A line of text, "&" before a letter underlining it, as big as the text is.
[[nodiscard]] Picture DrawLine(const std::wstring& text, const LOGFONTW& font, COLORREF color,
                               COLORREF back, bool lightEdge);

/// The system's fonts and sizes.
[[nodiscard]] NONCLIENTMETRICSW SystemMetrics();

/// The text of a control, enabled and in the font of messages.
[[nodiscard]] Picture DrawControlText(const std::wstring& text, COLORREF back);

/// The icon that a program's file has under that ID, `size` pixels wide and high.
[[nodiscard]] Picture DrawProgramIcon(const std::wstring& program, int id, int size, COLORREF back);

/// The number of pixels of exactly that colour in a rectangle of the screen.
[[nodiscard]] int CountPixels(const RECT& rectangle, COLORREF color);

}  // namespace tessera::e2e
