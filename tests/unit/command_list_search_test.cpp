// Which row of the command list is selected while a search shows a part of it.
#include <gtest/gtest.h>

#include "editing/CommandList.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::command_list_search_test {
namespace {

using namespace sample;

class CommandListSearchTest : public testing::Test {
 protected:
  CommandListSearchTest() { list_.ShowFirstRow(); }

  Settings settings_;
  Catalogue catalogue_ = SampleCatalogue();
  CommandList list_{catalogue_, settings_};
};

TEST_F(CommandListSearchTest, TheSelectedRowStaysWhileItIsFound) {
  list_.ShowRowDetails(Sync);
  list_.Search(L"f9");
  EXPECT_EQ(list_.SelectedRow(), Sync);
}

TEST_F(CommandListSearchTest, OtherwiseTheFirstCommandThatIsFoundIsSelectedAndNoHeading) {
  list_.ShowRowDetails(Pack);
  EXPECT_TRUE(list_.Search(L"f9").HideKeysList);
  EXPECT_EQ(list_.SelectedRow(), Search);
  list_.EndSearch();
  EXPECT_EQ(list_.SelectedRow(), Search);
}

TEST_F(CommandListSearchTest, WithoutHeadingsTheFirstCommandThatIsFoundIsTheFirstRow) {
  catalogue_.ListView1.RemoveHeadings();
  list_.ShowRowDetails(Pack);
  list_.Search(L"f9");
  EXPECT_EQ(list_.SelectedRow(), Search);
}

TEST_F(CommandListSearchTest, WhatIsFoundNowhereSelectsNothingUntilTheTextChanges) {
  list_.ShowRowDetails(Pack);
  list_.Search(L"f9");
  list_.Search(L"f9 nowhere");
  EXPECT_EQ(list_.SelectedRow(), 0U);
  EXPECT_FALSE(list_.CommandSelected());
  list_.Search(L"f9 nowhere else");
  EXPECT_EQ(list_.SelectedRow(), 0U);
  list_.EndSearch();
  EXPECT_EQ(list_.SelectedRow(), Pack) << "as before the search";
}

TEST_F(CommandListSearchTest, ARowThatWasSelectedWhileSearchingIsTheOneBefore) {
  list_.ShowRowDetails(Pack);
  list_.Search(L"f9");
  list_.SelectRow(2);
  list_.Search(L"nowhere");
  list_.Search(L"f9");
  EXPECT_EQ(list_.SelectedRow(), Sync);
}

TEST_F(CommandListSearchTest, PositionsAreThoseOfWhatIsShown) {
  list_.Search(L"f9");
  list_.SelectRow(1);
  EXPECT_EQ(list_.SelectedRow(), Search);
  list_.SelectRow(3);
  EXPECT_EQ(list_.SelectedRow(), Search) << "there is no such row";
}

TEST_F(CommandListSearchTest, SortingKeepsTheSearchAndSelectsItsFirstRow) {
  list_.Search(L"f9");
  list_.SelectRow(2);
  settings_.SortedColumn = 2;
  settings_.SortOrder = 1;
  list_.SortCommandList();
  EXPECT_EQ(list_.Shown().Count(), 2U);
  EXPECT_EQ(list_.SelectedRow(), Sync);
  list_.SortByColumn(2);
  EXPECT_EQ(list_.Shown().At(0).Key, Search);
  EXPECT_EQ(list_.SelectedRow(), Sync) << "a click on a heading selects nothing";
  list_.RestoreFileOrder();
  EXPECT_EQ(list_.Shown().Count(), 3U);
  EXPECT_EQ(list_.SelectedRow(), Heading);
}

TEST_F(CommandListSearchTest, TheTableItselfKnowsNothingOfASearch) {
  list_.Search(L"f9");
  EXPECT_EQ(catalogue_.ListView1.Count(), 7U);
  EXPECT_EQ(catalogue_.ListView1.At(0).Key, Heading);
  EXPECT_EQ(catalogue_.ListView1.At(6).Key, Sync);
}

TEST_F(CommandListSearchTest, TakingAnEditOfAHiddenRowBackEndsTheSearch) {
  const auto edit = [this] {
    catalogue_.ListView1.Edit(Pack).CurrentKeys = L"X";
    return true;
  };
  catalogue_.Edits.Make(catalogue_, {EditKind::Assign, Pack, L"X"}, edit);
  list_.Search(L"f9");
  list_.Undo();
  EXPECT_FALSE(list_.Shown().Searching());
  EXPECT_EQ(list_.SelectedRow(), Pack);
  list_.Search(L"pack");
  list_.Redo();
  EXPECT_TRUE(list_.Shown().Searching()) << "its row is shown";
}

TEST_F(CommandListSearchTest, TakingAnEditOfAllRowsBackLeavesTheSelectedRowAndTheSearch) {
  const auto edit = [this] {
    catalogue_.ListView1.Edit(View).CurrentKeys = L"---";
    return true;
  };
  catalogue_.Edits.Make(catalogue_, {EditKind::DeleteAll, 0, {}}, edit);
  list_.Search(L"f9");
  list_.ShowRowDetails(Sync);
  for (const Reaction& reaction : {list_.Undo(), list_.Redo()}) {
    EXPECT_TRUE(reaction.Restored);
    EXPECT_FALSE(reaction.HideKeysList);
    EXPECT_EQ(list_.SelectedRow(), Sync);
    EXPECT_TRUE(list_.Shown().Searching());
  }
}

TEST_F(CommandListSearchTest, TheFirstRowOfAllIsACommandLikeAnyOther) {
  constexpr RowKey First = 1;
  constexpr RowKey Second = 2;
  catalogue_.ListView1.Fill({SampleCommand(First, L"First", L"---", L"F1"),
                             SampleCommand(Second, L"Second", L"---", L"F2")});
  list_.ShowFirstRow();
  EXPECT_TRUE(list_.CommandSelected());
  list_.ShowRowDetails(Second);
  list_.Search(L"f1");
  list_.Search(L"f");
  EXPECT_EQ(list_.SelectedRow(), First);

  const auto edit = [this] {
    catalogue_.ListView1.Edit(First).CurrentKeys = L"X";
    return true;
  };
  catalogue_.Edits.Make(catalogue_, {EditKind::Assign, First, L"X"}, edit);
  list_.ShowRowDetails(Second);
  list_.Search(L"second");
  EXPECT_TRUE(list_.Undo().HideKeysList);
  EXPECT_EQ(list_.SelectedRow(), First);
  EXPECT_FALSE(list_.Shown().Searching());
}

TEST_F(CommandListSearchTest, WithoutAPlaceToTypeASearchEndsAndNoneBegins) {
  list_.Search(L"f9");
  EXPECT_FALSE(list_.SetCanSearch(true).Searched);
  EXPECT_TRUE(list_.Shown().Searching());
  EXPECT_TRUE(list_.SetCanSearch(false).Searched);
  EXPECT_FALSE(list_.CanSearch());
  EXPECT_EQ(list_.Shown().SearchText(), L"");
  EXPECT_FALSE(list_.SetCanSearch(false).Searched);
  list_.Search(L"f9");
  EXPECT_EQ(list_.Shown().SearchText(), L"");
  list_.SetCanSearch(true);
  list_.Search(L" ");
  EXPECT_TRUE(list_.SetCanSearch(false).Searched) << "blanks go, too";
  EXPECT_EQ(list_.Shown().SearchText(), L"");
}

TEST_F(CommandListSearchTest, SortingSelectsAnotherRowForAnEditedOneThatIsNoLongerFound) {
  list_.SortCommandList();
  list_.Search(L"f9");
  list_.ShowRowDetails(Sync);
  catalogue_.ListView1.Edit(Sync).CurrentKeys = L"---";
  EXPECT_TRUE(list_.Shown().PositionOf(Sync)) << "edits alone hide no row";
  list_.SortByColumn(1);
  EXPECT_FALSE(list_.Shown().PositionOf(Sync));
  EXPECT_EQ(list_.SelectedRow(), Search);
}

}  // namespace
}  // namespace tessera::command_list_search_test
