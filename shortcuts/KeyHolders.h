// Who holds a key, by what the cells show. It decides no question: the two indexes of the catalogue
// do, which tell of something else now and then.
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "shortcuts/CommandEntry.h"
#include "shortcuts/HotkeyNotation.h"
#include "text/TextHash.h"

namespace tessera {

class DisplayTable;

/// True for a piece of a default-keys cell that is the key, or the key and marks: a cell may have
/// been marked several times. A key that ends in the mark, such as "Num *", is not taken for a
/// marked one: its own text comes first. Letter case does not count.
[[nodiscard]] bool IsKeyWithMarks(std::wstring_view piece, std::wstring_view key);

/// The key that a piece of a default-keys cell shows, without its marks.
[[nodiscard]] std::wstring_view WithoutKeyMarks(std::wstring_view piece);

/// The rows that hold a key, in file order.
struct HoldersOfKey {
  struct Default {
    RowKey Row = 0;
    bool Overridden = false;
    bool operator==(const Default&) const = default;
  };

  std::vector<Default> Defaults;
  std::vector<RowKey> Currents;

  bool operator==(const HoldersOfKey&) const = default;
};

/// What a search of all cells would find, letter case ignored, at a cost that does not depend on
/// the number of rows. Nothing is kept before the first question.
class KeyHolders {
 public:
  // -- Changes to the rows, to be told

  /// All rows are other ones.
  void Clear();

  /// The row may be changed from now on, until the next question.
  void NoteChange(RowKey row);

  // -- Questions

  /// `rows` are those of a table in file order, whose changes have been told; `key` is in display
  /// notation. The notation must stay the same until the next Clear.
  [[nodiscard]] HoldersOfKey Of(std::wstring_view key, const DisplayTable& rows,
                                const HotkeyNotation& notation);

 private:
  void ListRow(const CommandEntry& row, const HotkeyNotation& notation);

  bool made_ = false;
  std::vector<RowKey> changed_;

  /// By key, without the marks at its end, the rows that hold it. Some did before a change, and no
  /// longer do: they go when they are met.
  std::unordered_map<std::wstring, std::set<RowKey>, HashIgnoringCase, EqualsIgnoringCase> rows_;
};

}  // namespace tessera
