// Finding a row of the command list by typing the beginning of its description.
#pragma once

#include <optional>
#include <string_view>

#include "shortcuts/DisplayTable.h"

namespace tessera {

/// The first row from position `start` on, and round to it again, whose description begins with
/// `text` in any letter case. A start behind the last row is the first row.
[[nodiscard]] std::optional<std::size_t> FindRow(const DisplayTable& rows, std::wstring_view text,
                                                 std::size_t start);

}  // namespace tessera
