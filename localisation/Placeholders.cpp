// Puts values into a text from its begin to its end.
#include "localisation/Placeholders.h"

namespace tessera {

std::wstring WithValues(std::wstring_view text, std::initializer_list<std::wstring_view> values) {
  std::wstring filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const wchar_t digit = text[at] == L'%' && at + 1 < text.size() ? text[at + 1] : L'\0';
    const auto index = static_cast<std::size_t>(digit) - L'1';
    if (digit >= L'1' && index < values.size()) {
      filled += values.begin()[index];
      ++at;
    } else {
      filled += text[at];
    }
  }
  return filled;
}

}  // namespace tessera
