// What is taken away at the ends of texts.
#include "text/Trim.h"

#include <gtest/gtest.h>

namespace tessera::trim_test {
namespace {

TEST(TrimSpaces, TakesSpacesOnly) {
  EXPECT_EQ(TrimSpaces(L"  a b  "), L"a b");
  EXPECT_EQ(TrimSpaces(L" \ta\t "), L"\ta\t");
  EXPECT_EQ(TrimSpaces(L"   "), L"");
}

}  // namespace
}  // namespace tessera::trim_test
