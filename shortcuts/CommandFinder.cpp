// Indexes the texts of rows that lines name.
#include "shortcuts/CommandFinder.h"

#include <algorithm>

namespace tessera {

CommandFinder::CommandFinder(std::span<const CommandEntry> rows,
                             std::span<const std::pair<std::wstring, std::wstring>> lines) {
  rowsByValue_.reserve(lines.size());
  for (const auto& [name, value] : lines) {
    if (!value.empty()) rowsByValue_.try_emplace(value);
    longestValue_ = std::max(longestValue_, value.size());
  }
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const CommandEntry& entry = rows[row];
    for (const std::wstring_view text :
         {entry.CommandName, entry.CommandCode, std::wstring_view(entry.DefaultKeys)}) {
      Rows* const found = RowsOf(text);
      if (found != nullptr && !found->First) found->First = row;
    }
    AddCurrentKeys(row, entry.CurrentKeys);
  }
}

std::optional<std::size_t> CommandFinder::Find(std::wstring_view value) const {
  const auto found = rowsByValue_.find(value);
  if (found == rowsByValue_.end()) return std::nullopt;
  const auto& [first, byCurrentKeys] = found->second;
  if (byCurrentKeys.empty()) return first;
  return std::min(first.value_or(*byCurrentKeys.begin()), *byCurrentKeys.begin());
}

void CommandFinder::RemoveCurrentKeys(std::size_t row, std::wstring_view keys) {
  if (Rows* const found = RowsOf(keys)) found->ByCurrentKeys.erase(row);
}

void CommandFinder::AddCurrentKeys(std::size_t row, std::wstring_view keys) {
  if (Rows* const found = RowsOf(keys)) {
    found->ByCurrentKeys.insert(found->ByCurrentKeys.end(), row);
  }
}

CommandFinder::Rows* CommandFinder::RowsOf(std::wstring_view text) {
  // The keys of a command that has very many are a long text, and change with each of its lines.
  if (text.size() > longestValue_) return nullptr;
  const auto found = rowsByValue_.find(text);
  return found == rowsByValue_.end() ? nullptr : &found->second;
}

}  // namespace tessera
