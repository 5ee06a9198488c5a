// The displayed rows: in file order with the headings, or sorted by a column without them.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "localisation/TextId.h"
#include "shortcuts/CommandEntry.h"
#include "shortcuts/KeyHolders.h"

namespace tessera {

/// The columns of the command list, by their 1-based index.
enum class Column { Description = 1, Command = 2, Defaults = 3, Current = 4 };

inline constexpr std::array AllColumns{Column::Description, Column::Command, Column::Defaults,
                                       Column::Current};

/// The place of a column among the four, from 0.
[[nodiscard]] constexpr std::size_t IndexOf(Column column) {
  return static_cast<std::size_t>(column) - 1;
}

/// Their headings, in the same order.
inline constexpr std::array ColumnHeadings{TextId::DescriptionColumn, TextId::CommandColumn,
                                           TextId::DefaultHotkeyColumn,
                                           TextId::CurrentHotkeyColumn};

enum class SortDirection { Ascending = 0, Descending = 1 };

/// Valid until the row is changed.
[[nodiscard]] std::wstring_view CellText(const CommandEntry& row, Column column);

class DisplayTable {
 public:
  // -- Queries. A position is 0-based, from the top.

  [[nodiscard]] std::size_t Count() const;
  [[nodiscard]] const CommandEntry& At(std::size_t position) const;

  /// The row of that key, whether it is displayed or left out; the key must be one of the table's.
  [[nodiscard]] const CommandEntry& Row(RowKey key) const;

  /// Where the row is displayed; nothing while it is left out, or for a key the table lacks.
  [[nodiscard]] std::optional<std::size_t> PositionOf(RowKey key) const;

  /// Where the row of that key, or of the next higher one, stands in file order, from 0.
  [[nodiscard]] std::size_t PlaceOf(RowKey key) const;

  /// Calls `visit` with each row in file order, also those that are left out.
  template <typename Visit>
  void ForEachRow(Visit visit) const {
    for (const CommandEntry& row : rows_) visit(row);
  }

  /// How often rows were edited or filled in.
  [[nodiscard]] std::size_t Changes() const;

  /// Who has the key, given in display notation, by what the cells show, also those of rows that
  /// are left out. The notation must be one and the same until the table is filled again.
  [[nodiscard]] HoldersOfKey HoldersOf(std::wstring_view key, const HotkeyNotation& notation) const;

  // -- Changes

  /// Takes all rows in file order; their keys must ascend.
  void Fill(std::vector<CommandEntry> rows);

  /// To be changed until the next question who holds a key.
  [[nodiscard]] CommandEntry& Edit(RowKey key);

  /// Each row is noted there before it is edited, until it is called with null.
  void NoteChangesIn(std::vector<CommandEntry>* former);

  void RemoveHeadings();
  void RestoreFileOrder();

  /// Sorts the displayed rows by a column's texts in the user's locale, letter case ignored; rows
  /// with equal texts keep their order.
  void Sort(Column column, SortDirection direction);

 private:
  void NumberPositions();

  std::vector<CommandEntry> rows_;  ///< in file order
  std::size_t changes_ = 0;
  std::vector<CommandEntry>* former_ = nullptr;
  std::vector<RowKey> order_;                          ///< the displayed rows, from the top
  std::vector<std::optional<std::size_t>> positions_;  ///< where each of rows_ stands in order_
  mutable KeyHolders holders_;                         ///< lists rows when it is asked
};

}  // namespace tessera
