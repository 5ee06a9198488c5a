// A second reader of INI files, slow and simple, that the engine is held to.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// A text as code units: the bytes of an ANSI file, the 16-bit units of a UTF-16 file.
using Units = std::u32string;

constexpr bool IsBlank(char32_t unit) { return unit <= 0x20; }

inline Units Trimmed(Units text) {
  while (!text.empty() && IsBlank(text.front())) text.erase(0, 1);
  while (!text.empty() && IsBlank(text.back())) text.pop_back();
  return text;
}

/// Upper case of the letters that the random files use.
inline Units Upper(Units text) {
  for (char32_t& unit : text) {
    const bool isLetter = (unit >= 'a' && unit <= 'z') || (unit >= 0xE0 && unit <= 0xF6);
    if (isLetter) unit -= 0x20;
  }
  return text;
}

struct Line {
  enum class Kind { Header, Comment, Key, Other } Is = Kind::Other;
  Units Name, Value;
};

inline Line LineOf(const Units& text) {
  const Units line = Trimmed(text);
  if (line.starts_with(U';')) return {Line::Kind::Comment, {}, {}};
  if (line.starts_with(U'[')) {
    // The line is not trimmed at its end here: a NUL there belongs to the name.
    Units name = text.substr(text.find(U'[') + 1);
    name = name.substr(0, name.find(U']'));
    while (!name.empty() && IsBlank(name.front())) name.erase(0, 1);
    while (!name.empty() && IsBlank(name.back()) && name.back() != 0) name.pop_back();
    return {Line::Kind::Header, name, {}};
  }
  const std::size_t equals = line.find(U'=');
  if (equals == Units::npos) return {Line::Kind::Other, line, {}};
  return {Line::Kind::Key, Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1))};
}

/// The bytes of a file, without the mark of a UTF-16 one and half a character at its end.
inline Units RawUnits(std::string_view bytes, bool isUtf16) {
  Units units;
  const std::size_t width = isUtf16 ? 2 : 1;
  for (std::size_t i = 0; i + width <= bytes.size(); i += width) {
    const auto low = static_cast<unsigned char>(bytes[i]);
    const auto high = static_cast<unsigned char>(isUtf16 ? bytes[i + 1] : 0);
    units += static_cast<char32_t>(low | high << 8U);
  }
  return units;
}

class SimpleReader {
 public:
  explicit SimpleReader(const std::string& bytes) {
    const bool isUtf16 = bytes.starts_with("\xFF\xFE");
    const Units text = RawUnits(std::string_view(bytes).substr(isUtf16 ? 2 : 0), isUtf16);
    Units line;
    for (const char32_t unit : text + U"\n") {
      if (unit != '\r' && unit != '\n') {
        line += unit;
        continue;
      }
      if (!Trimmed(line).empty()) lines_.push_back(LineOf(line));
      line.clear();
    }
  }

  [[nodiscard]] std::vector<Units> Sections() const {
    std::vector<Units> names;
    for (const Line& line : lines_) {
      if (line.Is == Line::Kind::Header) names.push_back(line.Name);
    }
    return names;
  }

  /// The lines of the first section of that name.
  [[nodiscard]] std::vector<Line> LinesOf(const Units& section) const {
    std::vector<Line> lines;
    bool isInside = false;
    for (const Line& line : lines_) {
      if (line.Is == Line::Kind::Header) {
        if (isInside) break;
        isInside = Upper(line.Name) == Upper(section);
      } else if (isInside) {
        lines.push_back(line);
      }
    }
    return lines;
  }

  [[nodiscard]] std::optional<Units> Find(const Units& section, const Units& key) const {
    return ValueIn(LinesOf(section), key);
  }

  /// The value of the first line with that key.
  [[nodiscard]] static std::optional<Units> ValueIn(const std::vector<Line>& lines,
                                                    const Units& key) {
    for (const Line& line : lines) {
      if (line.Is == Line::Kind::Key && Upper(line.Name) == Upper(key)) return line.Value;
    }
    return std::nullopt;
  }

 private:
  std::vector<Line> lines_;
};

/// What the engine gives, as units: UTF-8, which may hold single surrogates, for a UTF-16 file.
inline Units UnitsOf(std::string_view text, bool isUtf16) {
  Units units;
  for (std::size_t i = 0; i < text.size();) {
    const auto byteAt = [&](std::size_t at) {
      return static_cast<char32_t>(static_cast<unsigned char>(at < text.size() ? text[at] : 0));
    };
    const char32_t first = byteAt(i);
    if (!isUtf16 || first < 0x80) {
      units += first;
      i += 1;
    } else if (first < 0xE0) {
      units += (first & 0x1FU) << 6U | (byteAt(i + 1) & 0x3FU);
      i += 2;
    } else if (first < 0xF0) {
      units += (first & 0xFU) << 12U | (byteAt(i + 1) & 0x3FU) << 6U | (byteAt(i + 2) & 0x3FU);
      i += 3;
    } else {
      const char32_t point = ((first & 7U) << 18U | (byteAt(i + 1) & 0x3FU) << 12U |
                              (byteAt(i + 2) & 0x3FU) << 6U | (byteAt(i + 3) & 0x3FU)) -
                             0x10000U;
      units += 0xD800U + (point >> 10U);
      units += 0xDC00U + (point & 0x3FFU);
      i += 4;
    }
  }
  return units;
}

/// The units of a name as the engine takes it: bytes, or UTF-8. Names here are below U+0100.
inline std::string NameFor(const Units& name, bool isUtf16) {
  std::string bytes;
  for (const char32_t unit : name) {
    if (isUtf16 && unit >= 0x80) {
      bytes += static_cast<char>(0xC0U | unit >> 6U);
      bytes += static_cast<char>(0x80U | (unit & 0x3FU));
    } else {
      bytes += static_cast<char>(unit);
    }
  }
  return bytes;
}

}  // namespace tessera
