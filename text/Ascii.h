// The quick way for texts of ASCII alone, which nearly all texts of the files are.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>

namespace tessera {

[[nodiscard]] constexpr bool IsAscii(char character) {
  return static_cast<unsigned char>(character) < 0x80;
}

[[nodiscard]] constexpr bool IsAscii(wchar_t character) {
  return static_cast<std::make_unsigned_t<wchar_t>>(character) < 0x80;
}

template <typename Text>
[[nodiscard]] constexpr bool IsAscii(const Text& text) {
  using Bits = std::make_unsigned_t<typename Text::value_type>;
  // Without an early way out, so that many characters are looked at at once.
  Bits bits = 0;
  for (const auto character : text) bits = static_cast<Bits>(bits | static_cast<Bits>(character));
  return bits < 0x80;
}

[[nodiscard]] inline std::wstring FromAscii(std::string_view bytes) {
  return {bytes.begin(), bytes.end()};
}

template <typename Character>
[[nodiscard]] constexpr Character AsciiLower(Character character) {
  const bool isUpper = character >= 'A' && character <= 'Z';
  return static_cast<Character>(isUpper ? character - 'A' + 'a' : character);
}

template <typename Character>
[[nodiscard]] constexpr Character AsciiUpper(Character character) {
  const bool isLower = character >= 'a' && character <= 'z';
  return static_cast<Character>(isLower ? character - 'a' + 'A' : character);
}

}  // namespace tessera
