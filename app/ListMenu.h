// What the context menu of the command list holds.
#pragma once

#include <span>

#include "app/MenuBar.h"

namespace tessera {

/// From top to bottom.
[[nodiscard]] std::span<const MenuEntry> ListMenu();

}  // namespace tessera
