// Every key with every set of modifiers is converted there and back.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "tests/unit/notations.h"

namespace tessera::hotkey_notation_vocabulary_test {
namespace {

using namespace notations;

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

}  // namespace
}  // namespace tessera::hotkey_notation_vocabulary_test
