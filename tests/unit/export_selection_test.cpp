#include <gtest/gtest.h>

#include "export/ExportSelection.h"

namespace tessera::export_selection_test {
namespace {

TEST(ExportSelection, TheDescriptionIsOffByDefault) {
  EXPECT_EQ(ExportSelection().ClipOptions(), L"0,1,1,1");
  EXPECT_EQ(ExportSelection().Columns(), (ExportColumns{false, true, true, true}));
}

TEST(ExportSelection, AStoredSelectionIsTakenByItsNumbers) {
  struct Case {
    const wchar_t* Stored;
    const wchar_t* Taken;
  };
  const Case cases[]{
      {L"1,1,0,1", L"1,1,0,1"}, {L"0,1,1,1", L"0,1,1,1"},   {L" 1 , 0 , 1 , 0 ", L"1,0,1,0"},
      {L"1,x,,1", L"1,0,0,1"},  {L"1,0,0,1,1", L"1,0,0,1"}, {L"2,-1,0,1", L"1,1,0,1"},
  };
  for (const Case& example : cases) {
    ExportSelection selection;
    selection.Load(example.Stored);
    EXPECT_EQ(selection.ClipOptions(), example.Taken) << example.Stored;
  }
}

TEST(ExportSelection, FewerThanFourStoredValuesGiveTheDefault) {
  for (const wchar_t* stored : {L"", L"1", L"1,0,0", L"nonsense"}) {
    ExportSelection selection;
    selection.Load(L"1,0,0,1");
    selection.Load(stored);
    EXPECT_EQ(selection.ClipOptions(), L"0,1,1,1") << stored;
  }
}

TEST(ExportSelection, AClickTurnsOneBoxRound) {
  ExportSelection selection;
  selection.Load(L"1,1,1,1");
  selection.Click(Column::Command);
  EXPECT_FALSE(selection.Checked(Column::Command));
  EXPECT_EQ(selection.ClipOptions(), L"1,0,1,1");
  selection.Click(Column::Command);
  EXPECT_TRUE(selection.Checked(Column::Command));
  EXPECT_EQ(selection.ClipOptions(), L"1,1,1,1");
}

TEST(ExportSelection, UncheckingTheLastBoxOfAPairChecksTheOther) {
  struct Case {
    const wchar_t* Before;
    Column Clicked;
    const wchar_t* After;
  };
  const Case cases[]{
      {L"1,0,1,1", Column::Description, L"0,1,1,1"},
      {L"0,1,1,1", Column::Command, L"1,0,1,1"},
      {L"1,1,1,0", Column::Defaults, L"1,1,0,1"},
      {L"1,1,0,1", Column::Current, L"1,1,1,0"},
  };
  for (const Case& example : cases) {
    ExportSelection selection;
    selection.Load(example.Before);
    selection.Click(example.Clicked);
    EXPECT_EQ(selection.ClipOptions(), example.After) << example.Before;
  }
}

}  // namespace
}  // namespace tessera::export_selection_test
