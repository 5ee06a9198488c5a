// Comparing names: quickly for ASCII, as upper-case text otherwise.
#include "settings/IniNames.h"

#include <algorithm>
#include <cstdint>

#include "platform/Ascii.h"
#include "platform/Text.h"

namespace tessera {
namespace {

/// FNV-1a over characters, so that a name has one hash whichever way it was folded.
class Hash {
 public:
  void Add(std::uint64_t character) { value_ = (value_ ^ character) * 0x100000001B3u; }
  [[nodiscard]] std::size_t Value() const { return static_cast<std::size_t>(value_); }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325u;
};

}  // namespace

std::size_t IniNameHash::operator()(std::string_view name) const {
  Hash hash;
  if (IsAscii(name)) {
    for (const char byte : name) hash.Add(static_cast<std::uint64_t>(AsciiUpper(byte)));
  } else {
    for (const wchar_t character : ToUpper(Decode(name, CodePage))) {
      hash.Add(static_cast<std::uint64_t>(character));
    }
  }
  return hash.Value();
}

bool IniNameEqual::operator()(std::string_view left, std::string_view right) const {
  if (left == right) return true;
  if (IsAscii(left) && IsAscii(right)) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char l, char r) { return AsciiUpper(l) == AsciiUpper(r); });
  }
  return ToUpper(Decode(left, CodePage)) == ToUpper(Decode(right, CodePage));
}

}  // namespace tessera
