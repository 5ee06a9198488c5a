// Hashes a text as if it stood in upper case.
#include "platform/TextHash.h"

#include <cstdint>

#include "platform/Ascii.h"

namespace tessera {
namespace {

/// FNV-1a over characters, each of which `map` gives its upper case.
template <typename Map>
std::size_t HashOf(std::wstring_view text, Map map) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const wchar_t character : text) {
    hash = (hash ^ static_cast<std::uint64_t>(map(character))) * 0x100000001B3u;
  }
  return static_cast<std::size_t>(hash);
}

}  // namespace

std::size_t HashIgnoringCase::operator()(std::wstring_view text) const {
  if (IsAscii(text)) return HashOf(text, AsciiUpper<wchar_t>);
  return HashOf(ToUpper(text), [](wchar_t character) { return character; });
}

}  // namespace tessera
