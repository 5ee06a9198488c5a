// Bytes and texts with the code pages and the locale of Windows.
#include "text/Text.h"

#include <windows.h>

#include <algorithm>

#include "text/Ascii.h"
#include "text/Utf8.h"

namespace tessera {
namespace {

/// The code page to use for a number that was asked for.
unsigned Effective(unsigned codePage) {
  const bool known = codePage != AnsiCodePage && IsValidCodePage(codePage) != FALSE;
  return known ? codePage : GetACP();
}

/// Empty when the code page takes no such flags, or no default character. `instead` may be null.
std::string Converted(std::wstring_view text, unsigned codePage, DWORD flags, const char* instead) {
  const int length = static_cast<int>(text.size());
  const int size =
      WideCharToMultiByte(codePage, flags, text.data(), length, nullptr, 0, instead, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(codePage, flags, text.data(), length, bytes.data(), size, instead, nullptr);
  return bytes;
}

std::string AsciiBytes(std::wstring_view text) {
  std::string bytes(text.size(), '\0');
  std::ranges::transform(text, bytes.begin(),
                         [](wchar_t character) { return static_cast<char>(character); });
  return bytes;
}

}  // namespace

std::wstring Decode(std::string_view bytes, unsigned codePage) {
  // Every ANSI code page begins with ASCII; others, which a file may ask for, need not.
  if (codePage == AnsiCodePage && IsAscii(bytes)) return FromAscii(bytes);
  const unsigned page = Effective(codePage);
  if (page == Utf8CodePage) return WideFromUtf8(bytes);
  const int length = static_cast<int>(bytes.size());
  const int size = MultiByteToWideChar(page, 0, bytes.data(), length, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(page, 0, bytes.data(), length, text.data(), size);
  return text;
}

std::string Encode(std::wstring_view text, unsigned codePage) {
  if (codePage == AnsiCodePage && IsAscii(text)) return AsciiBytes(text);
  const unsigned page = Effective(codePage);
  if (page == Utf8CodePage) return Utf8FromWide(text);
  const std::string bytes = Converted(text, page, WC_NO_BEST_FIT_CHARS, "?");
  // Some code pages, such as UTF-7, take neither.
  return bytes.empty() ? Converted(text, page, 0, nullptr) : bytes;
}

std::wstring ToUpper(std::wstring_view text) {
  std::wstring upper(text);
  if (IsAscii(text)) {
    std::ranges::transform(text, upper.begin(), AsciiUpper<wchar_t>);
    return upper;
  }
  const int length = static_cast<int>(text.size());
  LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, text.data(), length, upper.data(), length,
                nullptr, nullptr, 0);
  return upper;
}

int CompareTexts(std::wstring_view left, std::wstring_view right) {
  // The system takes no null pointer, as an empty text may have, not even with a length of 0.
  const auto startOf = [](std::wstring_view text) { return text.empty() ? L"" : text.data(); };
  const int result = CompareStringEx(LOCALE_NAME_USER_DEFAULT, NORM_IGNORECASE, startOf(left),
                                     static_cast<int>(left.size()), startOf(right),
                                     static_cast<int>(right.size()), nullptr, nullptr, 0);
  return result - CSTR_EQUAL;
}

}  // namespace tessera
