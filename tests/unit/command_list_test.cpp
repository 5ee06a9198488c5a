#include <gtest/gtest.h>

#include "editing/CommandList.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::command_list_test {
namespace {

using namespace sample;

class CommandListTest : public testing::Test {
 protected:
  CommandListTest() { list_.ShowFirstRow(); }

  std::vector<RowKey> Order() const {
    std::vector<RowKey> keys;
    for (std::size_t position = 0; position < catalogue_.ListView1.Count(); ++position) {
      keys.push_back(catalogue_.ListView1.At(position).Key);
    }
    return keys;
  }

  std::vector<HeaderIcon> Icons() const {
    return {list_.IconOf(Column::Description), list_.IconOf(Column::Command),
            list_.IconOf(Column::Defaults), list_.IconOf(Column::Current)};
  }

  Settings settings_;
  Catalogue catalogue_ = SampleCatalogue();
  CommandList list_{catalogue_, settings_};
};

constexpr HeaderIcon None = HeaderIcon::None;
constexpr HeaderIcon Up = HeaderIcon::Ascending;
constexpr HeaderIcon Down = HeaderIcon::Descending;

const std::vector<RowKey> fileOrder{Heading, Copy, View, Pack, Refresh, Search, Sync};
const std::vector<RowKey> byCommand{Copy, Pack, Refresh, Search, Sync, View};
const std::vector<RowKey> byCommandDescending{View, Sync, Search, Refresh, Pack, Copy};

TEST_F(CommandListTest, SortsByTheStoredColumnAndLeavesHeadingsOut) {
  settings_.SortedColumn = 2;
  list_.SortCommandList();
  EXPECT_EQ(Order(), byCommand);
  EXPECT_EQ(Icons(), (std::vector{None, Up, None, None}));
  EXPECT_EQ(settings_.SortedList, 1);
  EXPECT_EQ(settings_.SortedColumn, 2);
  EXPECT_EQ(settings_.SortOrder, 0);
  EXPECT_EQ(list_.SelectedRow(), Copy);
}

TEST_F(CommandListTest, SortsDescendingWhenThatIsStored) {
  settings_.SortedColumn = 2;
  settings_.SortOrder = 1;
  list_.SortCommandList();
  EXPECT_EQ(Order(), byCommandDescending);
  EXPECT_EQ(Icons(), (std::vector{None, Down, None, None}));
}

TEST_F(CommandListTest, ClickingTheSameHeaderTwiceTurnsTheOrderRoundAndBack) {
  settings_.SortedColumn = 2;
  list_.SortCommandList();
  list_.SortByColumn(2);
  EXPECT_EQ(Order(), byCommandDescending);
  EXPECT_EQ(Icons(), (std::vector{None, Down, None, None}));
  EXPECT_EQ(settings_.SortOrder, 1);
  list_.SortByColumn(2);
  EXPECT_EQ(Order(), byCommand);
  EXPECT_EQ(Icons(), (std::vector{None, Up, None, None}));
  EXPECT_EQ(settings_.SortOrder, 0);
}

TEST_F(CommandListTest, ClickingAnotherHeaderKeepsTheOrder) {
  settings_.SortedColumn = 1;
  settings_.SortOrder = 1;
  list_.SortCommandList();
  list_.SortByColumn(2);
  EXPECT_EQ(Order(), byCommandDescending);
  EXPECT_EQ(Icons(), (std::vector{None, Down, None, None}));
  EXPECT_EQ(settings_.SortedColumn, 2);
}

TEST_F(CommandListTest, ClickingAHeaderInFileOrderChangesNoRowAndClearsTheIcons) {
  settings_.SortedColumn = 2;
  list_.SortByColumn(1);
  EXPECT_EQ(Order(), fileOrder);
  EXPECT_EQ(Icons(), (std::vector{None, None, None, None}));
  EXPECT_EQ(settings_.SortOrder, 1);
  EXPECT_EQ(settings_.SortedColumn, 3);
}

TEST_F(CommandListTest, GoingBackToFileOrderReturnsTheHeadingsAndKeepsTheEdits) {
  settings_.SortedColumn = 2;
  list_.SortCommandList();
  catalogue_.ListView1.Edit(Pack).CurrentKeys = L"Alt + X";
  list_.RestoreFileOrder();
  EXPECT_EQ(Order(), fileOrder);
  EXPECT_EQ(catalogue_.ListView1.At(3).CurrentKeys, L"Alt + X");
  EXPECT_EQ(catalogue_.ListView1.At(0).Icon, RowIcon::CommentBlock);
  EXPECT_TRUE(catalogue_.ListView1.Row(Search).DefaultKeysAreRed);
  EXPECT_EQ(list_.SelectedRow(), Heading);
}

TEST_F(CommandListTest, GoingBackToFileOrderResetsTheStoredSort) {
  settings_.SortedColumn = 2;
  list_.SortCommandList();
  list_.RestoreFileOrder();
  EXPECT_EQ(Icons(), (std::vector{None, None, None, None}));
  EXPECT_EQ(settings_.SortedList, 0);
  EXPECT_EQ(settings_.SortedColumn, 3);
  EXPECT_EQ(settings_.SortOrder, 1);
  list_.SortCommandList();
  EXPECT_EQ(Icons(), (std::vector{None, None, Down, None}));
  EXPECT_EQ(Order(), (std::vector{Search, Copy, Refresh, View, Pack, Sync}));
}

TEST_F(CommandListTest, AHeadingRowCanBeSelectedButIsNoCommand) {
  list_.ShowRowDetails(Heading);
  EXPECT_EQ(list_.SelectedRow(), Heading);
  EXPECT_FALSE(list_.CommandSelected());
}

TEST_F(CommandListTest, AnEmptyListHasNoSelectedRow) {
  catalogue_ = Catalogue();
  list_.ShowFirstRow();
  EXPECT_EQ(list_.SelectedRow(), 0U);
  EXPECT_FALSE(list_.CommandSelected());
  list_.SortCommandList();
  list_.RestoreFileOrder();
  EXPECT_EQ(list_.SelectedRow(), 0U);
}

TEST_F(CommandListTest, StoredValuesOutOfRangeAreRepaired) {
  for (const short column : {short{0}, short{7}, short{-1}}) {
    settings_.SortedColumn = column;
    settings_.SortOrder = 5;
    list_.SortCommandList();
    EXPECT_EQ(settings_.SortedColumn, 3);
    EXPECT_EQ(settings_.SortOrder, 1);
    list_.RestoreFileOrder();
  }
}

TEST_F(CommandListTest, TheStoredSortComesBackAtTheFirstActivation) {
  settings_.SortedList = 1;
  settings_.SortedColumn = 2;
  list_.SortCommandList();
  list_.RestoreStoredSort();
  EXPECT_EQ(Order(), byCommand);
  EXPECT_EQ(Icons(), (std::vector{None, Up, None, None}));
  EXPECT_EQ(settings_.SortedColumn, 2);
  EXPECT_EQ(settings_.SortOrder, 0);
}

TEST_F(CommandListTest, AStoredColumnOutOfRangeIsRepairedAtTheFirstActivationToo) {
  settings_.SortedList = 1;
  list_.SortCommandList();
  settings_.SortedColumn = 9;
  list_.RestoreStoredSort();
  EXPECT_EQ(settings_.SortedColumn, 3);
}

TEST_F(CommandListTest, AStoredFourthColumnIsRestoredAsNone) {
  settings_.SortedList = 1;
  settings_.SortedColumn = 4;
  list_.SortCommandList();
  const std::vector<RowKey> byCurrentKeys = Order();
  list_.RestoreStoredSort();
  EXPECT_EQ(settings_.SortedColumn, 0);
  EXPECT_EQ(settings_.SortOrder, 0);
  EXPECT_EQ(Icons(), (std::vector{None, None, None, None}));
  EXPECT_EQ(Order(), byCurrentKeys);
}

TEST_F(CommandListTest, AStoredOrderThatIsNoneCountsAsDescending) {
  for (const short order : {short{2}, short{-1}}) {
    settings_.SortedColumn = 2;
    settings_.SortOrder = order;
    list_.SortCommandList();
    EXPECT_EQ(Order(), byCommandDescending);
    EXPECT_EQ(settings_.SortOrder, 1);
  }
}

TEST_F(CommandListTest, WithoutSortedListNothingIsRestored) {
  list_.RestoreStoredSort();
  EXPECT_EQ(Order(), fileOrder);
  EXPECT_EQ(settings_.SortedColumn, 3);
}

TEST(ColumnLayout, IsReadFromTheSettingsAndStoredTheSameWay) {
  Settings settings;
  settings.ColumnHeadersPosition = L"2,1,4,3";
  settings.ColumnHeadersSize = L"100, 200,300,4000";
  const ColumnLayout layout = ReadColumnLayout(settings);
  EXPECT_EQ(layout.Positions, (std::array{2, 1, 4, 3}));
  EXPECT_EQ(layout.Widths, (std::array{100, 200, 300, 4000}));
  Settings stored;
  StoreColumnLayout(layout, stored);
  EXPECT_EQ(stored.ColumnHeadersPosition, L"2,1,4,3");
  EXPECT_EQ(stored.ColumnHeadersSize, L"100,200,300,4000");
}

TEST(ColumnLayout, WhatIsMissingOrImpossibleTakesItsDefault) {
  const struct {
    const wchar_t *Positions, *Widths;
    std::array<int, 4> ExpectedWidths;
  } cases[] = {
      {L"", L"", {3000, 2000, 2000, 2000}},
      {L"1,2,3", L"1500,1600", {1500, 1600, 2000, 2000}},
      {L"1,1,2,3", L"x,-5,,9000000", {3000, 2000, 2000, 2000}},
      {L"1,2,3,4", L"0,40000,2000,2000", {0, 40000, 2000, 2000}},
      {L"0,1,2,3", L"1e9,,,", {3000, 2000, 2000, 2000}},
      {L"1,2,3,5", L"100,200,300,400,500", {100, 200, 300, 400}},
      {L"1,2,3,4", L"900,99,1000000,1000001", {900, 99, 1000000, 2000}},
  };
  for (const auto& [positions, widths, expectedWidths] : cases) {
    Settings settings;
    settings.ColumnHeadersPosition = positions;
    settings.ColumnHeadersSize = widths;
    const ColumnLayout layout = ReadColumnLayout(settings);
    EXPECT_EQ(layout.Positions, (std::array{1, 2, 3, 4}));
    EXPECT_EQ(layout.Widths, expectedWidths);
  }
}

}  // namespace
}  // namespace tessera::command_list_test
