// Names in INI files are equal when their texts are.
#include <gtest/gtest.h>

#include <string>

#include "settings/ini/IniNames.h"
#include "text/Text.h"

namespace tessera::ini_names_test {
namespace {

TEST(IniNames, BytesAreEqualWhenTheirTextsAre) {
  // Some letters beyond ASCII have an upper case within it, which takes other bytes.
  const std::wstring letters = L"aA\u0131iI\u017FsS\u212AkK\u00E9\u00C9\u0436";
  const IniNameEqual equal{Utf8CodePage};
  const IniNameHash hash{Utf8CodePage};
  for (const wchar_t left : letters) {
    for (const wchar_t right : letters) {
      const std::wstring first = {L'x', left, L'y'};
      const std::wstring second = {L'x', right, L'Y'};
      const std::string bytes = Encode(first, Utf8CodePage);
      const std::string others = Encode(second, Utf8CodePage);
      const bool areEqual = EqualIgnoringCase(first, second);
      EXPECT_EQ(equal(bytes, others), areEqual) << bytes << ", " << others;
      if (areEqual) {
        EXPECT_EQ(hash(bytes), hash(others)) << bytes << ", " << others;
      }
    }
  }
}

TEST(IniNames, ABeginningIsNotTheWholeName) {
  const IniNameEqual equal{AnsiCodePage};
  EXPECT_FALSE(equal("key", "key1"));
  EXPECT_FALSE(equal("key1", "key"));
  EXPECT_FALSE(equal("", "k"));
  EXPECT_TRUE(equal("", ""));
}

}  // namespace
}  // namespace tessera::ini_names_test
