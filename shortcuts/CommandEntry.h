// One row of the catalogue: a command of Total Commander, or the heading of a group.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// Names a row for as long as the catalogue lives: its ordinal in "Totalcmd.inc", from 1; rows of
/// user commands follow, at each open with numbers that no row has had. 0 is none.
using RowKey = std::size_t;

enum class RowIcon { None, CommentBlock, HasKey };

/// The tag of a heading row.
inline constexpr std::wstring_view CommentBlockTag = L"commentblock";

/// Marks a key text or cell as taken away or overridden.
inline constexpr std::wstring_view OverriddenMark = L" *";

/// A current key with the name by which it was read.
struct ReadKey {
  std::wstring Shown;  ///< in display notation
  std::wstring Name;   ///< in Total Commander's; empty for a key that the user composed
};

/// The views are parts of a text that whoever makes a row keeps alive: with texts of their own,
/// opening 600 commands took 11.7 times splitting their lines instead of 8.3; 10 is the goal.
struct CommandEntry {
  RowKey Key = 0;
  std::wstring_view Description;  ///< of a heading row, the heading
  std::wstring_view CommandName;  ///< empty for a heading row, as are the code and the keys
  std::wstring_view CommandCode;  ///< decimal text
  std::wstring_view Tag;          ///< the code, or CommentBlockTag
  std::wstring DefaultKeys;       ///< in display notation, joined by the key separator
  std::wstring CurrentKeys;       ///< likewise
  std::vector<ReadKey> ReadKeys;  ///< all current keys; none where CurrentKeys alone tells them
  RowIcon Icon = RowIcon::None;
  bool DefaultKeysAreRed = false;

  [[nodiscard]] bool IsHeading() const { return Tag == CommentBlockTag; }
};

}  // namespace tessera
