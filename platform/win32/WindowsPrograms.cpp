// Nothing here waits for a window or process of another program.
#include "platform/win32/WindowsPrograms.h"

#include <windows.h>
#include <shellapi.h>

#include <cstdint>
#include <utility>

#include "platform/CommandLine.h"
#include "platform/win32/Components.h"
#include "platform/win32/SystemFunction.h"
#include "platform/win32/WindowsFiles.h"

namespace tessera {
namespace {

constexpr DWORD ElevationRequired = 740;    // an error of the system; the headers do not name it
constexpr std::size_t LongestPath = 32767;  // characters, as the system counts
constexpr std::uint64_t HangsAfter = 5000;  // milliseconds, as the system counts
constexpr std::intptr_t LargestShellExecuteError = 32;  // as that function counts its results

HWND ToHandle(WindowId window) { return reinterpret_cast<HWND>(window); }

bool IsFile(const std::wstring& path) { return WindowsFiles().Exists(path); }

using Answer = std::shared_ptr<bool>;

void CALLBACK TakeAnswer(HWND /*window*/, UINT /*message*/, ULONG_PTR data, LRESULT /*result*/) {
  const std::unique_ptr<Answer> answer(reinterpret_cast<Answer*>(data));
  **answer = true;
}

/// This program's last window has gone; what still runs is to come to its end.
bool QuitIsPending() {
  MSG message{};
  return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) != FALSE;
}

/// By the shell, which lets the system ask its user for the rights that the program demands.
bool ShellOpen(HWND owner, const std::wstring& path, const wchar_t* arguments,
               const wchar_t* folder) {
  StartComponents();
  auto* const execute = SystemFunction<decltype(ShellExecuteW)>(L"shell32.dll", "ShellExecuteW");
  if (execute == nullptr) return false;
  const HINSTANCE result = execute(owner, L"open", path.c_str(), arguments, folder, SW_SHOWNORMAL);
  return reinterpret_cast<std::intptr_t>(result) > LargestShellExecuteError;
}

}  // namespace

WindowsPrograms::WindowsPrograms(const OwnerWindow& owner) : owner_(owner) {}

WindowId WindowsPrograms::FindWindowOfClass(const std::wstring& className) const {
  return reinterpret_cast<WindowId>(FindWindowW(className.c_str(), nullptr));
}

std::wstring WindowsPrograms::PathOf(WindowId window) const {
  DWORD id = 0;
  GetWindowThreadProcessId(ToHandle(window), &id);
  const auto process = Own(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
  std::wstring path(LongestPath, L'\0');
  auto length = static_cast<DWORD>(path.size());
  if (QueryFullProcessImageNameW(process.get(), 0, path.data(), &length) == FALSE) return {};
  path.resize(length);
  return path;
}

void WindowsPrograms::SetForeground(WindowId window) { SetForegroundWindow(ToHandle(window)); }

bool WindowsPrograms::SendClose(WindowId window) {
  static constexpr WORD Zero = 0;  // the window may look at it when nobody waits any more
  asked_ = ToHandle(window);
  askedAt_ = GetTickCount64();
  DWORD process = 0;
  GetWindowThreadProcessId(asked_, &process);
  askedProcess_ = Own(OpenProcess(SYNCHRONIZE, FALSE, process));
  answered_ = std::make_shared<bool>(false);
  auto answer = std::make_unique<Answer>(answered_);
  const bool sent =
      SendMessageCallbackW(asked_, WM_CLOSE, 0, reinterpret_cast<LPARAM>(&Zero), TakeAnswer,
                           reinterpret_cast<ULONG_PTR>(answer.get())) != FALSE;
  const bool forbidden = !sent && GetLastError() == ERROR_ACCESS_DENIED;
  if (sent) {
    static_cast<void>(answer.release());  // TakeAnswer has it now
  } else {
    *answered_ = true;
  }
  return !forbidden;
}

bool WindowsPrograms::AwaitsAnswer() const {
  if (*answered_ || QuitIsPending()) return false;
  const bool mayHang = GetTickCount64() - askedAt_ > HangsAfter;
  if (mayHang && IsHungAppWindow(asked_) != FALSE) return false;
  // A program may have work to do after its window has gone.
  return askedProcess_ ? WaitForSingleObject(askedProcess_.get(), 0) == WAIT_TIMEOUT
                       : IsWindow(asked_) != FALSE;
}

bool WindowsPrograms::Start(const std::wstring& commandLine) {
  const auto call = SplitCommandLine(commandLine, IsFile);
  if (!call) return false;
  // Quoted, so that a folder with a blank in its name can lead to no other program.
  std::wstring toRun = L'"' + call->Program + L'"' + call->Arguments;
  const std::wstring folder = FolderOfProgram(call->Program);
  const wchar_t* const startIn = folder.empty() ? nullptr : folder.c_str();
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(call->Program.c_str(), toRun.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     startIn, &startup, &process) == FALSE) {
    return GetLastError() == ElevationRequired &&
           ShellOpen(owner_.Current(), call->Program, call->Arguments.c_str(), startIn);
  }
  const UniqueHandle ownedProcess = Own(process.hProcess);
  const UniqueHandle ownedThread = Own(process.hThread);
  return true;
}

bool WindowsPrograms::OpenDocument(const std::wstring& path) {
  return ShellOpen(owner_.Current(), path, nullptr, nullptr);
}

}  // namespace tessera
