// Arithmetic of lengths.
#include "platform/Area.h"

#include <gtest/gtest.h>

namespace tessera::area_test {
namespace {

TEST(Ratio, HalvesAreRoundedAwayFromNought) {
  EXPECT_EQ(Ratio(1, 1, 2), 1);
  EXPECT_EQ(Ratio(-1, 1, 2), -1);
  EXPECT_EQ(Ratio(1, 1, 3), 0);
  EXPECT_EQ(Ratio(-2, 1, 3), -1);
}

TEST(Ratio, ProductMayBeLargerThanItsFactors) {
  EXPECT_EQ(Ratio(2'000'000, 1440, 96), 30'000'000);
  EXPECT_EQ(Ratio(-30'000'000, 96, 1440), -2'000'000);
}

}  // namespace
}  // namespace tessera::area_test
