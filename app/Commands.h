// The commands of menus and toolbars, by the numbers of resources/resource.h.
#pragma once

#include <vector>

#include "app/Editor.h"

namespace tessera {

/// What is left to the window after a command, once it shows the editor's new state.
enum class WindowTask {
  None,
  LayOut,
  ShowSelectedRow,
  FocusFindBox,
  ShowExport,
  ShowOptions,
  Close
};

struct CommandState {
  int Id = 0;
  bool Enabled = false;         ///< in menus and on the main toolbar
  bool EnabledOnPanel = false;  ///< on the panel's toolbar
  bool Checked = false;
};

// -- Queries

/// All commands but the entries of recent files, which are shown as cRecentFiles has them.
[[nodiscard]] std::vector<CommandState> CommandStates(const Editor& editor);

/// Also true for the entry of a recent file.
[[nodiscard]] bool IsCommand(int id);

/// False for what is no command.
[[nodiscard]] bool CommandEnabled(const Editor& editor, int id);

// -- Changes

/// Runs a command; one that is disabled, or none, does nothing.
WindowTask RunCommand(Editor& editor, int id);

}  // namespace tessera
