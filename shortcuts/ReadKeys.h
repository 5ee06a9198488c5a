// The names by which the keys of a row were read: a key that the user leaves alone is saved as the
// key that it was, also where its displayed form does not tell which one that is.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shortcuts/CommandEntry.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

// -- Queries

/// The names of the row's current keys as a save writes them. The name by which a key was read
/// stands where the notation would write another key or none; else the notation's own form does.
/// Deliberately, the second keypad key of a cell keeps its "Num" all the same.
[[nodiscard]] std::vector<std::wstring> NativeKeysOf(const CommandEntry& row,
                                                     const HotkeyNotation& notation);

// -- Changes. Each keeps the row's cell and what is remembered of it together.

/// Adds the key of that name, in Total Commander's notation, to the row's current keys.
void AddReadKey(CommandEntry& row, std::wstring_view name, const HotkeyNotation& notation);

/// Adds a displayed key that was not read.
void AddComposedKey(CommandEntry& row, std::wstring_view key, const HotkeyNotation& notation);

/// Forgets the names of all keys that are exactly `key`. A name that stands for several pieces of
/// the cell goes when one of them does.
void ForgetKey(CommandEntry& row, std::wstring_view key, const HotkeyNotation& notation);

/// Leaves a command row without any key.
void ForgetAllKeys(CommandEntry& row, const HotkeyNotation& notation);

/// Remembers how `notation` writes the row's keys, for when another way to write or to split its
/// cell comes in force. Rows that remember their keys already stay as they are.
void RememberKeys(CommandEntry& row, const HotkeyNotation& notation);

}  // namespace tessera
