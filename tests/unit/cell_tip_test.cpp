// What the tips of the command list say, and when.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "app/CellTip.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::cell_tip_test {
namespace {

struct Keys {
  std::wstring_view Command;
  std::wstring Defaults;
  std::wstring Current;
};

class CellTipTest : public testing::Test {
 protected:
  void Fill(const std::vector<Keys>& commands) {
    std::vector<CommandEntry> rows;
    for (const Keys& keys : commands) {
      CommandEntry row;
      row.Key = rows.size() + 1;
      row.Description = L"What it does";
      row.CommandName = keys.Command;
      row.DefaultKeys = keys.Defaults;
      row.CurrentKeys = keys.Current;
      row.DefaultKeysAreRed = keys.Defaults.ends_with(L'*');
      rows.push_back(std::move(row));
    }
    rows_.Fill(std::move(rows));
  }

  [[nodiscard]] std::wstring Tip(std::size_t position, Column column, bool isCut = false) const {
    return CellTip(rows_, position, column, isCut, notation_, texts_);
  }

  DisplayTable rows_;
  HotkeyNotation notation_;
  MemoryFiles noFiles_;
  Texts texts_{noFiles_};
};

TEST_F(CellTipTest, CutCellTellsItsWholeText) {
  Fill({{L"cm_One", L"Ctrl + F3 = Ctrl + F4", L"Alt + A"}});
  EXPECT_EQ(Tip(0, Column::Description, true), L"What it does");
  EXPECT_EQ(Tip(0, Column::Command, true), L"cm_One");
  EXPECT_EQ(Tip(0, Column::Defaults, true), L"Ctrl + F3 = Ctrl + F4");
  EXPECT_EQ(Tip(0, Column::Current, true), L"Alt + A");
}

TEST_F(CellTipTest, WholeCellHasNone) {
  Fill({{L"cm_One", L"Ctrl + F3", L"Ctrl + F3"}});
  for (const Column column : AllColumns) EXPECT_EQ(Tip(0, column), L"");
  EXPECT_EQ(Tip(1, Column::Command, true), L"") << "beside the rows";
}

TEST_F(CellTipTest, OverriddenDefaultTellsWhichCommandHasTheKey) {
  Fill({{L"cm_One", L"Ctrl + F3 *", L"---"}, {L"cm_Two", L"---", L"F9 = CTRL + F3 = Alt + X"}});
  EXPECT_EQ(Tip(0, Column::Defaults), L"Current hotkey for :  cm_Two");
  EXPECT_EQ(Tip(0, Column::Defaults, true), L"Ctrl + F3 *\nCurrent hotkey for :  cm_Two");
  EXPECT_EQ(Tip(0, Column::Current), L"");
  EXPECT_EQ(Tip(1, Column::Defaults), L"");
}

TEST_F(CellTipTest, OverriddenDefaultMayBeTheFirstCommands) {
  Fill({{L"cm_One", L"---", L"Ctrl + F3"}, {L"cm_Two", L"Ctrl + F3 *", L"---"}});
  EXPECT_EQ(Tip(1, Column::Defaults), L"Current hotkey for :  cm_One");
}

TEST_F(CellTipTest, OneOfSeveralDefaultsIsNamed) {
  Fill({{L"cm_One", L"Ctrl + F3 = Ctrl + F4 * *", L"---"},
        {L"cm_Two", L"---", L"Ctrl + F4"},
        {L"cm_Three", L"---", L"Ctrl + F3"},
        {L"cm_Four", L"---", L"Ctrl + F"}});
  EXPECT_EQ(Tip(0, Column::Defaults),
            L"[Ctrl + F4] Current hotkey for :  cm_Two\n"
            L"[Ctrl + F3] Current hotkey for :  cm_Three");
}

TEST_F(CellTipTest, KeypadAsteriskIsNoMark) {
  Fill({{L"cm_One", L"Num * *", L"---"}, {L"cm_Two", L"---", L"Num *"}});
  EXPECT_EQ(Tip(0, Column::Defaults), L"Current hotkey for :  cm_Two");
}

TEST_F(CellTipTest, RedDefaultThatNobodyHasAnyMoreTellsNothing) {
  Fill({{L"cm_One", L"Ctrl + F3 *", L"---"}, {L"cm_Two", L"---", L"---"}});
  EXPECT_EQ(Tip(0, Column::Defaults), L"");
}

TEST(CellExtent, TextIsCutByItsCellOrByAnEdgeOfTheList) {
  const CellExtent whole{.TextBegin = 10, .TextLength = 90, .CellEnd = 100, .ListEnd = 500};
  EXPECT_FALSE(IsCut(whole));
  const auto with = [&whole](int CellExtent::*part, int value) {
    CellExtent changed = whole;
    changed.*part = value;
    return changed;
  };
  EXPECT_TRUE(IsCut(with(&CellExtent::TextLength, 91)));
  EXPECT_TRUE(IsCut(with(&CellExtent::CellEnd, 99)));
  EXPECT_TRUE(IsCut(with(&CellExtent::ListEnd, 99)));
  EXPECT_FALSE(IsCut(with(&CellExtent::ListEnd, 100)));
  EXPECT_FALSE(IsCut(with(&CellExtent::TextBegin, 0)));
  EXPECT_TRUE(IsCut(with(&CellExtent::TextBegin, -1)));
  EXPECT_FALSE(IsCut({.TextBegin = -5, .TextLength = 0, .CellEnd = -2, .ListEnd = 500})) << "empty";
}

}  // namespace
}  // namespace tessera::cell_tip_test
