// Finding a row by the beginning of its description.
#include <gtest/gtest.h>

#include "app/FindRow.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::find_row_test {
namespace {

std::optional<std::size_t> FindRow(const DisplayTable& table, std::wstring_view text,
                                   std::size_t start) {
  return tessera::FindRow(ShownRows(table), text, start);
}

TEST(FindRow, FindsTheFirstDescriptionWithThatBeginningInAnyLetterCase) {
  const DisplayTable table = DescribedRows({L"Copy", L"Source: full", L"Source: brief"});
  EXPECT_EQ(FindRow(table, L"sOURCE", 0), 1U);
  EXPECT_EQ(FindRow(table, L"Source: b", 0), 2U);
  EXPECT_EQ(FindRow(table, L"full", 0), std::nullopt);
}

TEST(FindRow, SearchesFromTheStartRoundToIt) {
  const DisplayTable table = DescribedRows({L"Copy", L"Move", L"Close"});
  EXPECT_EQ(FindRow(table, L"c", 1), 2U);
  EXPECT_EQ(FindRow(table, L"co", 1), 0U);
  EXPECT_EQ(FindRow(table, L"m", 3), 1U);
}

TEST(FindRow, TheRowWhereTheSearchStartsComesFirst) {
  const DisplayTable table = DescribedRows({L"Copy", L"Copy names", L"Copy paths"});
  EXPECT_EQ(FindRow(table, L"cop", 1), 1U);
  EXPECT_EQ(FindRow(table, L"copy p", 1), 2U);
}

TEST(FindRow, FindsNothingInAnEmptyList) {
  EXPECT_EQ(FindRow(DescribedRows({}), L"a", 0), std::nullopt);
}

TEST(FindRow, FindsNoRowThatIsNotShown) {
  const DisplayTable table = DescribedRows({L"Copy", L"Copy names", L"Move names"});
  ShownRows shown(table);
  shown.Search(L"names");
  EXPECT_EQ(tessera::FindRow(shown, L"copy", 0), 0U);
  EXPECT_EQ(shown.At(0).Description, L"Copy names");
}

// -- Typing

class FindTypedRowTest : public testing::Test {
 protected:
  std::optional<std::size_t> Find(std::wstring_view text, std::size_t start = 0) {
    return FindTypedRow(shown_, text, start);
  }

  Catalogue catalogue_ = SampleCatalogue();
  ShownRows shown_{catalogue_.ListView1};
};

TEST_F(FindTypedRowTest, ADescriptionThatBeginsSoComesFirst) {
  EXPECT_EQ(Find(L"[___g"), 0U);
  EXPECT_EQ(Find(L"s"), 5U);
  EXPECT_EQ(Find(L"s", 6), 6U);
  catalogue_.ListView1.Edit(sample::Sync).Description = L"cm_View is something else";
  EXPECT_EQ(Find(L"cm_view"), 6U);
}

TEST_F(FindTypedRowTest, ThenACommandWhoseNameBeginsSo) {
  for (const RowKey row : {sample::Copy, sample::Pack}) {
    catalogue_.ListView1.Edit(row).Description = L"Text";
  }
  EXPECT_EQ(Find(L"CM_pa"), 3U);
  EXPECT_EQ(Find(L"pa"), 3U);
  EXPECT_EQ(Find(L"co", 2), 1U) << "once round";
}

TEST_F(FindTypedRowTest, ThenARowInWhoseTextsItStandsAnywhere) {
  EXPECT_EQ(Find(L"ctrl + r"), 4U);
  EXPECT_EQ(Find(L"F8"), 4U);
  EXPECT_EQ(Find(L"F9", 6), 6U);
  EXPECT_EQ(Find(L"roup"), 0U);
  EXPECT_EQ(Find(L"nowhere"), std::nullopt);
}

}  // namespace
}  // namespace tessera::find_row_test
