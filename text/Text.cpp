// The one rule of comparing without regard to case: texts are equal when they are so in upper case.
#include "text/Text.h"

#include "text/Ascii.h"

namespace tessera {

bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right) {
  if (left.size() != right.size()) return false;
  for (std::size_t at = 0; at < left.size(); ++at) {
    if (left[at] == right[at]) continue;
    if (!IsAscii(left[at]) || !IsAscii(right[at])) return ToUpper(left) == ToUpper(right);
    if (AsciiUpper(left[at]) != AsciiUpper(right[at])) return false;
  }
  return true;
}

}  // namespace tessera
