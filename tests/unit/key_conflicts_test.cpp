#include <gtest/gtest.h>

#include "editing/KeyConflicts.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::key_conflicts_test {
namespace {

using namespace sample;

class KeyConflicts : public testing::Test {
 protected:
  ConflictKind KindOf(RowKey row, std::wstring_view key) const {
    return FindConflict(catalogue_, row, key).Kind;
  }

  Catalogue catalogue_ = SampleCatalogue();
};

TEST_F(KeyConflicts, AKeyThatNobodyHasIsFree) {
  EXPECT_EQ(KindOf(Pack, L"Alt + X"), ConflictKind::Free);
  EXPECT_EQ(KindOf(Pack, L"F"), ConflictKind::Free);
}

TEST_F(KeyConflicts, TheRowsOnlyKeyIsTheSameKey) {
  EXPECT_EQ(KindOf(View, L"F6"), ConflictKind::SameKey);
  EXPECT_EQ(KindOf(Refresh, L"F7 = F8"), ConflictKind::SameKey);
  EXPECT_EQ(KindOf(Refresh, L"F7"), ConflictKind::CurrentKey);
  EXPECT_EQ(KindOf(Sync, L"F9"), ConflictKind::SameKey) << "also when it is another's default key";
}

TEST_F(KeyConflicts, NamesTheOwner) {
  const KeyConflict byDefault = FindConflict(catalogue_, Pack, L"Ctrl + R");
  EXPECT_EQ(byDefault.Kind, ConflictKind::DefaultKey);
  EXPECT_EQ(byDefault.Owner, Refresh);
  const KeyConflict current = FindConflict(catalogue_, Pack, L"F8");
  EXPECT_EQ(current.Kind, ConflictKind::CurrentKey);
  EXPECT_EQ(current.Owner, Refresh);
}

TEST_F(KeyConflicts, ADefaultKeyHidesACurrentKey) {
  const KeyConflict conflict = FindConflict(catalogue_, Pack, L"F9");
  EXPECT_EQ(conflict.Kind, ConflictKind::DefaultKey);
  EXPECT_EQ(conflict.Owner, Search);
}

TEST_F(KeyConflicts, LetterCaseDoesNotMatterInTheIndexes) {
  EXPECT_EQ(KindOf(Pack, L"ctrl + r"), ConflictKind::DefaultKey);
  EXPECT_EQ(KindOf(View, L"f6"), ConflictKind::CurrentKey);
}

TEST(KeyQuestions, SayWhoHasTheKeyAndWhoGetsIt) {
  const MemoryFiles noFiles;
  const Texts texts(noFiles);
  const Catalogue catalogue = SampleCatalogue();
  const CommandEntry& owner = catalogue.ListView1.Row(View);
  const CommandEntry& row = catalogue.ListView1.Row(Pack);
  EXPECT_EQ(StartMenuQuestion(texts, {L"Ctrl + Alt + F1", L"Paint", L"key1"}, row),
            L"Current hotkey for :  [Paint] in your Total Commander Start Menu\n\n"
            L"Do you want assign it to :  cm_Pack");
  EXPECT_EQ(DefaultKeyQuestion(texts, owner, row),
            L"Default hotkey for :  cm_View\t\n\nDo you want assign it to :  cm_Pack\t");
  EXPECT_EQ(CurrentKeyQuestion(texts, owner, row),
            L"Current hotkey for :  cm_View\n\nDo you want assign it to :  cm_Pack");
  EXPECT_EQ(DeleteAllQuestion(texts),
            L"You are about to delete Current Hotkeys for ALL commands.\n\nAre you sure?");
}

}  // namespace
}  // namespace tessera::key_conflicts_test
