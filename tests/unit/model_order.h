// The order of the rows in the model of the rules.
#pragma once

#include <cstddef>
#include <vector>

#include "tests/unit/model_tables.h"
#include "text/Text.h"

namespace tessera::model {

inline void ClickColumn(ModelTables& tables, int column) {
  if (!tables.IsSorted) {
    tables.StoredOrder = 1;
    tables.StoredColumn = 3;
    return;
  }
  tables.Descending = column == tables.StoredColumn ? !tables.Descending : tables.StoredOrder == 1;
  tables.StoredOrder = tables.Descending ? 1 : 0;
  tables.StoredColumn = column;
  const auto cell = [&](std::size_t row) -> const Text& {
    const ModelRow& shown = tables.Rows[row];
    const Text* const cells[] = {&shown.Description, &shown.Name, &shown.Defaults, &shown.Current};
    return *cells[column - 1];
  };
  // Insertion keeps the order of equal texts.
  std::vector<std::size_t> sorted;
  for (const std::size_t row : tables.Order) {
    auto place = sorted.end();
    while (place != sorted.begin()) {
      const int comparison = CompareTexts(cell(row), cell(*(place - 1)));
      if (tables.Descending ? comparison <= 0 : comparison >= 0) break;
      --place;
    }
    sorted.insert(place, row);
  }
  tables.Order = sorted;
}

inline void SortRows(ModelTables& tables) {
  tables.SortedView = true;
  if (tables.StoredColumn < 1 || tables.StoredColumn > 4) tables.StoredColumn = 3;
  std::erase_if(tables.Order, [&](std::size_t row) { return tables.Rows[row].IsHeading; });
  tables.IsSorted = true;
  tables.Descending = tables.StoredOrder == 0;
  ClickColumn(tables, tables.StoredColumn);
  tables.Selected = tables.Order.front();
}

inline void RestoreFileOrder(ModelTables& tables) {
  tables.SortedView = tables.IsSorted = false;
  tables.Order.clear();
  for (std::size_t row = 0; row < tables.Rows.size(); ++row) tables.Order.push_back(row);
  ClickColumn(tables, 3);
  tables.Selected = tables.Order.front();
}

}  // namespace tessera::model
