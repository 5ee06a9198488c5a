// The line "RedirectSection" of "Wincmd.ini", which puts a section into another file.
#pragma once

#include <string>
#include <string_view>

#include "platform/Environment.h"
#include "settings/ini/ProfileFile.h"

namespace tessera {

inline constexpr std::wstring_view RedirectSectionKey = L"RedirectSection";

/// The path of the file that holds the section: that of `wincmdIni` itself, or the one that the
/// section's redirecting line names. "0" and nothing stand for no other file, "1" for the file
/// named by AlternateUserIni of section "Configuration"; environment references are expanded, and
/// what is not absolute is relative to the folder of `wincmdIni`.
[[nodiscard]] std::wstring PathOfSection(const ProfileFile& wincmdIni, std::wstring_view section,
                                         const Environment& environment);

}  // namespace tessera
