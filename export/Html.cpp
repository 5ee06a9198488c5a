// Nearly all texts are plain, and are copied as they are.
#include "export/Html.h"

#include <array>
#include <charconv>
#include <cstddef>

#include "text/ControlCharacters.h"
#include "text/Utf8.h"

namespace tessera {
namespace {

constexpr bool IsWithin(char32_t character, char32_t first, char32_t last) {
  return character >= first && character <= last;
}

/// What HTML may not hold.
constexpr bool IsNoCharacter(char32_t character) {
  return IsWithin(character, 0xD800, 0xDFFF) || IsWithin(character, 0xFDD0, 0xFDEF) ||
         (character & 0xFFFE) == 0xFFFE;
}

/// By the lowest byte of a code, 1 for what is not written as it is.
constexpr std::array<unsigned char, 0x100> MakeOdd() {
  std::array<unsigned char, 0x100> odd{};
  for (std::size_t code = 0; code < odd.size(); ++code) {
    odd[code] = code < U' ' || code >= U'\x7F' ? 1 : 0;
  }
  for (const char32_t sign : {U'&', U'<', U'>', U'"'}) odd[sign] = 1;
  return odd;
}

constexpr std::array<unsigned char, 0x100> Odd = MakeOdd();

/// Appends nothing, and tells so, where a character is not to be written as it is.
bool AppendPlain(std::string& html, std::wstring_view text) {
  const std::size_t begin = html.size();
  html.resize(begin + text.size());
  char* place = html.data() + begin;
  char32_t codes = 0;
  unsigned odd = 0;
  // Without an early way out, which would cost as much as a character.
  for (const wchar_t character : text) {
    codes |= static_cast<char32_t>(character);
    odd |= Odd[static_cast<unsigned char>(character)];
    *place++ = static_cast<char>(character);
  }
  const bool isPlain = odd == 0 && codes < Odd.size();
  if (!isPlain) html.resize(begin);
  return isPlain;
}

void AppendCharacter(std::string& html, char32_t character, std::string_view quote) {
  switch (character) {
    case U'&':
      html += "&amp;";
      break;
    case U'<':
      html += "&lt;";
      break;
    case U'>':
      html += "&gt;";
      break;
    case U'"':
      html += quote;
      break;
    default:
      AppendUtf8(html, IsNoCharacter(character) ? U'\xFFFD' : character);
  }
}

void AppendEscaped(std::string& html, std::wstring_view text, std::string_view quote) {
  if (AppendPlain(html, text)) return;
  for (std::size_t position = 0; position < text.size();) {
    const bool isControl = IsControl(text[position]);
    const char32_t character = TakeCharacter(text, position);
    AppendCharacter(html, isControl ? U' ' : character, quote);
  }
}

}  // namespace

void AppendText(std::string& html, std::wstring_view text) { AppendEscaped(html, text, "\""); }

void AppendValue(std::string& html, std::wstring_view value) {
  AppendEscaped(html, value, "&quot;");
}

void AppendNumber(std::string& html, std::size_t number) {
  std::array<char, 20> digits{};
  const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  html.append(digits.data(), end);
}

}  // namespace tessera
