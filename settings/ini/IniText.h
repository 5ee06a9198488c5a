// The grammar of INI files: what a line is, and what is in it.
#pragma once

#include <optional>
#include <string_view>

namespace tessera {

inline constexpr std::string_view IniLineEnd = "\r\n";

struct IniEntry {
  std::string_view Name;
  std::string_view Value;
};

/// True for the space and everything below it, line ends and NUL included.
[[nodiscard]] constexpr bool IsIniBlank(char byte) {
  return static_cast<unsigned char>(byte) <= 0x20;
}

/// Without the blanks at both ends.
[[nodiscard]] std::string_view TrimIniBlanks(std::string_view text);

[[nodiscard]] bool HasLineBreak(std::string_view text);

/// Name and value of a line; nothing for a comment and for a line without "=".
[[nodiscard]] std::optional<IniEntry> EntryOf(std::string_view line);

/// True when the first character that is no blank is ";".
[[nodiscard]] bool IsComment(std::string_view line);

/// True when the first character that is no blank is "[".
[[nodiscard]] bool IsHeader(std::string_view line);

/// The name in the header line that a text begins with: up to the first "]", or to the end of the
/// line when it has none.
[[nodiscard]] std::string_view HeaderName(std::string_view text);

}  // namespace tessera
