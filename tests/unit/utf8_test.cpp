// UTF-8 and UTF-16 without loss.
#include "text/Utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace tessera::utf8_test {
namespace {

using namespace std::string_literals;

TEST(Utf8, UnpairedSurrogatesComeBack) {
  const std::string units = "\x00\xD8\x41\x00\x00\xDC\x3D\xD8\x00\xDE"s;
  const std::string bytes = Utf8FromUtf16Le(units);
  EXPECT_EQ(bytes, "\xED\xA0\x80\x41\xED\xB0\x80\xF0\x9F\x98\x80");
  EXPECT_EQ(Utf16LeFromUtf8(bytes), units);
}

TEST(Utf8, OnlyAHighSurrogateBeforeALowOneIsAPair) {
  const std::pair<std::string, std::string> cases[] = {
      {"\x00\xD8\x00\xDC"s, "\xF0\x90\x80\x80"},
      {"\xFF\xDB\xFF\xDF"s, "\xF4\x8F\xBF\xBF"},
      {"\x00\xD8\x00\xE0"s, "\xED\xA0\x80\xEE\x80\x80"},
      {"\x00\xD8\xFF\xDB"s, "\xED\xA0\x80\xED\xAF\xBF"},
      {"\xFF\xD7\x00\xDC"s, "\xED\x9F\xBF\xED\xB0\x80"},
      {"\x00\xDC\x00\xDC"s, "\xED\xB0\x80\xED\xB0\x80"},
  };
  for (const auto& [units, bytes] : cases) {
    EXPECT_EQ(Utf8FromUtf16Le(units), bytes);
    EXPECT_EQ(Utf16LeFromUtf8(bytes), units);
  }
}

TEST(Utf8, EveryUnitOfUtf16ComesBack) {
  for (int unit = 0; unit < 0x10000; ++unit) {
    const std::string bytes = {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
    ASSERT_EQ(Utf16LeFromUtf8(Utf8FromUtf16Le(bytes)), bytes);
  }
}

TEST(Utf8, BytesThatEncodeNoCharacterAreReplacedOneByOne) {
  for (const char* bytes :
       {"\xC0\x80", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
        "\xF5\x80\x80\x80", "\xF9\x80\x80\x80", "\x80", "\x91\x80\x80\x80", "\xC1\xBF"}) {
    EXPECT_EQ(WideFromUtf8(bytes), std::wstring(std::string_view(bytes).size(), L'\uFFFD'));
  }
  for (const char* bytes : {"\xC2\x80", "\xE0\xA0\x80", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_EQ(Utf8FromWide(WideFromUtf8(bytes)), bytes);
  }
}

TEST(Utf8, ACharacterIsTakenWhole) {
  const std::wstring text = {L'a', 0xD83D, 0xDE00, 0xD83D, L'z'};
  std::size_t position = 0;
  for (const char32_t character : {U'a', U'\U0001F600', char32_t{0xD83D}, U'z'}) {
    ASSERT_LT(position, text.size());
    EXPECT_EQ(TakeCharacter(text, position), character);
  }
  EXPECT_EQ(position, text.size());
}

TEST(Utf8, OddByteIsLeftOut) { EXPECT_EQ(Utf8FromUtf16Le("a\0b"s), "a"); }

TEST(Utf8, CutLeavesNoPartOfACharacter) {
  const std::string_view text = "a\xE2\x82\xAC\xF0\x9F\x98\x80z";
  const std::size_t lengths[] = {0, 1, 1, 1, 4, 4, 4, 4, 8, 9, 9};
  for (std::size_t limit = 0; limit < std::size(lengths); ++limit) {
    EXPECT_EQ(CutUtf8(text, limit), text.substr(0, lengths[limit]));
  }
  for (std::size_t limit = 0; limit < 3; ++limit) {
    EXPECT_EQ(CutUtf8("\xE2\x82\xACz", limit), "");
    EXPECT_EQ(CutUtf8("\x80\x80\x80\x80", limit), "");
  }
  EXPECT_EQ(CutUtf8("\x80\x80\x80\x80\x80\x80", 5).size(), 2u);
}

}  // namespace
}  // namespace tessera::utf8_test
