// What the command list shows beyond its rows: the selected row, and the order of the rows.
#pragma once

#include <array>
#include <string>

#include "editing/News.h"
#include "editing/Reaction.h"
#include "editing/ShownRows.h"
#include "platform/Pinned.h"
#include "settings/Settings.h"
#include "shortcuts/Catalogue.h"

namespace tessera {

/// The icon in a column's header.
enum class HeaderIcon { None = 0, Ascending = 1, Descending = 2 };

/// The columns' positions and widths as the settings hold them, in the order description, command,
/// defaults, current. A missing or impossible entry takes its default.
struct ColumnLayout {
  std::array<int, 4> Positions{1, 2, 3, 4};           ///< 1-based; each of 1 to 4 once
  std::array<int, 4> Widths{3000, 2000, 2000, 2000};  ///< twips
};

[[nodiscard]] ColumnLayout ReadColumnLayout(const Settings& settings);
void StoreColumnLayout(const ColumnLayout& layout, Settings& settings);

class CommandList : Pinned {
 public:
  CommandList(Catalogue& catalogue, Settings& settings);

  // -- Queries

  [[nodiscard]] const ShownRows& Shown() const;

  /// The row that edits act on; 0 while no row is shown.
  [[nodiscard]] RowKey SelectedRow() const;

  /// How often another row was selected: a row that was left and selected again is another one.
  [[nodiscard]] std::size_t Selections() const;

  /// True for a command row; false for a heading row, or none.
  [[nodiscard]] bool CommandSelected() const;

  /// False while there is nowhere to type what is looked for.
  [[nodiscard]] bool CanSearch() const;

  [[nodiscard]] HeaderIcon IconOf(Column column) const;

  // -- Changes

  void ShowRowDetails(RowKey row);

  /// Selects the row at a 0-based position of what is shown; one outside is ignored.
  Reaction SelectRow(std::size_t position);

  /// Selects the first row that is shown, or none in an empty list.
  void ShowFirstRow();

  /// Shows the commands in which the words of the text stand; for an empty text all. The selected
  /// row stays if it is shown, else the first command becomes it. When there was none to be shown,
  /// the next search begins with the row that was selected before. Without CanSearch it shows all.
  Reaction Search(std::wstring text);

  /// Shows all rows again.
  Reaction EndSearch();

  /// Whether there is somewhere to type; without it a search ends.
  Reaction SetCanSearch(bool canSearch);

  /// Looks at the rows anew, after their texts may have become others.
  void RefreshSearch();

  /// In the sorted view sorts by the column of that 1-based index, or turns the order round when it
  /// is the one sorted by already; 0 names no column. In file order it resets the stored order.
  Reaction SortByColumn(int column);

  void SortCommandList();
  void RestoreFileOrder();

  /// Sorts, or goes back to file order.
  Reaction ToggleSortedList();

  /// Takes the last edit back, or makes the one that was taken back last again, and selects its
  /// row. Without one, nothing.
  Reaction Undo();
  Reaction Redo();

  /// What Undo or Redo did since this was last called; NewsKind::None for nothing.
  [[nodiscard]] News TakeNews();

  /// Brings back the stored sort at the first activation of the program.
  void RestoreStoredSort();

 private:
  Reaction ShowRestored(NewsKind kind, const EditName& step, bool startMenuKeyIsGone);
  void ChangeSelectedRow(RowKey row);
  void ShowFoundRow();

  Catalogue& catalogue_;
  Settings& settings_;
  ShownRows shown_;
  RowKey selectedRow_ = 0;
  RowKey chosenRow_ = 0;  ///< the last one that was selected otherwise than by a search
  std::size_t selections_ = 0;
  bool canSearch_ = true;
  bool sorted_ = false;  ///< the rows are in sorted state; Settings::SortedList is what is wanted
  SortDirection direction_ = SortDirection::Ascending;
  Column sortKey_ = Column::Description;
  std::array<HeaderIcon, 4> icons_{};
  News news_;
};

}  // namespace tessera
