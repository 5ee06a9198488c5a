// "Wincmd.ini" as this program knows it: the sections "Shortcuts" and "user", each in that file or
// in the one that its line "RedirectSection" names.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Clock.h"
#include "platform/Environment.h"
#include "platform/Files.h"
#include "settings/ini/ProfileFile.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

inline constexpr std::wstring_view ShortcutsSection = L"Shortcuts";

class WincmdIni {
 public:
  /// Clears up what killed saves left, and reads the file, and each file that a section is
  /// redirected to, once.
  WincmdIni(Files& files, Clock& clock, const Environment& environment, const std::wstring& path);

  // -- Queries. The file that holds the section.

  [[nodiscard]] const ProfileFile& Shortcuts() const;
  [[nodiscard]] const ProfileFile& StartMenu() const;

  /// The first error of reading a file that exists.
  [[nodiscard]] FileError ReadError() const;

  // -- Changes, kept in memory until Save
  [[nodiscard]] ProfileFile& Shortcuts();
  [[nodiscard]] ProfileFile& StartMenu();

  /// Writes each file that changed, with the copies that a user's file gets. Gives the first error;
  /// files after it are not written.
  [[nodiscard]] FileError Save(Files& files, Clock& clock);

 private:
  std::size_t FileOfSection(std::wstring_view section, Files& files, Clock& clock,
                            const Environment& environment);

  std::vector<ProfileFile> files_;  ///< "Wincmd.ini" first; each file once
  std::size_t shortcuts_ = 0;
  std::size_t startMenu_ = 0;
};

/// Adds the keys of section "Shortcuts" to the current keys of the rows whose command they name, in
/// file order; keys of other commands are passed over.
void ReadShortcuts(std::vector<CommandEntry>& rows, const ProfileFile& file,
                   const HotkeyNotation& notation, const ProgressStep& step);

}  // namespace tessera
