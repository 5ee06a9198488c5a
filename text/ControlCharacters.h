// Characters that stand for no sign, such as tabs and line breaks.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tessera {

[[nodiscard]] constexpr bool IsControl(wchar_t character) {
  return character < L' ' || (character >= L'\x7F' && character <= L'\x9F');
}

/// With a blank in the place of each.
[[nodiscard]] inline std::wstring WithoutControls(std::wstring_view text) {
  std::wstring plain(text);
  std::ranges::replace_if(plain, IsControl, L' ');
  return plain;
}

}  // namespace tessera
