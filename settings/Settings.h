// The program's settings: their defaults, and reading and writing them in "vantor.ini".
#pragma once

#include <string>

#include "platform/Clock.h"
#include "platform/Environment.h"
#include "platform/Files.h"
#include "settings/ini/MissingMarker.h"

namespace tessera {

inline constexpr std::wstring_view ProgramSection = L"Tessera";
inline constexpr std::wstring_view CommonSection = L"Common";

/// The settings in force. Fields are named after their keys in the file.
struct Settings {
  short CommandListShowLines = 0;
  short FixedBorders = 1;
  short FlatUserInterface = 0;
  int ForegroundColor = -2147483640;  ///< 0x00BBGGRR, or 0x80000000 + a system colour's number
  int BackgroundColor = -2147483643;
  std::wstring FontName = L"MS Sans Serif";
  short FontScript = 1;  ///< character set
  short FontSize = 10;   ///< points
  short FontStyle = 0;   ///< 1 bold, 2 italic, 4 strikeout, 8 underline
  short UseDefaultLanguage = 1;
  std::wstring LanguageFile{MissingMarker};
  std::wstring ExpandedLanguageFile{MissingMarker};  ///< not stored
  short MainWindowTop = 0;                           ///< twips, as the next three
  short MainWindowLeft = 0;
  short MainWindowHeight = 7230;
  short MainWindowWidth = 8610;
  short MainWindowMaxmized = 0;
  short ToolbarVisible = 1;
  short AlwaysRestartTC = 0;
  std::wstring TCInstallDir;                      ///< ends in a backslash; only read
  std::wstring UserDefinedWincmd{MissingMarker};  ///< written when the user picks a file
  short NumberOfRecentFiles = 9;                  ///< 2 to 16
  short ShowControlsBackColor = 0;                ///< only read

  std::wstring ColumnHeadersPosition = L"1,2,3,4";
  std::wstring ColumnHeadersSize = L"3000,2000,2000,2000";
  short UseContextMenuKey = 0;
  short SortedList = 0;
  short SortOrder = 0;
  short SortedColumn = 3;
  std::wstring DefaultHotKeysDataFile;  ///< environment references expanded
  short ReverseOrderHotkey = 0;
  std::wstring MultiHotkeySeparator = L" = ";  ///< with one blank on each side
  std::wstring UndefinedHotkey = L"---";
  short KeepUnknownShortcuts = 0;  ///< only read
  bool Unread = false;             ///< not stored: the file is there, and reading it failed
};

/// "vantor.ini" in the program's folder.
[[nodiscard]] std::wstring SettingsPath(const Environment& environment);

/// Reads all settings, each with its default; when there is no file, writes a first one, whose
/// window is centred on the screen.
[[nodiscard]] Settings LoadSettings(Files& files, Clock& clock, const Environment& environment);

/// Writes all settings that this program stores, in one write; gives AccessDenied and writes
/// nothing when they are defaults because the file could not be read at the start. While
/// MainWindowMaxmized is not 0, the window's four sizes in the file stay as they are.
[[nodiscard]] FileError SaveSettings(const Settings& settings, Files& files, Clock& clock,
                                     const Environment& environment);

}  // namespace tessera
