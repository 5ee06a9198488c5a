// Looks up every key of the vocabulary with every set of modifiers.
#include "export/Keyboards.h"

#include <algorithm>

namespace tessera {
namespace {

constexpr HeldModifiers AllSets[] = {
    {},
    {.Ctrl = true},
    {.Alt = true},
    {.Shift = true},
    {.Ctrl = true, .Alt = true},
    {.Ctrl = true, .Shift = true},
    {.Alt = true, .Shift = true},
    {.Ctrl = true, .Alt = true, .Shift = true},
};

Keyboard MakeKeyboard(const HeldModifiers& held, const KeyUses& uses,
                      const HotkeyNotation& notation) {
  Keyboard keyboard{held, {}, 0};
  keyboard.Keys.reserve(KeyVocabulary().size());
  for (const std::wstring_view name : KeyVocabulary()) {
    std::wstring key = notation.DisplayKey(held, name);
    const std::size_t place = uses.Find(key);
    if (place == uses.Keys().size()) ++keyboard.Free;
    keyboard.Keys.push_back({std::move(key), name, place});
  }
  return keyboard;
}

}  // namespace

std::vector<Keyboard> MakeKeyboards(const KeyUses& uses, const HotkeyNotation& notation) {
  std::vector<Keyboard> keyboards;
  for (const HeldModifiers& held : AllSets) {
    keyboards.push_back(MakeKeyboard(held, uses, notation));
  }
  std::stable_partition(keyboards.begin(), keyboards.end(), [](const Keyboard& keyboard) {
    return keyboard.Free < keyboard.Keys.size();
  });
  return keyboards;
}

std::vector<std::size_t> KeysElsewhere(const KeyUses& uses,
                                       const std::vector<Keyboard>& keyboards) {
  // One more, for all free keys.
  std::vector<bool> isDrawn(uses.Keys().size() + 1, false);
  for (const Keyboard& keyboard : keyboards) {
    for (const KeyboardKey& key : keyboard.Keys) isDrawn[key.Place] = true;
  }
  std::vector<std::size_t> places;
  for (std::size_t place = 0; place < uses.Keys().size(); ++place) {
    if (!isDrawn[place]) places.push_back(place);
  }
  return places;
}

}  // namespace tessera
