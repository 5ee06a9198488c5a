// Total Commander's list of its internal commands, "Totalcmd.inc".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shortcuts/Catalogue.h"

namespace tessera {

/// The file's content, which is in the ANSI code page, or UTF-8 behind a byte order mark.
[[nodiscard]] std::wstring DecodeInternalCommands(std::string_view bytes);

/// The rows of the content, in its order, without any keys: both key columns of a command hold
/// `undefinedHotkey`. The rows hold views of `text`.
[[nodiscard]] std::vector<CommandEntry> ReadInternalCommands(std::wstring_view text,
                                                             const std::wstring& undefinedHotkey,
                                                             const ProgressStep& step);

}  // namespace tessera
