// The command list as plain text in padded columns.
#pragma once

#include <array>
#include <string>

#include "localisation/Texts.h"
#include "shortcuts/DisplayTable.h"
#include "shortcuts/StartMenuKeys.h"

namespace tessera {

/// Which of the columns description, command, defaults, current are exported.
using ExportColumns = std::array<bool, 4>;

/// The greatest length, in characters, of a column's texts over the command rows; 0 without any.
[[nodiscard]] std::size_t ColumnMaxLength(const DisplayTable& rows, Column column);

/// True for a command that has a key in a chosen key column.
[[nodiscard]] bool IsExported(const CommandEntry& row, const ExportColumns& columns,
                              const std::wstring& undefinedHotkey);

/// The heading, the rule below it, and one line for each command that has a key in a chosen key
/// column, in the order of the list.
[[nodiscard]] std::wstring BuildExportText(const DisplayTable& rows, const ExportColumns& columns,
                                           const Texts& texts, const std::wstring& undefinedHotkey);

/// What follows the table: the Start Menu keys and, with unsaved changes, the warning.
[[nodiscard]] std::wstring BuildExportEnding(const StartMenuKeyTable& startMenuKeys, bool modified,
                                             const Texts& texts);

}  // namespace tessera
