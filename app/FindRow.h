// Finding a row of the command list by typing.
#pragma once

#include <optional>
#include <string_view>

#include "editing/ShownRows.h"

namespace tessera {

/// The first row from position `start` on, and round to it again, whose description begins with
/// `text` in any letter case. A start behind the last row is the first row.
[[nodiscard]] std::optional<std::size_t> FindRow(const ShownRows& rows, std::wstring_view text,
                                                 std::size_t start);

/// For what is typed: without such a description, a command whose name begins so, with or without
/// its "cm_"; without that either, a row in whose texts it stands anywhere.
[[nodiscard]] std::optional<std::size_t> FindTypedRow(const ShownRows& rows, std::wstring_view text,
                                                      std::size_t start);

}  // namespace tessera
