// Telling texts that were not added: never wrongly, and mostly.
#include <gtest/gtest.h>

#include <string>

#include "shortcuts/TextFilter.h"

namespace tessera::text_filter_test {
namespace {

TEST(TextFilter, MayHoldWhatWasAddedInAnyLetterCase) {
  TextFilter filter(3);
  for (const wchar_t* text : {L"cm_Copy", L"\u00C4", L""}) filter.Add(text);
  for (const wchar_t* text : {L"CM_COPY", L"cm_Copy", L"\u00E4", L""}) {
    EXPECT_TRUE(filter.MayHold(text)) << text;
  }
}

TEST(TextFilter, TellsMostOtherTexts) {
  constexpr int Count = 1000;
  TextFilter filter(Count);
  EXPECT_FALSE(filter.MayHold(L""));
  for (int i = 0; i < Count; ++i) filter.Add(L"cm_" + std::to_wstring(10000 + i));
  EXPECT_FALSE(filter.MayHold(L"cm_1"));
  int held = 0;
  for (int i = 0; i < Count; ++i) held += filter.MayHold(L"cm_" + std::to_wstring(50000 + i));
  EXPECT_LT(held, Count / 5);
}

}  // namespace
}  // namespace tessera::text_filter_test
