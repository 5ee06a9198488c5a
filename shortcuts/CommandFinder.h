// Finds the command that a line of section "Shortcuts" names.
#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "shortcuts/CommandEntry.h"
#include "text/TextHash.h"

namespace tessera {

/// An index over the texts of rows; a look-up costs the same however many there are.
class CommandFinder {
 public:
  /// Of the values only those of `lines` can be looked up: other texts need no index. The lines
  /// must outlive the finder.
  CommandFinder(std::span<const CommandEntry> rows,
                std::span<const std::pair<std::wstring, std::wstring>> lines);

  /// The 0-based number of the first row of which the command name, the code, the default keys or
  /// the current keys are `value` as a whole, letter case ignored. An empty value names no row.
  [[nodiscard]] std::optional<std::size_t> Find(std::wstring_view value) const;

  /// To be called before and after a change to the current keys of a row.
  void RemoveCurrentKeys(std::size_t row, std::wstring_view keys);
  void AddCurrentKeys(std::size_t row, std::wstring_view keys);

 private:
  struct Rows {
    std::optional<std::size_t> First;  ///< by the texts that never change
    std::set<std::size_t> ByCurrentKeys;
  };

  /// Null for a text that no line has as its value.
  [[nodiscard]] Rows* RowsOf(std::wstring_view text);

  std::unordered_map<std::wstring_view, Rows, HashIgnoringCase, EqualsIgnoringCase> rowsByValue_;
  std::size_t longestValue_ = 0;
};

}  // namespace tessera
