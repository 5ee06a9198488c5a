// The INI engine on random files of every kind, against a second reader that is slow and simple.
#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <string>
#include <vector>

#include "settings/IniDocument.h"
#include "tests/unit/rounds.h"

namespace tessera {
namespace {

using namespace std::literals;

/// A text as code units: the bytes of an ANSI file, the 16-bit units of a UTF-16 file.
using Units = std::u32string;

// -- The second reader

constexpr bool IsBlank(char32_t unit) { return unit <= 0x20; }

Units Trimmed(Units text) {
  while (!text.empty() && IsBlank(text.front())) text.erase(0, 1);
  while (!text.empty() && IsBlank(text.back())) text.pop_back();
  return text;
}

/// Upper case of the letters that the random files use.
Units Upper(Units text) {
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

Line LineOf(const Units& text) {
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

class SimpleReader {
 public:
  explicit SimpleReader(const std::string& bytes) {
    Units text;
    if (bytes.starts_with("\xFF\xFE")) {
      for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
        text += static_cast<char32_t>(static_cast<unsigned char>(bytes[i]) |
                                      static_cast<unsigned char>(bytes[i + 1]) << 8U);
      }
    } else {
      for (const char byte : bytes) text += static_cast<unsigned char>(byte);
    }
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
    for (const Line& line : LinesOf(section)) {
      if (line.Is == Line::Kind::Key && Upper(line.Name) == Upper(key)) return line.Value;
    }
    return std::nullopt;
  }

 private:
  std::vector<Line> lines_;
};

/// What the engine gives, as units: UTF-8, which may hold single surrogates, for a UTF-16 file.
Units UnitsOf(std::string_view text, bool isUtf16) {
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
std::string NameFor(const Units& name, bool isUtf16) {
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

// -- Random files

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

/// Asks engine and reader the same about the whole file.
void ExpectSameAnswers(const IniDocument& document, const SimpleReader& reader, bool isUtf16) {
  std::vector<Units> names;
  for (const std::string_view name : document.SectionNames()) {
    names.push_back(UnitsOf(name, isUtf16));
  }
  ASSERT_EQ(names, reader.Sections());
  for (const char* section : {"a", "B", "c d", "", "\xE9", "s", " key "}) {
    const Units sectionUnits = UnitsOf(WithoutSpaces(section), false);
    const std::string sectionName = NameFor(UnitsOf(section, false), isUtf16);
    std::vector<Units> expected;
    for (const Line& line : reader.LinesOf(sectionUnits)) {
      if (line.Is == Line::Kind::Key) expected.push_back(line.Name + U"=" + line.Value);
      if (line.Is == Line::Kind::Other) expected.push_back(line.Name);
    }
    std::vector<Units> lines;
    for (const std::string& line : document.Lines(sectionName)) {
      lines.push_back(UnitsOf(line, isUtf16));
    }
    ASSERT_EQ(lines, expected);
    for (const char* key : {"a", "b", "C D", "", "\xC9", "\"q\"", "A+", " key"}) {
      const auto expectedValue = reader.Find(sectionUnits, UnitsOf(WithoutSpaces(key), false));
      const auto found = document.Find(sectionName, NameFor(UnitsOf(key, false), isUtf16));
      ASSERT_EQ(found.has_value(), expectedValue.has_value()) << section << "/" << key;
      ASSERT_EQ(UnitsOf(found.value_or(""), isUtf16), expectedValue.value_or(U""))
          << section << "/" << key;
    }
  }
}

TEST(IniProperties, ReadingGivesWhatTheSimpleReaderGivesAndChangesNoByte) {
  std::mt19937 engine(1);
  for (int i = 0; i < Rounds(10'000); ++i) {
    const std::string file = RandomFile(engine).Bytes();
    const IniDocument document(file);
    const bool isUtf16 = document.FileEncoding() == IniDocument::Encoding::Utf16Le;
    ASSERT_NO_FATAL_FAILURE(ExpectSameAnswers(document, SimpleReader(file), isUtf16))
        << i << ": " << testing::PrintToString(file);
    ASSERT_EQ(document.Bytes(), file);
  }
}

/// The lines of a file with their ends; a UTF-16 file in units of two bytes.
std::vector<std::string_view> LinesWithEnds(std::string_view bytes) {
  const std::size_t width = bytes.starts_with("\xFF\xFE") ? 2 : 1;
  std::vector<std::string_view> lines;
  const auto isUnit = [&](std::size_t at, char unit) {
    return at + width <= bytes.size() && bytes[at] == unit && (width == 1 || bytes[at + 1] == 0);
  };
  std::size_t begin = 0;
  for (std::size_t i = 0; i < bytes.size(); i += width) {
    const bool ends = isUnit(i, '\n') || (isUnit(i, '\r') && !isUnit(i + width, '\n'));
    if (!ends) continue;
    lines.push_back(bytes.substr(begin, i + width - begin));
    begin = i + width;
  }
  lines.push_back(bytes.substr(begin));
  return lines;
}

/// How many lines of `before`, from the first that differs to the last, and of `after`.
std::pair<std::size_t, std::size_t> ChangedLines(const std::string& before,
                                                 const std::string& after) {
  const auto old = LinesWithEnds(before);
  const auto now = LinesWithEnds(after);
  std::size_t head = 0;
  while (head < old.size() && head < now.size() && old[head] == now[head]) ++head;
  std::size_t tail = 0;
  while (tail < old.size() - head && tail < now.size() - head &&
         old[old.size() - 1 - tail] == now[now.size() - 1 - tail]) {
    ++tail;
  }
  return {old.size() - head - tail, now.size() - head - tail};
}

TEST(IniProperties, AnEditTouchesOnlyItsLineAndReadsBack) {
  std::mt19937 engine(2);
  for (int i = 0; i < Rounds(5000); ++i) {
    RandomFile random(engine);
    const std::string file = random.Bytes();
    const bool isUtf16 = file.starts_with("\xFF\xFE");
    if (isUtf16 && file.size() % 2 != 0) continue;  // nothing can stand behind half a character
    IniDocument document(file);
    for (int edit = 0; edit < 3; ++edit) {
      const std::string before = document.Bytes();
      const Units section = UnitsOf(random.OneOf({"s", "a", "c d", "new"}), false);
      const Units key = UnitsOf(random.OneOf({"a", "b", "key", "fresh"}), false);
      const auto present = SimpleReader(before).Find(section, key);

      if (random.Below(3) == 0) {
        document.Remove(NameFor(section, isUtf16), NameFor(key, isUtf16));
        const auto [gone, added] = ChangedLines(before, document.Bytes());
        ASSERT_EQ(gone, present ? 1U : 0U) << testing::PrintToString(before);
        ASSERT_LE(added, 1U);  // what is left of a file without a last line end
        continue;
      }
      const Units value = UnitsOf("value " + std::to_string(edit), false);
      document.Set(NameFor(section, isUtf16), NameFor(key, isUtf16), NameFor(value, isUtf16));
      ASSERT_EQ(SimpleReader(document.Bytes()).Find(section, key), value);
      // A line that ended with the file gets an end before another one follows.
      const auto [gone, added] = ChangedLines(before, document.Bytes());
      ASSERT_LE(gone, 1U) << testing::PrintToString(before) << "->"
                          << testing::PrintToString(document.Bytes());
      ASSERT_LE(added, 4U);
      ASSERT_NO_FATAL_FAILURE(ExpectSameAnswers(document, SimpleReader(document.Bytes()), isUtf16));
    }
  }
}

}  // namespace
}  // namespace tessera
