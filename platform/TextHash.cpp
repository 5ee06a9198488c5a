// Hashes a text as if it stood in upper case.
#include "platform/TextHash.h"

namespace tessera {

std::size_t HashIgnoringCase::operator()(std::wstring_view text) const {
  if (IsAscii(text)) return HashOfAscii(text);
  TextHash hash;
  for (const wchar_t character : ToUpper(text)) hash.Add(static_cast<std::uint64_t>(character));
  return hash.Value();
}

}  // namespace tessera
