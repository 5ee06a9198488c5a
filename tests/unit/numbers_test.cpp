// Numbers at the beginning of texts, and rounding.
#include "text/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessera::numbers_test {
namespace {

TEST(LeadingNumber, StopsWhereTheNumberEnds) {
  const std::pair<std::wstring_view, double> cases[] = {
      {L"", 0},         {L"abc", 0},    {L"12abc", 12},
      {L"  -7 ", -7},   {L"\t7", 7},    {L"+3", 3},
      {L"2.5", 2.5},    {L".5x", 0.5},  {L"5.", 5},
      {L".", 0},        {L"-", 0},      {L"1e3", 1000},
      {L"e5", 0},       {L".e5", 0},    {L"..5", 0},
      {L"1E-2z", 0.01}, {L"1e", 1},     {L"1e+", 1},
      {L"0x10", 0},     {L"inf", 0},    {L"nan", 0},
      {L"1,5", 1},      {L"--1", 0},    {L"1 2", 1},
      {L"\u0661", 0},   {L"1e-999", 0}, {L"1e999", std::numeric_limits<double>::max()},
  };
  for (const auto& [text, number] : cases) EXPECT_EQ(LeadingNumber(text), number);
  EXPECT_EQ(LeadingNumber(std::wstring(400, L'9') + L"e-"), std::numeric_limits<double>::max());
}

TEST(Rounding, IsHalfToEvenAndStaysInRange) {
  EXPECT_EQ(RoundTo16Bits(2.5), 2);
  EXPECT_EQ(RoundTo16Bits(3.5), 4);
  EXPECT_EQ(RoundTo16Bits(-2.5), -2);
  EXPECT_EQ(RoundTo16Bits(40000), 32767);
  EXPECT_EQ(RoundTo16Bits(-1e300), -32768);
  EXPECT_EQ(RoundTo32Bits(0.5), 0);
  EXPECT_EQ(RoundTo32Bits(1e10), 2147483647);
  EXPECT_EQ(RoundTo32Bits(-1e10), std::numeric_limits<int>::min());
  EXPECT_EQ(RoundTo32Bits(std::numeric_limits<double>::quiet_NaN()), 0);
}

}  // namespace
}  // namespace tessera::numbers_test
