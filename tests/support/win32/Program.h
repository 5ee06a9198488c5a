// The program under test, as a process of its own.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/win32/Handle.h"

namespace tessera::e2e {

/// Top-level windows of a process that can be seen, with that class.
[[nodiscard]] std::vector<HWND> VisibleWindows(DWORD process, const std::wstring& className);

class Program {
 public:
  /// Starts `executable` in its own folder with `commanderPath` as the environment variable
  /// `Commander_Path`; without it the variable is not set. `argument` is all that follows the
  /// program's name on the command line, `showCommand` how its window is to be shown.
  Program(const std::wstring& executable, const std::optional<std::wstring>& commanderPath,
          const std::wstring& argument = {}, WORD showCommand = SW_SHOWNORMAL);

  /// Ends the process, if a test left it running.
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  [[nodiscard]] DWORD Id() const;
  [[nodiscard]] HANDLE Process() const;
  [[nodiscard]] bool Running() const;

  /// Waits for the main window to be shown.
  [[nodiscard]] HWND WaitForWindow() const;

  /// Waits for the process to end, and gives its exit code.
  DWORD WaitForEnd() const;

 private:
  UniqueHandle process_;
  DWORD id_ = 0;
};

}  // namespace tessera::e2e
