// UTF-8 to and from texts and UTF-16, the same on every system and without loss for unpaired
// surrogates, which take three bytes each.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessera {

/// The byte order mark, which also marks a single value as UTF-8.
inline constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

/// Each byte that belongs to no character becomes U+FFFD.
[[nodiscard]] std::wstring WideFromUtf8(std::string_view bytes);
[[nodiscard]] std::string Utf8FromWide(std::wstring_view text);

/// The character that begins at `position` of the text, of which there must be one there; moves
/// `position` past it. Two surrogates that belong together are one, others come as they are.
[[nodiscard]] char32_t TakeCharacter(std::wstring_view text, std::size_t& position);

void AppendUtf8(std::string& bytes, char32_t character);

/// Bytes in pairs, the low one first; an odd byte at the end is left out.
[[nodiscard]] std::string Utf8FromUtf16Le(std::string_view bytes);
[[nodiscard]] std::string Utf16LeFromUtf8(std::string_view bytes);

/// At most the first `limit` bytes, without a part of a character at the end.
[[nodiscard]] std::string_view CutUtf8(std::string_view bytes, std::size_t limit);

}  // namespace tessera
