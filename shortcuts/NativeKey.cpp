// Names of section "Shortcuts" as keys.
#include "shortcuts/NativeKey.h"

#include <set>

#include "text/Text.h"
#include "text/Trim.h"

namespace tessera {

std::wstring CanonicalKey(std::wstring_view nativeKey) {
  const std::wstring text = ToUpper(nativeKey);
  std::wstring_view name = TrimSpaces(text);
  std::set<wchar_t> letters;
  const std::size_t plus = name.find(L'+');
  // "+" alone joins nothing: it is the keypad plus.
  if (plus != std::wstring_view::npos && name.size() > 1) {
    const std::wstring_view modifiers = name.substr(0, plus);
    letters.insert(modifiers.begin(), modifiers.end());
    letters.erase(L' ');
    name = TrimSpaces(name.substr(plus + 1));
  }
  return std::wstring(letters.begin(), letters.end()).append(1, L'+').append(name);
}

}  // namespace tessera
