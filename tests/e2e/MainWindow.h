// The controls of the program's main window, found by the IDs of resources/resource.h: reading what
// they show, and working them by mouse and keyboard.
#pragma once

#include <windows.h>

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "tests/e2e/RemoteMemory.h"
#include "tests/e2e/Window.h"

namespace tessera::e2e {

/// Description, command, default keys, current keys.
using RowTexts = std::array<std::wstring, 4>;

/// What stands in a column's header.
struct HeaderShows {
  std::wstring Text;
  bool HasIcon = false;
  int Icon = 0;  ///< index of the image; meaningless without an icon
};

class MainWindow : public Window {
 public:
  /// Had in the program's memory, for what its controls are asked.
  static constexpr std::size_t MemoryBytes = 512 * 1024;

  /// `process` is that of the window and must stay open as long as this object lives.
  MainWindow(HWND window, HANDLE process);

  // -- The command list

  [[nodiscard]] int RowCount() const;
  [[nodiscard]] RowTexts Row(int position) const;
  [[nodiscard]] std::vector<RowTexts> Rows() const;

  /// Lets FindCommand look first where these rows have the commands.
  void LookFirst(const std::vector<RowTexts>& rows) const;

  /// The position of the row with that command; -1 when there is none.
  [[nodiscard]] int FindCommand(const std::wstring& command) const;
  [[nodiscard]] int SelectedRow() const;

  /// The row that the list finds by such a search, as assistive programs use it; -1 for none.
  [[nodiscard]] int FindItem(UINT flags, const std::wstring& text = {}) const;
  [[nodiscard]] HeaderShows Header(int column) const;

  /// True when the icons of the headers are not those of the rows.
  [[nodiscard]] bool HeaderHasOwnImages() const;
  [[nodiscard]] std::array<int, 4> ColumnWidths() const;
  [[nodiscard]] std::array<int, 4> ColumnOrder() const;
  [[nodiscard]] RECT CellRectangle(int position, int column) const;  ///< on the screen
  [[nodiscard]] RECT IconRectangle(int position) const;              ///< likewise

  /// What the tip says that is shown over the list; empty while there is none.
  [[nodiscard]] std::wstring CellTip() const;

  /// What the tip says that is shown over a part of a control; empty while there is none.
  [[nodiscard]] std::wstring TipIn(int control) const;

  /// What the tip says that is shown over a button of the panel; likewise.
  [[nodiscard]] std::wstring TipOfButton(int button) const;

  void ClickRow(int position);

  /// Selects a row without input, as assistive programs do.
  void SelectByAutomation(int position);

  /// Gives a row the list's focus alone, in the same way.
  void FocusByAutomation(int position);
  void SetColumnOrder(const std::array<int, 4>& order);
  void ClickHeader(int column);

  // -- Panel and toolbars

  /// The text of the chosen key; empty when none is chosen.
  [[nodiscard]] std::wstring ChosenKey() const;

  /// Drops the chooser's list down by a click, and clicks the key in it.
  void ChooseKey(const std::wstring& key);
  [[nodiscard]] bool ButtonEnabled(int toolbar, int command) const;
  [[nodiscard]] bool ButtonPressed(int toolbar, int command) const;
  [[nodiscard]] RECT ButtonRectangle(int toolbar, int command) const;  ///< on the screen
  void ClickButton(int toolbar, int command);

  /// What the button's tool tip shows.
  [[nodiscard]] std::wstring ButtonText(int toolbar, int command) const;

  /// Clicks the arrow beside a button, and waits for its menu, which it gives.
  HWND OpenButtonMenu(int toolbar, int command);

  /// Opens that menu, and chooses the entry of that 1-based number by keyboard.
  void ChooseFromButtonMenu(int toolbar, int command, int entry);

  /// Opens a menu of the menu bar by Alt and its letter, and gives its window.
  HWND OpenMenu(WORD letter);

  /// Opens a menu so, and chooses from it by the letters.
  void ChooseFromMenu(WORD menu, WORD item);

  /// The menus that are open, the innermost first.
  [[nodiscard]] std::vector<HWND> OpenMenus() const;

  /// True while a menu of the window is open or its menu bar has the focus.
  [[nodiscard]] bool InMenu() const;

  /// Leaves every open menu and the menu bar.
  void CloseMenus();

  /// Chooses a command without input, as assistive programs do.
  void Command(int command) const;

 private:
  [[nodiscard]] std::vector<RowTexts> ReadRows(int first, int count) const;
  void SetRowState(int position, UINT state);
  [[nodiscard]] std::wstring TipOf(HWND window, UINT_PTR id) const;
  [[nodiscard]] int ButtonState(int toolbar, int command) const;
  [[nodiscard]] RECT RectangleBy(HWND control, UINT message, WPARAM item, const RECT& asked) const;
  [[nodiscard]] HWND DroppedList() const;

  mutable RemoteMemory memory_;
  mutable std::map<std::wstring, int> positions_;  ///< where commands were seen last
};

}  // namespace tessera::e2e
