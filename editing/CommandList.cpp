// The selected row, the two orders of the rows, and the columns' layout.
#include "editing/CommandList.h"

#include <algorithm>
#include <utility>

#include "shortcuts/HotkeyNotation.h"
#include "text/Numbers.h"

namespace tessera {
namespace {

constexpr int FirstColumn = 1;
constexpr int LastColumn = 4;
constexpr int DefaultSortedColumn = 3;
constexpr int NoColumn = 0;

constexpr int MaximumWidth = 1000000;  // twips, beyond any screen

bool IsColumn(int column) { return column >= FirstColumn && column <= LastColumn; }

/// Sorting again brings the stored order back, because it turns this one round. Any order but 0
/// counts as descending.
SortDirection OppositeOf(short sortOrder) {
  return sortOrder == 0 ? SortDirection::Descending : SortDirection::Ascending;
}

void RepairSortedColumn(Settings& settings) {
  if (!IsColumn(settings.SortedColumn)) settings.SortedColumn = DefaultSortedColumn;
}

/// Four numbers, -1 for what is missing or no number.
std::array<int, 4> ReadNumbers(std::wstring_view text) {
  std::array<int, 4> numbers{-1, -1, -1, -1};
  const std::vector<std::wstring> pieces = SplitText(text, L",");
  for (std::size_t i = 0; i < std::min(pieces.size(), numbers.size()); ++i) {
    if (!pieces[i].empty() && pieces[i].front() >= L'0' && pieces[i].front() <= L'9') {
      numbers[i] = RoundTo32Bits(LeadingNumber(pieces[i]));
    }
  }
  return numbers;
}

std::wstring JoinNumbers(const std::array<int, 4>& numbers) {
  std::wstring text;
  for (const int number : numbers) {
    text.append(text.empty() ? L"" : L",").append(std::to_wstring(number));
  }
  return text;
}

}  // namespace

ColumnLayout ReadColumnLayout(const Settings& settings) {
  ColumnLayout layout;
  const std::array<int, 4> widths = ReadNumbers(settings.ColumnHeadersSize);
  for (std::size_t i = 0; i < widths.size(); ++i) {
    if (widths[i] >= 0 && widths[i] <= MaximumWidth) layout.Widths[i] = widths[i];
  }
  const std::array<int, 4> positions = ReadNumbers(settings.ColumnHeadersPosition);
  if (std::is_permutation(positions.begin(), positions.end(), layout.Positions.begin())) {
    layout.Positions = positions;
  }
  return layout;
}

void StoreColumnLayout(const ColumnLayout& layout, Settings& settings) {
  settings.ColumnHeadersPosition = JoinNumbers(layout.Positions);
  settings.ColumnHeadersSize = JoinNumbers(layout.Widths);
}

CommandList::CommandList(Catalogue& catalogue, Settings& settings)
    : catalogue_(catalogue), settings_(settings), shown_(catalogue.ListView1) {}

const ShownRows& CommandList::Shown() const { return shown_; }

RowKey CommandList::SelectedRow() const { return selectedRow_; }

std::size_t CommandList::Selections() const { return selections_; }

bool CommandList::CommandSelected() const {
  return selectedRow_ != 0 && !catalogue_.ListView1.Row(selectedRow_).IsHeading();
}

bool CommandList::CanSearch() const { return canSearch_; }

HeaderIcon CommandList::IconOf(Column column) const { return icons_.at(IndexOf(column)); }

void CommandList::ShowRowDetails(RowKey row) {
  chosenRow_ = row;
  ChangeSelectedRow(row);
}

void CommandList::ChangeSelectedRow(RowKey row) {
  if (row != selectedRow_) ++selections_;
  selectedRow_ = row;
}

Reaction CommandList::SelectRow(std::size_t position) {
  if (position >= shown_.Count()) return {};
  ShowRowDetails(shown_.At(position).Key);
  return {.HideKeysList = true};
}

void CommandList::ShowFirstRow() { ShowRowDetails(shown_.Count() == 0 ? 0 : shown_.At(0).Key); }

Reaction CommandList::Search(std::wstring text) {
  shown_.Search(canSearch_ ? std::move(text) : std::wstring());
  ShowFoundRow();
  return {.Searched = true, .HideKeysList = true};
}

Reaction CommandList::EndSearch() { return Search({}); }

Reaction CommandList::SetCanSearch(bool canSearch) {
  canSearch_ = canSearch;
  return canSearch || shown_.SearchText().empty() ? Reaction{} : EndSearch();
}

void CommandList::RefreshSearch() {
  shown_.Refresh();
  ShowFoundRow();
}

void CommandList::ShowFoundRow() {
  const RowKey former = selectedRow_ == 0 ? chosenRow_ : selectedRow_;
  ChangeSelectedRow(shown_.PositionOf(former) ? former : shown_.FirstCommand());
}

Reaction CommandList::SortByColumn(int column) {
  icons_.fill(HeaderIcon::None);
  if (!sorted_) {
    settings_.SortOrder = 1;
    settings_.SortedColumn = DefaultSortedColumn;
    return {};
  }
  if (column != NoColumn) sortKey_ = static_cast<Column>(column);
  if (column != settings_.SortedColumn) {
    direction_ = static_cast<SortDirection>(settings_.SortOrder);
  } else {
    direction_ = OppositeOf(static_cast<short>(direction_));
  }
  if (column != NoColumn) {
    icons_[static_cast<std::size_t>(column) - 1] =
        static_cast<HeaderIcon>(static_cast<int>(direction_) + 1);
  }
  settings_.SortOrder = static_cast<short>(direction_);
  settings_.SortedColumn = static_cast<short>(column);
  catalogue_.ListView1.Sort(sortKey_, direction_);
  // An edited row may no longer be found.
  if (shown_.Searching()) RefreshSearch();
  return {};
}

void CommandList::SortCommandList() {
  settings_.SortedList = 1;
  RepairSortedColumn(settings_);
  catalogue_.ListView1.RemoveHeadings();
  sorted_ = true;
  direction_ = OppositeOf(settings_.SortOrder);
  SortByColumn(settings_.SortedColumn);
  ShowFirstRow();
}

void CommandList::RestoreFileOrder() {
  settings_.SortedList = 0;
  sorted_ = false;
  catalogue_.ListView1.RestoreFileOrder();
  shown_.Refresh();
  SortByColumn(static_cast<int>(Column::Defaults));
  ShowFirstRow();
}

Reaction CommandList::ToggleSortedList() {
  if (settings_.SortedList != 0) {
    RestoreFileOrder();
  } else {
    SortCommandList();
  }
  return {.HideKeysList = true};
}

Reaction CommandList::Undo() {
  const EditHistory::Step* const step = catalogue_.Edits.ToUndo();
  if (step == nullptr) return {};
  const bool isComplete = catalogue_.Edits.Undo(catalogue_);
  return ShowRestored(NewsKind::Undone, step->Name, !isComplete);
}

Reaction CommandList::Redo() {
  const EditHistory::Step* const step = catalogue_.Edits.ToRedo();
  if (step == nullptr) return {};
  const bool isComplete = catalogue_.Edits.Redo(catalogue_);
  return ShowRestored(NewsKind::Redone, step->Name, !isComplete);
}

/// An edit of all rows leaves the selected row.
Reaction CommandList::ShowRestored(NewsKind kind, const EditName& step, bool startMenuKeyIsGone) {
  news_ = {.Kind = kind,
           .Row = step.Row,
           .Keys = step.Key,
           .Step = step.Kind,
           .StartMenuKeyIsGone = startMenuKeyIsGone};
  const bool selects = step.Row != 0 && step.Row != selectedRow_;
  if (step.Row != 0 && !shown_.PositionOf(step.Row)) shown_.Search({});
  if (selects) ShowRowDetails(step.Row);
  return {.Restored = true, .HideKeysList = selects};
}

News CommandList::TakeNews() { return std::exchange(news_, {}); }

void CommandList::RestoreStoredSort() {
  if (settings_.SortedList != 1) return;
  RepairSortedColumn(settings_);
  // A stored 4 becomes 0, which names no column. Kept so.
  settings_.SortedColumn = static_cast<short>(settings_.SortedColumn % LastColumn);
  direction_ = OppositeOf(settings_.SortOrder);
  SortByColumn(settings_.SortedColumn);
}

}  // namespace tessera
