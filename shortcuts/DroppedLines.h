// Lines that a save leaves out of section "Shortcuts": they are put aside before it takes place.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Clock.h"
#include "platform/Files.h"
#include "settings/ini/ProfileFile.h"

namespace tessera {

/// Follows the name of the file that holds the section. What bears it is appended to, never read.
inline constexpr std::wstring_view DroppedEnding = L".dropped";

struct DroppedLines {
  std::vector<std::string> Lines;     ///< as ProfileFile::ReplaceEntries gives them
  std::wstring Path;                  ///< of the file that they are put aside in
  FileError Error = FileError::None;  ///< of putting them there
};

/// Appends to the file beside `file` those of `lines` that were not in `dropped`, under a comment
/// with the date and the path, and makes `dropped` tell of `lines`. Without lines nothing is
/// written. They have the encoding of `file`.
void PutAside(std::vector<std::string> lines, const ProfileFile& file, Files& files, Clock& clock,
              DroppedLines& dropped);

}  // namespace tessera
