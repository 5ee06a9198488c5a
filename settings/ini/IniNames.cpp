// Comparing names: quickly for ASCII, as decoded texts otherwise.
#include "settings/ini/IniNames.h"

#include <algorithm>

#include "text/Ascii.h"
#include "text/Text.h"
#include "text/TextHash.h"

namespace tessera {

std::size_t IniNameHash::operator()(std::string_view name) const {
  return IsAscii(name) ? HashOfAscii(name) : HashIgnoringCase()(Decode(name, CodePage));
}

bool IniNameEqual::operator()(std::string_view left, std::string_view right) const {
  const std::size_t common = std::min(left.size(), right.size());
  for (std::size_t at = 0; at < common; ++at) {
    if (left[at] == right[at] && IsAscii(left[at])) continue;  // the usual case, quickly
    if (!IsAscii(left[at]) || !IsAscii(right[at])) {
      return left == right || EqualIgnoringCase(Decode(left, CodePage), Decode(right, CodePage));
    }
    if (AsciiUpper(left[at]) != AsciiUpper(right[at])) return false;
  }
  return left.size() == right.size();
}

}  // namespace tessera
