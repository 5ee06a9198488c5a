// Nothing here waits without a limit for a window or process of another program.
#include "platform/win32/WindowsPrograms.h"

#include <windows.h>
#include <shellapi.h>

#include <cstdint>
#include <string_view>

#include "platform/win32/Components.h"
#include "platform/win32/Handle.h"
#include "platform/win32/SystemFunction.h"

namespace tessera {
namespace {

// Milliseconds. A program that is closing may be asking its user something meanwhile.
constexpr UINT CloseTimeout = 600000;
constexpr std::intptr_t LargestShellExecuteError = 32;  // as that function counts its results

HWND ToHandle(WindowId window) { return reinterpret_cast<HWND>(window); }

bool IsFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

/// The executable that an unquoted command line names: the text before its first blank, or before a
/// later one, that is an existing file; empty when there is none.
std::wstring UnquotedExecutable(const std::wstring& commandLine) {
  if (commandLine.starts_with(L'"')) return {};
  std::size_t end = 0;
  while (end != std::wstring::npos) {
    end = commandLine.find(L' ', end + 1);
    std::wstring candidate = commandLine.substr(0, end);
    if (IsFile(candidate)) return candidate;
  }
  return {};
}

}  // namespace

WindowsPrograms::WindowsPrograms(const OwnerWindow& owner) : owner_(owner) {}

WindowId WindowsPrograms::FindWindowOfClass(const std::wstring& className) const {
  return reinterpret_cast<WindowId>(FindWindowW(className.c_str(), nullptr));
}

void WindowsPrograms::SetForeground(WindowId window) { SetForegroundWindow(ToHandle(window)); }

void WindowsPrograms::SendClose(WindowId window) {
  const WORD zero = 0;
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(ToHandle(window), WM_CLOSE, 0, reinterpret_cast<LPARAM>(&zero),
                      SMTO_NORMAL | SMTO_ABORTIFHUNG, CloseTimeout, &answer);
}

bool WindowsPrograms::Start(const std::wstring& commandLine) {
  // Quoted, so that a folder with a blank in its name can lead to no other program.
  const std::wstring executable = UnquotedExecutable(commandLine);
  std::wstring toRun = executable.empty()
                           ? commandLine
                           : L'"' + executable + L'"' + commandLine.substr(executable.size());
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(executable.empty() ? nullptr : executable.c_str(), toRun.data(), nullptr,
                     nullptr, FALSE, 0, nullptr, nullptr, &startup, &process) == FALSE)
    return false;
  const UniqueHandle ownedProcess = Own(process.hProcess);
  const UniqueHandle ownedThread = Own(process.hThread);
  return true;
}

bool WindowsPrograms::OpenDocument(const std::wstring& path) {
  StartComponents();
  auto* const execute = SystemFunction<decltype(ShellExecuteW)>(L"shell32.dll", "ShellExecuteW");
  if (execute == nullptr) return false;
  const HINSTANCE result =
      execute(owner_.Current(), L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<std::intptr_t>(result) > LargestShellExecuteError;
}

}  // namespace tessera
