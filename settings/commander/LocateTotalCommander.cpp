// The places where Total Commander's files are looked for, in their order.
#include "settings/commander/LocateTotalCommander.h"

#include "settings/cRegistry.h"
#include "settings/ini/MissingMarker.h"
#include "settings/ini/ReplaceContent.h"
#include "settings/Paths.h"

namespace tessera {
namespace {

constexpr std::wstring_view CommandListName = L"Totalcmd.inc";
constexpr std::wstring_view UserKey = L"HKEY_CURRENT_USER\\Software\\Ghisler\\Total Commander";
constexpr std::wstring_view MachineKey = L"HKEY_LOCAL_MACHINE\\Software\\Ghisler\\Total Commander";

/// The file that a registered settings path means.
std::wstring ResolveRegisteredIni(const Environment& environment, std::wstring_view registered,
                                  std::wstring_view totalCommanderDirectory) {
  std::wstring path = ExpandPath(environment, registered);
  if (path.starts_with(L".\\")) {
    return ExpandPath(environment, totalCommanderDirectory) + path.substr(2);
  }
  if (path.size() >= 3 && path.compare(1, 2, L":\\") == 0) return path;
  return AddBackslash(environment.Variable(L"windir")) + path;
}

}  // namespace

std::wstring LocateTotalcmdInc(const LocateSources& sources, std::wstring& totalCommanderDirectory,
                               const AskForMissingFile& ask) {
  // True, and the directory taken over, when the command list is in it.
  const auto isIn = [&](std::wstring_view directory) {
    const std::wstring candidate = AddBackslash(directory);
    if (!FileExists(sources.Files, candidate + std::wstring(CommandListName), false)) return false;
    totalCommanderDirectory = candidate;
    return true;
  };
  if (isIn(sources.Environment.Variable(L"Commander_Path"))) {
    return totalCommanderDirectory + std::wstring(CommandListName);
  }
  const cRegistry registry(sources.Registry);
  for (const std::wstring_view key : {UserKey, MachineKey}) {
    const std::wstring directory =
        ExpandPath(sources.Environment, registry.ReadValue(key, L"InstallDir"));
    if (!IsMissing(directory) && isIn(directory)) {
      return totalCommanderDirectory + std::wstring(CommandListName);
    }
  }

  const std::wstring candidate =
      ExpandPath(sources.Environment, totalCommanderDirectory + std::wstring(CommandListName));
  if (FileExists(sources.Files, candidate, false)) return candidate;

  const std::wstring chosen = ask(L"");
  if (!IsMissing(chosen)) totalCommanderDirectory = AddBackslash(DirectoryOf(chosen));
  return chosen;
}

std::wstring LocateWincmdIni(const LocateSources& sources,
                             const std::wstring& totalCommanderDirectory,
                             std::wstring& userDefinedWincmd, const AskForMissingFile& ask) {
  const cRegistry registry(sources.Registry);
  const std::wstring ofUser = registry.ReadValue(UserKey, L"IniFileName");
  const std::wstring ofMachine = registry.ReadValue(MachineKey, L"IniFileName");
  const std::wstring& registered = IsMissing(ofUser) ? ofMachine : ofUser;
  if (!IsMissing(registered)) {
    std::wstring path =
        ResolveRegisteredIni(sources.Environment, registered, totalCommanderDirectory);
    if (ExistsOrReturns(sources.Files, path)) return path;
  }

  std::wstring candidate = ExpandPath(sources.Environment, userDefinedWincmd);
  if (ExistsOrReturns(sources.Files, candidate)) return candidate;

  userDefinedWincmd = ask(ExpandPath(sources.Environment, totalCommanderDirectory));
  return ExpandPath(sources.Environment, userDefinedWincmd);
}

}  // namespace tessera
