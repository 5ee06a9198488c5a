// File > Save: the keys of the catalogue go back into "Wincmd.ini".
#pragma once

#include <string>

#include "platform/Clock.h"
#include "platform/Environment.h"
#include "platform/Files.h"
#include "settings/ini/ProfileFile.h"
#include "settings/ini/UnsavedFiles.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/DroppedLines.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

struct SaveRequest {
  std::wstring Path;                  ///< of "Wincmd.ini"
  bool KeepUnknownShortcuts = false;  ///< keep lines whose command is not in the catalogue
  bool KeepUserCommands = false;      ///< of those, lines of the user's own commands at least
  KnownContents* Known = nullptr;     ///< as WincmdIni takes it; may be null

  /// What the files held at the last open or save; null stands for what the save finds.
  const KnownContents* Seen = nullptr;
};

struct SaveOutcome {
  FileError Error = FileError::None;
  std::wstring Path;  ///< of the file that holds section "Shortcuts"
  DroppedLines Dropped;
};

/// Reads "Wincmd.ini" afresh, puts the current keys of the displayed rows, in display order, in the
/// place of its section "Shortcuts" (a key that several rows have goes to the one that an edit gave
/// it to last, or else to the one written last), deletes the Start Menu keys that were taken away,
/// puts aside the lines that it leaves out, and saves. When that succeeded, the taken slots of the
/// catalogue are cleared; otherwise nothing is changed, and what should have been saved is left
/// beside the file, also where that cannot be read and `request.Known` tells what it held.
[[nodiscard]] SaveOutcome SaveShortcuts(Catalogue& catalogue, const HotkeyNotation& notation,
                                        const SaveRequest& request, Files& files, Clock& clock,
                                        const Environment& environment);

/// Writes beside each file what SaveShortcuts would put in its place, through `files`, which are to
/// be UnsavedFiles; the catalogue stays as it is.
[[nodiscard]] FileError WriteUnsavedShortcuts(const Catalogue& catalogue,
                                              const HotkeyNotation& notation,
                                              const SaveRequest& request, UnsavedFiles& files,
                                              Clock& clock, const Environment& environment);

}  // namespace tessera
