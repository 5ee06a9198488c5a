// Finding a row by the beginning of its description.
#include <gtest/gtest.h>

#include "app/FindRow.h"
#include "tests/support/Kept.h"

namespace tessera::find_row_test {
namespace {

DisplayTable TableOf(const std::vector<std::wstring>& descriptions) {
  std::vector<CommandEntry> rows;
  for (const std::wstring& description : descriptions) {
    CommandEntry row;
    row.Key = rows.size() + 1;
    row.Description = Kept(description);
    rows.push_back(std::move(row));
  }
  DisplayTable table;
  table.Fill(std::move(rows));
  return table;
}

TEST(FindRow, FindsTheFirstDescriptionWithThatBeginningInAnyLetterCase) {
  const DisplayTable table = TableOf({L"Copy", L"Source: full", L"Source: brief"});
  EXPECT_EQ(FindRow(table, L"sOURCE", 0), 1U);
  EXPECT_EQ(FindRow(table, L"Source: b", 0), 2U);
  EXPECT_EQ(FindRow(table, L"full", 0), std::nullopt);
}

TEST(FindRow, SearchesFromTheStartRoundToIt) {
  const DisplayTable table = TableOf({L"Copy", L"Move", L"Close"});
  EXPECT_EQ(FindRow(table, L"c", 1), 2U);
  EXPECT_EQ(FindRow(table, L"co", 1), 0U);
  EXPECT_EQ(FindRow(table, L"m", 3), 1U);
}

TEST(FindRow, TheRowWhereTheSearchStartsComesFirst) {
  const DisplayTable table = TableOf({L"Copy", L"Copy names", L"Copy paths"});
  EXPECT_EQ(FindRow(table, L"cop", 1), 1U);
  EXPECT_EQ(FindRow(table, L"copy p", 1), 2U);
}

TEST(FindRow, FindsNothingInAnEmptyList) { EXPECT_EQ(FindRow(TableOf({}), L"a", 0), std::nullopt); }

}  // namespace

}  // namespace tessera::find_row_test
