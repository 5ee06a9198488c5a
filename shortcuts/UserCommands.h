// Total Commander's file of the user's own commands, "usercmd.ini", and their rows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Clock.h"
#include "platform/Files.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

/// True for a name that begins as those of the user's commands do, "em_".
[[nodiscard]] bool IsUserCommand(std::wstring_view command);

struct UserCommandFile {
  std::wstring Path;
  std::vector<UserCommand> Commands;
  FileError Error = FileError::None;  ///< NotFound without a file; Other also for one over 4 MB
};

/// The commands of the file beside "Wincmd.ini" at `wincmdPath`: its sections "em_...", each with
/// the value "menu", or else "cmd", as description. Of sections of one name the first counts; names
/// that no line of "Wincmd.ini" could hold are left out. The file is in the ANSI code page, or in
/// UTF-8 or UTF-16 behind a byte order mark. One that another program holds is waited for.
[[nodiscard]] UserCommandFile ReadUserCommands(const Files& files, Clock& clock,
                                               const std::wstring& wincmdPath);

/// Gives the commands rows behind the master rows, below a heading, in the place of the rows of a
/// former call; none get no heading. A command whose name a master row has gets no row. Edits'
/// keys go over to the new row of the same command. The texts of the former rows go: the displayed
/// table, which holds views of them, is to be built anew before it is looked at.
void ReplaceUserRows(Catalogue& catalogue, std::vector<UserCommand> commands, std::wstring heading,
                     const HotkeyNotation& notation);

}  // namespace tessera
