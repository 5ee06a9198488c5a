// Taking INI lines apart.
#include "settings/ini/IniText.h"

#include <algorithm>

#include "text/Trim.h"

namespace tessera {
namespace {

constexpr bool EndsLine(char byte) { return byte == '\r' || byte == '\n'; }

bool BeginsWith(std::string_view line, char first) {
  const auto* const found = std::ranges::find_if_not(line, IsIniBlank);
  return found != line.end() && *found == first;
}

}  // namespace

std::string_view TrimIniBlanks(std::string_view text) { return Trim(text, IsIniBlank); }

bool HasLineBreak(std::string_view text) { return std::ranges::any_of(text, EndsLine); }

std::optional<IniEntry> EntryOf(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || IsComment(line)) return std::nullopt;
  return IniEntry{TrimIniBlanks(line.substr(0, equals)), TrimIniBlanks(line.substr(equals + 1))};
}

bool IsComment(std::string_view line) { return BeginsWith(line, ';'); }

bool IsHeader(std::string_view line) { return BeginsWith(line, '['); }

std::string_view HeaderName(std::string_view text) {
  const auto* const bracket = std::ranges::find_if_not(text, IsIniBlank);
  const auto* const begin = bracket == text.end() ? bracket : bracket + 1;
  const auto* const end =
      std::find_if(begin, text.end(), [](char byte) { return byte == ']' || EndsLine(byte); });
  std::string_view inner(begin, end);
  while (!inner.empty() && IsIniBlank(inner.front())) inner.remove_prefix(1);
  // A NUL behind the name belongs to it: big-endian UTF-16 is not to be half understood.
  while (!inner.empty() && IsIniBlank(inner.back()) && inner.back() != '\0') inner.remove_suffix(1);
  return inner;
}

}  // namespace tessera
