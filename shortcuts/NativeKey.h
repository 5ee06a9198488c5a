// Telling whether two names of section "Shortcuts" are one key.
#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// The same text for every way to write a key in Total Commander's notation, and for no other key.
/// The first "+" parts a name, unless it is the whole of it. The letters before it are a set, of
/// any letters; what follows is compared as a whole. Blanks around both and letter case do not
/// count.
[[nodiscard]] std::wstring CanonicalKey(std::wstring_view nativeKey);

}  // namespace tessera
