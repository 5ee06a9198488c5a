// The pop-up that shows all keys at once: what a selection in it means, and when it closes.
#pragma once

#include <optional>
#include <vector>

#include "editing/HotkeyPanel.h"
#include "editing/Reaction.h"
#include "platform/Pinned.h"

namespace tessera {

class KeysList : Pinned {
 public:
  explicit KeysList(HotkeyPanel& panel);

  // -- Queries

  [[nodiscard]] bool Visible() const;

  /// The index selected in List1, or NoKeyChosen.
  [[nodiscard]] int Selection() const;

  /// Of each key in the list, whether somebody has it with the modifiers that are checked.
  [[nodiscard]] std::vector<bool> TakenKeys() const;

  /// False while the panel toolbar is disabled as a whole, which an open list does.
  [[nodiscard]] bool PanelToolbarEnabled() const;

  // -- Opening and closing. A list that was opened takes the focus.

  /// A click on the all-keys button, or Right in the chooser. Without a command there is no list.
  Reaction ToggleKeysList();
  Reaction CloseKeysList();

  /// Closes the list, when a row is selected, and leaves the focus where it is.
  void Hide();

  // -- The chooser

  /// List1 selects the chooser's key again, which is not taken for a choice.
  void FollowChooser();

  /// The chooser's own list opens, which enables the panel toolbar.
  Reaction ChooserDropsDown();

  // -- List1

  /// List1's selection changed. It is a choice, which closes the list, unless a key moved it.
  Reaction Select(int index);

  /// A mouse button was released over List1: the next selection is a choice.
  Reaction ReleaseMouse();

  /// Enter and Space choose, Esc closes without a choice; any other key only moves.
  Reaction KeyDown(KeyCode code);

 private:
  HotkeyPanel& panel_;
  bool visible_ = false;
  bool panelToolbarEnabled_ = true;
  bool AcceptClick_ = true;
  std::optional<int> moved_;  ///< where a key has moved the selection, without choosing it
};

}  // namespace tessera
