// The order in which things happen at the start, when a file is opened, and at the end.
#include "app/Editor.h"

#include <memory>
#include <utility>

#include "app/BusyTime.h"
#include "localisation/TextTable.h"
#include "settings/commander/LocateTotalCommander.h"
#include "settings/cProfile.h"
#include "settings/ini/MissingMarker.h"
#include "settings/Paths.h"
#include "shortcuts/DefaultHotkeys.h"
#include "shortcuts/InternalCommands.h"
#include "shortcuts/WincmdIni.h"
#include "text/Numbers.h"
#include "text/Trim.h"

namespace tessera {

Editor::Editor(const System& system, std::function<void(const LoadProgress&)> showProgress)
    : system_(system),
      texts_(system.Files),
      list_(catalogue_, settings_),
      assignment_(catalogue_, notation_, texts_, system.MessageBoxes),
      panel_(catalogue_, list_, assignment_, notation_, settings_, system.MessageBoxes),
      keysList_(panel_),
      export_(catalogue_, notation_, texts_),
      options_(settings_, system.Dialogs, system.Environment),
      recentFiles_(texts_, system.MessageBoxes),
      commonDialog_(system.Dialogs),
      commanderEnvironment_(system.Environment),
      progress_(system.Clock, std::move(showProgress)) {}

const DisplayTable& Editor::Rows() const { return catalogue_.ListView1; }

const CommandList& Editor::List() const { return list_; }

const HotkeyPanel& Editor::Panel() const { return panel_; }

const KeysList& Editor::AllKeys() const { return keysList_; }

const cRecentFiles& Editor::RecentFiles() const { return recentFiles_; }

const Settings& Editor::Options() const { return settings_; }

const Texts& Editor::Language() const { return texts_; }

std::wstring Editor::Caption() const {
  const std::wstring title(ProgramTitle);
  return wincmdPath_.empty() ? title : wincmdPath_ + L" - " + title;
}

bool Editor::Modified() const { return modified_; }

bool Editor::SaveAndRestartEnabled() const { return saveAndRestartEnabled_; }

bool Editor::RestartButtonEnabled() const { return restartButtonEnabled_; }

bool Editor::Busy() const { return busy_; }

void Editor::Load(std::wstring fileToOpen) {
  fileToOpen_ = std::move(fileToOpen);
  settings_ = LoadSettings(system_.Files, system_.Clock, system_.Environment);
  notation_.MultiHotkeySeparator = settings_.MultiHotkeySeparator;
  notation_.UndefinedHotkey = settings_.UndefinedHotkey;
  notation_.ReverseOrderHotkey = settings_.ReverseOrderHotkey != 0;
  ApplyLanguage();
  ReadModifierNames();
  panel_.ResetPanel();
  SetModified(false);
  export_.Load(system_.Files, SettingsPath(system_.Environment));
  ReadRecentFiles();
}

void Editor::Activate() {
  if (std::exchange(activated_, true)) {
    return;
  }
  const LocateSources sources{system_.Files, system_.Registry, system_.Environment};
  totalcmdIncPath_ =
      LocateTotalcmdInc(sources, settings_.TCInstallDir, [this](const std::wstring& folder) {
        return AskForFile(TextId::NoTotalcmdInc, BoxIcon::Information, folder, L"Totalcmd.inc",
                          FileFilter::InternalCommands);
      });
  commanderEnvironment_.SetTotalCommanderDirectory(
      ExpandPath(system_.Environment, settings_.TCInstallDir));
  commonDialog_.Setup(ExpandPath(system_.Environment, settings_.TCInstallDir));
  OpenShortcutFile(false, FindWincmdIni(sources), true);
  list_.RestoreStoredSort();
}

std::wstring Editor::FindWincmdIni(const LocateSources& sources) {
  if (ExistsOrReturns(system_.Files, fileToOpen_)) {
    return fileToOpen_;
  }
  const std::wstring storedWincmd = settings_.UserDefinedWincmd;
  std::wstring path =
      LocateWincmdIni(sources, settings_.TCInstallDir, settings_.UserDefinedWincmd,
                      [this](const std::wstring& folder) {
                        return AskForFile(TextId::NoWincmdIni, BoxIcon::Exclamation, folder,
                                          L"Wincmd.ini", FileFilter::WincmdIni);
                      });
  if (settings_.UserDefinedWincmd != storedWincmd) {
    cProfile(system_.Files, system_.Clock)
        .WriteStringValue(CommonSection, L"UserDefinedWincmd", settings_.UserDefinedWincmd,
                          SettingsPath(system_.Environment));
  }
  return path;
}

void Editor::Unload(const WindowPlacement& placement, const ColumnLayout& columns) {
  StoreColumnLayout(columns, settings_);
  if (!placement.Minimised) {
    settings_.MainWindowTop = RoundTo16Bits(placement.Top);
    settings_.MainWindowLeft = RoundTo16Bits(placement.Left);
    settings_.MainWindowHeight = RoundTo16Bits(placement.Height);
    settings_.MainWindowWidth = RoundTo16Bits(placement.Width);
  }
  settings_.MainWindowMaxmized = placement.Maximised ? 1 : 0;
  // As with all settings, a folder that cannot be written is not reported.
  static_cast<void>(SaveSettings(settings_, system_.Files, system_.Clock, system_.Environment));
}

void Editor::FileOpen() { OpenShortcutFile(true, {}, true); }

void Editor::ToggleToolbar() { settings_.ToolbarVisible = settings_.ToolbarVisible != 0 ? 0 : 1; }

void Editor::ToggleSortedList() {
  if (busy_) {
    return;
  }
  if (settings_.SortedList != 0) {
    list_.RestoreFileOrder();
  } else {
    list_.SortCommandList();
  }
  keysList_.Hide();
}

void Editor::OpenShortcutFile(bool browse, std::wstring path, bool addToRecent) {
  if (busy_ || !ChangesMayGo()) {
    return;
  }
  if (browse) {
    path = commonDialog_.BrowseForOpen({}, {}, FileFilter::WincmdIni);
  }
  if (IsMissing(path)) {
    return;
  }
  const BusyTime busy(busy_);
  ReadModifierNames();
  wincmdPath_ = path;
  progress_.Start();
  LoadCatalogue();
  SetModified(false);
  list_.ShowFirstRow();
  keysList_.Hide();
  if (addToRecent) {
    recentFiles_.AddFile(path);
    SaveRecentFiles();
  }
  if (settings_.SortedList != 0) {
    list_.SortCommandList();
  }
  progress_.Finish();
}

void Editor::OpenFile(const std::wstring& path) { OpenShortcutFile(false, path, true); }

void Editor::LoadCatalogue() {
  const ProgressStep step = [this] { progress_.Step(); };
  const WincmdIni wincmd(system_.Files, system_.Clock, commanderEnvironment_, wincmdPath_);
  wincmdUnread_ = wincmd.ReadError() != FileError::None;
  catalogue_.StartMenuKeys = ReadStartMenuKeys(wincmd.StartMenu(), notation_);
  if (catalogue_.lvwHidden.empty()) {
    std::string bytes;
    if (system_.Files.Read(totalcmdIncPath_, bytes) == FileError::None) {
      catalogue_.Text = std::make_shared<const std::wstring>(DecodeInternalCommands(bytes));
      catalogue_.lvwHidden =
          ReadInternalCommands(*catalogue_.Text, notation_.UndefinedHotkey, step);
    }
  }
  AskForMissingDataFile();
  const ProfileFile defaults(system_.Files, settings_.DefaultHotKeysDataFile);
  FillDefaultKeys(catalogue_.lvwHidden, defaults, notation_, step);
  ReadShortcuts(catalogue_.lvwHidden, wincmd.Shortcuts(), notation_, step);
  BuildDisplayTable(catalogue_, notation_, step);
  BuildKeyIndexes(catalogue_, notation_);
  MarkOverriddenDefaults(catalogue_);
}

void Editor::AskForMissingDataFile() {
  if (FileExists(system_.Files, settings_.DefaultHotKeysDataFile, false)) {
    return;
  }
  const std::wstring folder = AddBackslash(system_.Environment.ProgramDirectory()) + L"Data Files";
  settings_.DefaultHotKeysDataFile =
      AskForFile(TextId::NoDataFile, BoxIcon::Critical, folder, L"tc default hotkeys.hky",
                 FileFilter::DefaultHotkeys);
  cProfile(system_.Files, system_.Clock)
      .WriteStringValue(ProgramSection, L"DefaultHotKeysDataFile", settings_.DefaultHotKeysDataFile,
                        SettingsPath(system_.Environment));
}

void Editor::ApplyLanguage() {
  if (settings_.UseDefaultLanguage == 0 && texts_.UseLanguageFile(settings_.ExpandedLanguageFile)) {
    return;
  }
  texts_.UseBuiltIn();
  if (settings_.UseDefaultLanguage == 0) {
    // Told once: from here on the built-in texts are what is wanted.
    system_.MessageBoxes.Show(L"Cannot find language file!", BoxButtons::Ok, BoxIcon::Critical);
    settings_.UseDefaultLanguage = 1;
  }
}

void Editor::ReadModifierNames() {
  // A blank name would be found in every key, and a save would then give it all modifiers.
  const auto nameOf = [this](TextId id) {
    const std::wstring name(TrimSpaces(texts_.GetLangText(id)));
    return name.empty() ? std::wstring(BuiltInTextOf(id)) : name;
  };
  notation_.CtrlName = nameOf(TextId::CtrlName);
  notation_.AltName = nameOf(TextId::AltName);
  notation_.ShiftName = nameOf(TextId::ShiftName);
}

std::wstring Editor::AskForFile(TextId message, BoxIcon icon, const std::wstring& folder,
                                const std::wstring& fileName, FileFilter filter) {
  system_.MessageBoxes.Show(texts_.GetLangText(message), BoxButtons::Ok, icon);
  return commonDialog_.BrowseForOpen(folder, fileName, filter);
}

}  // namespace tessera
