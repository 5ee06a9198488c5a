// Indexes the texts of rows that lines name.
#include "shortcuts/CommandFinder.h"

#include <algorithm>
#include <bit>

namespace tessera {

namespace {

constexpr std::size_t PlacesOfText = 16;  // so that few texts share theirs with another

}  // namespace

TextFilter::TextFilter(std::size_t count) : hashes_(std::bit_ceil(PlacesOfText * (count + 1))) {}

void TextFilter::Add(std::wstring_view text) {
  if (text.size() >= lengths_.size()) lengths_.resize(text.size() + 1);
  lengths_[text.size()] = true;
  hashes_[PlaceOf(text)] = true;
}

bool TextFilter::MayHold(std::wstring_view text) const {
  return text.size() < lengths_.size() && lengths_[text.size()] && hashes_[PlaceOf(text)];
}

std::size_t TextFilter::PlaceOf(std::wstring_view text) const {
  return HashIgnoringCase()(text) & (hashes_.size() - 1);
}

CommandFinder::CommandFinder(std::span<const CommandEntry> rows,
                             std::span<const std::pair<std::wstring, std::wstring>> lines)
    : values_(lines.size()) {
  rowsByValue_.reserve(lines.size());
  for (const auto& [name, value] : lines) {
    if (value.empty()) continue;
    rowsByValue_.try_emplace(value);
    values_.Add(value);
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
  if (!values_.MayHold(text)) return nullptr;
  const auto found = rowsByValue_.find(text);
  return found == rowsByValue_.end() ? nullptr : &found->second;
}

}  // namespace tessera
