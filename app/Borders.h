// What surrounds the list and the main toolbar.
#pragma once

#include "settings/Settings.h"

namespace tessera {

enum class Border { None, Line, Sunken };

/// FixedBorders gives the list a border, FlatUserInterface makes it a line.
[[nodiscard]] Border ListBorder(const Settings& settings);

/// The two settings reach the toolbar crosswise, deliberately: the one takes its border away, the
/// other makes it sunken.
[[nodiscard]] Border ToolbarBorder(const Settings& settings);

}  // namespace tessera
