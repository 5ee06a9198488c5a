// Texts as parts of HTML.
#include "export/Html.h"

#include <gtest/gtest.h>

#include "text/Utf8.h"

namespace tessera::html_test {
namespace {

std::string Text(std::wstring_view text) {
  std::string html;
  AppendText(html, text);
  return html;
}

std::string Value(std::wstring_view value) {
  std::string html;
  AppendValue(html, value);
  return html;
}

TEST(Html, PlainTextsStayAsTheyAre) {
  EXPECT_EQ(Text(L"Ctrl + F3"), "Ctrl + F3");
  EXPECT_EQ(Text(L""), "");
  EXPECT_EQ(Value(L"it's ~ [x]"), "it's ~ [x]");
}

TEST(Html, IsAppended) {
  std::string html = "<p>";
  AppendText(html, L"a");
  AppendText(html, L"&");
  AppendValue(html, L"b");
  EXPECT_EQ(html, "<p>a&amp;b");
}

TEST(Html, NumbersAreDecimal) {
  std::string html = "c";
  AppendNumber(html, 0);
  AppendNumber(html, 18446744073709551615U);
  EXPECT_EQ(html, "c018446744073709551615");
}

TEST(Html, SignsOfItAreEscaped) {
  EXPECT_EQ(Text(L"<script>a && b</script>"), "&lt;script&gt;a &amp;&amp; b&lt;/script&gt;");
  EXPECT_EQ(Value(L"<a href=\"x\">"), "&lt;a href=&quot;x&quot;&gt;");
  EXPECT_EQ(Text(L"\"x\" & 'y'"), "\"x\" &amp; 'y'") << "quotes end nothing between tags";
}

TEST(Html, ControlCharactersAreBlanks) {
  const std::wstring controls(L"a\0b\tc\r\nd\x7F\x80\x9F", 11);
  EXPECT_EQ(Text(controls.substr(0, 8)), "a b c  d");
  EXPECT_EQ(Text(controls.substr(7)), "d   ");
  EXPECT_EQ(Value(L"a\nb"), "a b");
}

TEST(Html, EachOddCharacterIsSeenByItself) {
  for (wchar_t code = 0; code < 0xA0; ++code) {
    if (code >= 0x20 && code < 0x7F) continue;
    EXPECT_EQ(Text(std::wstring(1, code)), " ") << static_cast<int>(code);
  }
  EXPECT_EQ(Text(L"\x100"), "\xC4\x80");
  for (const wchar_t* sign : {L"&", L"<", L">"}) EXPECT_NE(Text(sign).size(), 1U);
  EXPECT_EQ(Value(L"\""), "&quot;");
}

TEST(Html, OtherCharactersAreInUtf8) {
  EXPECT_EQ(Text(L"\xE4\x20AC"), "\xC3\xA4\xE2\x82\xAC");
  EXPECT_EQ(Text(WideFromUtf8("\xF0\x9F\x94\x91")), "\xF0\x9F\x94\x91");
  EXPECT_EQ(Text(L"\x200F\xA0"), "\xE2\x80\x8F\xC2\xA0") << "marks of direction stay";
}

TEST(Html, WhatIsNoCharacterIsReplaced) {
  constexpr const char* Replaced = "\xEF\xBF\xBD";
  for (const unsigned unit :
       {0xD800U, 0xDBFFU, 0xDC00U, 0xDFFFU, 0xFDD0U, 0xFDEFU, 0xFFFEU, 0xFFFFU}) {
    EXPECT_EQ(Text(std::wstring(1, static_cast<wchar_t>(unit))), Replaced) << unit;
  }
  EXPECT_EQ(Text(WideFromUtf8("\xF0\x9F\xBF\xBE")), Replaced) << "the last but one of a plane";
  EXPECT_NE(Text(L"\xFDCF"), Replaced);
  EXPECT_NE(Text(L"\xFDF0"), Replaced);
  EXPECT_NE(Text(L"\xE000"), Replaced);
}

TEST(Html, SurrogatesThatBelongTogetherAreOneCharacter) {
  const std::wstring pair{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDD11)};
  EXPECT_EQ(Text(pair), "\xF0\x9F\x94\x91");
  EXPECT_EQ(Text(pair.substr(1) + pair.substr(0, 1)), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

}  // namespace
}  // namespace tessera::html_test
