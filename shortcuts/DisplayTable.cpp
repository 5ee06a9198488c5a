// The displayed rows: the rows themselves never move, their order does.
#include "shortcuts/DisplayTable.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "text/Text.h"

namespace tessera {

std::wstring_view CellText(const CommandEntry& row, Column column) {
  switch (column) {
    case Column::Description:
      return row.Description;
    case Column::Command:
      return row.CommandName;
    case Column::Defaults:
      return row.DefaultKeys;
    case Column::Current:
      break;
  }
  return row.CurrentKeys;
}

std::size_t DisplayTable::Count() const { return order_.size(); }

const CommandEntry& DisplayTable::At(std::size_t position) const {
  return Row(order_.at(position));
}

const CommandEntry& DisplayTable::Row(RowKey key) const { return rows_.at(PlaceOf(key)); }

std::optional<std::size_t> DisplayTable::PositionOf(RowKey key) const {
  const std::size_t place = PlaceOf(key);
  if (place == rows_.size() || rows_[place].Key != key) return std::nullopt;
  return positions_[place];
}

std::size_t DisplayTable::PlaceOf(RowKey key) const {
  // Master rows stand where their keys tell. Those of user commands, which each open replaces, do
  // not.
  if (key != 0 && key <= rows_.size() && rows_[key - 1].Key == key) return key - 1;
  const auto found = std::ranges::lower_bound(rows_, key, {}, &CommandEntry::Key);
  return static_cast<std::size_t>(found - rows_.begin());
}

std::size_t DisplayTable::Changes() const { return changes_; }

HoldersOfKey DisplayTable::HoldersOf(std::wstring_view key, const HotkeyNotation& notation) const {
  return holders_.Of(key, *this, notation);
}

void DisplayTable::Fill(std::vector<CommandEntry> rows) {
  ++changes_;
  rows_ = std::move(rows);
  holders_.Clear();
  RestoreFileOrder();
}

CommandEntry& DisplayTable::Edit(RowKey key) {
  CommandEntry& row = rows_.at(PlaceOf(key));
  if (former_ != nullptr) former_->push_back(row);
  ++changes_;
  holders_.NoteChange(key);
  return row;
}

void DisplayTable::NoteChangesIn(std::vector<CommandEntry>* former) { former_ = former; }

void DisplayTable::RemoveHeadings() {
  std::erase_if(order_, [this](RowKey key) { return Row(key).IsHeading(); });
  NumberPositions();
}

void DisplayTable::RestoreFileOrder() {
  order_.resize(rows_.size());
  std::ranges::transform(rows_, order_.begin(), &CommandEntry::Key);
  NumberPositions();
}

void DisplayTable::Sort(Column column, SortDirection direction) {
  using Cell = std::pair<std::wstring_view, RowKey>;
  std::vector<Cell> cells;
  cells.reserve(order_.size());
  for (const RowKey key : order_) cells.emplace_back(CellText(Row(key), column), key);

  const auto sort = [&cells](auto precedes) {
    std::ranges::stable_sort(cells, [&](const Cell& left, const Cell& right) {
      return precedes(CompareTexts(left.first, right.first));
    });
  };
  if (direction == SortDirection::Ascending) {
    sort([](int comparison) { return comparison < 0; });
  } else {
    sort([](int comparison) { return comparison > 0; });
  }

  std::ranges::transform(cells, order_.begin(), [](const Cell& cell) { return cell.second; });
  NumberPositions();
}

void DisplayTable::NumberPositions() {
  positions_.assign(rows_.size(), std::nullopt);
  for (std::size_t position = 0; position < order_.size(); ++position) {
    positions_[PlaceOf(order_[position])] = position;
  }
}

}  // namespace tessera
