// Whom a key is for that is pressed in the main window.
#pragma once

#include "editing/PressedKey.h"

namespace tessera {

enum class KeyMeaning {
  ForControl,     ///< it is for the control that has the focus
  OpensKeysList,  ///< or closes it
  OpensHelp,
  OpensButtonMenu,  ///< that of the toolbar's button which has the focus
  ForPanel,         ///< the editor is told first
};

/// The key chooser, at the moment of the key.
struct ChooserState {
  bool HasFocus = false;
  bool Open = false;  ///< its own list is open
};

/// Of a key that is pressed, or released, anywhere in the window.
[[nodiscard]] KeyMeaning MeaningOf(const KeyPress& press, bool pressed);

/// True for a key-down that presses the button with the focus, where the panel leaves it over. One
/// that repeats does not: it would take back one edit after the other.
[[nodiscard]] bool PressesFocusedButton(const KeyEvent& event);

}  // namespace tessera
