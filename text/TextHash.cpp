// Hashes a text as if it stood in upper case.
#include "text/TextHash.h"

namespace tessera {
namespace {

std::size_t HashOfUpper(std::wstring_view text) {
  TextHash hash;
  for (const wchar_t character : ToUpper(text)) hash.Add(static_cast<std::uint64_t>(character));
  return hash.Value();
}

}  // namespace

std::size_t HashIgnoringCase::operator()(std::wstring_view text) const {
  return IsAscii(text) ? HashOfAscii(text) : HashOfUpper(text);
}

}  // namespace tessera
