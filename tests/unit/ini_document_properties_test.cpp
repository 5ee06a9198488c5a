// INI content made of random pieces, read and edited.
#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

#include "settings/ini/IniDocument.h"
#include "text/Lines.h"

namespace tessera::ini_document_properties_test {
namespace {

using namespace std::literals;

FormerLine KeepNone(const IniEntry& /*line*/) { return FormerLine::Goes; }

class RandomFiles {
 public:
  explicit RandomFiles(unsigned seed) : engine_(seed) {}

  template <std::size_t Count>
  std::string OneOf(const std::string_view (&choices)[Count]) {
    return std::string(choices[engine_() % Count]);
  }

  std::string Name() {
    return OneOf({"a", "b", "B", "c d", "", "\xE9", "\xC9", "s", "=", "\"q\""});
  }

  std::string Value() {
    return OneOf({"", "1", "\"quoted\"", "a=b", "; no comment", "[x]", "\xE4\xF6", "longer value"});
  }

  std::string File() {
    std::string text = OneOf({"", "\xEF\xBB\xBF", "\r\n", ";top\n"});
    for (std::size_t pieces = engine_() % 24; pieces > 0; --pieces) text += Piece();
    return text;
  }

 private:
  std::string Piece() {
    static constexpr std::string_view lineEnds[] = {"\r\n", "\r\n", "\n", "\r", "\r\r\n"};
    static constexpr std::string_view blanks[] = {"", "", "", " ", "\t", "\0 "sv};
    const std::string kind = OneOf({"key", "key", "key", "header", "comment", "junk"});
    const std::string blank = OneOf(blanks);
    if (kind == "key") return blank + Name() + "=" + blank + Value() + OneOf(lineEnds);
    if (kind == "header") {
      return blank + "[" + Name() + "]" + OneOf({"", "x", ";"}) + OneOf(lineEnds);
    }
    if (kind == "comment") return blank + ";" + Value() + OneOf(lineEnds);
    return OneOf({"alone", "[", "\0\x01\x1A"sv, "\r", "\n", "[open\r\n", "==", "x]\n"}) +
           OneOf({"", "\n"});
  }

  std::mt19937 engine_;
};

/// Everything that can be asked of a document.
std::string Everything(const IniDocument& document) {
  std::string all;
  for (const std::string_view section : document.SectionNames()) {
    all.append("[").append(section).append("]\n");
    for (const std::string& line : document.Lines(section)) all.append(line).append("\n");
    for (const auto& entry : document.Entries(section)) {
      all.append(entry.Name).append("->");
      all.append(document.Find(section, entry.Name).value_or("nothing")).append("\n");
    }
  }
  return all;
}

/// True when `after` is `before` with whole lines replaced by one line or by none: what differs
/// begins at a line's begin, holds at most one line of each and ends at a line's end.
bool DiffersInOneLine(std::string_view before, std::string_view after) {
  const auto old = SplitIntoLines(before);
  const auto now = SplitIntoLines(after);
  std::size_t head = 0;
  while (head < old.size() && head < now.size() && old[head] == now[head]) ++head;
  std::size_t tail = 0;
  while (tail < old.size() - head && tail < now.size() - head &&
         old[old.size() - 1 - tail] == now[now.size() - 1 - tail]) {
    ++tail;
  }
  return old.size() - head - tail <= 1 && now.size() - head - tail <= 1;
}

TEST(IniDocumentProperties, ReadingChangesNoByte) {
  RandomFiles random(1);
  for (int i = 0; i < 3000; ++i) {
    const std::string file = random.File();
    const IniDocument document(file);
    static_cast<void>(Everything(document));
    ASSERT_EQ(document.Bytes(), file);
  }
}

TEST(IniDocumentProperties, EditsTouchOnlyTheirLineAndReadBack) {
  RandomFiles random(2);
  for (int i = 0; i < 3000; ++i) {
    IniDocument document(random.File() + "\n[s]\n");
    for (int edit = 0; edit < 8; ++edit) {
      const std::string before = document.Bytes();
      std::string key = random.Name();
      if (key == "=") key = "plain";
      if (edit % 3 == 2) {
        document.Remove("s", key);
      } else {
        const std::string value = random.Value();
        document.Set("s", key, value);
        ASSERT_EQ(document.Find("s", key), value);
      }
      ASSERT_TRUE(DiffersInOneLine(before, document.Bytes())) << before << "->" << document.Bytes();
    }
  }
}

TEST(IniDocumentProperties, EditedDocumentAnswersLikeItsBytesReadAnew) {
  RandomFiles random(3);
  for (int i = 0; i < 800; ++i) {
    IniDocument document(random.File());
    for (int edit = 0; edit < 8; ++edit) {
      const std::string section = random.Name();
      switch (edit % 4) {
        case 0:
        case 1:
          document.Set(section, random.Name(), random.Value());
          break;
        case 2:
          document.Remove(section, random.Name());
          break;
        default:
          if (i % 2 == 0) {
            document.RemoveSection(section);
          } else {
            document.ReplaceEntries(section, {{random.Name(), random.Value()}}, KeepNone);
          }
      }
      ASSERT_EQ(Everything(document), Everything(IniDocument(document.Bytes())));
    }
  }
}

TEST(IniDocumentProperties, AnyUtf16ComesBackAsItWas) {
  std::mt19937 engine(4);
  for (int i = 0; i < 2000; ++i) {
    std::string file = "\xFF\xFE";
    for (std::size_t length = engine() % 60; length > 0; --length) {
      const bool surrogate = engine() % 2 == 0;
      file += static_cast<char>(engine() % 256);
      file += static_cast<char>(surrogate ? 0xD8 + engine() % 8 : engine() % 256);
    }
    if (engine() % 2 == 0) file += '\x7F';
    const IniDocument document(file);
    static_cast<void>(Everything(document));
    ASSERT_EQ(document.Bytes(), file);
  }
}

}  // namespace
}  // namespace tessera::ini_document_properties_test
