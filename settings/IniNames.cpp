// Comparing names: quickly for ASCII, as decoded texts otherwise.
#include "settings/IniNames.h"

#include <algorithm>

#include "platform/Ascii.h"
#include "platform/Text.h"
#include "platform/TextHash.h"

namespace tessera {

std::size_t IniNameHash::operator()(std::string_view name) const {
  return IsAscii(name) ? HashOfAscii(name) : HashIgnoringCase()(Decode(name, CodePage));
}

bool IniNameEqual::operator()(std::string_view left, std::string_view right) const {
  if (left == right) return true;
  if (IsAscii(left) && IsAscii(right)) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char l, char r) { return AsciiUpper(l) == AsciiUpper(r); });
  }
  return EqualIgnoringCase(Decode(left, CodePage), Decode(right, CodePage));
}

}  // namespace tessera
