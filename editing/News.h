// What has happened last, as a value: what the line under the panel tells of it.
#pragma once

#include <cstddef>
#include <string>

#include "shortcuts/CommandEntry.h"

namespace tessera {

enum class NewsKind { None, Opened, Saved, Assigned, Added, Deleted, DeletedAll };

struct News {
  NewsKind Kind = NewsKind::None;
  RowKey Row = 0;       ///< whose keys an edit changed
  std::wstring Keys{};  ///< that the row got or lost, in display notation
  RowKey From = 0;      ///< the other row that the key was taken from; 0 for none
  std::wstring File{};  ///< that was opened or saved
  std::size_t Rows{};   ///< how many rows have current keys after an open, or lost theirs
};

}  // namespace tessera
