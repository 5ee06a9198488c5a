// The conversions of key combinations, in both directions.
#include <gtest/gtest.h>

#include <set>

#include "shortcuts/HotkeyNotation.h"

namespace tessera::hotkey_notation_test {
namespace {

using Strings = std::vector<std::wstring>;

HotkeyNotation Reversed() {
  HotkeyNotation notation;
  notation.ReverseOrderHotkey = true;
  return notation;
}

HotkeyNotation Named(std::wstring ctrl, std::wstring alt, std::wstring shift) {
  HotkeyNotation notation;
  notation.CtrlName = std::move(ctrl);
  notation.AltName = std::move(alt);
  notation.ShiftName = std::move(shift);
  return notation;
}

HotkeyNotation Separated(std::wstring separator) {
  HotkeyNotation notation;
  notation.MultiHotkeySeparator = std::move(separator);
  return notation;
}

bool IsOperator(std::wstring_view key) {
  return key.size() == 1 && std::wstring_view(L"+-*/").find(key) != std::wstring_view::npos;
}

// What a save does before it converts a key.
std::wstring WithoutNum(std::wstring display) {
  const std::size_t at = display.find(L"Num");
  return at == std::wstring::npos ? display : display.erase(at, 3);
}

/// One combination of the vocabulary, and what it is called in each notation.
struct Combination {
  std::wstring Native, DataFile, Key, Modifiers;

  Combination(std::wstring_view key, unsigned mask, const HotkeyNotation& names) : Key(key) {
    Add((mask & 1) != 0, L"C", L"Ctrl", names.CtrlName);
    Add((mask & 2) != 0, L"A", L"Alt", names.AltName);
    Add((mask & 4) != 0, L"S", L"Shift", names.ShiftName);
    if (!Native.empty()) Native += L"+";
    Native += key;
    DataFile += key;
  }

  std::wstring Display(bool reverse, bool markKeypad) const {
    const std::wstring key = (markKeypad && IsOperator(Key) ? L"Num " : L"") + Key;
    if (Modifiers.empty()) return key;
    return reverse ? key + L" + " + Modifiers : Modifiers + L" + " + key;
  }

 private:
  void Add(bool held, const wchar_t* letter, const std::wstring& word, const std::wstring& name) {
    if (!held) return;
    Native += letter;
    DataFile += word + L"+";
    Modifiers += (Modifiers.empty() ? L"" : L" + ") + name;
  }
};

void ExpectWholeVocabularyConverts(const HotkeyNotation& notation) {
  for (const std::wstring_view key : KeyVocabulary()) {
    for (unsigned mask = 0; mask < 8; ++mask) {
      const Combination combination(key, mask, notation);
      const std::wstring display =
          notation.NativeToDisplay(combination.Native, notation.UndefinedHotkey);
      EXPECT_EQ(display, combination.Display(notation.ReverseOrderHotkey, true));
      EXPECT_EQ(notation.DisplayToNative(WithoutNum(display)), combination.Native);
    }
  }
}

void ExpectWholeVocabularyReadsFromDataFile(const HotkeyNotation& notation) {
  for (const std::wstring_view key : KeyVocabulary()) {
    for (unsigned mask = 0; mask < 8; ++mask) {
      const Combination combination(key, mask, notation);
      const std::wstring display = notation.DataFileToDisplay(combination.DataFile);
      EXPECT_EQ(display, combination.Display(notation.ReverseOrderHotkey, false));
      EXPECT_EQ(notation.DisplayToNative(display), combination.Native);
    }
  }
}

TEST(KeyVocabulary, HasFunctionKeysLettersDigitsAndNamedKeysInThisOrder) {
  Strings expected;
  for (int number = 1; number <= 12; ++number) expected.push_back(L"F" + std::to_wstring(number));
  for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) expected.emplace_back(1, letter);
  for (wchar_t digit = L'0'; digit <= L'9'; ++digit) expected.emplace_back(1, digit);
  for (const std::wstring& name :
       SplitText(L"INS,DEL,HOME,END,PGUP,PGDN,SPACE,BACK,TAB,+,-,*,/,ENTER,ESC,LEFT,RIGHT,UP,DOWN",
                 L",")) {
    expected.push_back(name);
  }
  EXPECT_EQ(Strings(KeyVocabulary().begin(), KeyVocabulary().end()), expected);
  EXPECT_EQ(KeyVocabulary().size(), 67U);
}

TEST(KeyVocabulary, HoldsNoKeyTwice) {
  const std::set<std::wstring_view> keys(KeyVocabulary().begin(), KeyVocabulary().end());
  EXPECT_EQ(keys.size(), KeyVocabulary().size());
}

TEST(HotkeyNotation, ConvertsTheWholeVocabularyThereAndBack) {
  ExpectWholeVocabularyConverts(HotkeyNotation());
}

TEST(HotkeyNotation, ConvertsTheWholeVocabularyThereAndBackInReverseOrder) {
  ExpectWholeVocabularyConverts(Reversed());
}

TEST(HotkeyNotation, ConvertsTheWholeVocabularyThereAndBackInOtherLanguages) {
  ExpectWholeVocabularyConverts(Named(L"Strg", L"Alt", L"Umschalt"));
  ExpectWholeVocabularyConverts(Named(L"Ктрл", L"Алт", L"Шифт"));
  ExpectWholeVocabularyConverts(Named(L"Control key", L"Option", L"Maj."));
}

TEST(HotkeyNotation, ReadsTheWholeVocabularyFromADataFile) {
  ExpectWholeVocabularyReadsFromDataFile(HotkeyNotation());
  ExpectWholeVocabularyReadsFromDataFile(Reversed());
  ExpectWholeVocabularyReadsFromDataFile(Named(L"Strg", L"Alt", L"Umschalt"));
}

struct Conversion {
  std::wstring From, To;
};

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

TEST(NativeToDisplay, ShowsModifiersInFixedOrderAndTheKeyInUpperCase) {
  const Conversion conversions[] = {
      {L"CA+F1", L"Ctrl + Alt + F1"},     {L"SAC+f1", L"Ctrl + Alt + Shift + F1"},
      {L"SC+a", L"Ctrl + Shift + A"},     {L"A+X", L"Alt + X"},
      {L"CS + F5", L"Ctrl + Shift + F5"},
  };
  for (const auto& [from, to] : conversions) {
    EXPECT_EQ(HotkeyNotation().NativeToDisplay(from, L"---"), to);
  }
}

TEST(NativeToDisplay, MarksTheKeypadOperators) {
  const Conversion conversions[] = {
      {L"A++", L"Alt + Num +"},   {L"C+-", L"Ctrl + Num -"},
      {L"S+*", L"Shift + Num *"}, {L"CA+/", L"Ctrl + Alt + Num /"},
      {L"-", L"Num -"},           {L"*", L"Num *"},
      {L"/", L"Num /"},
  };
  for (const auto& [from, to] : conversions) {
    EXPECT_EQ(HotkeyNotation().NativeToDisplay(from, L"---"), to);
  }
}

TEST(NativeToDisplay, TakesAPlusAloneForTheKeypadPlus) {
  EXPECT_EQ(HotkeyNotation().NativeToDisplay(L"+", L"---"), L"Num +");
  EXPECT_EQ(Reversed().NativeToDisplay(L"+", L"---"), L"Num +");
  EXPECT_EQ(HotkeyNotation().DisplayToNative(L" +"), L"+");
}

TEST(NativeToDisplay, KeepsTheLetterCaseOfAKeyWithoutPlus) {
  EXPECT_EQ(HotkeyNotation().NativeToDisplay(L"f3", L"---"), L"f3");
  EXPECT_EQ(HotkeyNotation().NativeToDisplay(L"Space", L"---"), L"Space");
  EXPECT_EQ(HotkeyNotation().NativeToDisplay(L"OEM_US[{", L"---"), L"OEM_US[{");
}

TEST(NativeToDisplay, KnowsOnlyUpperCaseModifierLetters) {
  EXPECT_EQ(HotkeyNotation().NativeToDisplay(L"cas+F1", L"---"), L"F1");
}

TEST(NativeToDisplay, GivesSomethingForOddKeys) {
  const Conversion conversions[] = {
      {L"", L""},         {L" ", L" "},        {L"++", L"Num +"},
      {L"+++", L"++"},    {L"C+", L"Ctrl + "}, {L"+C", L"C"},
      {L" + ", L"Num +"}, {L"X+F1", L"F1"},    {L"C+A+F1", L"Ctrl + A+F1"},
  };
  for (const auto& [from, to] : conversions) {
    EXPECT_EQ(HotkeyNotation().NativeToDisplay(from, L"---"), to);
  }
  EXPECT_EQ(Reversed().NativeToDisplay(L"C+", L"---"), L" + Ctrl");
  EXPECT_EQ(Reversed().NativeToDisplay(L"", L"---"), L"");
}

TEST(NativeToDisplay, AddsToTheKeysThatAreThere) {
  const HotkeyNotation notation;
  std::wstring column = notation.NativeToDisplay(L"F2", L"---");
  column = notation.NativeToDisplay(L"C+R", column);
  column = notation.NativeToDisplay(L"A++", column);
  EXPECT_EQ(column, L"F2 = Ctrl + R = Alt + Num +");
  EXPECT_EQ(notation.KeysOf(column), (Strings{L"F2", L"Ctrl + R", L"Alt + Num +"}));
}

TEST(NativeToDisplay, ReplacesOnlyTheUndefinedMarkerInForce) {
  HotkeyNotation notation;
  notation.UndefinedHotkey = L"none";
  EXPECT_EQ(notation.NativeToDisplay(L"F2", L"none"), L"F2");
  EXPECT_EQ(notation.NativeToDisplay(L"F2", L"None"), L"None = F2");
  EXPECT_EQ(notation.NativeToDisplay(L"F2", L"---"), L"--- = F2");
}

TEST(NativeToDisplay, AddsReversedKeysWithoutTouchingTheOthers) {
  const HotkeyNotation notation = Reversed();
  const std::wstring column = notation.NativeToDisplay(L"CA+F1", L"R + Ctrl");
  EXPECT_EQ(column, L"R + Ctrl = F1 + Ctrl + Alt");
}

TEST(NativeToDisplay, LosesLocalisedModifiersInReverseOrder) {
  HotkeyNotation notation = Named(L"Strg", L"Alt", L"Umschalt");
  notation.ReverseOrderHotkey = true;
  EXPECT_EQ(notation.NativeToDisplay(L"C+F1", L"---"), L"F1");
  EXPECT_EQ(notation.NativeToDisplay(L"CA+F1", L"---"), L"F1 + Alt");
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

TEST(DisplayToNative, WritesTheLettersInFixedOrder) {
  EXPECT_EQ(HotkeyNotation().DisplayToNative(L"Shift + Alt + Ctrl + F1"), L"CAS+F1");
  EXPECT_EQ(Reversed().DisplayToNative(L"F1 + Alt + Ctrl"), L"CA+F1");
}

TEST(DisplayToNative, FindsNamesInTheirOwnLetterCaseOnly) {
  EXPECT_EQ(HotkeyNotation().DisplayToNative(L"ctrl + F1"), L"ctrl + F1");
  EXPECT_EQ(Named(L"Strg", L"Alt", L"Umschalt").DisplayToNative(L"Umschalt + F1"), L"S+F1");
}

TEST(DisplayToNative, FindsANameInsideAnotherOne) {
  const HotkeyNotation notation = Named(L"Ctrl", L"Alt", L"RightAlt");
  EXPECT_EQ(notation.DisplayToNative(L"Alt + F1"), L"A+F1");
  EXPECT_EQ(notation.DisplayToNative(L"RightAlt + F1"), L"AS+F1");
  EXPECT_EQ(notation.DisplayToNative(L"Ctrl + RightAlt + F1"), L"CAS+F1");
}

TEST(DisplayToNative, RestoresTheKeypadPlus) {
  EXPECT_EQ(HotkeyNotation().DisplayToNative(L"Alt +  +"), L"A++");
  EXPECT_EQ(Reversed().DisplayToNative(L" + + Alt"), L"A++");
  EXPECT_EQ(Reversed().DisplayToNative(L"+ + Ctrl + Shift"), L"CS++");
}

TEST(DisplayToNative, GivesSomethingForOddKeys) {
  const Conversion conversions[] = {
      {L"", L""},          {L"   ", L""},          {L"+", L"+"},   {L"++", L"++"},
      {L"C+", L"C+"},      {L"+C", L"+C"},         {L" x ", L"x"}, {L"Ctrl", L"C+Ctrl"},
      {L"Ctrl + ", L"C+"}, {L"Ctrl+", L"C+Ctrl+"},
  };
  for (const auto& [from, to] : conversions) EXPECT_EQ(HotkeyNotation().DisplayToNative(from), to);

  const Conversion reversed[] = {
      {L"", L""}, {L"+", L"+"}, {L"Ctrl", L"C+Ctrl"}, {L" + Ctrl", L"C++"}, {L"Alt+", L"A+Alt"}};
  for (const auto& [from, to] : reversed) EXPECT_EQ(Reversed().DisplayToNative(from), to);
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

TEST(DisplayKey, IsWhatAFileWithThatKeyShows) {
  for (const bool reverse : {false, true}) {
    HotkeyNotation notation;
    notation.ReverseOrderHotkey = reverse;
    for (const std::wstring_view key : KeyVocabulary()) {
      for (unsigned mask = 0; mask < 8; ++mask) {
        const Combination combination(key, mask, notation);
        const HeldModifiers held{(mask & 1) != 0, (mask & 2) != 0, (mask & 4) != 0};
        EXPECT_EQ(notation.DisplayKey(held, key), combination.Display(reverse, true));
      }
    }
  }
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
