// Texts as keys of unordered containers, without regard to letter case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/Ascii.h"
#include "text/Text.h"

namespace tessera {

/// A polynomial of the characters of a text. Texts that differ at their end alone, as the codes of
/// commands do, get values near each other: looked up in a row, they are found side by side in
/// memory, which is what counts in a large table.
class TextHash {
 public:
  void Add(std::uint64_t character) { value_ = value_ * 131 + character; }
  [[nodiscard]] std::size_t Value() const { return static_cast<std::size_t>(value_); }

 private:
  std::uint64_t value_ = 0;
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
