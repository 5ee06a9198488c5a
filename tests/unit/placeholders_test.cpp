// Values in texts.
#include "localisation/Placeholders.h"

#include <gtest/gtest.h>

namespace tessera::placeholders_test {
namespace {

TEST(Placeholders, ValuesTakeTheirPlacesInAnyOrder) {
  EXPECT_EQ(WithValues(L"%1: %2", {L"F5", L"cm_Copy"}), L"F5: cm_Copy");
  EXPECT_EQ(WithValues(L"%2 (%1), %2", {L"a", L"b"}), L"b (a), b");
}

TEST(Placeholders, WhatAValueHoldsIsNoPlace) {
  EXPECT_EQ(WithValues(L"%1: %2", {L"%2", L"%1"}), L"%2: %1");
}

TEST(Placeholders, WhatIsNoPlaceStays) {
  EXPECT_EQ(WithValues(L"100 %, %0, %3, %x, %", {L"a", L"b"}), L"100 %, %0, %3, %x, %");
  EXPECT_EQ(WithValues(L"%%1", {L"a"}), L"%a");
  EXPECT_EQ(WithValues(L"", {L"a"}), L"");
}

}  // namespace
}  // namespace tessera::placeholders_test
