// Looking up INI content.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "settings/ini/IniDocument.h"

namespace tessera::ini_document_test {
namespace {

using namespace std::literals;

TEST(IniDocument, EmptyDocumentHasNothing) {
  const IniDocument document;
  EXPECT_EQ(document.Bytes(), "");
  EXPECT_TRUE(document.SectionNames().empty());
  EXPECT_EQ(document.Find("s", "k"), std::nullopt);
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

TEST(WithoutQuotes, OneEqualPairGoes) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"\"a\"", "a"}, {"'a'", "a"}, {"\"a'", "\"a'"},           {"\"", "\""},
      {"\"\"", ""},   {"", ""},     {"\"a\" \"b\"", "a\" \"b"}, {"\"'a'\"", "'a'"},
  };
  for (const auto& [quoted, plain] : cases) EXPECT_EQ(WithoutQuotes(quoted), plain);
}

TEST(IniDocument, AHeaderIsNoKeyWhateverItsName) {
  const IniDocument document("[a=b]\nk=1\n[k=v]\n");
  EXPECT_EQ(document.Entries("a=b").size(), 1U);
  for (int look = 0; look < 3; ++look) {  // each first look is without an index
    EXPECT_EQ(document.Find("a=b", "[a"), std::nullopt);
    EXPECT_EQ(document.Find("k=v", "[k"), std::nullopt);
  }
}

}  // namespace
}  // namespace tessera::ini_document_test
