// Keys are told apart by their codes: no layout of the keyboard changes what is chosen.
#include "editing/PressedKey.h"

#include <algorithm>

#include "shortcuts/HotkeyNotation.h"
#include "text/Text.h"

namespace tessera {
namespace {

using enum KeyCode;

/// When keys choose themselves without a modifier; with one, all of them do.
struct KeyGroup {
  bool Alone = false;
  bool AloneInChooser = false;
  bool OnlyExtended = false;  ///< those without that sign are the keypad's
  bool MayBeMnemonic = false;
};

constexpr KeyGroup FunctionKeys{.Alone = true};
constexpr KeyGroup Characters{.MayBeMnemonic = true};
constexpr KeyGroup Navigation{.OnlyExtended = true};
constexpr KeyGroup Insertion{.AloneInChooser = true, .OnlyExtended = true};
constexpr KeyGroup SpaceAndOperators{.AloneInChooser = true};

/// Keys with codes in a row, which have names in a row.
struct PressableKeys {
  KeyCode First{};
  KeyCode Last{};
  std::wstring_view FirstName;
  KeyGroup Group;
};

constexpr PressableKeys Pressable[] = {
    {F1, F12, L"F1", FunctionKeys},
    {LetterA, LetterZ, L"A", Characters},
    {Digit0, Digit9, L"0", Characters},
    {Insert, Insert, L"INS", Insertion},
    {Home, Home, L"HOME", Navigation},
    {End, End, L"END", Navigation},
    {PageUp, PageUp, L"PGUP", Navigation},
    {PageDown, PageDown, L"PGDN", Navigation},
    {Left, Left, L"LEFT", Navigation},
    {Right, Right, L"RIGHT", Navigation},
    {Up, Up, L"UP", Navigation},
    {Down, Down, L"DOWN", Navigation},
    {Space, Space, L"SPACE", SpaceAndOperators},
    {Add, Add, L"+", SpaceAndOperators},
    {Subtract, Subtract, L"-", SpaceAndOperators},
    {Multiply, Multiply, L"*", SpaceAndOperators},
    {Divide, Divide, L"/", SpaceAndOperators},
};

bool AltAloneInChooser(const KeyPress& press) {
  const KeyEvent& event = press.Event;
  return event.AltHeld && !event.CtrlHeld && !event.ShiftHeld && press.Focus == FocusPlace::Chooser;
}

bool AltHeld(const KeyPress& press) { return press.Event.AltHeld; }

/// What a key does otherwise.
struct KeptKey {
  KeyCode Code{};
  bool (*IsKept)(const KeyPress&) = nullptr;
};

constexpr KeptKey KeptKeys[] = {
    // The help.
    {F1,
     [](const KeyPress& press) {
       return press.Focus == FocusPlace::CommandList && !AnyModifierHeld(press.Event);
     }},
    // The end of the program, the menu bar or a context menu, the window's menu.
    {F4, AltHeld},
    {F10, [](const KeyPress& press) { return !press.Event.CtrlHeld; }},
    {Space, AltHeld},
    // The keys list, and the chooser's own list.
    {Right, [](const KeyPress& press) { return press.Focus == FocusPlace::Chooser; }},
    {Up, AltAloneInChooser},
    {Down, AltAloneInChooser},
};

/// By its code, or by the character that it has in a layout of other letters.
bool IsMnemonic(const KeyPress& press, std::wstring_view mnemonics) {
  const std::wstring_view typed(&press.Character, press.Character != L'\0' ? 1 : 0);
  const auto code = static_cast<wchar_t>(press.Event.Code);
  return std::ranges::any_of(mnemonics, [&](const wchar_t& mnemonic) {
    const std::wstring_view letter(&mnemonic, 1);
    return EqualIgnoringCase(letter, typed) || EqualIgnoringCase(letter, {&code, 1});
  });
}

bool IsKept(const KeyPress& press, const KeyGroup& group, bool useContextMenuKey,
            std::wstring_view mnemonics) {
  if (group.OnlyExtended && !press.Extended) return true;
  const bool actsWithAlt =
      useContextMenuKey || (group.MayBeMnemonic && IsMnemonic(press, mnemonics));
  if (press.Event.AltHeld && actsWithAlt) return true;
  return std::ranges::any_of(KeptKeys, [&](const KeptKey& key) {
    return key.Code == press.Event.Code && key.IsKept(press);
  });
}

bool TakesKeys(const KeyPress& press) {
  return !press.ChooserOpen && press.Focus != FocusPlace::TextBox &&
         press.Focus != FocusPlace::KeysList;
}

}  // namespace

int KeyChosenBy(const KeyPress& press, bool useContextMenuKey, std::wstring_view mnemonics) {
  const KeyCode code = press.Event.Code;
  const auto* const keys = std::ranges::find_if(Pressable, [code](const PressableKeys& each) {
    return code >= each.First && code <= each.Last;
  });
  if (keys == std::end(Pressable) || !TakesKeys(press)) return NoKeyChosen;
  const KeyGroup& group = keys->Group;
  const bool chooses = AnyModifierHeld(press.Event) || group.Alone ||
                       (group.AloneInChooser && press.Focus == FocusPlace::Chooser);
  if (!chooses || IsKept(press, group, useContextMenuKey, mnemonics)) return NoKeyChosen;
  const auto first = std::ranges::find(KeyVocabulary(), keys->FirstName);
  return static_cast<int>(first - KeyVocabulary().begin()) + static_cast<int>(code) -
         static_cast<int>(keys->First);
}

}  // namespace tessera
