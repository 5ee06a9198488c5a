// "vantor.ini": read once at the start, and changed by one operation.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/Environment.h"
#include "platform/Files.h"
#include "platform/Pinned.h"
#include "settings/ini/ProfileFile.h"

namespace tessera {

inline constexpr std::wstring_view ProgramSection = L"Tessera";
inline constexpr std::wstring_view CommonSection = L"Common";

// Keys of section "Tessera" beside those of the table in Settings.cpp.
inline constexpr std::wstring_view ClipOptionsKey = L"ClipOptions";
inline constexpr std::wstring_view RecentFilesPrefix = L"RecentFiles";

/// "vantor.ini" in the program's folder.
[[nodiscard]] std::wstring SettingsPath(const Environment& environment);

class SettingsFile : Pinned {
 public:
  SettingsFile(Files& files, Clock& clock, const Environment& environment);

  /// What the file holds, at the start of the program.
  [[nodiscard]] ProfileFile Read();

  /// Reads the file afresh, changes it, and saves it in one write; a missing one is created. What
  /// is known was not read from the file when Read failed: the result is then AccessDenied, and an
  /// existing file stays as it is. Once access was denied, later saves are tried without a wait
  /// until one succeeds. No caller tells the user of an error: the program runs all the same.
  FileError Change(const std::function<void(ProfileFile&)>& change);

 private:
  Files& files_;
  Clock& clock_;
  const Environment& environment_;
  bool unread_ = false;   ///< the file is there, and Read failed
  bool refused_ = false;  ///< a save was denied, as in a folder of programs, and none has succeeded
};

}  // namespace tessera
