// Nearly all texts are plain, and are copied as they are.
#include "export/Html.h"

#include <algorithm>

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

constexpr bool IsPlain(wchar_t character) {
  return character >= L' ' && character < L'\x7F' && character != L'&' && character != L'<' &&
         character != L'>' && character != L'"';
}

bool IsAllPlain(std::wstring_view text) {
  // Without an early way out, so that many characters are looked at at once.
  bool isPlain = true;
  for (const wchar_t character : text) isPlain &= IsPlain(character);
  return isPlain;
}

void AppendPlain(std::string& html, std::wstring_view text) {
  const std::size_t end = html.size();
  html.resize(end + text.size());
  std::ranges::transform(text, html.begin() + static_cast<std::ptrdiff_t>(end),
                         [](wchar_t character) { return static_cast<char>(character); });
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
  if (IsAllPlain(text)) {
    AppendPlain(html, text);
    return;
  }
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

}  // namespace tessera
