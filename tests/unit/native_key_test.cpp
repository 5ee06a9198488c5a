// Which names of section "Shortcuts" are one key.
#include <gtest/gtest.h>

#include "shortcuts/NativeKey.h"

namespace tessera::native_key_test {
namespace {

bool SameKey(std::wstring_view left, std::wstring_view right) {
  return CanonicalKey(left) == CanonicalKey(right);
}

TEST(NativeKey, AKeyIsTheSameHoweverItIsWritten) {
  EXPECT_TRUE(SameKey(L"CA+F5", L"AC+F5"));
  EXPECT_TRUE(SameKey(L"CA+F5", L"caC+f5"));
  EXPECT_TRUE(SameKey(L"C+F6", L" C + F6 "));
  EXPECT_TRUE(SameKey(L"C A+F6", L"CA+F6"));
  EXPECT_TRUE(SameKey(L"f3", L"F3"));
  EXPECT_TRUE(SameKey(L"+F3", L"F3"));
}

TEST(NativeKey, APlusAloneOrBehindTheFirstOneIsTheKey) {
  EXPECT_TRUE(SameKey(L"+", L" + "));
  EXPECT_TRUE(SameKey(L"+", L"++"));
  EXPECT_TRUE(SameKey(L"A++", L"a + +"));
  EXPECT_FALSE(SameKey(L"+", L"A++"));
  EXPECT_FALSE(SameKey(L"+", L""));
  EXPECT_FALSE(SameKey(L"A+", L"A"));
}

TEST(NativeKey, OtherLettersAndNamesAreOtherKeys) {
  EXPECT_FALSE(SameKey(L"W+Q", L"Q"));
  EXPECT_FALSE(SameKey(L"Ctrl+F2", L"C+F2"));
  EXPECT_FALSE(SameKey(L"c+k", L"K"));
  EXPECT_FALSE(SameKey(L"C+A+F5", L"CA+F5"));
  EXPECT_FALSE(SameKey(L"C+F1", L"C+F11"));
  EXPECT_FALSE(SameKey(L"Num *", L"*"));
}

}  // namespace
}  // namespace tessera::native_key_test
