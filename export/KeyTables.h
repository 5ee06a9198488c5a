// The tables of the page: by key, and by command.
#pragma once

#include <string>
#include <vector>

#include "export/HolderFrames.h"
#include "export/Keyboards.h"
#include "export/KeyUses.h"
#include "localisation/Texts.h"
#include "shortcuts/DisplayTable.h"

namespace tessera {

/// A row for each key that somebody holds, with all holders: those of the keyboards in their order,
/// and then those `elsewhere`, by their places. Rows of commands are referred to.
void AppendTableByKey(std::string& html, const KeyUses& uses,
                      const std::vector<Keyboard>& keyboards,
                      const std::vector<std::size_t>& elsewhere, const HolderFrames& frames,
                      const Texts& texts);

/// All commands with the cells of the list, in file order, in blocks with their headings.
void AppendTableByCommand(std::string& html, const DisplayTable& rows, const Texts& texts,
                          const std::wstring& undefinedHotkey);

}  // namespace tessera
