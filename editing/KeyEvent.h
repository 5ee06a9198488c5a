// A key of the keyboard, pressed or released.
#pragma once

namespace tessera {

/// The virtual-key codes that the program knows by name.
enum class KeyCode : int {
  Backspace = 8,
  Tab = 9,
  Enter = 13,
  Shift = 16,
  Ctrl = 17,
  Alt = 18,
  Escape = 27,
  Space = 32,
  PageUp = 33,
  PageDown = 34,
  End = 35,
  Home = 36,
  Left = 37,
  Up = 38,
  Right = 39,
  Down = 40,
  Insert = 45,
  Delete = 46,
  Digit0 = 48,
  Digit9 = 57,
  LetterA = 65,
  LetterZ = 90,
  ContextMenu = 93,
  Multiply = 106,  ///< this and the next three are the keypad's
  Add = 107,
  Subtract = 109,
  Divide = 111,
  F1 = 112,
  F4 = 115,
  F10 = 121,
  F12 = 123,
};

/// No key chosen in the chooser.
inline constexpr int NoKeyChosen = -1;

struct KeyEvent {
  KeyCode Code{};  ///< any virtual-key code
  bool CtrlHeld = false;
  bool AltHeld = false;
  bool ShiftHeld = false;

  /// Of a key-down: the key was down before, as one that repeats; or, of a modifier, its twin on
  /// the other side of the keyboard was.
  bool WasDown = false;

  /// The key that the press chooses in the chooser, as KeyChosenBy tells; an index into
  /// KeyVocabulary().
  int Chooses = NoKeyChosen;
};

[[nodiscard]] constexpr bool AnyModifierHeld(const KeyEvent& event) {
  return event.CtrlHeld || event.AltHeld || event.ShiftHeld;
}

}  // namespace tessera
