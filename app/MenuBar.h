// What the menu bar holds.
#pragma once

#include <span>

#include "localisation/TextId.h"

namespace tessera {

enum class MenuEntryKind {
  Menu,     ///< the entries after it, up to the next menu, are its own
  Command,  ///< its state is that of the command
  RecentFiles,
  Separator,
};

struct MenuEntry {
  MenuEntryKind Kind = MenuEntryKind::Separator;
  TextId Caption = TextId::None;
  int Command = 0;
};

/// The menus from left to right, each from top to bottom.
[[nodiscard]] std::span<const MenuEntry> MenuBar();

}  // namespace tessera
