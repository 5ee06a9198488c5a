// Finding the files that the program reads beside its own settings. The user is asked for one that
// is missing.
#pragma once

#include <string>

#include "dialogs/cCommonDialog.h"
#include "localisation/Texts.h"
#include "platform/Pinned.h"
#include "platform/System.h"
#include "settings/commander/CommanderEnvironment.h"
#include "settings/Settings.h"

namespace tessera {

class InputFiles : Pinned {
 public:
  /// What is found goes into `settings`, what the user answers into `settingsFile` too.
  InputFiles(const System& system, const Texts& texts, Settings& settings,
             SettingsFile& settingsFile);

  // -- Queries

  /// The path of "Totalcmd.inc"; the missing marker when the user gave none.
  [[nodiscard]] const std::wstring& TotalcmdInc() const;

  /// The environment by which paths in "Wincmd.ini" are expanded.
  [[nodiscard]] const Environment& CommanderVariables() const;

  // -- Looking for files

  /// Lets open dialogs start in the folder of Total Commander, as far as it is known.
  void SetUpDialogs();

  /// Finds "Totalcmd.inc", and with it the folder of Total Commander.
  void FindTotalcmdInc();

  /// The path of "Wincmd.ini": `preferred` where that file exists, else the one that is found. An
  /// answer of the user is stored. The missing marker when there is none.
  [[nodiscard]] std::wstring FindWincmdIni(const std::wstring& preferred);

  /// Asks for the file of the default keys when it does not exist, and stores the answer.
  void FindDefaultHotkeys();

  /// The file that the user picks; the missing marker when there is none.
  [[nodiscard]] std::wstring BrowseForWincmdIni();

 private:
  [[nodiscard]] std::wstring AskForFile(TextId message, BoxIcon icon, const std::wstring& folder,
                                        const std::wstring& fileName, FileFilter filter);

  System system_;
  const Texts& texts_;
  Settings& settings_;
  SettingsFile& settingsFile_;
  cCommonDialog commonDialog_;
  CommanderEnvironment commanderEnvironment_;
  std::wstring totalcmdIncPath_;
};

}  // namespace tessera
