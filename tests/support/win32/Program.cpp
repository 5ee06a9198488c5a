// The variable is set for the child alone, so that tests do not hand it to one another.
#include "tests/support/win32/Program.h"

#include <array>
#include <stdexcept>

#include "tests/support/win32/Wait.h"

namespace tessera::e2e {
namespace {

constexpr std::wstring_view CommanderVariable = L"Commander_Path=";

bool IsCommanderVariable(std::wstring_view line) {
  return line.size() >= CommanderVariable.size() &&
         CompareStringOrdinal(line.data(), static_cast<int>(CommanderVariable.size()),
                              CommanderVariable.data(), static_cast<int>(CommanderVariable.size()),
                              TRUE) == CSTR_EQUAL;
}

/// This process's environment with another `Commander_Path`, as CreateProcess takes it.
std::wstring Environment(const std::optional<std::wstring>& commanderPath) {
  std::wstring block;
  const auto add = [&block](std::wstring_view line) { (block += line) += L'\0'; };
  wchar_t* const strings = GetEnvironmentStringsW();
  for (const wchar_t* line = strings; *line != L'\0'; line += std::wstring_view(line).size() + 1) {
    if (!IsCommanderVariable(line)) add(line);
  }
  FreeEnvironmentStringsW(strings);
  if (commanderPath) add(std::wstring(CommanderVariable) + *commanderPath);
  return block + L'\0';
}

struct WindowSearch {
  DWORD Process;
  const std::wstring& ClassName;
  std::vector<HWND> Found{};
};

BOOL CALLBACK CollectWindow(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<WindowSearch*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  std::array<wchar_t, 64> className{};
  GetClassNameW(window, className.data(), className.size());
  if (process == search.Process && IsWindowVisible(window) != FALSE &&
      search.ClassName == className.data()) {
    search.Found.push_back(window);
  }
  return TRUE;
}

}  // namespace

std::vector<HWND> VisibleWindows(DWORD process, const std::wstring& className) {
  WindowSearch search{process, className};
  EnumWindows(CollectWindow, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

Program::Program(const std::wstring& executable, const std::optional<std::wstring>& commanderPath,
                 const std::wstring& argument, WORD showCommand) {
  std::wstring environment = Environment(commanderPath);
  std::wstring commandLine = L'"' + executable + L'"' + (argument.empty() ? L"" : L" " + argument);
  const std::wstring folder = executable.substr(0, executable.rfind(L'\\'));
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = showCommand;
  PROCESS_INFORMATION started{};
  const auto start = [&] {
    return CreateProcessW(executable.c_str(), commandLine.data(), nullptr, nullptr, FALSE,
                          CREATE_UNICODE_ENVIRONMENT, environment.data(), folder.c_str(), &startup,
                          &started) != FALSE;
  };
  // Under Wine the start may fail so, once, when another process has just been killed.
  if (!start() && (GetLastError() != ERROR_INTERNAL_ERROR || !start())) {
    throw std::runtime_error("The program does not start, error " + std::to_string(GetLastError()));
  }
  CloseHandle(started.hThread);
  process_ = Own(started.hProcess);
  id_ = started.dwProcessId;
}

Program::~Program() {
  if (!Running()) return;
  TerminateProcess(Process(), 1);
  WaitForSingleObject(Process(), INFINITE);
}

DWORD Program::Id() const { return id_; }

HANDLE Program::Process() const { return process_.get(); }

bool Program::Running() const { return WaitForSingleObject(Process(), 0) == WAIT_TIMEOUT; }

HWND Program::WaitForWindow() const {
  return WaitFor("the main window", [&] {
    if (!Running()) throw std::runtime_error("The program ended by itself");
    const std::vector<HWND> windows = VisibleWindows(id_, L"frmMain");
    return windows.empty() ? nullptr : windows.front();
  });
}

DWORD Program::WaitForEnd() const {
  WaitFor("the end of the program", [&] { return !Running(); });
  DWORD code = 0;
  GetExitCodeProcess(Process(), &code);
  return code;
}

}  // namespace tessera::e2e
