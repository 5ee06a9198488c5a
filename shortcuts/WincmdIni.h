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
  /// redirected to, once. Of a file that cannot be read, `known` tells what it is taken to hold; of
  /// the others it takes what they hold now. It may be null.
  WincmdIni(Files& files, Clock& clock, const Environment& environment, const std::wstring& path,
            KnownContents* known = nullptr);

  // -- Queries. The file that holds the section.

  [[nodiscard]] const ProfileFile& Shortcuts() const;
  [[nodiscard]] const ProfileFile& StartMenu() const;

  /// The first file that is there and could not be read; null when there is none.
  [[nodiscard]] const ProfileFile* Unread() const;

  // -- Changes, kept in memory until Save
  [[nodiscard]] ProfileFile& Shortcuts();
  [[nodiscard]] ProfileFile& StartMenu();

  /// Writes each file that changed, with the copies that a user's file gets. Gives the first error;
  /// files after it are not written, their changes are left beside them too. `known` as above.
  [[nodiscard]] FileError Save(Files& files, Clock& clock, KnownContents* known = nullptr);

 private:
  void Read(Files& files, Clock& clock, const std::wstring& path, KnownContents* known);
  std::size_t FileOfSection(std::wstring_view section, Files& files, Clock& clock,
                            const Environment& environment, KnownContents* known);

  std::vector<ProfileFile> files_;  ///< "Wincmd.ini" first; each file once
  std::size_t shortcuts_ = 0;
  std::size_t startMenu_ = 0;
};

/// Adds the keys of section "Shortcuts" to the current keys of the rows whose command they name, in
/// file order; keys of other commands are passed over.
void ReadShortcuts(std::vector<CommandEntry>& rows, const ProfileFile& file,
                   const HotkeyNotation& notation, const ProgressStep& step);

}  // namespace tessera
