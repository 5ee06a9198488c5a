// Replacing all keys of a section at once.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "settings/ini/IniDocument.h"

namespace tessera::ini_document_replace_test {
namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;

FormerLine KeepNone(const IniEntry& /*line*/) { return FormerLine::Goes; }

std::string Replaced(std::string_view before, const Entries& entries,
                     const std::function<FormerLine(const IniEntry&)>& becomes = KeepNone) {
  IniDocument document(before);
  document.ReplaceEntries("s", entries, becomes);
  return document.Bytes();
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
}  // namespace tessera::ini_document_replace_test
