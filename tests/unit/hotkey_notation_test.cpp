// What the notations of keys share: key parts, separators, the order within a key.
#include <gtest/gtest.h>

#include "tests/unit/notations.h"

namespace tessera::hotkey_notation_test {
namespace {

using namespace notations;

TEST(KeyPart, IsWhatFollowsTheLastPlusThatIsNotTheLastCharacter) {
  const Conversion conversions[] = {
      {L"Ctrl+Alt+F1", L"F1"},
      {L"Ctrl + F1 ", L"F1"},
      {L"Ctrl+Alt++", L"+"},
      {L"Ctrl + +", L"+"},
      {L"F3", L"F3"},
      {L"  F3  ", L"F3"},
      {L"", L""},
      {L"   ", L""},
      {L"+", L"+"},
      {L"++", L"+"},
      {L"+++", L"+"},
      {L"C+", L"C+"},
      {L"+C", L"C"},
      {L"A+B+", L"B+"},
      {L"Ctrl+ ", L""},
  };
  for (const auto& [from, to] : conversions) EXPECT_EQ(KeyPart(from), to);
}

TEST(ApplyReverseOrder, LeavesTheTextAloneWhenOff) {
  EXPECT_EQ(HotkeyNotation().ApplyReverseOrder(L"Ctrl + F1 = F2"), L"Ctrl + F1 = F2");
}

TEST(ApplyReverseOrder, PutsTheKeyOfEachCombinationFirst) {
  const Conversion conversions[] = {
      {L"Ctrl + Alt + F1", L"F1 + Ctrl + Alt"},
      {L"Ctrl + F1 = Shift + F2", L"F1 + Ctrl = F2 + Shift"},
      {L"Alt + Num +", L"Num + + Alt"},
      {L"Ctrl + Num - = F3", L"Num - + Ctrl = F3"},
      {L"F3", L"F3"},
      {L"Num +", L"Num +"},
      {L"---", L"---"},
      {L"", L""},
  };
  for (const auto& [from, to] : conversions) EXPECT_EQ(Reversed().ApplyReverseOrder(from), to);
}

TEST(HotkeyNotation, TakesSeparatorsOfAnyLength) {
  for (const std::wstring separator : {L"|", L"or", L" or so", L"<->", L"\u2014"}) {
    HotkeyNotation notation = Separated(L" " + separator + L" ");
    for (const bool reverse : {false, true}) {
      notation.ReverseOrderHotkey = reverse;
      const std::wstring first = reverse ? L"F1 + Ctrl" : L"Ctrl + F1";
      const std::wstring second = reverse ? L"Num + + Alt" : L"Alt + Num +";
      const std::wstring column =
          notation.NativeToDisplay(L"A++", notation.NativeToDisplay(L"C+F1", L"---"));
      EXPECT_EQ(column, first + L" " + separator + L" " + second);
      EXPECT_EQ(notation.KeysOf(column), (Strings{first, second}));
      EXPECT_EQ(notation.DataFileToDisplay(L"Ctrl+F1=F2"), first + L" " + separator + L" F2");
      EXPECT_EQ(notation.DataFileToDisplay(L"Ctrl+F1" + separator + L"Alt+Num +"), column);
    }
  }
}

TEST(HotkeyNotation, TrimsTheBlanksOfItsSeparator) {
  EXPECT_EQ(HotkeyNotation().TrimmedSeparator(), L"=");
  EXPECT_EQ(Separated(L"   ").TrimmedSeparator(), L"");
  EXPECT_EQ(Separated(L" a b ").TrimmedSeparator(), L"a b");
}

TEST(HotkeyNotation, WithAnEmptySeparatorAColumnIsOneKey) {
  EXPECT_EQ(Separated(L"  ").KeysOf(L"F1  F2"), Strings{L"F1  F2"});
  EXPECT_EQ(Separated(L"").KeysOf(L"F1"), Strings{L"F1"});
}

TEST(KeysOf, SplitsAtTheSeparatorWithOrTrimIniBlanks) {
  EXPECT_EQ(HotkeyNotation().KeysOf(L"F1 = F2"), (Strings{L"F1", L"F2"}));
  EXPECT_EQ(HotkeyNotation().KeysOf(L" F1=F2  =  F3 "), (Strings{L"F1", L"F2", L"F3"}));
  EXPECT_EQ(HotkeyNotation().KeysOf(L"F1 = "), (Strings{L"F1", L""}));
}

TEST(KeysOf, FindsNoneInAnUndefinedOrEmptyColumn) {
  EXPECT_EQ(HotkeyNotation().KeysOf(L"---"), Strings{});
  EXPECT_EQ(HotkeyNotation().KeysOf(L""), Strings{});
  EXPECT_EQ(HotkeyNotation().KeysOf(L"--- "), Strings{L"---"});
}

TEST(DisplayKey, NamesModifiersAsTheLanguageDoes) {
  const HotkeyNotation notation = Named(L"Strg", L"Alt", L"Umschalt");
  EXPECT_EQ(notation.DisplayKey({.Ctrl = true, .Shift = true}, L"+"), L"Strg + Umschalt + Num +");
  EXPECT_EQ(notation.NamesOf({.Ctrl = true, .Shift = true}), L"Strg + Umschalt");
  EXPECT_EQ(notation.NamesOf({.Alt = true}), L"Alt");
  EXPECT_EQ(notation.NamesOf({}), L"");
}

TEST(SplitText, CutsAtEveryOccurrenceAndTrims) {
  EXPECT_EQ(SplitText(L"a, b ,,c", L","), (Strings{L"a", L"b", L"", L"c"}));
  EXPECT_EQ(SplitText(L",", L","), (Strings{L"", L""}));
  EXPECT_EQ(SplitText(L"a--b---c", L"--"), (Strings{L"a", L"b", L"-c"}));
  EXPECT_EQ(SplitText(L" a b ", L","), Strings{L"a b"});
}

TEST(SplitText, GivesOnePieceForAnEmptySeparatorOrText) {
  EXPECT_EQ(SplitText(L" a,b ", L""), Strings{L"a,b"});
  EXPECT_EQ(SplitText(L"", L","), Strings{L""});
  EXPECT_EQ(SplitText(L"", L""), Strings{L""});
}

}  // namespace
}  // namespace tessera::hotkey_notation_test
