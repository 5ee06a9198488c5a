#include <gtest/gtest.h>

#include "editing/HotkeyAssignment.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::hotkey_assignment_test {
namespace {

using namespace sample;

class HotkeyAssignmentTest : public testing::Test {
 protected:
  const CommandEntry& Row(RowKey key) const { return catalogue_.ListView1.Row(key); }
  StartMenuSlot& Slot(int number) {
    return catalogue_.StartMenuKeys[static_cast<std::size_t>(number) - 1];
  }
  void WillAnswer(std::initializer_list<BoxAnswer> answers) { messageBoxes_.Answers = answers; }

  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
  MemoryFiles files_;
  Texts texts_{files_};
  FakeMessageBoxes messageBoxes_;
  HotkeyAssignment assignment_{catalogue_, notation_, texts_, messageBoxes_};
};

TEST_F(HotkeyAssignmentTest, AFreeKeyIsAssignedWithoutAQuestion) {
  EXPECT_TRUE(assignment_.Assign(Pack, L"Alt + X"));
  EXPECT_EQ(Row(Pack).CurrentKeys, L"Alt + X");
  EXPECT_EQ(Row(Pack).Icon, RowIcon::HasKey);
  EXPECT_TRUE(messageBoxes_.Shown.empty());
}

TEST_F(HotkeyAssignmentTest, AssigningReplacesAllFormerKeys) {
  EXPECT_TRUE(assignment_.Assign(Refresh, L"Alt + X"));
  EXPECT_EQ(Row(Refresh).CurrentKeys, L"Alt + X");
  EXPECT_FALSE(catalogue_.lvwCurrKeys.FindKey(L"Alt + X"));
}

TEST_F(HotkeyAssignmentTest, TheRowsOwnKeyOnlyBeeps) {
  EXPECT_FALSE(assignment_.Assign(View, L"F6"));
  EXPECT_EQ(messageBoxes_.BeepCount, 1);
  EXPECT_TRUE(messageBoxes_.Shown.empty());
  EXPECT_EQ(Row(View).CurrentKeys, L"F6");
}

TEST_F(HotkeyAssignmentTest, ADefaultKeyIsAskedAboutWithNoAsDefaultButton) {
  WillAnswer({BoxAnswer::No});
  EXPECT_FALSE(assignment_.Assign(Pack, L"F5"));
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text,
            L"Default hotkey for :  cm_Copy\t\n\nDo you want assign it to :  cm_Pack\t");
  EXPECT_EQ(messageBoxes_.Shown[0].Buttons, BoxButtons::YesNo);
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(messageBoxes_.Shown[0].Default, BoxDefault::Second);
  EXPECT_EQ(Row(Pack).CurrentKeys, L"---");
  EXPECT_EQ(Row(Copy).DefaultKeys, L"F5");
}

TEST_F(HotkeyAssignmentTest, YesTakesADefaultKey) {
  WillAnswer({BoxAnswer::Yes});
  EXPECT_TRUE(assignment_.Assign(Pack, L"F5"));
  EXPECT_EQ(Row(Pack).CurrentKeys, L"F5");
  EXPECT_EQ(Row(Copy).DefaultKeys, L"F5 *");
}

TEST_F(HotkeyAssignmentTest, YesMovesACurrentKey) {
  WillAnswer({BoxAnswer::Yes});
  EXPECT_TRUE(assignment_.Assign(Pack, L"F7"));
  EXPECT_EQ(messageBoxes_.Shown.at(0).Icon, BoxIcon::Exclamation);
  EXPECT_EQ(messageBoxes_.Shown.at(0).Default, BoxDefault::Second);
  EXPECT_EQ(Row(Pack).CurrentKeys, L"F7");
  EXPECT_EQ(Row(Refresh).CurrentKeys, L"F8");
}

TEST_F(HotkeyAssignmentTest, AKeyThatIsOnesDefaultAndAnothersCurrentIsReportedAsDefaultOnly) {
  WillAnswer({BoxAnswer::Yes});
  EXPECT_TRUE(assignment_.Assign(Pack, L"F9"));
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_TRUE(messageBoxes_.Shown[0].Text.starts_with(L"Default hotkey for :  cm_Search\t"));
  EXPECT_EQ(Row(Sync).CurrentKeys, L"F9");
}

TEST_F(HotkeyAssignmentTest, AStartMenuKeyThatIsADefaultKeyTooIsAskedAboutTwice) {
  Slot(1) = {L"f5", L"Paint", L"key1"};
  WillAnswer({BoxAnswer::Yes, BoxAnswer::Yes});
  EXPECT_TRUE(assignment_.Assign(Pack, L"F5"));
  ASSERT_EQ(messageBoxes_.Shown.size(), 2U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text,
            L"Current hotkey for :  [Paint] in your Total Commander Start Menu\n\n"
            L"Do you want assign it to :  cm_Pack");
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(messageBoxes_.Shown[0].Default, BoxDefault::Second);
  EXPECT_TRUE(messageBoxes_.Shown[1].Text.starts_with(L"Default hotkey"));
  EXPECT_EQ(Slot(1).Key, L"f5 *");
}

TEST_F(HotkeyAssignmentTest, NoToEitherOfTwoQuestionsLeavesTheRow) {
  Slot(1) = {L"F5", L"Paint", L"key1"};
  WillAnswer({BoxAnswer::No});
  EXPECT_FALSE(assignment_.Assign(Pack, L"F5"));
  EXPECT_EQ(Slot(1).Key, L"F5");
  WillAnswer({BoxAnswer::Yes, BoxAnswer::No});
  EXPECT_FALSE(assignment_.Assign(Pack, L"F5"));
  EXPECT_EQ(Row(Pack).CurrentKeys, L"---");
  EXPECT_EQ(Row(Copy).DefaultKeys, L"F5");
  EXPECT_EQ(Slot(1).Key, L"F5 *") << "a slot that was answered with Yes keeps its mark";
}

TEST_F(HotkeyAssignmentTest, TheAnswerAboutTheLastStartMenuSlotDecides) {
  Slot(1) = {L"Alt + X", L"Paint", L"key1"};
  Slot(5) = {L"Alt + X", L"Notes", L"key2"};
  WillAnswer({BoxAnswer::No, BoxAnswer::Yes});
  EXPECT_TRUE(assignment_.Assign(Pack, L"Alt + X"));
  EXPECT_EQ(Slot(1).Key, L"Alt + X");
  EXPECT_EQ(Slot(5).Key, L"Alt + X *");

  Slot(5).Key = L"Alt + Y";
  Slot(1).Key = L"Alt + Y";
  WillAnswer({BoxAnswer::Yes, BoxAnswer::No});
  EXPECT_FALSE(assignment_.Assign(Pack, L"Alt + Y"));
  EXPECT_EQ(Slot(1).Key, L"Alt + Y *");
}

TEST_F(HotkeyAssignmentTest, AFurtherKeyGoesLast) {
  EXPECT_TRUE(assignment_.Add(View, L"Alt + X"));
  EXPECT_EQ(Row(View).CurrentKeys, L"F6 = Alt + X");
  EXPECT_TRUE(catalogue_.lvwCurrKeys.FindWhole(L"F6"));
  EXPECT_TRUE(catalogue_.lvwCurrKeys.FindWhole(L"Alt + X"));
}

TEST_F(HotkeyAssignmentTest, AddingAKeyOfTheRowsOwnMovesItToTheEnd) {
  WillAnswer({BoxAnswer::Yes});
  EXPECT_TRUE(assignment_.Add(Refresh, L"F7"));
  EXPECT_EQ(Row(Refresh).CurrentKeys, L"F8 = F7");
}

TEST_F(HotkeyAssignmentTest, AFormerKeyThatWasReplacedByATakenOneIsStillAskedAbout) {
  WillAnswer({BoxAnswer::Yes});
  ASSERT_TRUE(assignment_.Assign(Refresh, L"F6"));
  WillAnswer({BoxAnswer::No});
  EXPECT_FALSE(assignment_.Assign(Pack, L"F7"));
  EXPECT_EQ(messageBoxes_.Shown.back().Text,
            L"Current hotkey for :  cm_Refresh\n\nDo you want assign it to :  cm_Pack");
}

TEST_F(HotkeyAssignmentTest, AFormerKeyThatWasReplacedByADefaultKeyIsStillAskedAbout) {
  WillAnswer({BoxAnswer::Yes});
  ASSERT_TRUE(assignment_.Assign(Refresh, L"F5"));
  EXPECT_EQ(Row(Refresh).CurrentKeys, L"F5");
  WillAnswer({BoxAnswer::No});
  EXPECT_FALSE(assignment_.Assign(Pack, L"F8"));
  EXPECT_EQ(messageBoxes_.Shown.back().Text,
            L"Current hotkey for :  cm_Refresh\n\nDo you want assign it to :  cm_Pack");
}

TEST_F(HotkeyAssignmentTest, DeleteAllAnsweredWithNoChangesNothing) {
  WillAnswer({BoxAnswer::No});
  EXPECT_FALSE(assignment_.DeleteAll());
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text,
            L"You are about to delete Current Hotkeys for ALL commands.\n\nAre you sure?");
  EXPECT_EQ(messageBoxes_.Shown[0].Buttons, BoxButtons::YesNo);
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Question);
  EXPECT_EQ(messageBoxes_.Shown[0].Default, BoxDefault::Second);
  EXPECT_EQ(Row(View).CurrentKeys, L"F6");
}

TEST_F(HotkeyAssignmentTest, DeleteAllAnsweredWithYesEmptiesEveryCommandRow) {
  WillAnswer({BoxAnswer::Yes});
  EXPECT_TRUE(assignment_.DeleteAll());
  for (std::size_t position = 0; position < catalogue_.ListView1.Count(); ++position) {
    const CommandEntry& row = catalogue_.ListView1.At(position);
    EXPECT_EQ(row.CurrentKeys, row.IsHeading() ? L"" : L"---") << row.Key;
  }
  EXPECT_EQ(catalogue_.lvwCurrKeys.Count(), 0U);
  EXPECT_EQ(Row(Search).DefaultKeys, L"F9");
}

TEST_F(HotkeyAssignmentTest, DeleteAllEmptiesTheFirstRowToo) {
  catalogue_.ListView1.RemoveHeadings();
  catalogue_.ListView1.Edit(Copy).CurrentKeys = L"Alt + X";
  WillAnswer({BoxAnswer::Yes});
  EXPECT_TRUE(assignment_.DeleteAll());
  EXPECT_EQ(Row(Copy).CurrentKeys, L"---");
}

TEST_F(HotkeyAssignmentTest, DeleteAllWithoutAnyKeysIsNoChange) {
  WillAnswer({BoxAnswer::Yes, BoxAnswer::Yes});
  assignment_.DeleteAll();
  EXPECT_FALSE(assignment_.DeleteAll());
}

}  // namespace
}  // namespace tessera::hotkey_assignment_test
