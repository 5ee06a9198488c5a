// What is displayed and indexed of the master rows.
#include "shortcuts/Catalogue.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/Kept.h"

namespace tessera::catalogue_test {
namespace {

CommandEntry Heading(RowKey key) {
  CommandEntry row;
  row.Key = key;
  row.Description = L"[File]";
  row.Tag = CommentBlockTag;
  return row;
}

CommandEntry Command(RowKey key, const std::wstring& defaults, const std::wstring& current) {
  CommandEntry row;
  row.Key = key;
  row.Description = L"description";
  row.CommandName = Kept(L"cm_" + std::to_wstring(key));
  row.CommandCode = Kept(std::to_wstring(100 + key));
  row.DefaultKeys = defaults;
  row.CurrentKeys = current;
  row.Tag = row.CommandCode;
  return row;
}

Catalogue Opened(std::vector<CommandEntry> rows) {
  Catalogue catalogue;
  catalogue.lvwHidden = std::move(rows);
  const HotkeyNotation notation;
  BuildDisplayTable(catalogue, notation, [] {});
  BuildKeyIndexes(catalogue, notation);
  MarkOverriddenDefaults(catalogue);
  return catalogue;
}

using Texts = std::vector<std::wstring>;

/// Each entry as "text @ row".
Texts EntriesOf(const KeyIndex& index) {
  Texts texts;
  for (const KeyIndex::EntryId id : index.Ids()) {
    texts.push_back(index.At(id).Text + L" @ " + std::to_wstring(index.At(id).Owner));
  }
  return texts;
}

TEST(Catalogue, DisplaysEveryMasterRowInItsOrder) {
  const Catalogue catalogue = Opened({Heading(1), Command(2, L"F1", L"F2"), Heading(3)});
  ASSERT_EQ(catalogue.ListView1.Count(), 3u);
  const CommandEntry& row = catalogue.ListView1.At(1);
  EXPECT_EQ(row.Key, 2u);
  EXPECT_EQ(row.Description, L"description");
  EXPECT_EQ(row.CommandName, L"cm_2");
  EXPECT_EQ(row.DefaultKeys, L"F1");
  EXPECT_EQ(row.CurrentKeys, L"F2");
  EXPECT_EQ(row.Tag, L"102");
  EXPECT_TRUE(catalogue.ListView1.At(2).IsHeading());
}

TEST(Catalogue, KeepsTheCodeInTheMasterRowsOnly) {
  const Catalogue catalogue = Opened({Command(1, L"---", L"---")});
  EXPECT_EQ(catalogue.ListView1.At(0).CommandCode, L"");
  EXPECT_EQ(catalogue.lvwHidden[0].CommandCode, L"101");
}

TEST(Catalogue, ARowWithAKeyHasTheKeyIcon) {
  const Catalogue catalogue =
      Opened({Heading(1), Command(2, L"---", L"---"), Command(3, L"F1", L"---"),
              Command(4, L"---", L"F2"), Command(5, L"F3", L"F4")});
  const RowIcon expected[] = {RowIcon::CommentBlock, RowIcon::None, RowIcon::HasKey,
                              RowIcon::HasKey, RowIcon::HasKey};
  for (std::size_t position = 0; position < 5; ++position) {
    EXPECT_EQ(catalogue.ListView1.At(position).Icon, expected[position]) << position;
  }
}

TEST(Catalogue, StepsOncePerRow) {
  Catalogue catalogue;
  catalogue.lvwHidden = {Heading(1), Command(2, L"---", L"---")};
  int steps = 0;
  BuildDisplayTable(catalogue, HotkeyNotation{}, [&steps] { ++steps; });
  EXPECT_EQ(steps, 2);
}

TEST(Catalogue, IndexesEverySingleKeyOfTheCommands) {
  const Catalogue catalogue =
      Opened({Heading(1), Command(2, L"F1 = Ctrl + F1", L"---"), Command(3, L"---", L"F3=F4 =  F5"),
              Command(4, L"F2", L"Num +")});
  EXPECT_EQ(EntriesOf(catalogue.lvwDefKeys), (Texts{L"F1 @ 2", L"Ctrl + F1 @ 2", L"F2 @ 4"}));
  EXPECT_EQ(EntriesOf(catalogue.lvwCurrKeys),
            (Texts{L"F3 @ 3", L"F4 @ 3", L"F5 @ 3", L"Num + @ 4"}));
}

TEST(Catalogue, AHeadingIsNeverIndexed) {
  CommandEntry heading = Heading(1);
  heading.DefaultKeys = L"F1";
  heading.CurrentKeys = L"F2";
  const Catalogue catalogue = Opened({heading});
  EXPECT_EQ(catalogue.lvwDefKeys.Count(), 0u);
  EXPECT_EQ(catalogue.lvwCurrKeys.Count(), 0u);
}

TEST(Catalogue, TheUndefinedMarkerInForceIsNoKey) {
  Catalogue catalogue;
  catalogue.lvwHidden = {Command(1, L"none", L"---")};
  HotkeyNotation notation;
  notation.UndefinedHotkey = L"none";
  BuildDisplayTable(catalogue, notation, [] {});
  BuildKeyIndexes(catalogue, notation);
  EXPECT_EQ(catalogue.lvwDefKeys.Count(), 0u);
  EXPECT_EQ(EntriesOf(catalogue.lvwCurrKeys), Texts{L"--- @ 1"});
}

TEST(Catalogue, ADefaultKeyThatIsACurrentKeyIsMarked) {
  const Catalogue catalogue =
      Opened({Command(1, L"F1 = F2", L"---"), Command(2, L"F3", L"f2"), Command(3, L"F4", L"F9")});
  EXPECT_EQ(catalogue.ListView1.At(0).DefaultKeys, L"F1 = F2 *");
  EXPECT_TRUE(catalogue.ListView1.At(0).DefaultKeysAreRed);
  EXPECT_EQ(catalogue.ListView1.At(0).Icon, RowIcon::HasKey);
  EXPECT_EQ(EntriesOf(catalogue.lvwDefKeys), (Texts{L"F1 @ 1", L"F2 * @ 1", L"F3 @ 2", L"F4 @ 3"}));
  for (const std::size_t position : {1u, 2u}) {
    EXPECT_FALSE(catalogue.ListView1.At(position).DefaultKeysAreRed);
  }
  EXPECT_EQ(catalogue.ListView1.At(1).DefaultKeys, L"F3");
  EXPECT_EQ(catalogue.lvwHidden[0].DefaultKeys, L"F1 = F2");
}

TEST(Catalogue, TheMarkComparesWholeKeys) {
  const Catalogue catalogue = Opened({Command(1, L"F1 + Ctrl", L"---"), Command(2, L"F12", L"F1")});
  EXPECT_EQ(catalogue.ListView1.At(0).DefaultKeys, L"F1 + Ctrl");
  EXPECT_EQ(catalogue.ListView1.At(1).DefaultKeys, L"F12");
}

TEST(Catalogue, TwoOverriddenKeysMarkTheCellTwice) {
  const Catalogue catalogue = Opened({Command(1, L"F1 = F2", L"F1 = F2")});
  EXPECT_EQ(catalogue.ListView1.At(0).DefaultKeys, L"F1 = F2 * *");
  EXPECT_EQ(EntriesOf(catalogue.lvwDefKeys), (Texts{L"F1 * @ 1", L"F2 * @ 1"}));
}

TEST(Catalogue, EachCurrentKeyMarksOneDefaultKeyTheFirstThatIsUnmarked) {
  const Catalogue once = Opened({Command(1, L"F1", L"F1"), Command(2, L"F1", L"---")});
  EXPECT_EQ(EntriesOf(once.lvwDefKeys), (Texts{L"F1 * @ 1", L"F1 @ 2"}));
  const Catalogue twice = Opened({Command(1, L"F1", L"F1"), Command(2, L"F1", L"F1")});
  EXPECT_EQ(EntriesOf(twice.lvwDefKeys), (Texts{L"F1 * @ 1", L"F1 * @ 2"}));
}

}  // namespace
}  // namespace tessera::catalogue_test
