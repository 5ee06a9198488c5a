// Taking away what stands at both ends of a text.
#pragma once

#include <string_view>

namespace tessera {

/// Without the characters at both ends for which `isDropped` holds.
template <typename Character, typename IsDropped>
[[nodiscard]] constexpr std::basic_string_view<Character> Trim(
    std::basic_string_view<Character> text, IsDropped isDropped) {
  while (!text.empty() && isDropped(text.front())) text.remove_prefix(1);
  while (!text.empty() && isDropped(text.back())) text.remove_suffix(1);
  return text;
}

/// Without the spaces at both ends; tabs and other blanks stay.
[[nodiscard]] constexpr std::wstring_view TrimSpaces(std::wstring_view text) {
  return Trim(text, [](wchar_t character) { return character == L' '; });
}
[[nodiscard]] constexpr std::string_view TrimSpaces(std::string_view text) {
  return Trim(text, [](char byte) { return byte == ' '; });
}

}  // namespace tessera
