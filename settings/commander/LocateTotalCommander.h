// Finding Total Commander's folder, its command list and its settings file.
#pragma once

#include <functional>
#include <string>

#include "platform/Environment.h"
#include "platform/Files.h"
#include "platform/Registry.h"

namespace tessera {

/// Tells the user that a file is missing and asks for it. Takes the folder to start in and gives
/// the chosen path, or the missing marker when the user cancels.
using AskForMissingFile = std::function<std::wstring(const std::wstring& folder)>;

struct LocateSources {
  tessera::Files& Files;
  tessera::Registry& Registry;
  const tessera::Environment& Environment;
};

/// The path of "Totalcmd.inc". `totalCommanderDirectory` comes in as the setting TCInstallDir and
/// goes out as the folder that was found, ending in a backslash.
[[nodiscard]] std::wstring LocateTotalcmdInc(const LocateSources& sources,
                                             std::wstring& totalCommanderDirectory,
                                             const AskForMissingFile& ask);

/// The path of "Wincmd.ini". `userDefinedWincmd` comes in as the setting of that name; when the
/// user was asked, it goes out as the answer, for the caller to store unless it is the missing
/// marker.
[[nodiscard]] std::wstring LocateWincmdIni(const LocateSources& sources,
                                           const std::wstring& totalCommanderDirectory,
                                           std::wstring& userDefinedWincmd,
                                           const AskForMissingFile& ask);

}  // namespace tessera
