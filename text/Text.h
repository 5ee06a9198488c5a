// Bytes and texts, and comparing texts without regard to case.
#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// Code page numbers for the two functions below; any other number of the system's may be given
/// too.
inline constexpr unsigned AnsiCodePage = 0;
inline constexpr unsigned Utf8CodePage = 65001;

/// Bytes to text. Bytes that the code page does not know become the system's replacement
/// character; an unknown code page number is taken as the ANSI code page.
[[nodiscard]] std::wstring Decode(std::string_view bytes, unsigned codePage = AnsiCodePage);

/// Text to bytes. Characters that the code page cannot hold become "?".
[[nodiscard]] std::string Encode(std::wstring_view text, unsigned codePage = AnsiCodePage);

/// The text in upper case, character by character; its length stays.
[[nodiscard]] std::wstring ToUpper(std::wstring_view text);

/// True when both are the same text in upper case. The one comparison of this kind; TextHash.h has
/// the hash that goes with it.
[[nodiscard]] bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right);

/// Order of two texts in the user's locale, letter case ignored: below, equal to or above 0.
[[nodiscard]] int CompareTexts(std::wstring_view left, std::wstring_view right);

}  // namespace tessera
