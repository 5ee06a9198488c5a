// Bytes and texts, and comparing texts without regard to case.
#include "text/Text.h"

#include <gtest/gtest.h>

#include <utility>

namespace tessera::text_test {
namespace {

constexpr unsigned windows1252 = 1252;

TEST(Text, EveryByteOfWindows1252ComesBack) {
  for (int code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    const std::wstring text = Decode(byte, windows1252);
    ASSERT_EQ(text.size(), 1u);
    EXPECT_EQ(Encode(text, windows1252), byte) << code;
  }
}

TEST(Text, Windows1252HasItsOwnUpperControls) {
  EXPECT_EQ(Decode("\x80\x85\x99\x9F\xA0\xFF", windows1252),
            L"\u20AC\u2026\u2122\u0178\u00A0\u00FF");
  for (const wchar_t undefined : {L'\x81', L'\x8D', L'\x8F', L'\x90', L'\x9D'}) {
    EXPECT_EQ(Decode(std::string(1, static_cast<char>(undefined)), windows1252),
              std::wstring(1, undefined));
  }
}

TEST(Text, WhatTheCodePageCannotHoldBecomesAQuestionMark) {
  EXPECT_EQ(Encode(L"a\u0416\u0101\u4E2Dz", windows1252), "a???z");
}

TEST(Text, UnknownCodePageIsTheAnsiOne) {
  EXPECT_EQ(Decode("\xE9\x80", 12345), Decode("\xE9\x80"));
  EXPECT_EQ(Encode(L"\u00E9", 12345), Encode(L"\u00E9"));
}

TEST(Text, Utf8GoesBothWays) {
  const std::pair<std::string, std::wstring> cases[] = {
      {"", L""},
      {"az", L"az"},
      {"\xC3\xA9", L"\u00E9"},
      {"\xE2\x82\xAC", L"\u20AC"},
      {"\xF0\x9F\x98\x80!", L"\U0001F600!"},
      {"\xEF\xBB\xBF", L"\uFEFF"},
  };
  for (const auto& [bytes, text] : cases) {
    EXPECT_EQ(Decode(bytes, Utf8CodePage), text);
    EXPECT_EQ(Encode(text, Utf8CodePage), bytes);
  }
}

TEST(Text, BytesThatAreNoUtf8BecomeTheReplacementCharacter) {
  EXPECT_EQ(Decode("a\xFFz", Utf8CodePage), L"a\uFFFDz");
  EXPECT_EQ(Decode("\x80", Utf8CodePage), L"\uFFFD");
  EXPECT_EQ(Decode("\xC0\xAF", Utf8CodePage), L"\uFFFD\uFFFD");
  EXPECT_EQ(Decode("\xE2\x82", Utf8CodePage), L"\uFFFD\uFFFD");
  EXPECT_EQ(Decode("\xF5\x80", Utf8CodePage), L"\uFFFD\uFFFD");
}

TEST(Text, UpperCaseIsMadeCharacterByCharacter) {
  EXPECT_EQ(ToUpper(L"Ctrl+\u00E9\u0436_1"), L"CTRL+\u00C9\u0416_1");
  EXPECT_EQ(ToUpper(L"stra\u00DFe"), L"STRA\u00DFE");
}

TEST(Text, EqualityIgnoresLetterCaseOnly) {
  EXPECT_TRUE(EqualIgnoringCase(L"", L""));
  EXPECT_TRUE(EqualIgnoringCase(L"CM_SrcComments\u00C9", L"cm_srccomments\u00E9"));
  EXPECT_FALSE(EqualIgnoringCase(L"e", L"\u00E9"));
  EXPECT_FALSE(EqualIgnoringCase(L"a", L"a "));
  EXPECT_FALSE(EqualIgnoringCase(L"a-b", L"ab"));
}

TEST(Text, EqualTextsAreThoseThatAreEqualInUpperCase) {
  // Some letters beyond ASCII have an upper case within it.
  const std::wstring letters = L"aA\u0131iI\u0130\u017FsS\u212AkK\u00E9\u00C9";
  for (const wchar_t left : letters) {
    for (const wchar_t right : letters) {
      const std::wstring first = {left, L'x'};
      const std::wstring second = {right, L'X'};
      EXPECT_EQ(EqualIgnoringCase(first, second), ToUpper(first) == ToUpper(second))
          << static_cast<unsigned>(left) << ", " << static_cast<unsigned>(right);
    }
  }
}

TEST(Text, OrderIgnoresLetterCase) {
  EXPECT_EQ(CompareTexts(L"ALPHA", L"alpha"), 0);
  EXPECT_LT(CompareTexts(L"alpha", L"BETA"), 0);
  EXPECT_GT(CompareTexts(L"Gamma", L"beta"), 0);
  EXPECT_LT(CompareTexts(L"", L"a"), 0);
  EXPECT_LT(CompareTexts({}, L"a"), 0) << "a text without an address is an empty one";
  EXPECT_GT(CompareTexts(L"a", {}), 0);
  EXPECT_EQ(CompareTexts({}, L""), 0);
  EXPECT_LT(CompareTexts(L"ab", L"ABC"), 0);
}

}  // namespace
}  // namespace tessera::text_test
