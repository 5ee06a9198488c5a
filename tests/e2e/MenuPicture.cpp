// The caption is drawn again with the menu's font and colours, and its picture looked for in the
// menu's.
#include "tests/e2e/MenuPicture.h"

#include <algorithm>
#include <array>
#include <ranges>

#include "tests/e2e/Folder.h"
#include "tests/e2e/Screen.h"
#include "tests/e2e/Window.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e {
namespace {

/// How the system draws an entry. A disabled one may have a light edge.
struct Looks {
  bool Enabled;
  COLORREF Text;
  COLORREF Back;
  bool LightEdge = false;
};

std::array<Looks, 6> PossibleLooks() {
  const COLORREF menu = GetSysColor(COLOR_MENU);
  const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
  constexpr COLORREF Gray = RGB(0x80, 0x80, 0x80);
  return {{{true, GetSysColor(COLOR_MENUTEXT), menu},
           {true, GetSysColor(COLOR_HIGHLIGHTTEXT), highlight},
           {false, Gray, menu, true},
           {false, Gray, highlight},
           {false, GetSysColor(COLOR_GRAYTEXT), menu},
           {false, GetSysColor(COLOR_GRAYTEXT), highlight}}};
}

Picture Draw(const std::wstring& caption, const Looks& looks) {
  return DrawLine(caption, SystemMetrics().lfMenuFont, looks.Text, looks.Back, looks.LightEdge);
}

/// A text that goes on to the right, or begins further to the left, is another one.
bool StandsAlone(const Picture& screen, const Picture& text, int left, int top) {
  constexpr int Blank = 4;  // pixels: no two letters of a text are so far apart
  const DWORD back = text.At(0, 0);
  for (int y = 0; y < text.Height; ++y) {
    for (int x = 1; x <= Blank; ++x) {
      if (left + text.Width + x <= screen.Width &&
          screen.At(left + text.Width + x - 1, top + y) != back) {
        return false;
      }
      if (left - x >= 0 && x < 2 && screen.At(left - x, top + y) != back) return false;
    }
  }
  return true;
}

}  // namespace

std::optional<MenuEntry> FindMenuEntry(HWND menu, const std::wstring& caption) {
  const RECT place = RectangleOf(menu);
  const Picture screen = TakePicture(place);
  for (const Looks& looks : PossibleLooks()) {
    const Picture text = Draw(caption, looks);
    for (int top = 0; top + text.Height <= screen.Height; ++top) {
      for (int left = 0; left + text.Width <= screen.Width; ++left) {
        if (screen.Holds(text, left, top) && StandsAlone(screen, text, left, top)) {
          return MenuEntry{place.top + top, looks.Enabled};
        }
      }
    }
  }
  return std::nullopt;
}

MenuEntry WaitForMenuEntry(HWND menu, const std::wstring& caption) {
  return *WaitFor("the menu to show " + Utf8(caption),
                  [&] { return FindMenuEntry(menu, caption); });
}

}  // namespace tessera::e2e
