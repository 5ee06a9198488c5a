// What is remembered of the keys that edits gave to rows.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "shortcuts/GivenKeys.h"

namespace tessera::given_keys_test {
namespace {

using Keys = std::vector<std::wstring>;

TEST(GivenKeys, LaterRowsHaveHigherMoments) {
  GivenKeys given;
  EXPECT_EQ(given.MomentOf(2, L"F5"), 0U);
  given.Give(2, L"F5");
  given.Give(3, L"F5");
  EXPECT_GT(given.MomentOf(2, L"F5"), 0U);
  EXPECT_GT(given.MomentOf(3, L"F5"), given.MomentOf(2, L"F5"));
  given.Give(2, L"F5");
  EXPECT_GT(given.MomentOf(2, L"F5"), given.MomentOf(3, L"F5"));
  EXPECT_EQ(given.MomentOf(2, L"C+F5"), 0U);
}

TEST(GivenKeys, SpellingDoesNotCount) {
  GivenKeys given;
  given.Give(2, L"CA+*");
  EXPECT_NE(given.MomentOf(2, L"ac + *"), 0U);
  EXPECT_NE(given.MomentOf(2, L"CA+Num *"), 0U);
}

TEST(GivenKeys, AKeyThatAnEditTakesEndsForThatRow) {
  GivenKeys given;
  for (const RowKey row : {2U, 3U}) given.Give(row, L"F5");
  given.Give(2, L"*");
  given.Give(2, L"F7");
  given.Change(2, Keys{L"F5", L"Num *"}, Keys{L"*"});
  EXPECT_EQ(given.MomentOf(2, L"F5"), 0U);
  EXPECT_NE(given.MomentOf(2, L"*"), 0U);
  EXPECT_NE(given.MomentOf(3, L"F5"), 0U);
  EXPECT_NE(given.MomentOf(2, L"F7"), 0U) << "the edit did not concern a key that was not there";
}

TEST(GivenKeys, ExchangedChangesAreTakenBackAndMadeAgain) {
  GivenKeys given;
  given.Give(2, L"F1");
  std::vector<GivenKeys::FormerMoment> former;
  given.NoteChangesIn(&former);
  given.Give(2, L"F5");
  given.Give(2, L"F1");
  given.Change(2, Keys{L"F1"}, Keys{});
  given.NoteChangesIn(nullptr);
  for (int round = 0; round < 2; ++round) {
    std::for_each(former.rbegin(), former.rend(), [&](auto& each) { given.Exchange(each); });
    EXPECT_EQ(given.MomentOf(2, L"F1"), 1U);
    EXPECT_EQ(given.MomentOf(2, L"F5"), 0U);
    std::for_each(former.begin(), former.end(), [&](auto& each) { given.Exchange(each); });
    EXPECT_EQ(given.MomentOf(2, L"F1"), 0U);
    EXPECT_EQ(given.MomentOf(2, L"F5"), 2U);
  }
}

TEST(GivenKeys, GoOverToTheRowThatFollows) {
  GivenKeys given;
  given.Give(7, L"F1");
  given.Give(7, L"C+F2");
  given.Give(8, L"F1");
  given.Move(7, 9);
  EXPECT_EQ(given.MomentOf(7, L"F1"), 0U);
  EXPECT_EQ(given.MomentOf(9, L"F1"), 1U);
  EXPECT_EQ(given.MomentOf(9, L"C+F2"), 2U);
  EXPECT_EQ(given.MomentOf(8, L"F1"), 3U);
  given.Move(8, 0);
  given.Move(1, 2);
  EXPECT_EQ(given.MomentOf(8, L"F1"), 0U);
  EXPECT_EQ(given.MomentOf(0, L"F1"), 0U);
}

}  // namespace
}  // namespace tessera::given_keys_test
