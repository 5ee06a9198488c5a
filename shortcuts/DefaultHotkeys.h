// The data file that says which keys Total Commander binds by default.
#pragma once

#include <span>

#include "settings/ini/ProfileFile.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

/// Fills the default keys of every command row, replacing what was there; a code that the file
/// lacks gives the undefined marker.
void FillDefaultKeys(std::span<CommandEntry> rows, const ProfileFile& dataFile,
                     const HotkeyNotation& notation, const ProgressStep& step);

}  // namespace tessera
