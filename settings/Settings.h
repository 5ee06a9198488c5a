// The program's settings: their defaults, and reading and writing them in "vantor.ini".
#pragma once

#include <string>

#include "platform/Environment.h"
#include "settings/ini/MissingMarker.h"
#include "settings/SettingsFile.h"

namespace tessera {

/// Of the window when there is no settings file.
inline constexpr TwipsSize FirstRunSize{10000, 7000};

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
  short KeepUnknownShortcuts = 0;
  short ForgetKeysAtOpen = 0;
  short ShowUserCommands = 0;
};

/// Takes all settings from what was read at the start, each with its default; when there is no
/// file, writes a first one, whose window is centred on the screen.
[[nodiscard]] Settings LoadSettings(const ProfileFile& stored, SettingsFile& file,
                                    const Environment& environment);

/// Writes all settings that this program stores. While MainWindowMaxmized is not 0, the window's
/// four sizes in the file stay as they are.
FileError SaveSettings(const Settings& settings, SettingsFile& file);

/// Writes one setting, which is not stored with the others; the missing marker is not written.
FileError SaveSetting(std::wstring Settings::*setting, const Settings& settings,
                      SettingsFile& file);

}  // namespace tessera
