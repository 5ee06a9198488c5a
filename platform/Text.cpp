// The one rule of comparing without regard to case: texts are equal when they are so in upper case.
#include "platform/Text.h"

#include <algorithm>

#include "platform/Ascii.h"

namespace tessera {

bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right) {
  if (left.size() != right.size()) return false;
  if (!IsAscii(left) || !IsAscii(right)) return ToUpper(left) == ToUpper(right);
  return std::equal(left.begin(), left.end(), right.begin(),
                    [](wchar_t l, wchar_t r) { return AsciiUpper(l) == AsciiUpper(r); });
}

}  // namespace tessera
