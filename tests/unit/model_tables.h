// The tables of the model of the rules for keys, and who holds a key in them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "shortcuts/CommandEntry.h"
#include "tests/unit/model_keys.h"

namespace tessera::model {

struct ModelPiece {
  Text Shown;
  Text Name;  ///< by which it was read; empty when an edit made it
};

struct ModelRow {
  bool IsHeading = false;
  Text Description, Name, Code, Defaults, Current;
  RowIcon Icon = RowIcon::None;
  bool IsRed = false;
  std::vector<ModelPiece> Pieces;  ///< of the current keys
};

struct ModelKey {
  Text Key;
  std::size_t Owner = 0;
};

struct ModelSlot {
  Text Key, Caption, ValueName;
};

struct ModelLine {
  Text Name, Value;
};

struct ModelTables {
  bool Reversed = false;
  std::vector<ModelRow> Master;
  std::vector<ModelRow> Rows;      ///< displayed copies, in file order
  std::vector<std::size_t> Order;  ///< indexes into Rows, as displayed
  std::vector<ModelKey> Defaults, Currents;
  std::vector<ModelSlot> Slots = std::vector<ModelSlot>(24);
  std::vector<ModelLine> Shortcuts, StartMenu;  ///< the lines of the two sections of the file
  bool SortedView = false, IsSorted = false, Descending = false;
  int StoredOrder = 0, StoredColumn = 3;
  std::size_t Selected = 0;
  std::vector<ModelKey> Gifts;  ///< what edits gave and none took, as written; the latest last
};

struct Holder {
  std::size_t Row = 0;
  bool IsOverridden = false;
};

/// The rows whose current keys show the key.
[[nodiscard]] inline std::vector<std::size_t> CurrentHolders(const ModelTables& tables,
                                                             const Text& key) {
  std::vector<std::size_t> holders;
  for (std::size_t row = 0; row < tables.Rows.size(); ++row) {
    for (const Text& shown : KeysIn(tables.Rows[row].Current)) {
      if (!Same(shown, key)) continue;
      holders.push_back(row);
      break;
    }
  }
  return holders;
}

/// The rows whose default keys show the key.
[[nodiscard]] inline std::vector<Holder> DefaultHolders(const ModelTables& tables,
                                                        const Text& key) {
  std::vector<Holder> holders;
  for (std::size_t row = 0; row < tables.Rows.size(); ++row) {
    const TextList keys = KeysIn(tables.Rows[row].Defaults);
    for (const Text& shown : keys) {
      Text marked = key;
      while (marked.size() < shown.size()) marked += L" *";
      if (!Same(shown, marked)) continue;
      const bool isMarked =
          keys.size() == 1 ? shown.size() > key.size()
                           : keys.back().ends_with(L" *") && !CurrentHolders(tables, key).empty();
      holders.push_back({row, isMarked});
      break;
    }
  }
  return holders;
}

}  // namespace tessera::model
