// Texts as keys of unordered containers, without regard to letter case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/Ascii.h"
#include "platform/Text.h"

namespace tessera {

/// FNV-1a over the characters of a text.
class TextHash {
 public:
  void Add(std::uint64_t character) { value_ = (value_ ^ character) * 0x100000001B3u; }
  [[nodiscard]] std::size_t Value() const { return static_cast<std::size_t>(value_); }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325u;
};

/// What HashIgnoringCase gives for a text of ASCII alone, which may be of bytes here.
template <typename Text>
[[nodiscard]] std::size_t HashOfAscii(const Text& text) {
  TextHash hash;
  for (const auto character : text) hash.Add(static_cast<std::uint64_t>(AsciiUpper(character)));
  return hash.Value();
}

struct HashIgnoringCase {
  using is_transparent = void;
  [[nodiscard]] std::size_t operator()(std::wstring_view text) const;
};

struct EqualsIgnoringCase {
  using is_transparent = void;
  [[nodiscard]] bool operator()(std::wstring_view left, std::wstring_view right) const {
    return EqualIgnoringCase(left, right);
  }
};

}  // namespace tessera
