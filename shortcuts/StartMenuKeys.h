// The keys that Total Commander's Start Menu entries hold: section "user" of "Wincmd.ini".
#pragma once

#include <array>
#include <string>

#include "settings/ini/ProfileFile.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

inline constexpr std::wstring_view StartMenuSection = L"user";

struct StartMenuSlot {
  std::wstring Key;        ///< in display notation; " *" appended once the user takes it away
  std::wstring Caption;    ///< of the Start Menu entry
  std::wstring ValueName;  ///< "key" + the entry's number
};

/// Slot n of 1 to 24 stands at index n - 1; an unused slot's texts are empty.
using StartMenuKeyTable = std::array<StartMenuSlot, 24>;

/// The key of slot `number` (1 to 24) in display notation.
[[nodiscard]] std::wstring StartMenuKey(int number, const HotkeyNotation& notation);

/// Reads the entries menu1, menu2 and so on up to the first that is missing. A key number outside 1
/// to 24 fills no slot.
[[nodiscard]] StartMenuKeyTable ReadStartMenuKeys(const ProfileFile& file,
                                                  const HotkeyNotation& notation);

}  // namespace tessera
