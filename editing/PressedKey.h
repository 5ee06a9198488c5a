// Which key a press chooses in the chooser, and which presses stay with the controls.
#pragma once

#include <string_view>

#include "editing/KeyEvent.h"

namespace tessera {

/// What has the keyboard's focus.
enum class FocusPlace { Elsewhere, CommandList, Chooser, Toolbar, TextBox, KeysList };

/// The press of a key, and what it finds.
struct KeyPress {
  KeyEvent Event;
  bool Extended = false;      ///< told so by the keyboard, as arrows are that are not the keypad's
  wchar_t Character = L'\0';  ///< what the key gives by itself in the user's layout; 0 for nothing
  FocusPlace Focus = FocusPlace::Elsewhere;
  bool ChooserOpen = false;  ///< the chooser's own list
};

/// The key that a press chooses: an index into KeyVocabulary(), or NoKeyChosen. `mnemonics` are the
/// letters that do something with Alt.
[[nodiscard]] int KeyChosenBy(const KeyPress& press, bool useContextMenuKey,
                              std::wstring_view mnemonics);

}  // namespace tessera
