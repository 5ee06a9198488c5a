// Arithmetic of lengths.
#include "platform/Area.h"

#include <gtest/gtest.h>

namespace tessera::area_test {
namespace {

TEST(Proportion, HalvesAreRoundedAwayFromNought) {
  EXPECT_EQ(Proportion(1, 1, 2), 1);
  EXPECT_EQ(Proportion(-1, 1, 2), -1);
  EXPECT_EQ(Proportion(1, 1, 3), 0);
  EXPECT_EQ(Proportion(-2, 1, 3), -1);
}

TEST(Proportion, ProductMayBeLargerThanItsFactors) {
  EXPECT_EQ(Proportion(2'000'000, 1440, 96), 30'000'000);
  EXPECT_EQ(Proportion(-30'000'000, 96, 1440), -2'000'000);
}

}  // namespace
}  // namespace tessera::area_test
