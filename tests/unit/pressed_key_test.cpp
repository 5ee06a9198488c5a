// Which presses choose a key: every key of the keyboard with every set of modifiers, in every
// place.
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <string>

#include "editing/PressedKey.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera::pressed_key_test {
namespace {

using enum FocusPlace;

constexpr std::array AllPlaces{Elsewhere, CommandList, Chooser, Toolbar, TextBox, KeysList};
constexpr std::wstring_view English = L"FVHCAS";

/// The codes of the keys that can be pressed, by name.
const std::map<std::wstring, int>& Codes() {
  static const std::map<std::wstring, int> codes = [] {
    std::map<std::wstring, int> named{{L"INS", 45},   {L"HOME", 36},  {L"END", 35}, {L"PGUP", 33},
                                      {L"PGDN", 34},  {L"LEFT", 37},  {L"UP", 38},  {L"DOWN", 40},
                                      {L"RIGHT", 39}, {L"SPACE", 32}, {L"+", 107},  {L"-", 109},
                                      {L"*", 106},    {L"/", 111}};
    for (int number = 1; number <= 12; ++number) {
      named[L"F" + std::to_wstring(number)] = 111 + number;
    }
    for (int code = 'A'; code <= 'Z'; ++code) {
      named[std::wstring(1, static_cast<wchar_t>(code))] = code;
    }
    for (int code = '0'; code <= '9'; ++code) {
      named[std::wstring(1, static_cast<wchar_t>(code))] = code;
    }
    return named;
  }();
  return codes;
}

bool IsFunctionKey(const std::wstring& name) { return name.size() > 1 && name[0] == L'F'; }

bool IsOneOf(const std::wstring& name, const std::set<std::wstring>& names) {
  return names.contains(name);
}

KeyPress PressOf(const std::wstring& name, int modifiers = 0, FocusPlace focus = Chooser) {
  return {.Event = {.Code = static_cast<KeyCode>(Codes().at(name)),
                    .CtrlHeld = (modifiers & 1) != 0,
                    .AltHeld = (modifiers & 2) != 0,
                    .ShiftHeld = (modifiers & 4) != 0},
          .Extended = true,
          .Focus = focus};
}

std::wstring Chosen(const KeyPress& press, bool useContextMenuKey = false,
                    std::wstring_view mnemonics = English) {
  const int index = KeyChosenBy(press, useContextMenuKey, mnemonics);
  return index == NoKeyChosen ? L""
                              : std::wstring(KeyVocabulary()[static_cast<std::size_t>(index)]);
}

/// The rules once more, as they are told to users.
bool IsTold(const std::wstring& name, int modifiers, FocusPlace focus, bool useContextMenuKey) {
  const bool ctrl = (modifiers & 1) != 0;
  const bool alt = (modifiers & 2) != 0;
  const bool shift = (modifiers & 4) != 0;
  if (focus == TextBox || focus == KeysList || (alt && useContextMenuKey)) return false;
  if (name == L"F10" && !ctrl) return false;
  if (name == L"F1" && modifiers == 0 && focus == CommandList) return false;
  if (name == L"RIGHT" && focus == Chooser) return false;
  if (alt && IsOneOf(name, {L"F4", L"SPACE", L"F", L"V", L"H", L"C", L"A", L"S"})) return false;
  if (alt && !ctrl && !shift && focus == Chooser && IsOneOf(name, {L"UP", L"DOWN"})) return false;
  if (IsFunctionKey(name) || modifiers != 0) return true;
  return focus == Chooser && IsOneOf(name, {L"INS", L"SPACE", L"+", L"-", L"*", L"/"});
}

TEST(PressedKey, EveryPressChoosesWhatUsersAreTold) {
  for (const auto& [name, code] : Codes()) {
    for (int modifiers = 0; modifiers < 8; ++modifiers) {
      for (const FocusPlace focus : AllPlaces) {
        for (const bool useContextMenuKey : {false, true}) {
          const bool told = IsTold(name, modifiers, focus, useContextMenuKey);
          EXPECT_EQ(Chosen(PressOf(name, modifiers, focus), useContextMenuKey), told ? name : L"")
              << modifiers << " in " << static_cast<int>(focus) << useContextMenuKey;
        }
      }
    }
  }
}

TEST(PressedKey, OnlyTheseCodesChoose) {
  std::set<int> choosing;
  for (int code = 0; code < 256; ++code) {
    KeyPress press = PressOf(L"F7", 5);
    press.Event.Code = static_cast<KeyCode>(code);
    press.Focus = Elsewhere;
    if (!Chosen(press).empty()) choosing.insert(code);
  }
  std::set<int> expected;
  for (const auto& [name, code] : Codes()) expected.insert(code);
  EXPECT_EQ(choosing, expected);
}

TEST(PressedKey, NamesOfTheVocabularyThatNoPressChooses) {
  std::set<std::wstring> names;
  for (const std::wstring_view name : KeyVocabulary()) {
    if (!Codes().contains(std::wstring(name))) names.emplace(name);
  }
  EXPECT_EQ(names, (std::set<std::wstring>{L"DEL", L"BACK", L"TAB", L"ENTER", L"ESC"}));
}

TEST(PressedKey, NothingIsChosenWhileTheChoosersListIsOpen) {
  for (const auto& [name, code] : Codes()) {
    for (int modifiers = 0; modifiers < 8; ++modifiers) {
      KeyPress press = PressOf(name, modifiers);
      press.ChooserOpen = true;
      EXPECT_EQ(Chosen(press), L"") << modifiers;
    }
  }
}

TEST(PressedKey, NavigationKeysOfTheKeypadChooseNothing) {
  for (const wchar_t* name :
       {L"INS", L"HOME", L"END", L"PGUP", L"PGDN", L"LEFT", L"UP", L"DOWN", L"RIGHT"}) {
    for (int modifiers = 0; modifiers < 8; ++modifiers) {
      KeyPress press = PressOf(name, modifiers, Elsewhere);
      press.Extended = false;
      EXPECT_EQ(Chosen(press), L"") << modifiers;
    }
  }
}

TEST(PressedKey, OperatorsAndLettersAreNotAskedWhetherTheyAreExtended) {
  for (const wchar_t* name : {L"/", L"+", L"Q", L"7", L"F7", L"SPACE"}) {
    KeyPress press = PressOf(name, 1);
    press.Extended = false;
    EXPECT_EQ(Chosen(press), name);
  }
}

TEST(PressedKey, MnemonicsAreThoseOfTheLanguageInForce) {
  const KeyPress q = PressOf(L"Q", 2);
  EXPECT_EQ(Chosen(q, false, L""), L"Q");
  EXPECT_EQ(Chosen(q, false, L"dq"), L"") << "in either letter case";
  EXPECT_EQ(Chosen(PressOf(L"F", 2), false, L"dq"), L"F");
  EXPECT_EQ(Chosen(PressOf(L"Q", 5), false, L"dq"), L"Q") << "without Alt";
  EXPECT_EQ(Chosen(PressOf(L"Q", 7), false, L"dq"), L"") << "with any further modifier";
  EXPECT_EQ(Chosen(PressOf(L"7", 2), false, L"7"), L"");
}

TEST(PressedKey, MnemonicsOfOtherLettersAreFoundByTheLayout) {
  KeyPress press = PressOf(L"A", 2);
  EXPECT_EQ(Chosen(press, false, L"\x0424"), L"A");
  press.Character = L'\x0444';  // the same letter, small
  EXPECT_EQ(Chosen(press, false, L"\x0424"), L"");
  EXPECT_EQ(Chosen(press, false, L"\x0425"), L"A");
}

TEST(PressedKey, NoCharacterIsAMnemonicWhereTheKeyHasNone) {
  EXPECT_EQ(Chosen(PressOf(L"Q", 2), false, std::wstring_view(L"\0", 1)), L"Q");
  // Codes of other keys are those of letters: F1 of p, the keypad's plus of k.
  EXPECT_EQ(Chosen(PressOf(L"F1", 2), false, L"pk"), L"F1");
  EXPECT_EQ(Chosen(PressOf(L"+", 2), false, L"pk"), L"+");
}

}  // namespace
}  // namespace tessera::pressed_key_test
