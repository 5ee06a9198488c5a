// The rows of the displayed table that the list shows: all, or those that a search found.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "editing/RowSearch.h"
#include "platform/Pinned.h"
#include "shortcuts/DisplayTable.h"

namespace tessera {

class ShownRows : Pinned {
 public:
  explicit ShownRows(const DisplayTable& rows);

  // -- Queries. A position is 0-based, from the top of what is shown.

  [[nodiscard]] std::size_t Count() const;
  [[nodiscard]] const CommandEntry& At(std::size_t position) const;

  /// Nothing for a row that is not shown, or not there.
  [[nodiscard]] std::optional<std::size_t> PositionOf(RowKey row) const;

  /// The first row that is no heading; 0 for none.
  [[nodiscard]] RowKey FirstCommand() const;

  /// What is looked for, as it was given.
  [[nodiscard]] const std::wstring& SearchText() const;

  /// False for an empty text, or one of blanks alone.
  [[nodiscard]] bool Searching() const;

  /// The commands that were found; 0 without a search.
  [[nodiscard]] std::size_t FoundCount() const;

  // -- Changes

  /// Shows the commands in which each word of the text stands, and the headings of their blocks. An
  /// empty text shows all rows.
  void Search(std::wstring text);

  /// Searches anew, after the table got other rows or another order. Edits alone hide no row.
  void Refresh();

 private:
  [[nodiscard]] std::size_t TablePosition(std::size_t position) const;

  const DisplayTable& rows_;
  RowSearch search_;
  std::wstring text_;
  std::vector<std::wstring> words_;
  std::vector<std::size_t> positions_;  ///< in the table, of what is shown, while searching
  std::size_t foundCount_ = 0;
};

}  // namespace tessera
