// The INI engine on random files of every kind, against a second reader that is slow and simple.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "settings/ini/IniDocument.h"
#include "tests/unit/random_ini_file.h"
#include "tests/unit/rounds.h"
#include "tests/unit/simple_ini_reader.h"
#include "text/Trim.h"

namespace tessera::ini_properties_test {
namespace {

/// Asks engine and reader the same about the whole file.
void ExpectSameAnswers(const IniDocument& document, const SimpleReader& reader, bool isUtf16) {
  std::vector<Units> names;
  for (const std::string_view name : document.SectionNames()) {
    names.push_back(UnitsOf(name, isUtf16));
  }
  ASSERT_EQ(names, reader.Sections());
  for (const char* section : {"a", "B", "c d", "", "\xE9", "s", " key "}) {
    const Units sectionUnits = UnitsOf(TrimSpaces(section), false);
    const std::string sectionName = NameFor(UnitsOf(section, false), isUtf16);
    const std::vector<Line> linesRead = reader.LinesOf(sectionUnits);
    std::vector<Units> expected;
    for (const Line& line : linesRead) {
      if (line.Is == Line::Kind::Key) expected.push_back(line.Name + U"=" + line.Value);
      if (line.Is == Line::Kind::Other) expected.push_back(line.Name);
    }
    std::vector<Units> lines;
    for (const std::string& line : document.Lines(sectionName)) {
      lines.push_back(UnitsOf(line, isUtf16));
    }
    ASSERT_EQ(lines, expected);
    for (const char* key : {"a", "b", "C D", "", "\xC9", "\"q\"", "A+", " key"}) {
      const auto expectedValue = SimpleReader::ValueIn(linesRead, UnitsOf(TrimSpaces(key), false));
      const auto found = document.Find(sectionName, NameFor(UnitsOf(key, false), isUtf16));
      ASSERT_EQ(found.has_value(), expectedValue.has_value()) << section << "/" << key;
      ASSERT_EQ(UnitsOf(found.value_or(""), isUtf16), expectedValue.value_or(U""))
          << section << "/" << key;
    }
  }
}

TEST(IniProperties, ReadingGivesWhatTheSimpleReaderGivesAndChangesNoByte) {
  std::mt19937 engine(1);
  for (int i = 0; i < Rounds(3'000); ++i) {
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

/// True when `after` is what is left of `before` without one of its lines. The ends of the lines
/// around that one may then read as one end, CR LF.
bool LacksOneLine(const std::string& before, const std::string& after) {
  return std::ranges::any_of(LinesWithEnds(before), [&](std::string_view line) {
    const auto begin = static_cast<std::size_t>(line.data() - before.data());
    return !line.empty() && after.size() + line.size() == before.size() &&
           before.substr(0, begin).append(before, begin + line.size()) == after;
  });
}

TEST(IniProperties, AnEditTouchesOnlyItsLineAndReadsBack) {
  std::mt19937 engine(2);
  for (int i = 0; i < Rounds(3'000); ++i) {
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
        if (present) {
          ASSERT_TRUE(LacksOneLine(before, document.Bytes())) << testing::PrintToString(before);
        } else {
          ASSERT_EQ(document.Bytes(), before);
        }
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
    }
    ASSERT_NO_FATAL_FAILURE(ExpectSameAnswers(document, SimpleReader(document.Bytes()), isUtf16));
  }
}

/// A file without the key lines of one section, but for those named "key".
struct Emptied {
  std::string Rest;
  std::string Header;         ///< the section's line; empty when there is no such section
  bool HasLinesLeft = false;  ///< in the section, besides blank ones
  int Sections = 0;           ///< of that name
};

Emptied WithoutKeysOf(const std::string& file, const Units& section) {
  const bool isUtf16 = file.starts_with("\xFF\xFE");
  Emptied emptied;
  bool isInside = false;
  for (std::string_view bytes : LinesWithEnds(file)) {
    if (isUtf16 && bytes.data() == file.data()) {
      emptied.Rest = bytes.substr(0, 2);
      bytes.remove_prefix(2);
    }
    const Line line = LineOf(RawUnits(bytes, isUtf16));
    if (line.Is == Line::Kind::Header) {
      const bool isNamed = Upper(line.Name) == Upper(section);
      emptied.Sections += isNamed ? 1 : 0;
      isInside = isNamed && emptied.Sections == 1;
      if (isInside) emptied.Header = bytes;
    } else if (isInside) {
      if (line.Is == Line::Kind::Key && Upper(line.Name) != U"KEY") continue;
      const bool isBlank = line.Is == Line::Kind::Other && line.Name.empty();
      emptied.HasLinesLeft = emptied.HasLinesLeft || !isBlank;
    }
    emptied.Rest += bytes;
  }
  return emptied;
}

/// The text in the encoding of a file.
std::string BytesFor(std::string_view text, bool isUtf16) {
  std::string bytes;
  for (const char byte : text) {
    bytes += byte;
    if (isUtf16) bytes += '\0';
  }
  return bytes;
}

/// `file` without `block`, which must stand in it, nor the line end that the line before it got.
std::string Without(std::string file, const std::string& block, const Emptied& emptied,
                    bool isUtf16) {
  const std::size_t at = file.find(block);
  if (at == std::string::npos) return "(the new lines are missing)";
  file.erase(at, block.size());
  const std::string lineEnd = BytesFor("\r\n", isUtf16);
  const bool gotEnd = at >= lineEnd.size() &&
                      file.compare(at - lineEnd.size(), lineEnd.size(), lineEnd) == 0 &&
                      file.size() == emptied.Rest.size() + lineEnd.size();
  return gotEnd ? file.erase(at - lineEnd.size(), lineEnd.size()) : file;
}

using Entries = std::vector<std::pair<std::string, std::string>>;

/// Replaces a section's keys with new ones, but for "key", and compares the whole file.
void ExpectNothingElseChanged(const std::string& file, const Units& section,
                              const Entries& entries) {
  const bool isUtf16 = file.starts_with("\xFF\xFE");
  IniDocument document(file);
  document.ReplaceEntries(NameFor(section, isUtf16), entries, [](const IniEntry& line) {
    return line.Name == "key" || line.Name == "KEY" ? FormerLine::Stays : FormerLine::Goes;
  });
  const std::string after = document.Bytes();
  Emptied emptied = WithoutKeysOf(file, section);
  if (entries.empty()) {
    if (emptied.Sections == 1 && !emptied.HasLinesLeft) {
      emptied.Rest.erase(emptied.Rest.find(emptied.Header), emptied.Header.size());
    }
    ASSERT_EQ(after, emptied.Rest);
    return;
  }
  std::string lines = emptied.Sections == 0 ? "[" + NameFor(section, false) + "]\r\n" : "";
  for (const auto& [name, value] : entries) {
    lines.append(name).append("=").append(value).append("\r\n");
    ASSERT_EQ(SimpleReader(after).Find(section, UnitsOf(name, false)), UnitsOf(value, false));
  }
  ASSERT_EQ(Without(after, BytesFor(lines, isUtf16), emptied, isUtf16), emptied.Rest);
}

TEST(IniProperties, ReplacedEntriesTouchNothingButTheSectionsKeyLines) {
  std::mt19937 engine(3);
  for (int i = 0; i < Rounds(3'000); ++i) {
    RandomFile random(engine);
    const std::string file = random.Bytes();
    // Nothing can stand behind half a character.
    if (file.starts_with("\xFF\xFE") && file.size() % 2 != 0) continue;
    const Units section = UnitsOf(random.OneOf({"s", "a", "c d", "new"}), false);
    Entries entries;
    for (std::size_t count = random.Below(4); entries.size() < count;) {
      entries.emplace_back("fresh " + std::to_string(entries.size()), "v");
    }
    ASSERT_NO_FATAL_FAILURE(ExpectNothingElseChanged(file, section, entries))
        << i << ": " << testing::PrintToString(file);
  }
}

}  // namespace
}  // namespace tessera::ini_properties_test
