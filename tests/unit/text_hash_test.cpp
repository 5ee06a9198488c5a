// Texts that are equal but for letter case are one key.
#include <gtest/gtest.h>

#include "text/TextHash.h"

namespace tessera::text_hash_test {
namespace {

TEST(TextHash, TextsThatAreEqualIgnoringCaseHaveOneHash) {
  const std::pair<std::wstring_view, std::wstring_view> cases[] = {
      {L"", L""},
      {L"CM_SrcComments", L"cm_srccomments"},
      {L"Ctrl + \u00C9", L"ctrl + \u00E9"},
      {L"\u0416", L"\u0436"},
  };
  for (const auto& [left, right] : cases) {
    EXPECT_TRUE(EqualsIgnoringCase()(left, right));
    EXPECT_EQ(HashIgnoringCase()(left), HashIgnoringCase()(right));
  }
  EXPECT_NE(HashIgnoringCase()(L"F1"), HashIgnoringCase()(L"F2"));
}

TEST(TextHash, BytesOfAsciiHashLikeTheirText) {
  EXPECT_EQ(HashOfAscii(std::string_view("Menu1")), HashIgnoringCase()(L"mENU1"));
}

}  // namespace
}  // namespace tessera::text_hash_test
