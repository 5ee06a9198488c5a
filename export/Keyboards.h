// The keys that can be chosen, keyboard by keyboard: one for each set of modifiers.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "export/KeyUses.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

struct KeyboardKey {
  std::wstring Key;        ///< in display notation
  std::wstring_view Name;  ///< of the vocabulary
  std::size_t Place = 0;   ///< in KeyUses::Keys(); beyond them for a free key
};

struct Keyboard {
  HeldModifiers Held;
  std::vector<KeyboardKey> Keys;  ///< in the order of the vocabulary
  std::size_t Free = 0;           ///< how many of them nobody holds
};

/// The eight, those with keys that somebody holds first; else none, Ctrl, Alt, Shift, and further
/// modifiers together.
[[nodiscard]] std::vector<Keyboard> MakeKeyboards(const KeyUses& uses,
                                                  const HotkeyNotation& notation);

/// The places of the held keys that none of the keyboards has, in their order.
[[nodiscard]] std::vector<std::size_t> KeysElsewhere(const KeyUses& uses,
                                                     const std::vector<Keyboard>& keyboards);

}  // namespace tessera
