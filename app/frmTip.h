// A tip over parts of a window, such as cells of the command list: the list's own tips do not reach
// all of them.
#pragma once

#include <string>

#include "platform/Pinned.h"
#include "platform/win32/Controls.h"

namespace tessera {

/// A tip control for parts of a window, as yet without any. It goes with the window's top one.
[[nodiscard]] HWND CreateTip(HWND window);

/// How such a control knows a part of the window: by that number, and read as the window is.
[[nodiscard]] TTTOOLINFOW TipTool(HWND window, UINT_PTR id);

class frmTip : Pinned {
 public:
  /// From now on the tip over that part of the window; an empty text for none. It is made when
  /// there is something to say for the first time. The font stays the caller's.
  void Set(HWND window, const RECT& part, const std::wstring& text, HFONT font);

  /// Takes a mouse message of the window: after a rest over the part the tip shows.
  void Follow(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const;

  /// To be called once its windows are destroyed: their numbers may become those of others.
  void Forget() { tip_ = nullptr; }

 private:
  void Create(HWND window);

  HWND tip_ = nullptr;
};

}  // namespace tessera
