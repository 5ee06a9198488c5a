// The notation of the default keys becomes the shown one.
#include <gtest/gtest.h>

#include <string>

#include "tests/unit/notations.h"

namespace tessera::hotkey_notation_data_file_test {
namespace {

using namespace notations;

TEST(ModifierPrefix, FindsTheEnglishWordsInAnyLetterCaseAndOrder) {
  const Conversion conversions[] = {
      {L"Ctrl+Alt+Shift+F1", L"Ctrl + Alt + Shift + "},
      {L"SHIFT+alt+cTRL+F1", L"Ctrl + Alt + Shift + "},
      {L"Shift+Ctrl+F1", L"Ctrl + Shift + "},
      {L"alt", L"Alt + "},
      {L"xxshiftxx", L"Shift + "},
      {L"F1", L""},
      {L"Control+F1", L""},
      {L"", L""},
      {L"+", L""},
  };
  for (const auto& [from, to] : conversions) EXPECT_EQ(HotkeyNotation().ModifierPrefix(from), to);
}

TEST(ModifierPrefix, AnswersInTheNamesInForce) {
  const HotkeyNotation german = Named(L"Strg", L"Alt", L"Umschalt");
  EXPECT_EQ(german.ModifierPrefix(L"Ctrl+Shift+F1"), L"Strg + Umschalt + ");
  EXPECT_EQ(german.ModifierPrefix(L"Strg+F1"), L"");
  // Holds the English "alt", so it counts as that.
  EXPECT_EQ(german.ModifierPrefix(L"Umschalt+F1"), L"Alt + ");
}

TEST(DataFileToDisplay, ConvertsEachKeyOfAValue) {
  const Conversion conversions[] = {
      {L"Ctrl+Shift+F1=Alt+F2", L"Ctrl + Shift + F1 = Alt + F2"},
      {L"Ctrl+Shift+F1", L"Ctrl + Shift + F1"},
      {L"shift+CTRL+F1", L"Ctrl + Shift + F1"},
      {L"Ctrl+A=Ctrl++", L"Ctrl + A = Ctrl + +"},
      {L"F2 = Ctrl+R", L"F2 = Ctrl + R"},
      {L"Alt+F1=F2=F3", L"Alt + F1 = F2 = F3"},
  };
  for (const auto& [from, to] : conversions) {
    EXPECT_EQ(HotkeyNotation().DataFileToDisplay(from), to);
  }
}

TEST(DataFileToDisplay, LeavesAValueWithoutModifiersAsItIs) {
  for (const std::wstring value : {L"F1", L"F1=F2", L" f1 = f2 ", L"---", L"", L"+", L"="}) {
    EXPECT_EQ(HotkeyNotation().DataFileToDisplay(value), value);
    EXPECT_EQ(Reversed().DataFileToDisplay(value), value);
    EXPECT_EQ(Separated(L" | ").DataFileToDisplay(value), value);
  }
}

TEST(DataFileToDisplay, PutsTheKeyFirstInReverseOrder) {
  EXPECT_EQ(Reversed().DataFileToDisplay(L"Ctrl+Shift+F1=F2=Alt++"),
            L"F1 + Ctrl + Shift = F2 = + + Alt");
}

TEST(DataFileToDisplay, ReadsEnglishWordsWhateverTheNamesInForce) {
  HotkeyNotation notation = Named(L"Strg", L"Wahl", L"Hoch");
  EXPECT_EQ(notation.DataFileToDisplay(L"Ctrl+Alt+F1=Shift+F2"), L"Strg + Wahl + F1 = Hoch + F2");
  notation.ReverseOrderHotkey = true;
  EXPECT_EQ(notation.DataFileToDisplay(L"Ctrl+Alt+F1=Shift+F2"), L"F1 = F2");
}

TEST(DataFileToDisplay, SplitsAtTheSeparatorInForceToo) {
  EXPECT_EQ(Separated(L" | ").DataFileToDisplay(L"Ctrl+F1=Alt+F2|F3"),
            L"Ctrl + F1 | Alt + F2 | F3");
}

TEST(DataFileToDisplay, MarksAKeypadOperatorOnlyWhereTheFileDoes) {
  for (const HotkeyNotation& notation : {HotkeyNotation(), Reversed()}) {
    const std::wstring marked = notation.DataFileToDisplay(L"Ctrl+Num +=Alt+Num -");
    EXPECT_EQ(marked, notation.NativeToDisplay(L"A+-", notation.NativeToDisplay(L"C++", L"---")));
    EXPECT_EQ(notation.DataFileToDisplay(L"Ctrl++=Alt+-").find(L"Num"), std::wstring::npos);
  }
}

TEST(DataFileToDisplay, GivesSomethingForOddValues) {
  const Conversion conversions[] = {
      {L"Ctrl", L"Ctrl + Ctrl"},
      {L"Ctrl+", L"Ctrl + Ctrl+"},
      {L"=Ctrl+F1", L" = Ctrl + F1"},
      {L"Ctrl+F1=", L"Ctrl + F1 = "},
  };
  for (const auto& [from, to] : conversions) {
    EXPECT_EQ(HotkeyNotation().DataFileToDisplay(from), to);
  }
}

}  // namespace
}  // namespace tessera::hotkey_notation_data_file_test
