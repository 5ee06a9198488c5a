// The displayed rows and their two orders.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "shortcuts/DisplayTable.h"
#include "tests/support/Kept.h"
#include "text/Text.h"

namespace tessera::display_table_test {
namespace {

CommandEntry Heading(RowKey key, const std::wstring& text) {
  CommandEntry row;
  row.Key = key;
  row.Description = Kept(text);
  row.Tag = CommentBlockTag;
  return row;
}

CommandEntry Command(RowKey key, const std::wstring& description, const std::wstring& defaults) {
  CommandEntry row;
  row.Key = key;
  row.Description = Kept(description);
  row.CommandName = Kept(L"cm_" + std::to_wstring(key));
  row.DefaultKeys = defaults;
  row.CurrentKeys = L"---";
  row.Tag = Kept(std::to_wstring(key));
  return row;
}

DisplayTable SampleTable() {
  DisplayTable table;
  table.Fill({Heading(1, L"[File]"), Command(2, L"pear", L"F2"), Command(3, L"Apple", L"---"),
              Heading(4, L"[View]"), Command(5, L"apple", L"---"), Command(6, L"Fig", L"F1 *")});
  return table;
}

std::vector<RowKey> Displayed(const DisplayTable& table) {
  std::vector<RowKey> keys;
  for (std::size_t position = 0; position < table.Count(); ++position) {
    keys.push_back(table.At(position).Key);
    EXPECT_EQ(table.PositionOf(keys.back()), position);
  }
  return keys;
}

using Keys = std::vector<RowKey>;

TEST(DisplayTable, EachColumnShowsItsText) {
  CommandEntry row;
  row.Description = L"d";
  row.CommandName = L"n";
  row.DefaultKeys = L"k";
  row.CurrentKeys = L"c";
  EXPECT_EQ(CellText(row, Column::Description), L"d");
  EXPECT_EQ(CellText(row, Column::Command), L"n");
  EXPECT_EQ(CellText(row, Column::Defaults), L"k");
  EXPECT_EQ(CellText(row, Column::Current), L"c");
}

TEST(DisplayTable, AnEmptyTableHasNoPositions) {
  DisplayTable table;
  table.Sort(Column::Description, SortDirection::Ascending);
  table.RemoveHeadings();
  table.RestoreFileOrder();
  EXPECT_EQ(table.Count(), 0u);
  EXPECT_EQ(table.PositionOf(0), std::nullopt);
  EXPECT_EQ(table.PositionOf(1), std::nullopt);
}

TEST(DisplayTable, ShowsAllRowsInFileOrderAtFirst) {
  EXPECT_EQ(Displayed(SampleTable()), (Keys{1, 2, 3, 4, 5, 6}));
}

TEST(DisplayTable, RowsAreFoundByKeysThatLeaveGaps) {
  DisplayTable table;
  const Keys keys{1, 2, 4, 5, 9};
  std::vector<CommandEntry> rows;
  for (const RowKey key : keys) rows.push_back(Command(key, L"text", L"---"));
  table.Fill(rows);
  EXPECT_EQ(Displayed(table), keys);
  for (const RowKey key : keys) EXPECT_EQ(table.Row(key).Key, key);
  for (const RowKey key : {0U, 3U, 6U, 8U, 10U}) EXPECT_FALSE(table.PositionOf(key)) << key;
}

TEST(DisplayTable, HeadingsAreLeftOutButKeepTheirRows) {
  DisplayTable table = SampleTable();
  table.RemoveHeadings();
  EXPECT_EQ(Displayed(table), (Keys{2, 3, 5, 6}));
  EXPECT_EQ(table.PositionOf(4), std::nullopt);
  EXPECT_EQ(table.Row(4).Description, L"[View]");
}

TEST(DisplayTable, SortsWithoutRegardToLetterCaseAndKeepsEqualTextsInOrder) {
  DisplayTable table = SampleTable();
  table.RemoveHeadings();
  table.Sort(Column::Description, SortDirection::Ascending);
  EXPECT_EQ(Displayed(table), (Keys{3, 5, 6, 2}));
  table.Sort(Column::Description, SortDirection::Descending);
  EXPECT_EQ(Displayed(table), (Keys{2, 6, 3, 5}));
}

TEST(DisplayTable, KeyColumnsSortByTheirWholeText) {
  DisplayTable table = SampleTable();
  table.RemoveHeadings();
  table.Sort(Column::Defaults, SortDirection::Descending);
  EXPECT_EQ(Displayed(table), (Keys{2, 6, 3, 5}));
}

TEST(DisplayTable, FileOrderReturnsWithHeadingsAndWithEveryEdit) {
  DisplayTable table = SampleTable();
  table.RemoveHeadings();
  table.Sort(Column::Description, SortDirection::Descending);
  table.Edit(3).CurrentKeys = L"F9";
  table.Edit(3).DefaultKeysAreRed = true;
  table.RestoreFileOrder();
  EXPECT_EQ(Displayed(table), (Keys{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(table.At(2).CurrentKeys, L"F9");
  EXPECT_TRUE(table.At(2).DefaultKeysAreRed);
}

TEST(DisplayTable, AnEditDoesNotMoveRows) {
  DisplayTable table = SampleTable();
  table.Sort(Column::Description, SortDirection::Ascending);
  const Keys before = Displayed(table);
  table.Edit(before.front()).Description = L"zzz";
  EXPECT_EQ(Displayed(table), before);
}

TEST(DisplayTable, FillingAgainReplacesRowsAndOrder) {
  DisplayTable table = SampleTable();
  table.RemoveHeadings();
  table.Fill({Heading(1, L"only")});
  EXPECT_EQ(Displayed(table), Keys{1});
  EXPECT_EQ(table.PositionOf(2), std::nullopt);
}

TEST(DisplayTable, SortsAnyRowsIntoAStableOrder) {
  std::mt19937 random(7);
  std::vector<CommandEntry> rows;
  for (RowKey key = 1; key <= 500; ++key) {
    rows.push_back(Command(key, std::wstring(1, static_cast<wchar_t>(L'a' + random() % 20)), L""));
  }
  DisplayTable table;
  table.Fill(std::move(rows));
  table.Sort(Column::Description, SortDirection::Descending);
  const Keys keys = Displayed(table);
  for (std::size_t i = 1; i < keys.size(); ++i) {
    const int order =
        CompareTexts(table.Row(keys[i - 1]).Description, table.Row(keys[i]).Description);
    ASSERT_GE(order, 0);
    if (order == 0) {
      ASSERT_LT(keys[i - 1], keys[i]);
    }
  }
}

}  // namespace
}  // namespace tessera::display_table_test
