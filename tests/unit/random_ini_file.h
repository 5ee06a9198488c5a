// Random INI files: mixed line ends, odd bytes, comments, duplicates, blanks, UTF-16, byte order
// marks.
#pragma once

#include <random>
#include <string>
#include <string_view>

namespace tessera {

/// Small files with all that the engine must take.
class RandomFile {
 public:
  explicit RandomFile(std::mt19937& engine) : engine_(engine) {}

  [[nodiscard]] std::size_t Below(std::size_t limit) { return engine_() % limit; }

  template <std::size_t Count>
  std::string OneOf(const std::string_view (&choices)[Count]) {
    return std::string(choices[Below(Count)]);
  }

  std::string Name() {
    return OneOf({"a", "b", "B", "c d", "", "\xE9", "\xC9", "s", "\"q\"", "A+=", "key", "KEY"});
  }

  std::string Value() {
    switch (Below(12)) {
      case 0:
        return "\xE4\xF6";  // as TotalCommander's SetEncoding
      case 1:
        return "\xEF\xBB\xBF\xD0\xAF";
      case 2:
        return RandomBytes(Below(30));
      case 3:
        return Below(200) == 0 ? std::string(70000, 'x') : "x";
      default:
        return OneOf({"", "1", "\"quoted\"", "a=b", "; no comment", "[x]", "v \t", "longer value"});
    }
  }

  std::string Bytes() {
    lineEnd_ = OneOf({"\r\n", "\n", "\r", "mixed"});
    std::string text = OneOf({"", "", "", "\xEF\xBB\xBF", "\r\n", ";top\n", "\xFF", "\xFE\xFF"});
    for (std::size_t lines = Below(24); lines > 0; --lines) text += AnyLine();
    if (Below(2) == 0) text += OneOf({"k=last", "[open", ";end", "alone", "k=", " "});
    return Below(4) == 0 ? AsUtf16(text) : text;
  }

 private:
  std::string RandomBytes(std::size_t length) {
    std::string bytes;
    while (bytes.size() < length) {
      const char byte = static_cast<char>(Below(256));
      if (byte != '\r' && byte != '\n') bytes += byte;
    }
    return bytes;
  }

  std::string LineEnd() {
    return lineEnd_ == "mixed" ? OneOf({"\r\n", "\n", "\r", "\r\r\n", "\n\r"}) : lineEnd_;
  }

  std::string AnyLine() {
    using namespace std::literals;
    static constexpr std::string_view blanks[] = {"", "", "", " ", "\t", "\0 "sv, "\x1A", "\x0B"};
    const std::string blank = OneOf(blanks);
    switch (Below(8)) {
      case 0:
        return blank + "[" + OneOf(blanks) + Name() + blank +
               OneOf({"]", "]", "]", "", "]x", "]]"}) + LineEnd();
      case 1:
        return blank + ";" + Value() + LineEnd();
      case 2:
        return OneOf({"alone", "", "", "\0\x01\x1A"sv, "==", "x]", "=v"}) + LineEnd();
      default:
        return blank + Name() + OneOf(blanks) + "=" + blank + Value() + LineEnd();
    }
  }

  /// Each byte as a character, some of them beyond Latin, and sometimes half a character more.
  std::string AsUtf16(const std::string& text) {
    std::string bytes = "\xFF\xFE";
    for (const char byte : text) {
      const bool isPlain = static_cast<unsigned char>(byte) < 0xF8 || Below(2) == 0;
      bytes += byte;
      bytes += static_cast<char>(isPlain ? 0 : OneOf({"\x04", "\xD8", "\xDC", "\x20"}).front());
    }
    return Below(8) == 0 ? bytes + 'Z' : bytes;
  }

  std::mt19937& engine_;
  std::string lineEnd_;
};

}  // namespace tessera
