// The marker of absent values.
#include <gtest/gtest.h>

#include "settings/ini/MissingMarker.h"

namespace tessera::missing_marker_test {
namespace {

TEST(MissingMarker, IsComparedWholeAndByCase) {
  EXPECT_TRUE(IsMissing(L"///can\\not/find\\this/data\\\\\\"));
  EXPECT_FALSE(IsMissing(L"///CAN\\not/find\\this/data\\\\\\"));
  EXPECT_FALSE(IsMissing(L""));
}

}  // namespace
}  // namespace tessera::missing_marker_test
