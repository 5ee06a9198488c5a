// Who holds a key, by what the cells show.
#include <gtest/gtest.h>

#include "tests/unit/sample_catalogue.h"

namespace tessera::key_holders_test {
namespace {

using Defaults = std::vector<HoldersOfKey::Default>;
using Currents = std::vector<RowKey>;

class KeyHoldersTest : public testing::Test {
 protected:
  [[nodiscard]] HoldersOfKey Of(std::wstring_view key) const {
    return catalogue_.ListView1.HoldersOf(key, notation_);
  }

  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
};

TEST_F(KeyHoldersTest, NameDefaultAndCurrentKeysOfCells) {
  EXPECT_EQ(Of(L"F5"), (HoldersOfKey{Defaults{{sample::Copy, false}}, {}}));
  EXPECT_EQ(Of(L"F6"), (HoldersOfKey{{}, Currents{sample::View}}));
  EXPECT_EQ(Of(L"F1"), HoldersOfKey{});
}

TEST_F(KeyHoldersTest, TellAnOverriddenDefaultFromOthers) {
  EXPECT_EQ(Of(L"F9"), (HoldersOfKey{Defaults{{sample::Search, true}}, Currents{sample::Sync}}));
}

TEST_F(KeyHoldersTest, TakeEachKeyOfACellAsAWhole) {
  EXPECT_EQ(Of(L"F7").Currents, Currents{sample::Refresh});
  EXPECT_EQ(Of(L"F8").Currents, Currents{sample::Refresh});
  EXPECT_EQ(Of(L"Ctrl + R").Defaults, (Defaults{{sample::Refresh, false}}));
  EXPECT_EQ(Of(L"R"), HoldersOfKey{});
  EXPECT_EQ(Of(L"F7 = F8"), HoldersOfKey{});
  EXPECT_EQ(Of(L"---"), HoldersOfKey{});
}

TEST_F(KeyHoldersTest, DoNotCareForLetterCase) {
  EXPECT_EQ(Of(L"CTRL + r").Defaults, (Defaults{{sample::Refresh, false}}));
}

TEST_F(KeyHoldersTest, OfAMarkedCellTellWhichKeySomebodyHasNow) {
  catalogue_.ListView1.Edit(sample::Refresh).DefaultKeys = L"F2 = Ctrl + R *";
  catalogue_.ListView1.Edit(sample::Pack).CurrentKeys = L"F2";
  EXPECT_EQ(Of(L"F2"), (HoldersOfKey{Defaults{{sample::Refresh, true}}, Currents{sample::Pack}}));
  EXPECT_EQ(Of(L"Ctrl + R"), (HoldersOfKey{Defaults{{sample::Refresh, false}}, {}}));
}

TEST_F(KeyHoldersTest, ACellMayBeMarkedSeveralTimes) {
  catalogue_.ListView1.Edit(sample::Copy).DefaultKeys = L"F5 * *";
  EXPECT_EQ(Of(L"F5").Defaults, (Defaults{{sample::Copy, true}}));
}

TEST_F(KeyHoldersTest, AKeyThatEndsInTheMarkIsNotMarked) {
  catalogue_.ListView1.Edit(sample::Copy).DefaultKeys = L"Num *";
  catalogue_.ListView1.Edit(sample::View).CurrentKeys = L"Num *";
  EXPECT_EQ(Of(L"Num *"), (HoldersOfKey{Defaults{{sample::Copy, false}}, Currents{sample::View}}));
  catalogue_.ListView1.Edit(sample::Copy).DefaultKeys = L"Num * *";
  EXPECT_EQ(Of(L"Num *").Defaults, (Defaults{{sample::Copy, true}}));
  catalogue_.ListView1.Edit(sample::Copy).DefaultKeys = L"Num";
  EXPECT_EQ(Of(L"Num *").Defaults, Defaults{});
}

TEST(WithoutKeyMarks, IsTheKeyOfAMarkedPiece) {
  EXPECT_EQ(WithoutKeyMarks(L"F5"), L"F5");
  EXPECT_EQ(WithoutKeyMarks(L"F5 *"), L"F5");
  EXPECT_EQ(WithoutKeyMarks(L"Ctrl + F5 * *"), L"Ctrl + F5");
  EXPECT_EQ(WithoutKeyMarks(L""), L"");
}

TEST(WithoutKeyMarks, KnowsTheKeyThatEndsInTheMark) {
  EXPECT_EQ(WithoutKeyMarks(L"Num *"), L"Num *");
  EXPECT_EQ(WithoutKeyMarks(L"Num * *"), L"Num *");
  EXPECT_EQ(WithoutKeyMarks(L"Ctrl + Num * * *"), L"Ctrl + Num *");
  EXPECT_EQ(WithoutKeyMarks(L"Num * + Ctrl *"), L"Num * + Ctrl");
  EXPECT_EQ(WithoutKeyMarks(L"Num"), L"Num");
  EXPECT_EQ(WithoutKeyMarks(L"ENum *"), L"ENum");
}

TEST_F(KeyHoldersTest, FollowEditsAfterTheFirstQuestion) {
  EXPECT_EQ(Of(L"F6").Currents, Currents{sample::View});
  catalogue_.ListView1.Edit(sample::View).CurrentKeys = L"F12";
  catalogue_.ListView1.Edit(sample::Pack).CurrentKeys = L"F6";
  EXPECT_EQ(Of(L"F6").Currents, Currents{sample::Pack});
  EXPECT_EQ(Of(L"F12").Currents, Currents{sample::View});
  catalogue_.ListView1.Edit(sample::View).CurrentKeys = L"F6";
  EXPECT_EQ(Of(L"F6").Currents, (Currents{sample::View, sample::Pack}));
}

TEST_F(KeyHoldersTest, KnowRowsThatAreLeftOutAndNewRows) {
  EXPECT_EQ(Of(L"F6").Currents, Currents{sample::View});
  catalogue_.ListView1.RemoveHeadings();
  EXPECT_EQ(Of(L"F6").Currents, Currents{sample::View});
  catalogue_.ListView1.Fill({SampleCommand(1, L"Other", L"---", L"F6")});
  EXPECT_EQ(Of(L"F6").Currents, Currents{1});
}

TEST_F(KeyHoldersTest, SplitCellsByTheSeparatorInForce) {
  notation_.MultiHotkeySeparator = L" ; ";
  catalogue_.ListView1.Edit(sample::View).CurrentKeys = L"F1 ; F4;F10";
  for (const std::wstring_view key : {L"F1", L"F4", L"F10"}) {
    EXPECT_EQ(Of(key).Currents, Currents{sample::View}) << key.size();
  }
}

TEST_F(KeyHoldersTest, ACopyOfTheTableGoesItsOwnWay) {
  EXPECT_EQ(Of(L"F6").Currents, Currents{sample::View});
  DisplayTable copy = catalogue_.ListView1;
  copy.Edit(sample::View).CurrentKeys = L"F1";
  EXPECT_EQ(copy.HoldersOf(L"F6", notation_).Currents, Currents{});
  EXPECT_EQ(Of(L"F6").Currents, Currents{sample::View});
}

}  // namespace
}  // namespace tessera::key_holders_test
