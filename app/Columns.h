// The columns of the command list: their order and widths, as stored and as shown.
#pragma once

#include <array>

#include "editing/CommandList.h"

namespace tessera {

/// The display positions (1-based) of the four columns as the order in which the columns (0-based)
/// stand from left to right, and back. Both take and give a permutation.
[[nodiscard]] std::array<int, 4> OrderOfPositions(const std::array<int, 4>& positions);
[[nodiscard]] std::array<int, 4> PositionsOfOrder(const std::array<int, 4>& order);

/// Stored widths (twips) in pixels; none is negative.
[[nodiscard]] std::array<int, 4> WidthsInPixels(const std::array<int, 4>& twips, int dpi);

/// What to store for columns that stand in this order (0-based, from left to right) with these
/// widths in pixels. A column that still has the width that was stored for it keeps its twips.
[[nodiscard]] ColumnLayout ColumnsToStore(const ColumnLayout& stored,
                                          const std::array<int, 4>& order,
                                          const std::array<int, 4>& pixels, int dpi);

}  // namespace tessera
