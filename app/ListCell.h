// A cell of the command list, by the numbers that the list has for it.
#pragma once

#include <optional>

#include "editing/ShownRows.h"

namespace tessera {

struct ListCell {
  const CommandEntry& Row;
  Column Of;
};

/// The cell of that row, from the top of what is shown, and that column, both 0-based. Nothing
/// where there is none: a list may ask for rows that have gone, other programs for any number, and
/// -1 stands for none.
[[nodiscard]] std::optional<ListCell> CellAt(const ShownRows& rows, int row, int column);

}  // namespace tessera
