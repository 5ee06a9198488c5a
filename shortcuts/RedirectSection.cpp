// Resolves the line "RedirectSection".
#include "shortcuts/RedirectSection.h"

#include <algorithm>
#include <vector>

#include "settings/Paths.h"
#include "text/Trim.h"

namespace tessera {
namespace {

bool HasDrive(std::wstring_view path) { return path.size() > 1 && path[1] == L':'; }

std::wstring MadeAbsolute(const std::wstring& path, const std::wstring& folder) {
  if (HasDrive(path) || path.starts_with(L"\\\\")) return path;
  if (!path.starts_with(L'\\')) return folder.empty() ? path : AddBackslash(folder) + path;
  return HasDrive(folder) ? folder.substr(0, 2) + path : path;
}

/// Without the segments "." and "..", so that one file has one path however it is written.
std::wstring WithoutDots(std::wstring_view path) {
  const std::size_t root = path.starts_with(L"\\\\") ? 2 : 0;
  std::vector<std::wstring_view> segments;
  for (std::wstring_view rest = path.substr(root); !rest.empty();) {
    const std::size_t end = std::min(rest.find(L'\\'), rest.size());
    const std::wstring_view segment = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (segment == L"..") {
      if (segments.size() > 1) segments.pop_back();
    } else if (segment != L"." && (!segment.empty() || segments.empty())) {
      segments.push_back(segment);
    }
  }
  std::wstring result(path.substr(0, root));
  for (const std::wstring_view segment : segments) {
    if (segment.data() != segments.front().data()) result += L'\\';
    result += segment;
  }
  return result;
}

}  // namespace

std::wstring PathOfSection(const ProfileFile& wincmdIni, std::wstring_view section,
                           const Environment& environment) {
  std::wstring target(TrimSpaces(wincmdIni.ReadString(section, RedirectSectionKey, L"0")));
  if (target == L"1") {
    target = TrimSpaces(wincmdIni.ReadString(L"Configuration", L"AlternateUserIni", L""));
  }
  if (target.empty() || target == L"0") return wincmdIni.Path();
  std::replace(target.begin(), target.end(), L'/', L'\\');
  return WithoutDots(MadeAbsolute(ExpandPath(environment, target), DirectoryOf(wincmdIni.Path())));
}

}  // namespace tessera
