// Sizes are converted with the resolution of the primary screen.
#include "platform/win32/WindowsEnvironment.h"

#include <windows.h>

#include "platform/CommandLine.h"
#include "platform/win32/SystemText.h"

namespace tessera {
namespace {

constexpr int TwipsPerInch = 1440;
constexpr std::size_t RootLength = 3;  // "C:\"

}  // namespace

std::wstring WindowsEnvironment::Variable(const std::wstring& name) const {
  return SystemText([&name](wchar_t* buffer, DWORD size) {
    return GetEnvironmentVariableW(name.c_str(), buffer, size);
  });
}

std::wstring WindowsEnvironment::ProgramDirectory() const {
  std::wstring folder = FolderOfProgram(SystemText(
      [](wchar_t* buffer, DWORD size) { return GetModuleFileNameW(nullptr, buffer, size); }));
  if (folder.size() > RootLength) folder.pop_back();
  return folder;
}

std::wstring WindowsEnvironment::TemporaryDirectory() const {
  return SystemText([](wchar_t* buffer, DWORD size) { return GetTempPathW(size, buffer); });
}

TwipsSize WindowsEnvironment::ScreenSize() const {
  const int dotsPerInch = static_cast<int>(GetDpiForSystem());
  return {MulDiv(GetSystemMetrics(SM_CXSCREEN), TwipsPerInch, dotsPerInch),
          MulDiv(GetSystemMetrics(SM_CYSCREEN), TwipsPerInch, dotsPerInch)};
}

}  // namespace tessera
