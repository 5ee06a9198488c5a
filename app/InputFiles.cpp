// The files of Total Commander, and the file of its default keys.
#include "app/InputFiles.h"

#include "settings/commander/LocateTotalCommander.h"
#include "settings/ini/ReplaceContent.h"
#include "settings/Paths.h"

namespace tessera {

InputFiles::InputFiles(const System& system, const Texts& texts, Settings& settings,
                       SettingsFile& settingsFile)
    : system_(system),
      texts_(texts),
      settings_(settings),
      settingsFile_(settingsFile),
      commonDialog_(system.Dialogs),
      commanderEnvironment_(system.Environment) {}

const std::wstring& InputFiles::TotalcmdInc() const { return totalcmdIncPath_; }

const Environment& InputFiles::CommanderVariables() const { return commanderEnvironment_; }

void InputFiles::SetUpDialogs() {
  commonDialog_.Setup(ExpandPath(system_.Environment, settings_.TCInstallDir));
}

void InputFiles::FindTotalcmdInc() {
  totalcmdIncPath_ =
      LocateTotalcmdInc({system_.Files, system_.Registry, system_.Environment},
                        settings_.TCInstallDir, [this](const std::wstring& folder) {
                          return AskForFile(TextId::NoTotalcmdInc, BoxIcon::Information, folder,
                                            L"Totalcmd.inc", FileFilter::InternalCommands);
                        });
  commanderEnvironment_.SetTotalCommanderDirectory(
      ExpandPath(system_.Environment, settings_.TCInstallDir));
  SetUpDialogs();
}

std::wstring InputFiles::FindWincmdIni(const std::wstring& preferred) {
  if (ExistsOrReturns(system_.Files, preferred)) return preferred;
  const std::wstring stored = settings_.UserDefinedWincmd;
  std::wstring path = LocateWincmdIni(
      {system_.Files, system_.Registry, system_.Environment}, settings_.TCInstallDir,
      settings_.UserDefinedWincmd, [this](const std::wstring& folder) {
        return AskForFile(TextId::NoWincmdIni, BoxIcon::Exclamation, folder, L"Wincmd.ini",
                          FileFilter::WincmdIni);
      });
  if (settings_.UserDefinedWincmd != stored) {
    SaveSetting(&Settings::UserDefinedWincmd, settings_, settingsFile_);
  }
  return path;
}

void InputFiles::FindDefaultHotkeys() {
  if (FileExists(system_.Files, settings_.DefaultHotKeysDataFile, false)) return;
  const std::wstring folder = AddBackslash(system_.Environment.ProgramDirectory()) + L"Data Files";
  settings_.DefaultHotKeysDataFile =
      AskForFile(TextId::NoDataFile, BoxIcon::Critical, folder, L"tc default hotkeys.hky",
                 FileFilter::DefaultHotkeys);
  SaveSetting(&Settings::DefaultHotKeysDataFile, settings_, settingsFile_);
}

std::wstring InputFiles::BrowseForWincmdIni() {
  return commonDialog_.BrowseForOpen({}, {}, FileFilter::WincmdIni);
}

std::wstring InputFiles::AskForFile(TextId message, BoxIcon icon, const std::wstring& folder,
                                    const std::wstring& fileName, FileFilter filter) {
  system_.MessageBoxes.Show(texts_.GetLangText(message), BoxButtons::Ok, icon);
  return commonDialog_.BrowseForOpen(folder, fileName, filter);
}

}  // namespace tessera
