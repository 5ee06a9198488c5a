// What an open menu shows: another program cannot ask for it, but it can be seen on the screen.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace tessera::e2e {

struct MenuEntry {
  LONG Top = 0;  ///< of its text, on the screen
  bool Enabled = false;
};

/// Looks for an entry whose whole text is `caption`, with "&" before its mnemonic letter, drawn as
/// the system draws entries.
[[nodiscard]] std::optional<MenuEntry> FindMenuEntry(HWND menu, const std::wstring& caption);

/// Waits until the menu has been drawn with that entry.
[[nodiscard]] MenuEntry WaitForMenuEntry(HWND menu, const std::wstring& caption);

}  // namespace tessera::e2e
