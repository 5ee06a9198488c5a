// Total Commander's list of its internal commands, "Totalcmd.inc".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shortcuts/Catalogue.h"

namespace tessera {

/// The rows of the file's content, in its order, without any keys: both key columns of a command
/// hold `undefinedHotkey`. The bytes are in the ANSI code page, or UTF-8 behind a byte order mark.
[[nodiscard]] std::vector<CommandEntry> ReadInternalCommands(std::string_view bytes,
                                                             const std::wstring& undefinedHotkey,
                                                             const ProgressStep& step);

}  // namespace tessera
