// Reads the Start Menu entries that have a key.
#include "shortcuts/StartMenuKeys.h"

#include <utility>

#include "settings/ini/MissingMarker.h"
#include "text/Numbers.h"

namespace tessera {
namespace {

constexpr int KeysWithoutShift = 12;

}  // namespace

std::wstring StartMenuKey(int number, const HotkeyNotation& notation) {
  const bool withShift = number > KeysWithoutShift;
  const int functionKey = withShift ? number - KeysWithoutShift : number;
  return notation.DisplayKey({.Ctrl = true, .Alt = true, .Shift = withShift},
                             L"F" + std::to_wstring(functionKey));
}

StartMenuKeyTable ReadStartMenuKeys(const ProfileFile& file, const HotkeyNotation& notation) {
  StartMenuKeyTable table;
  for (int entry = 1;; ++entry) {
    const std::wstring number = std::to_wstring(entry);
    std::wstring caption = file.ReadString(StartMenuSection, L"menu" + number, MissingMarker);
    if (IsMissing(caption)) return table;

    const std::wstring valueName = L"key" + number;
    const int slot = RoundTo32Bits(file.ReadInteger(StartMenuSection, valueName, L"0"));
    if (slot < 1 || slot > static_cast<int>(table.size())) continue;
    table[static_cast<std::size_t>(slot) - 1] = {StartMenuKey(slot, notation), std::move(caption),
                                                 valueName};
  }
}

}  // namespace tessera
