// Sizes are converted with the resolution of the primary screen.
#include "platform/win32/WindowsEnvironment.h"

#include <windows.h>

namespace tessera {
namespace {

constexpr int TwipsPerInch = 1440;
constexpr std::size_t RootLength = 3;  // "C:\"

}  // namespace

std::wstring WindowsEnvironment::Variable(const std::wstring& name) const {
  std::wstring value;
  DWORD needed = GetEnvironmentVariableW(name.c_str(), nullptr, 0);
  // The needed size counts the terminator, the size of a value that was stored does not.
  while (needed > value.size()) {
    value.resize(needed);
    needed = GetEnvironmentVariableW(name.c_str(), value.data(), static_cast<DWORD>(value.size()));
  }
  value.resize(needed);
  return value;
}

std::wstring WindowsEnvironment::ProgramDirectory() const {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  while (length == path.size()) {
    path.resize(path.size() * 2);
    length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  }
  path.resize(length);
  const std::size_t end = path.rfind(L'\\');
  if (end == std::wstring::npos) return {};
  return path.substr(0, end < RootLength ? end + 1 : end);
}

std::wstring WindowsEnvironment::TemporaryDirectory() const {
  std::wstring path(MAX_PATH + 1, L'\0');  // the system gives no longer one
  path.resize(GetTempPathW(static_cast<DWORD>(path.size()), path.data()));
  return path;
}

TwipsSize WindowsEnvironment::ScreenSize() const {
  const int dotsPerInch = static_cast<int>(GetDpiForSystem());
  return {MulDiv(GetSystemMetrics(SM_CXSCREEN), TwipsPerInch, dotsPerInch),
          MulDiv(GetSystemMetrics(SM_CYSCREEN), TwipsPerInch, dotsPerInch)};
}

}  // namespace tessera
