// Looking up and editing INI content.
#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "settings/ini/IniDocument.h"
#include "text/Lines.h"

namespace tessera::ini_document_test {
namespace {

using namespace std::literals;
using Entries = std::vector<std::pair<std::string, std::string>>;

FormerLine KeepNone(const IniEntry& /*line*/) { return FormerLine::Goes; }

std::string Replaced(std::string_view before, const Entries& entries,
                     const std::function<FormerLine(const IniEntry&)>& becomes = KeepNone) {
  IniDocument document(before);
  document.ReplaceEntries("s", entries, becomes);
  return document.Bytes();
}

std::string AfterSet(std::string_view before, std::string_view key, std::string_view value) {
  IniDocument document(before);
  document.Set("s", key, value);
  return document.Bytes();
}

/// The ASCII text as UTF-16 with its mark.
std::string Utf16(std::string_view text) {
  std::string bytes = "\xFF\xFE";
  for (const char character : text) bytes.append({character, '\0'});
  return bytes;
}

TEST(IniDocument, EmptyDocumentHasNothing) {
  const IniDocument document;
  EXPECT_EQ(document.Bytes(), "");
  EXPECT_TRUE(document.SectionNames().empty());
  EXPECT_EQ(document.Find("s", "k"), std::nullopt);
}

TEST(IniDocument, SharedBytesStayWhileItIsEdited) {
  const auto bytes = std::make_shared<const std::string>("[s]\nk=1\n");
  IniDocument document(bytes);
  document.Set("s", "k", "2");
  document.Remove("s", "other");
  document.RemoveSection("t");
  EXPECT_EQ(document.Bytes(), "[s]\nk=2\n");
  EXPECT_EQ(*bytes, "[s]\nk=1\n");
}

TEST(IniDocument, ItsBytesOutliveWhoeverSharedThem) {
  auto bytes = std::make_shared<const std::string>("[s]\na=a text of more than a few bytes\nk=1\n");
  IniDocument document(bytes);
  bytes.reset();
  const IniDocument moved = std::move(document);
  EXPECT_EQ(moved.Find("s", "k"), "1");
}

TEST(IniDocument, FirstOfTwoEqualKeysWins) {
  const IniDocument document("[s]\nk=1\nK=2\n");
  for (int lookUp = 0; lookUp < 3; ++lookUp) EXPECT_EQ(document.Find("S", "k"), "1");
}

TEST(IniDocument, LineWithoutEqualsSignIsNoKey) {
  const IniDocument document("[s]\nk\nk=v\n");
  EXPECT_EQ(document.Find("s", "k"), "v");
  EXPECT_EQ(document.Lines("s"), (std::vector<std::string>{"k", "k=v"}));
}

TEST(IniDocument, LetterCaseOfCharactersAboveAsciiDoesNotMatter) {
  EXPECT_EQ(IniDocument("[\xC9t\xE9]\n\xE4=v\n").Find("\xE9T\xC9", "\xC4"), "v");
  const std::string utf16 = "\xFF\xFE[\0\xC9\0]\0\n\0k\0=\0v\0"s;
  EXPECT_EQ(IniDocument(utf16).Find("\xC3\xA9", "k"), "v");
}

TEST(IniDocument, EntriesAndLinesLeaveCommentsOut) {
  const IniDocument document("[s]\n;c=1\n a = 1 \n\n=2\nalone\nb=\"x\"\n[t]\nz=9\n");
  const auto entries = document.Entries("s");
  ASSERT_EQ(entries.size(), 3u);
  EXPECT_EQ(entries[0].Name, "a");
  EXPECT_EQ(entries[0].Value, "1");
  EXPECT_EQ(entries[1].Name, "");
  EXPECT_EQ(entries[2].Value, "\"x\"");
  EXPECT_EQ(document.Lines("s"), (std::vector<std::string>{"a=1", "=2", "alone", "b=\"x\""}));
}

TEST(IniDocument, BracketWithinALineIsNoHeader) {
  const IniDocument document("[s]\na[b]=1\n  [ t ] rest [u]\nk=[v]\n");
  EXPECT_EQ(document.SectionNames(), (std::vector<std::string_view>{"s", "t"}));
  EXPECT_EQ(document.Find("s", "a[b]"), "1");
  EXPECT_EQ(document.Find("t", "k"), "[v]");
}

TEST(IniDocument, SetTouchesOnlyTheValueOfItsLine) {
  const struct {
    std::string_view Before;
    std::string_view After;
  } cases[] = {
      {"[s]\r\n  k  =  old  \r\n; c\r\n", "[s]\r\n  k  =new\r\n; c\r\n"},
      {"[s]\nk=old\n\n[t]\n", "[s]\nk=new\n\n[t]\n"},
      {"[s]\rk=old\r", "[s]\rk=new\r"},
      {"[s]\r\nk=old", "[s]\r\nk=new\r\n"},
      {"[s]\r\n k = new ", "[s]\r\n k = new "},
      {"[s]\r\nk=1\r\nk=2\r\n[s]\r\nk=3", "[s]\r\nk=new\r\nk=2\r\n[s]\r\nk=3"},
  };
  for (const auto& test : cases) EXPECT_EQ(AfterSet(test.Before, "k", "new"), test.After);
}

TEST(IniDocument, NewKeyStandsBehindTheLastKey) {
  const struct {
    std::string_view Before;
    std::string_view After;
  } cases[] = {
      {"[s]\r\na=1\r\nalone\r\n\r\n;c\r\n[t]", "[s]\r\na=1\r\nk=v\r\nalone\r\n\r\n;c\r\n[t]"},
      {"[s]\n;c\n", "[s]\nk=v\r\n;c\n"},
      {"[s]\na=1", "[s]\na=1\r\nk=v\r\n"},
      {"[s", "[s\r\nk=v\r\n"},
      {"[s]\r", "[s]\rk=v\r\n"},
      {"", "[s]\r\nk=v\r\n"},
      {"x", "x\r\n[s]\r\nk=v\r\n"},
      {"x\r", "x\r[s]\r\nk=v\r\n"},
      {"[t]\r\n\r\n", "[t]\r\n\r\n[s]\r\nk=v\r\n"},
      {"[s]\r\nk\r\n", "[s]\r\nk=v\r\nk\r\n"},
  };
  for (const auto& test : cases) EXPECT_EQ(AfterSet(test.Before, "k", "v"), test.After);
}

TEST(IniDocument, WrittenLineBreaksAreReadAsLines) {
  IniDocument document;
  document.Set("s", "k", "v\r\n[t]\r\nj=w");
  EXPECT_EQ(document.Find("t", "j"), "w");
  document.Set("t", "[u", "x");
  EXPECT_EQ(document.SectionNames(), (std::vector<std::string_view>{"s", "t", "u=x"}));
}

TEST(IniDocument, RemoveTakesTheFirstLineAndShowsTheNext) {
  IniDocument document("[s]\nk=1\n;c\nk=2\nj=3");
  for (int lookUp = 0; lookUp < 2; ++lookUp) ASSERT_EQ(document.Find("s", "k"), "1");
  document.Remove("S", " K ");
  EXPECT_EQ(document.Bytes(), "[s]\n;c\nk=2\nj=3");
  EXPECT_EQ(document.Find("s", "k"), "2");
  document.Remove("s", "k");
  EXPECT_EQ(document.Find("s", "k"), std::nullopt);
  document.Remove("s", "k");
  document.Remove("none", "k");
  EXPECT_EQ(document.Bytes(), "[s]\n;c\nj=3");
}

TEST(IniDocument, RemoveSectionKeepsWhatStandsBehindItsLastKey) {
  IniDocument document("a\n[s]\n;between\nk=1\n;behind\n\n[t]\nj=2\n[s]\nk=3\n");
  document.RemoveSection("S");
  EXPECT_EQ(document.Bytes(), "a\n;behind\n\n[t]\nj=2\n[s]\nk=3\n");
  EXPECT_EQ(document.Find("s", "k"), "3");
  document.RemoveSection("none");
  EXPECT_EQ(document.Bytes(), "a\n;behind\n\n[t]\nj=2\n[s]\nk=3\n");
}

TEST(IniDocument, ReplacedEntriesStandWhereTheFirstReplacedLineStood) {
  EXPECT_EQ(Replaced("[s]\n;c\na=1\n\nalone\nb=2\n;d\n[t]\nz=9\n", {{"x", "8"}, {"y", "9"}}),
            "[s]\n;c\nx=8\r\ny=9\r\n\nalone\n;d\n[t]\nz=9\n");
}

TEST(IniDocument, ReplacedEntriesFollowTheKeptKeysWhenNoneIsReplaced) {
  const auto keepR = [](const IniEntry& line) {
    return line.Name == "R" ? FormerLine::Stays : FormerLine::Goes;
  };
  EXPECT_EQ(Replaced("[s]\nR=1\n;c\n", {{"x", "8"}}, keepR), "[s]\nR=1\nx=8\r\n;c\n");
  EXPECT_EQ(Replaced("[s]\na=0\nR=1\nb=2\n", {{"x", "8"}}, keepR), "[s]\nx=8\r\nR=1\n");
  EXPECT_EQ(Replaced("[s]\nR=1", {{"x", "8"}}, keepR), "[s]\nR=1\r\nx=8\r\n");
  EXPECT_EQ(Replaced("[s]\na=1\nR=1\n", {}, keepR), "[s]\nR=1\n");
}

TEST(IniDocument, ReplacingEntriesCreatesASectionOnlyForEntries) {
  EXPECT_EQ(Replaced("[t]\nz=9", {{"x", "8"}}), "[t]\nz=9\r\n[s]\r\nx=8\r\n");
  EXPECT_EQ(Replaced("[t]\nz=9", {}), "[t]\nz=9");
  EXPECT_EQ(Replaced("[s]\n;c\n", {{"x", "8"}}), "[s]\nx=8\r\n;c\n");
  EXPECT_EQ(Replaced("[s]", {{"x", "8"}}), "[s]\r\nx=8\r\n");
}

TEST(IniDocument, SectionThatReplacingEmptiesLosesItsHeader) {
  EXPECT_EQ(Replaced("[a]\n[s]\nk=1\n\n[t]\n", {}), "[a]\n\n[t]\n");
  EXPECT_EQ(Replaced("[s]\nk=1\n;c\n", {}), "[s]\n;c\n");
  EXPECT_EQ(Replaced("[s]\nalone\nk=1", {}), "[s]\nalone\n");
}

TEST(IniDocument, OfEqualEntriesTheLastValueStandsInTheFirstPlace) {
  EXPECT_EQ(Replaced("[s]\n", {{"a", "1"}, {"b", "2"}, {" A ", "3"}}), "[s]\na=3\r\nb=2\r\n");
}

TEST(IniDocument, EntriesThatWouldBeOtherLinesAreLeftOut) {
  EXPECT_EQ(Replaced("[s]\nk=1\n", {{"[x", "1"}, {" ;y", "2"}, {"l\nm", "3"}, {"z", "4"}}),
            "[s]\nz=4\r\n");
  EXPECT_EQ(Replaced("[s]\n", {{"C+=", "c"}, {"", "d"}}), "[s]\nC+==c\r\n=d\r\n");
}

TEST(IniDocument, RepeatedSectionIsReplacedOnlyInTheFirst) {
  EXPECT_EQ(Replaced("[s]\nk=1\n[s]\nk=2\n", {{"x", "8"}}), "[s]\nx=8\r\n[s]\nk=2\n");
}

TEST(IniDocument, Utf16StaysUtf16) {
  IniDocument document(Utf16("[s]\r\nk=v\r\n"));
  EXPECT_EQ(document.FileEncoding(), IniDocument::Encoding::Utf16Le);
  document.Set("s", "k", "new");
  document.Set("s", "j", "w");
  EXPECT_EQ(document.Bytes(), Utf16("[s]\r\nk=new\r\nj=w\r\n"));
}

TEST(IniDocument, Utf16KeepsUnpairedSurrogatesAndAnOddByte) {
  const std::string odd = "x=\0\xD8y\0\0\xDC\0\xDC\0\xD8\0\xDC\r\0\n\0"s;
  const std::string before = Utf16("[s]\r\nk=v\r\n") + "x\0=\0"s + odd.substr(2) + "Z";
  IniDocument document(before);
  EXPECT_EQ(document.Bytes(), before);
  document.Set("s", "k", "n");
  EXPECT_EQ(document.Bytes(), Utf16("[s]\r\nk=n\r\n") + "x\0=\0"s + odd.substr(2) + "Z");
}

TEST(IniDocument, Utf16ValuesAreUtf8AtTheInterface) {
  IniDocument document("\xFF\xFE");
  document.Set("s", "k", "\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(document.Bytes(),
            Utf16("\r\n[s]\r\nk=") + "\xAC\x20\x3D\xD8\x00\xDE"s + Utf16("\r\n").substr(2));
  EXPECT_EQ(document.Find("s", "k"), "\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(IniDocument, MovedDocumentStillFindsAndEdits) {
  IniDocument first("[s]\nk=v");
  ASSERT_EQ(first.Find("s", "k"), "v");
  first.Set("s", "j", "w");
  IniDocument second = std::move(first);
  EXPECT_EQ(second.Find("s", "j"), "w");
  second.Set("s", "k", "x");
  EXPECT_EQ(second.Bytes(), "[s]\nk=x\r\nj=w\r\n");
}

TEST(WithoutQuotes, OneEqualPairGoes) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"\"a\"", "a"}, {"'a'", "a"}, {"\"a'", "\"a'"},           {"\"", "\""},
      {"\"\"", ""},   {"", ""},     {"\"a\" \"b\"", "a\" \"b"}, {"\"'a'\"", "'a'"},
  };
  for (const auto& [quoted, plain] : cases) EXPECT_EQ(WithoutQuotes(quoted), plain);
}

// -- Properties, over files made of random pieces

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

TEST(IniDocument, AHeaderIsNoKeyWhateverItsName) {
  const IniDocument document("[a=b]\nk=1\n[k=v]\n");
  EXPECT_EQ(document.Entries("a=b").size(), 1U);
  for (int look = 0; look < 3; ++look) {  // each first look is without an index
    EXPECT_EQ(document.Find("a=b", "[a"), std::nullopt);
    EXPECT_EQ(document.Find("k=v", "[k"), std::nullopt);
  }
}

TEST(IniDocument, WhatStandsBeforeTheFirstHeaderIsNoSectionOfThatName) {
  // But for its first character, each reads as that header does.
  for (const std::string before : {";s\n", "xs]\n"}) {
    EXPECT_EQ(Replaced(before + "[s]\na=1\n", {}), before);
  }
}

TEST(IniDocument, ARemovedLineLeavesNoBlankOneToLaterEdits) {
  IniDocument document("[s]\r\na=1\r\nb=2\r\n");
  document.Remove("s", "a");
  document.ReplaceEntries("s", {{"c", "3"}}, KeepNone);
  EXPECT_EQ(document.Bytes(), "[s]\r\nc=3\r\n");
  document.Remove("s", "c");
  document.Set("t", "k", "v");
  EXPECT_EQ(document.Bytes(), "[s]\r\n[t]\r\nk=v\r\n");
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

TEST(IniDocument, ALineThatFollowsTheNewOnesKeepsItsBytes) {
  const auto becomes = [](const IniEntry& line) {
    return line.Value == "\"v\"" ? FormerLine::Follows : FormerLine::Goes;
  };
  EXPECT_EQ(Replaced("[s]\n k = \"v\" \na=1\n;c\n", {{"x", "8"}}, becomes),
            "[s]\nx=8\r\n k = \"v\" \n;c\n");
  EXPECT_EQ(Replaced("[s]\na=1\n;c\nk\t=\"v\"", {{"x", "8"}}, becomes),
            "[s]\nx=8\r\nk\t=\"v\"\r\n;c\n");
  EXPECT_EQ(Replaced("[s]\na=1\nk=\"v\"", {{"x", "8"}}, becomes), "[s]\nx=8\r\nk=\"v\"");
  EXPECT_EQ(Replaced("[s]\na=1\nk=\"v\"\n", {}, becomes), "[s]\nk=\"v\"\n");
}

TEST(IniDocument, AnEmptiedSectionStaysInFrontOfAnotherOfItsName) {
  IniDocument document("[s]\r\nk=v\r\n[S]\r\nhidden=1\r\n");
  document.ReplaceEntries("s", {}, KeepNone);
  EXPECT_EQ(document.Bytes(), "[s]\r\n[S]\r\nhidden=1\r\n");
  EXPECT_FALSE(document.Find("s", "hidden"));
}

}  // namespace
}  // namespace tessera::ini_document_test
