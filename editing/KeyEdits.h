// The changes that an edit makes to the catalogue: no questions, no messages.
#pragma once

#include <string>
#include <string_view>

#include "editing/KeyConflicts.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

/// The column text without the pieces that are exactly `key`; the undefined marker when none is
/// left.
[[nodiscard]] std::wstring RemoveKeyFromList(std::wstring_view list, std::wstring_view key,
                                             const HotkeyNotation& notation);

/// Enters the key into the current-key index for the row, taking it from whoever the conflict
/// names. With `replace`, the row's own entries go when the key was free: its new one too,
/// deliberately. The row's cell is left to the caller.
void TakeKey(Catalogue& catalogue, RowKey row, const std::wstring& key, const KeyConflict& conflict,
             bool replace, const HotkeyNotation& notation);

/// Puts the key behind the row's current keys, or in the place of the undefined marker.
void GiveKey(Catalogue& catalogue, RowKey row, const std::wstring& key,
             const HotkeyNotation& notation);

/// Empties the row's current keys, and withdraws the marks that they set on Start Menu slots and on
/// the default keys of other rows. A default-keys cell stays red until the next open.
void ReleaseCurrentKeys(Catalogue& catalogue, RowKey row, const HotkeyNotation& notation);

/// Takes all current keys away from the row; false when it had none.
bool DeleteCurrentKeys(Catalogue& catalogue, RowKey row, const HotkeyNotation& notation);

}  // namespace tessera
