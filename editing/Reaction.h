// What follows from an operation of the panel, the command list or the keys list.
#pragma once

namespace tessera {

struct Reaction {
  enum class Focus { Unchanged, CommandList, Chooser };

  // -- For the editor
  bool Changed = false;        ///< the keys of a command changed
  bool Restored = false;       ///< they became what they were at another time
  bool Searched = false;       ///< the list shows other rows
  bool FollowChooser = false;  ///< the keys list selects the key that the chooser shows
  bool HideKeysList = false;

  // -- For the window
  Focus FocusTo = Focus::Unchanged;
  bool StartTimer = false;  ///< the one-shot timer of PanelTimerMilliseconds
  bool Handled = false;     ///< the key did its work here and must not reach the control
};

}  // namespace tessera
