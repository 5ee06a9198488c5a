// What a key of the keyboard gives in the user's layout.
#pragma once

#include <windows.h>

namespace tessera {

/// The character that the key of a key message gives by itself, without modifiers; 0 for none.
[[nodiscard]] wchar_t KeyCharacter(const MSG& message);

}  // namespace tessera
