#include "app/ListCell.h"

namespace tessera {

std::optional<ListCell> CellAt(const ShownRows& rows, int row, int column) {
  // A number below 0 becomes one above all.
  const auto position = static_cast<std::size_t>(row);
  const auto index = static_cast<std::size_t>(column);
  if (position >= rows.Count() || index >= AllColumns.size()) return std::nullopt;
  return ListCell{.Row = rows.At(position), .Of = AllColumns[index]};
}

}  // namespace tessera
