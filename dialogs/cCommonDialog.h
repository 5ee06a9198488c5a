// File and colour dialogs: plain values out, the missing marker when the user cancels.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/Dialogs.h"

namespace tessera {

/// The file-type filters by index. The table serves all programs that share the settings file.
enum class FileFilter {
  AllFiles = 0,
  WincmdIni = 1,
  MainMenu = 2,
  InternalCommands = 3,
  Picture = 4,
  Language = 5,
  Programs = 6,
  ConfigurationData = 7,
  DefaultHotkeys = 8,
  FtpIni = 9,
};

/// description|pattern pairs joined by "|".
[[nodiscard]] std::wstring FilterText(FileFilter filter);

class cCommonDialog {
 public:
  explicit cCommonDialog(Dialogs& dialogs);

  /// Sets the folder that open dialogs start in when none is given.
  void Setup(std::wstring defaultFolder);

  [[nodiscard]] std::wstring BrowseForOpen(const std::wstring& folder, const std::wstring& fileName,
                                           FileFilter filter, const std::wstring& title = {});

  /// Starts, when no folder is given, in the folder of the last file chosen here.
  [[nodiscard]] std::wstring BrowseForSave(const std::wstring& folder, const std::wstring& fileName,
                                           FileFilter filter, const std::wstring& title,
                                           bool askBeforeOverwrite);

  /// The chosen colour as a decimal number.
  [[nodiscard]] std::wstring ColorSelect();

 private:
  Dialogs& dialogs_;
  std::wstring defaultFolder_;
  std::wstring lastSaveFolder_;
};

}  // namespace tessera
