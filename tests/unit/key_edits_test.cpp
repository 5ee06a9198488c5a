#include <gtest/gtest.h>

#include "editing/KeyEdits.h"
#include "shortcuts/ReadKeys.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::key_edits_test {
namespace {

using namespace sample;

class KeyEdits : public testing::Test {
 protected:
  const CommandEntry& Row(RowKey key) const { return catalogue_.ListView1.Row(key); }

  void Take(RowKey row, const std::wstring& key, bool replace) {
    TakeKey(catalogue_, row, key, FindConflict(catalogue_, row, key), replace, notation_);
  }

  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
};

TEST(RemoveKeyFromList, KeepsTheOtherPiecesInTheirOrder) {
  const HotkeyNotation notation;
  struct {
    const wchar_t *List, *Key, *Result;
  } const cases[] = {
      {L"F1 = F2 = F3", L"F2", L"F1 = F3"},
      {L"F1 = F2", L"F1", L"F2"},
      {L"F1 = F2", L"F9", L"F1 = F2"},
      {L"F1=F2 =  F3", L"F2", L"F1 = F3"},
      {L"F1", L"F1", L"---"},
      {L"F1 = F1", L"F1", L"---"},
      {L"f1", L"F1", L"f1"},
      {L"Ctrl + F1 = F1", L"F1", L"Ctrl + F1"},
  };
  for (const auto& [list, key, result] : cases) {
    EXPECT_EQ(RemoveKeyFromList(list, key, notation), result) << "from the list of that case";
  }
}

TEST(RemoveKeyFromList, CutsThreeCharactersWhateverTheSeparator) {
  HotkeyNotation notation;
  notation.MultiHotkeySeparator = L" // ";
  EXPECT_EQ(RemoveKeyFromList(L"F1 // F2 // F3", L"F3", notation), L"F1 // F2 ");
  notation.MultiHotkeySeparator = L" | ";
  EXPECT_EQ(RemoveKeyFromList(L"F1 | F2 | F3", L"F3", notation), L"F1 | F2");
}

TEST_F(KeyEdits, TakingAFreeKeyAddsItToTheIndex) {
  Take(Pack, L"Alt + X", true);
  const auto entry = catalogue_.lvwCurrKeys.FindWhole(L"Alt + X");
  ASSERT_TRUE(entry);
  EXPECT_EQ(catalogue_.lvwCurrKeys.At(*entry).Owner, Pack);
}

TEST_F(KeyEdits, NamesOfReadKeysStayWhileTheKeysStand) {
  const auto names = [&](RowKey row) { return NativeKeysOf(Row(row), notation_); };
  using Names = std::vector<std::wstring>;
  CommandEntry& view = catalogue_.ListView1.Edit(View);
  for (const wchar_t* name : {L"OEM_+", L"c+k"}) AddReadKey(view, name, notation_);
  catalogue_.lvwCurrKeys.Add(L"K", View);
  EXPECT_EQ(names(View), (Names{L"F6", L"OEM_+", L"c+k"}));
  GiveKey(catalogue_, View, L"Ctrl + X", notation_);
  EXPECT_EQ(names(View), (Names{L"F6", L"OEM_+", L"c+k", L"C+X"}));

  Take(Pack, L"K", true);
  GiveKey(catalogue_, Pack, L"K", notation_);
  EXPECT_EQ(names(View), (Names{L"F6", L"OEM_+", L"C+X"}));
  EXPECT_EQ(names(Pack), Names{L"K"}) << "moved, it is the key that is shown";

  EXPECT_TRUE(DeleteCurrentKeys(catalogue_, View, notation_));
  EXPECT_TRUE(names(View).empty());
  GiveKey(catalogue_, View, L"K", notation_);
  EXPECT_EQ(names(View), Names{L"K"});
}

TEST_F(KeyEdits, WhatIsCutIntoALongSeparatorIsNoPartOfAKey) {
  notation_.MultiHotkeySeparator = L" //// ";
  CommandEntry& refresh = catalogue_.ListView1.Edit(Refresh);
  refresh.CurrentKeys = L"F7 //// F8";
  Take(Pack, L"F8", true);
  EXPECT_EQ(refresh.CurrentKeys, L"F7 //");
  EXPECT_EQ(NativeKeysOf(refresh, notation_), std::vector<std::wstring>{L"F7"});
}

TEST_F(KeyEdits, AKeyCountsAsGivenUntilAnEditTakesIt) {
  const auto isGiven = [&](RowKey row, std::wstring_view key) {
    return catalogue_.Given.MomentOf(row, key) != 0;
  };
  for (const wchar_t* key : {L"F7", L"F8"}) catalogue_.Given.Give(Refresh, key);
  Take(Pack, L"F7", true);
  EXPECT_FALSE(isGiven(Refresh, L"F7"));
  EXPECT_TRUE(isGiven(Refresh, L"F8"));
  ReleaseCurrentKeys(catalogue_, Refresh, notation_);
  EXPECT_FALSE(isGiven(Refresh, L"F8"));
  GiveKey(catalogue_, Pack, L"Ctrl + Num *", notation_);
  EXPECT_TRUE(isGiven(Pack, L"C+*"));
}

TEST_F(KeyEdits, ReplacingKeysByAFreeKeyLeavesTheRowWithoutAnyEntry) {
  Take(Refresh, L"Alt + X", true);
  EXPECT_FALSE(catalogue_.lvwCurrKeys.FindWhole(L"Alt + X"));
  EXPECT_FALSE(catalogue_.lvwCurrKeys.FindWhole(L"F7"));
  EXPECT_FALSE(catalogue_.lvwCurrKeys.FindWhole(L"F8"));
  EXPECT_TRUE(catalogue_.lvwCurrKeys.FindWhole(L"F6"));
}

TEST_F(KeyEdits, AddingAFreeKeyKeepsTheRowsEntries) {
  Take(Refresh, L"Alt + X", false);
  EXPECT_TRUE(catalogue_.lvwCurrKeys.FindWhole(L"Alt + X"));
  EXPECT_TRUE(catalogue_.lvwCurrKeys.FindWhole(L"F7"));
}

TEST_F(KeyEdits, ReplacingKeysByATakenKeyLeavesTheFormerEntries) {
  Take(Refresh, L"F6", true);
  EXPECT_TRUE(catalogue_.lvwCurrKeys.FindWhole(L"F7"));
  EXPECT_TRUE(catalogue_.lvwCurrKeys.FindWhole(L"F8"));
  EXPECT_EQ(FindConflict(catalogue_, Pack, L"F7").Owner, Refresh);
}

TEST_F(KeyEdits, TakingADefaultKeyMarksItsOwner) {
  Take(Pack, L"F5", true);
  EXPECT_EQ(Row(Copy).DefaultKeys, L"F5 *");
  EXPECT_TRUE(Row(Copy).DefaultKeysAreRed);
  EXPECT_EQ(Row(Copy).Icon, RowIcon::None);
  EXPECT_TRUE(catalogue_.lvwDefKeys.FindWhole(L"F5 *"));
  EXPECT_EQ(catalogue_.lvwCurrKeys.At(*catalogue_.lvwCurrKeys.FindWhole(L"F5")).Owner, Pack);
}

TEST_F(KeyEdits, TakingADefaultKeyMarksTheWholeCell) {
  Take(Pack, L"F2", true);
  EXPECT_EQ(Row(Refresh).DefaultKeys, L"F2 = Ctrl + R *");
  EXPECT_EQ(Row(Refresh).Icon, RowIcon::HasKey);
  EXPECT_TRUE(catalogue_.lvwDefKeys.FindWhole(L"F2 *"));
  EXPECT_TRUE(catalogue_.lvwDefKeys.FindWhole(L"Ctrl + R"));
}

TEST_F(KeyEdits, TakingACurrentKeyMovesIt) {
  Take(Pack, L"F8", true);
  EXPECT_EQ(Row(Refresh).CurrentKeys, L"F7");
  EXPECT_EQ(catalogue_.lvwCurrKeys.At(*catalogue_.lvwCurrKeys.FindWhole(L"F8")).Owner, Pack);
}

TEST_F(KeyEdits, TheOwnerOfASingleTakenKeyHasNone) {
  Take(Pack, L"F6", true);
  EXPECT_EQ(Row(View).CurrentKeys, L"---");
  EXPECT_EQ(Row(View).Icon, RowIcon::None);
}

TEST_F(KeyEdits, AnOwnerWithADefaultKeyKeepsItsIconUnlessThatIsOverridden) {
  Take(Pack, L"F7", true);
  Take(Pack, L"F8", true);
  EXPECT_EQ(Row(Refresh).CurrentKeys, L"---");
  EXPECT_EQ(Row(Refresh).Icon, RowIcon::HasKey);

  catalogue_ = SampleCatalogue();
  Take(Pack, L"F2", true);
  Take(Pack, L"F7", true);
  EXPECT_EQ(Row(Refresh).CurrentKeys, L"F8");
  EXPECT_EQ(Row(Refresh).Icon, RowIcon::None);
}

TEST_F(KeyEdits, ReleasingKeysWithdrawsTheirMarksButNotTheColor) {
  ASSERT_EQ(Row(Search).DefaultKeys, L"F9 *");
  ReleaseCurrentKeys(catalogue_, Sync, notation_);
  EXPECT_EQ(Row(Sync).CurrentKeys, L"---");
  EXPECT_EQ(Row(Sync).Icon, RowIcon::None);
  EXPECT_EQ(Row(Search).DefaultKeys, L"F9");
  EXPECT_EQ(Row(Search).Icon, RowIcon::HasKey);
  EXPECT_TRUE(Row(Search).DefaultKeysAreRed);
  EXPECT_TRUE(catalogue_.lvwDefKeys.FindWhole(L"F9"));
  EXPECT_FALSE(catalogue_.lvwDefKeys.FindWhole(L"F9 *"));
}

TEST_F(KeyEdits, ReleasingKeysGivesThemBackToTheStartMenu) {
  catalogue_.StartMenuKeys[0] = {L"f6 *", L"Paint", L"key1"};
  ReleaseCurrentKeys(catalogue_, View, notation_);
  EXPECT_EQ(catalogue_.StartMenuKeys[0].Key, L"f6");
}

TEST_F(KeyEdits, DeletingKeysRemovesTheRowsEntries) {
  EXPECT_TRUE(DeleteCurrentKeys(catalogue_, Refresh, notation_));
  EXPECT_EQ(Row(Refresh).CurrentKeys, L"---");
  EXPECT_EQ(Row(Refresh).Icon, RowIcon::HasKey);
  EXPECT_FALSE(catalogue_.lvwCurrKeys.FindWhole(L"F7"));
  EXPECT_FALSE(catalogue_.lvwCurrKeys.FindWhole(L"F8"));
  EXPECT_TRUE(catalogue_.lvwCurrKeys.FindWhole(L"F6"));
}

TEST_F(KeyEdits, DeletingNothingChangesNothing) {
  EXPECT_FALSE(DeleteCurrentKeys(catalogue_, Pack, notation_));
  EXPECT_EQ(catalogue_.lvwCurrKeys.Count(), SampleCatalogue().lvwCurrKeys.Count());
}

}  // namespace
}  // namespace tessera::key_edits_test
