// Telling control characters from others.
#include <gtest/gtest.h>

#include "text/ControlCharacters.h"

namespace tessera::control_characters_test {
namespace {

TEST(ControlCharactersTest, AreBelowTheBlankAndFromDeleteToTheLettersOfLatin1) {
  for (const wchar_t character : {L'\0', L'\t', L'\n', L'\x1F', L'\x7F', L'\x80', L'\x9F'}) {
    EXPECT_TRUE(IsControl(character)) << static_cast<int>(character);
  }
  for (const wchar_t character : {L' ', L'~', L'\xA0', L'\x2028', L'\x202E'}) {
    EXPECT_FALSE(IsControl(character)) << static_cast<int>(character);
  }
}

TEST(ControlCharactersTest, BecomeBlanksOneByOne) {
  EXPECT_EQ(WithoutControls(L"a\r\nb\tc"), L"a  b c");
  EXPECT_EQ(WithoutControls(L""), L"");
}

}  // namespace
}  // namespace tessera::control_characters_test
