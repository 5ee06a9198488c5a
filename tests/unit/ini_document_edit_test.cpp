// Setting and removing keys touches their own lines alone.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "settings/ini/IniDocument.h"

namespace tessera::ini_document_edit_test {
namespace {

std::string AfterSet(std::string_view before, std::string_view key, std::string_view value) {
  IniDocument document(before);
  document.Set("s", key, value);
  return document.Bytes();
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

TEST(IniDocument, MovedDocumentStillFindsAndEdits) {
  IniDocument first("[s]\nk=v");
  ASSERT_EQ(first.Find("s", "k"), "v");
  first.Set("s", "j", "w");
  IniDocument second = std::move(first);
  EXPECT_EQ(second.Find("s", "j"), "w");
  second.Set("s", "k", "x");
  EXPECT_EQ(second.Bytes(), "[s]\nk=x\r\nj=w\r\n");
}

}  // namespace
}  // namespace tessera::ini_document_edit_test
