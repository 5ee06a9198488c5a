// What the context menu of the command list holds.
#pragma once

#include <span>
#include <string>

#include "app/Editor.h"
#include "app/MenuBar.h"

namespace tessera {

/// From top to bottom.
[[nodiscard]] std::span<const MenuEntry> ListMenu();

/// What an entry says at the moment: with the step that undo and redo are about, and with the key
/// of the keyboard that does the same, behind a tab.
[[nodiscard]] std::wstring ListMenuCaption(const MenuEntry& entry, const Editor& editor);

}  // namespace tessera
