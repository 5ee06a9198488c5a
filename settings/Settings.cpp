// The table of settings, the order in which they are stored, and the rules for single ones.
#include "settings/Settings.h"

#include <algorithm>
#include <array>
#include <variant>

#include "settings/ini/ProfileFile.h"
#include "settings/Paths.h"
#include "text/Numbers.h"
#include "text/Trim.h"

namespace tessera {
namespace {

constexpr short FewestRecentFiles = 2;
constexpr short MostRecentFiles = 16;

using Member = std::variant<short Settings::*, int Settings::*, std::wstring Settings::*>;

struct Field {
  std::wstring_view Section;
  std::wstring_view Key;
  Member Where;
};

/// Every setting, in the order in which they are read.
constexpr std::array Fields{
    Field{ProgramSection, L"CommandListShowLines", &Settings::CommandListShowLines},
    Field{ProgramSection, L"FixedBorders", &Settings::FixedBorders},
    Field{ProgramSection, L"FlatUserInterface", &Settings::FlatUserInterface},
    Field{ProgramSection, L"ForegroundColor", &Settings::ForegroundColor},
    Field{ProgramSection, L"BackgroundColor", &Settings::BackgroundColor},
    Field{ProgramSection, L"FontName", &Settings::FontName},
    Field{ProgramSection, L"FontScript", &Settings::FontScript},
    Field{ProgramSection, L"FontSize", &Settings::FontSize},
    Field{ProgramSection, L"FontStyle", &Settings::FontStyle},
    Field{ProgramSection, L"UseDefaultLanguage", &Settings::UseDefaultLanguage},
    Field{CommonSection, L"LanguageFile", &Settings::LanguageFile},
    Field{ProgramSection, L"MainWindowTop", &Settings::MainWindowTop},
    Field{ProgramSection, L"MainWindowLeft", &Settings::MainWindowLeft},
    Field{ProgramSection, L"MainWindowHeight", &Settings::MainWindowHeight},
    Field{ProgramSection, L"MainWindowWidth", &Settings::MainWindowWidth},
    Field{ProgramSection, L"MainWindowMaxmized", &Settings::MainWindowMaxmized},
    Field{ProgramSection, L"ToolbarVisible", &Settings::ToolbarVisible},
    Field{ProgramSection, L"AlwaysRestartTC", &Settings::AlwaysRestartTC},
    Field{CommonSection, L"TCInstallDir", &Settings::TCInstallDir},
    Field{CommonSection, L"UserDefinedWincmd", &Settings::UserDefinedWincmd},
    Field{CommonSection, L"NumberOfRecentFiles", &Settings::NumberOfRecentFiles},
    Field{CommonSection, L"ShowControlsBackColor", &Settings::ShowControlsBackColor},
    Field{ProgramSection, L"ColumnHeadersPosition", &Settings::ColumnHeadersPosition},
    Field{ProgramSection, L"ColumnHeadersSize", &Settings::ColumnHeadersSize},
    Field{ProgramSection, L"UseContextMenuKey", &Settings::UseContextMenuKey},
    Field{ProgramSection, L"SortedList", &Settings::SortedList},
    Field{ProgramSection, L"SortOrder", &Settings::SortOrder},
    Field{ProgramSection, L"SortedColumn", &Settings::SortedColumn},
    Field{ProgramSection, L"DefaultHotKeysDataFile", &Settings::DefaultHotKeysDataFile},
    Field{ProgramSection, L"ReverseOrderHotkey", &Settings::ReverseOrderHotkey},
    Field{ProgramSection, L"MultiHotkeySeparator", &Settings::MultiHotkeySeparator},
    Field{ProgramSection, L"UndefinedHotkey", &Settings::UndefinedHotkey},
    Field{ProgramSection, L"KeepUnknownShortcuts", &Settings::KeepUnknownShortcuts},
    Field{ProgramSection, L"ForgetKeysAtOpen", &Settings::ForgetKeysAtOpen},
    Field{ProgramSection, L"ShowUserCommands", &Settings::ShowUserCommands},
};

/// The stored settings, in the order in which they are written.
constexpr std::array<Member, 28> StoredSettings{&Settings::FixedBorders,
                                                &Settings::FlatUserInterface,
                                                &Settings::ForegroundColor,
                                                &Settings::BackgroundColor,
                                                &Settings::FontName,
                                                &Settings::FontScript,
                                                &Settings::FontSize,
                                                &Settings::FontStyle,
                                                &Settings::UseDefaultLanguage,
                                                &Settings::LanguageFile,
                                                &Settings::MainWindowLeft,
                                                &Settings::MainWindowTop,
                                                &Settings::MainWindowWidth,
                                                &Settings::MainWindowHeight,
                                                &Settings::MainWindowMaxmized,
                                                &Settings::ToolbarVisible,
                                                &Settings::NumberOfRecentFiles,
                                                &Settings::AlwaysRestartTC,
                                                &Settings::CommandListShowLines,
                                                &Settings::ColumnHeadersPosition,
                                                &Settings::ColumnHeadersSize,
                                                &Settings::UseContextMenuKey,
                                                &Settings::SortedList,
                                                &Settings::SortOrder,
                                                &Settings::SortedColumn,
                                                &Settings::MultiHotkeySeparator,
                                                &Settings::UndefinedHotkey,
                                                &Settings::ReverseOrderHotkey};

/// These follow once they were used: a file without them stays without them while they are 0.
constexpr std::array StoredOnceUsed{&Settings::KeepUnknownShortcuts, &Settings::ForgetKeysAtOpen,
                                    &Settings::ShowUserCommands};

/// The settings that a maximised window leaves as they are.
constexpr std::array<Member, 4> PlacementSettings{
    &Settings::MainWindowLeft, &Settings::MainWindowTop, &Settings::MainWindowWidth,
    &Settings::MainWindowHeight};

constexpr const Field* FieldOf(const Member& setting) {
  return std::ranges::find(Fields, setting, &Field::Where);
}

static_assert(std::ranges::none_of(StoredSettings, [](const Member& setting) {
  return FieldOf(setting) == Fields.end();
}));

/// Takes one setting over from the file; one that is absent there stays as it is.
struct Reader {
  const ProfileFile& File;
  const Field& Source;
  Settings& Target;

  void operator()(short Settings::*member) const {
    Target.*member = RoundTo16Bits(Number(Target.*member));
  }
  void operator()(int Settings::*member) const {
    Target.*member = RoundTo32Bits(Number(Target.*member));
  }
  void operator()(std::wstring Settings::*member) const {
    Target.*member = File.ReadString(Source.Section, Source.Key, Target.*member);
  }

 private:
  [[nodiscard]] double Number(int present) const {
    return File.ReadInteger(Source.Section, Source.Key, std::to_wstring(present));
  }
};

struct Writer {
  ProfileFile& File;
  const Field& Target;
  const Settings& Source;

  void operator()(short Settings::*member) const {
    File.WriteInteger(Target.Section, Target.Key, Source.*member);
  }
  void operator()(int Settings::*member) const {
    File.WriteInteger(Target.Section, Target.Key, Source.*member);
  }
  void operator()(std::wstring Settings::*member) const {
    // A language file that was never chosen is the missing marker, which is not written.
    File.WriteString(Target.Section, Target.Key, Source.*member);
  }
};

Settings Defaults(const Environment& environment) {
  Settings settings;
  settings.TCInstallDir = environment.Variable(L"Commander_Path");
  settings.DefaultHotKeysDataFile =
      AddBackslash(environment.ProgramDirectory()) + L"Data Files\\tc default hotkeys.hky";
  return settings;
}

void PlaceFirstWindow(Settings& settings, const Environment& environment) {
  const TwipsSize screen = environment.ScreenSize();
  settings.MainWindowWidth = FirstRunSize.Width;
  settings.MainWindowHeight = FirstRunSize.Height;
  settings.MainWindowLeft = RoundTo16Bits((screen.Width - FirstRunSize.Width) / 2.0);
  settings.MainWindowTop = RoundTo16Bits((screen.Height - FirstRunSize.Height) / 2.0);
}

void Write(const Member& setting, const Settings& settings, ProfileFile& file) {
  const Field& field = *FieldOf(setting);
  std::visit(Writer{file, field, settings}, field.Where);
}

void WriteSettings(const Settings& settings, ProfileFile& file) {
  const bool maximised = settings.MainWindowMaxmized != 0;
  for (const Member& setting : StoredSettings) {
    const bool isPlacement =
        std::ranges::find(PlacementSettings, setting) != PlacementSettings.end();
    if (!isPlacement || !maximised) Write(setting, settings, file);
  }
  for (const auto setting : StoredOnceUsed) {
    const Field& field = *FieldOf(setting);
    const bool isStored = file.Section(field.Section).Find(field.Key).has_value();
    if (isStored || settings.*setting != 0) Write(setting, settings, file);
  }
}

/// The trimmed text, or `replacement` when nothing is left of it.
std::wstring TrimmedOr(std::wstring_view text, std::wstring_view replacement) {
  std::wstring trimmed(TrimSpaces(text));
  return trimmed.empty() ? std::wstring(replacement) : trimmed;
}

/// What single settings need after they were read.
void ApplyRules(Settings& settings, const Environment& environment) {
  settings.ExpandedLanguageFile = ExpandPath(environment, settings.LanguageFile);
  if (settings.TCInstallDir.empty()) settings.TCInstallDir = environment.Variable(L"windir");
  settings.TCInstallDir = AddBackslash(settings.TCInstallDir);
  settings.NumberOfRecentFiles =
      std::clamp(settings.NumberOfRecentFiles, FewestRecentFiles, MostRecentFiles);
  settings.DefaultHotKeysDataFile = ExpandPath(environment, settings.DefaultHotKeysDataFile);
  settings.MultiHotkeySeparator = L' ' + TrimmedOr(settings.MultiHotkeySeparator, L"=") + L' ';
  settings.UndefinedHotkey = TrimmedOr(settings.UndefinedHotkey, L"---");
}

}  // namespace

Settings LoadSettings(const ProfileFile& stored, SettingsFile& file,
                      const Environment& environment) {
  Settings settings = Defaults(environment);
  if (stored.ReadError() == FileError::NotFound) {
    PlaceFirstWindow(settings, environment);
    SaveSettings(settings, file);
  }
  for (const Field& field : Fields) std::visit(Reader{stored, field, settings}, field.Where);
  ApplyRules(settings, environment);
  return settings;
}

FileError SaveSettings(const Settings& settings, SettingsFile& file) {
  return file.Change([&](ProfileFile& stored) { WriteSettings(settings, stored); });
}

FileError SaveSetting(std::wstring Settings::*setting, const Settings& settings,
                      SettingsFile& file) {
  return file.Change([&](ProfileFile& stored) { Write(setting, settings, stored); });
}

}  // namespace tessera
