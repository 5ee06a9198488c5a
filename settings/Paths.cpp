// Windows paths are handled as texts, the same way on every system.
#include "settings/Paths.h"

namespace tessera {
namespace {

/// One segment of a path, with its variable's value in place of a reference.
std::wstring ExpandSegment(const Environment& environment, std::wstring_view segment) {
  const bool isReference = segment.size() > 2 && segment.front() == L'%' && segment.back() == L'%';
  if (!isReference) return std::wstring(segment);
  std::wstring value = environment.Variable(std::wstring(segment.substr(1, segment.size() - 2)));
  return value.empty() ? std::wstring(segment) : value;
}

}  // namespace

std::wstring AddBackslash(std::wstring_view path) {
  std::wstring result(path);
  if (!path.ends_with(L'\\')) result += L'\\';
  return result;
}

bool FileExists(const Files& files, const std::wstring& path, bool skipNetwork) {
  if (skipNetwork && path.starts_with(L"\\\\")) return false;
  return files.Exists(path);
}

std::wstring ExpandPath(const Environment& environment, std::wstring_view path) {
  if (path.find(L'%') == std::wstring_view::npos) return std::wstring(path);
  std::wstring result;
  for (;;) {
    const std::size_t end = path.find(L'\\');
    result += ExpandSegment(environment, path.substr(0, end));
    if (end == std::wstring_view::npos) return result;
    result += L'\\';
    path.remove_prefix(end + 1);
  }
}

std::wstring DirectoryOf(std::wstring_view path) {
  const std::size_t end = path.rfind(L'\\');
  return end == std::wstring_view::npos ? std::wstring() : std::wstring(path.substr(0, end));
}

}  // namespace tessera
