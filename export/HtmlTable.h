// The command list as a table for word processors, spreadsheets and mails.
#pragma once

#include <string>

#include "export/ClipboardTable.h"

namespace tessera {

/// True for a row whose default keys are overridden, as its cell shows.
[[nodiscard]] bool DefaultsAreStruck(const CommandEntry& row);

/// A table in HTML, in UTF-8, with the rows and columns of BuildExportText. Texts stand there as
/// they are shown, but for control characters, which are blanks; default keys that are overridden
/// are struck through.
[[nodiscard]] std::string BuildHtmlTable(const DisplayTable& rows, const ExportColumns& columns,
                                         const Texts& texts, const std::wstring& undefinedHotkey);

/// The cells of a row as they are shown, separated by tabs. Control characters in them are blanks.
[[nodiscard]] std::wstring RowText(const CommandEntry& row);

}  // namespace tessera
