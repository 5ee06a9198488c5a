// Installations of Total Commander, as the texts of their files.
#pragma once

#include <cstddef>
#include <string>

namespace tessera {

const std::wstring VantorFile = L"C:\\Tessera\\vantor.ini";
const std::wstring DataFile = L"C:\\Tessera\\Data Files\\tc default hotkeys.hky";
const std::wstring IncFile = L"C:\\TC\\Totalcmd.inc";
const std::wstring IniFile = L"C:\\TC\\Wincmd.ini";

/// The texts of the files above, but for the settings.
struct Installation {
  std::string Commands, DefaultKeys, Ini;
};

/// Positions in the list of the small installation, in file order.
namespace installation {

inline constexpr std::size_t Heading = 0;
inline constexpr std::size_t Copy = 1;
inline constexpr std::size_t View = 2;
inline constexpr std::size_t Pack = 4;

}  // namespace installation

/// Three commands below two headings, no current keys.
[[nodiscard]] Installation SmallInstallation();

/// Every fifth command has a default key, every tenth a current one.
[[nodiscard]] Installation LargeInstallation(int commands);

}  // namespace tessera
