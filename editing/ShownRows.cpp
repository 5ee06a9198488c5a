// A part of the displayed table, by the positions of its rows.
#include "editing/ShownRows.h"

#include <algorithm>
#include <utility>

namespace tessera {

ShownRows::ShownRows(const DisplayTable& rows) : rows_(rows) {}

std::size_t ShownRows::Count() const { return Searching() ? positions_.size() : rows_.Count(); }

const CommandEntry& ShownRows::At(std::size_t position) const {
  return rows_.At(TablePosition(position));
}

std::optional<std::size_t> ShownRows::PositionOf(RowKey row) const {
  const std::optional<std::size_t> position = rows_.PositionOf(row);
  if (!Searching() || !position) return position;
  const auto found = std::ranges::lower_bound(positions_, *position);
  if (found == positions_.end() || *found != *position) return std::nullopt;
  return static_cast<std::size_t>(found - positions_.begin());
}

RowKey ShownRows::FirstCommand() const {
  for (std::size_t position = 0; position < Count(); ++position) {
    if (!At(position).IsHeading()) return At(position).Key;
  }
  return 0;
}

const std::wstring& ShownRows::SearchText() const { return text_; }

bool ShownRows::Searching() const { return !words_.empty(); }

std::size_t ShownRows::FoundCount() const { return foundCount_; }

void ShownRows::Search(std::wstring text) {
  text_ = std::move(text);
  words_ = WordsOf(text_);
  Refresh();
}

void ShownRows::Refresh() {
  positions_.clear();
  foundCount_ = 0;
  if (!Searching()) return;
  const std::vector<bool> matches = search_.Match(rows_, words_);
  std::optional<std::size_t> heading;  // of the block, while none of its commands was found
  for (std::size_t position = 0; position < rows_.Count(); ++position) {
    const CommandEntry& row = rows_.At(position);
    if (row.IsHeading()) {
      heading = position;
    } else if (matches[rows_.PlaceOf(row.Key)]) {
      if (heading) positions_.push_back(*std::exchange(heading, std::nullopt));
      positions_.push_back(position);
      ++foundCount_;
    }
  }
}

std::size_t ShownRows::TablePosition(std::size_t position) const {
  return Searching() ? positions_.at(position) : position;
}

}  // namespace tessera
