// UTF-8 to and from texts and UTF-16, keeping unpaired surrogates.
#include "text/Utf8.h"

namespace tessera {
namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }
constexpr bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// The number of bytes that a character with this first byte takes; 0 when none begins so.
std::size_t LengthFromLead(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  if (byte < 0x80) return 1;
  if (byte < 0xC2) return 0;
  if (byte < 0xE0) return 2;
  if (byte < 0xF0) return 3;
  return byte < 0xF5 ? 4 : 0;
}

/// Takes one character, or one byte that begins none, and moves `position` past it.
char32_t TakeUtf8(std::string_view bytes, std::size_t& position) {
  static constexpr char32_t smallest[] = {0x80, 0x800, 0x10000};  // of two bytes and more
  const std::size_t begin = position++;
  const std::size_t length = LengthFromLead(bytes[begin]);
  if (length == 1) return static_cast<unsigned char>(bytes[begin]);
  if (length == 0 || bytes.size() - begin < length) return replacement;
  char32_t character = static_cast<unsigned char>(bytes[begin]) & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(bytes[begin + i])) return replacement;
    character = character << 6 | (static_cast<unsigned char>(bytes[begin + i]) & 0x3F);
  }
  if (character < smallest[length - 2] || character > 0x10FFFF) return replacement;
  position = begin + length;
  return character;
}

/// `unitAt(i)` gives unit i of `count`, of which there must be one at `position`. Two surrogates
/// that belong together become one character.
template <typename UnitAt>
char32_t TakeFromUnits(std::size_t count, std::size_t& position, UnitAt unitAt) {
  const char32_t unit = unitAt(position++);
  if (!IsHighSurrogate(unit) || position == count || !IsLowSurrogate(unitAt(position))) return unit;
  return 0x10000 + ((unit - 0xD800) << 10) + (unitAt(position++) - 0xDC00);
}

template <typename UnitAt>
std::string Utf8FromUnits(std::size_t count, UnitAt unitAt) {
  std::string bytes;
  bytes.reserve(count);
  for (std::size_t position = 0; position < count;) {
    AppendUtf8(bytes, TakeFromUnits(count, position, unitAt));
  }
  return bytes;
}

/// Gives each UTF-16 unit of a character to `take`.
template <typename Take>
void ForEachUtf16Unit(char32_t character, Take take) {
  if (character < 0x10000) {
    take(character);
  } else {
    take(0xD800 + ((character - 0x10000) >> 10));
    take(0xDC00 + (character & 0x3FF));
  }
}

}  // namespace

void AppendUtf8(std::string& bytes, char32_t character) {
  const auto tail = [&](int shift) {
    bytes += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
  };
  if (character < 0x80) {
    bytes += static_cast<char>(character);
  } else if (character < 0x800) {
    bytes += static_cast<char>(0xC0 | character >> 6);
    tail(0);
  } else if (character < 0x10000) {
    bytes += static_cast<char>(0xE0 | character >> 12);
    tail(6);
    tail(0);
  } else {
    bytes += static_cast<char>(0xF0 | character >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

std::wstring WideFromUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  const auto append = [&](char32_t unit) { text += static_cast<wchar_t>(unit); };
  for (std::size_t position = 0; position < bytes.size();) {
    const char32_t character = TakeUtf8(bytes, position);
    if constexpr (sizeof(wchar_t) == 2) {
      ForEachUtf16Unit(character, append);
    } else {
      append(character);
    }
  }
  return text;
}

char32_t TakeCharacter(std::wstring_view text, std::size_t& position) {
  return TakeFromUnits(text.size(), position,
                       [text](std::size_t i) { return static_cast<char32_t>(text[i]); });
}

std::string Utf8FromWide(std::wstring_view text) {
  return Utf8FromUnits(text.size(), [&](std::size_t i) { return static_cast<char32_t>(text[i]); });
}

std::string Utf8FromUtf16Le(std::string_view bytes) {
  return Utf8FromUnits(bytes.size() / 2, [&](std::size_t i) {
    const unsigned low = static_cast<unsigned char>(bytes[2 * i]);
    const unsigned high = static_cast<unsigned char>(bytes[2 * i + 1]);
    return static_cast<char32_t>(low | high << 8);
  });
}

std::string Utf16LeFromUtf8(std::string_view bytes) {
  std::string units;
  units.reserve(bytes.size() * 2);
  for (std::size_t position = 0; position < bytes.size();) {
    ForEachUtf16Unit(TakeUtf8(bytes, position), [&](char32_t unit) {
      units += static_cast<char>(unit & 0xFF);
      units += static_cast<char>(unit >> 8);
    });
  }
  return units;
}

std::string_view CutUtf8(std::string_view bytes, std::size_t limit) {
  if (bytes.size() <= limit) return bytes;
  std::size_t end = limit;
  while (end > 0 && limit - end < 3 && IsContinuation(bytes[end])) --end;
  return bytes.substr(0, end);
}

}  // namespace tessera
