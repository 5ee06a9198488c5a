// Finds the commands in which words stand. Letter case and blanks around "+" make no difference.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "shortcuts/DisplayTable.h"

namespace tessera {

/// The words of what a user looks for, in the form in which they are compared.
[[nodiscard]] std::vector<std::wstring> WordsOf(std::wstring_view text);

/// Holds the texts of all rows once more, from its first question on.
class RowSearch {
 public:
  /// For each row in file order, true for a command in whose description, command name, code,
  /// default keys and current keys each of the words stands somewhere. `rows` must be the same
  /// table each time.
  [[nodiscard]] std::vector<bool> Match(const DisplayTable& rows,
                                        const std::vector<std::wstring>& words);

  void Clear() { *this = RowSearch(); }

 private:
  void Read(const DisplayTable& rows);

  std::wstring texts_;             ///< those of the rows, one behind the other
  std::vector<std::size_t> ends_;  ///< of the texts of each row
  std::size_t changes_ = 0;        ///< of the table when it was read
};

}  // namespace tessera
