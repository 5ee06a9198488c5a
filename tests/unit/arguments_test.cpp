#include "app/Arguments.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessera::arguments_test {
namespace {

Arguments Read(const std::vector<const wchar_t*>& arguments) { return ReadArguments(arguments); }

TEST(Arguments, WithoutAnyThereIsNeitherFileNorPage) {
  const Arguments read = Read({});
  EXPECT_EQ(read.File, L"");
  EXPECT_FALSE(read.Page.has_value());
}

TEST(Arguments, FirstOneIsTheFile) {
  EXPECT_EQ(Read({L"C:\\a b.ini", L"C:\\c.ini"}).File, L"C:\\a b.ini");
  EXPECT_EQ(Read({L"", L"C:\\c.ini"}).File, L"");
}

TEST(Arguments, PageStandsBeforeOrBehindTheFile) {
  for (const std::vector<const wchar_t*>& order :
       {std::vector{L"C:\\a.ini", L"/page=b c.html", L"d.ini"},
        std::vector{L"/page=b c.html", L"C:\\a.ini", L"d.ini"}}) {
    const Arguments read = Read(order);
    EXPECT_EQ(read.File, L"C:\\a.ini");
    EXPECT_EQ(read.Page, L"b c.html");
  }
}

TEST(Arguments, PageIsWrittenInAnyLetterCase) {
  EXPECT_EQ(Read({L"/PAGE=B.html"}).Page, L"B.html");
  EXPECT_EQ(Read({L"/Page=a=b"}).Page, L"a=b");
}

TEST(Arguments, PageWithoutAFileIsAPageAllTheSame) {
  for (const wchar_t* const argument : {L"/page=", L"/page", L"/PAGE"}) {
    EXPECT_EQ(Read({argument}).Page, L"") << argument;
    EXPECT_EQ(Read({argument}).File, L"") << argument;
  }
}

TEST(Arguments, FirstOfTwoPagesCounts) {
  EXPECT_EQ(Read({L"/page=a", L"/page=b"}).Page, L"a");
  EXPECT_EQ(Read({L"/page=", L"/page=b"}).Page, L"");
}

TEST(Arguments, WhatOnlyBeginsLikeThePageIsAFile) {
  for (const wchar_t* const argument : {L"/pages=a", L"/pag", L"page=a", L"-page=a", L" /page=a"}) {
    EXPECT_FALSE(Read({argument}).Page.has_value()) << argument;
    EXPECT_EQ(Read({argument}).File, argument);
  }
}

}  // namespace
}  // namespace tessera::arguments_test
