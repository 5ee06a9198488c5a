// Bytes and texts where there is no Windows; the ANSI code page is Windows-1252 there.
#include "text/Text.h"

#include <locale.h>
#include <wctype.h>

#include <algorithm>
#include <array>

#include "text/Ascii.h"
#include "text/Utf8.h"

namespace tessera {
namespace {

/// The characters of the bytes 80 to 9F; the five bytes without one stand for themselves, as on
/// Windows.
constexpr std::array<wchar_t, 32> upperControls = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

wchar_t FromWindows1252(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code >= 0x80 && code < 0xA0 ? upperControls[code - 0x80] : static_cast<wchar_t>(code);
}

char ToWindows1252(wchar_t character) {
  if (IsAscii(character)) return static_cast<char>(character);
  const auto* const found = std::ranges::find(upperControls, character);
  if (found != upperControls.end()) {
    return static_cast<char>(0x80 + (found - upperControls.begin()));
  }
  const bool sameCode = character >= 0xA0 && character < 0x100;
  return sameCode ? static_cast<char>(character) : '?';
}

std::string Windows1252Of(std::wstring_view text) {
  if (IsAscii(text)) return {text.begin(), text.end()};
  std::string bytes(text.size(), '\0');
  std::ranges::transform(text, bytes.begin(), ToWindows1252);
  return bytes;
}

/// Letter cases of all characters, whatever the locale of the process.
locale_t CaseLocale() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

wchar_t LowerOf(wchar_t character) {
  if (IsAscii(character)) return AsciiLower(character);
  return static_cast<wchar_t>(towlower_l(static_cast<wint_t>(character), CaseLocale()));
}

wchar_t UpperOf(wchar_t character) {
  if (IsAscii(character)) return AsciiUpper(character);
  return static_cast<wchar_t>(towupper_l(static_cast<wint_t>(character), CaseLocale()));
}

}  // namespace

std::wstring Decode(std::string_view bytes, unsigned codePage) {
  if (codePage == Utf8CodePage) return WideFromUtf8(bytes);
  if (IsAscii(bytes)) return FromAscii(bytes);
  std::wstring text(bytes.size(), L'\0');
  std::ranges::transform(bytes, text.begin(), FromWindows1252);
  return text;
}

std::string Encode(std::wstring_view text, unsigned codePage) {
  return codePage == Utf8CodePage ? Utf8FromWide(text) : Windows1252Of(text);
}

std::wstring ToUpper(std::wstring_view text) {
  std::wstring upper(text);
  std::ranges::transform(upper, upper.begin(), UpperOf);
  return upper;
}

int CompareTexts(std::wstring_view left, std::wstring_view right) {
  const auto [l, r] =
      std::mismatch(left.begin(), left.end(), right.begin(), right.end(),
                    [](wchar_t a, wchar_t b) { return a == b || LowerOf(a) == LowerOf(b); });
  if (l == left.end() || r == right.end()) return (l != left.end()) - (r != right.end());
  return LowerOf(*l) < LowerOf(*r) ? -1 : 1;
}

}  // namespace tessera
