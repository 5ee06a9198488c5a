// The program's own dialogs.
#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>
#include <string>

#include "tests/e2e/RemoteMemory.h"
#include "tests/e2e/Window.h"

namespace tessera::e2e {

/// Waits until a process shows a window of that class that takes input.
[[nodiscard]] HWND WaitForDialog(DWORD process, const std::wstring& className);

class Dialog : public Window {
 public:
  /// `process` is that of the window and must stay open as long as this object lives.
  Dialog(HWND window, HANDLE process);

  /// Clicks a control that closes the dialog, and waits until it is out of sight.
  void CloseBy(int id);

  /// Presses a key that does.
  void CloseByKey(WORD key);

  /// Clicks the close button of its caption.
  void CloseByCaption();

  void WaitUntilClosed() const;

  // -- Tabs

  [[nodiscard]] std::wstring TabText(int tabs, int tab) const;
  [[nodiscard]] int ChosenTab(int tabs) const;
  void ClickTab(int tabs, int tab);

 private:
  static constexpr std::size_t MemoryBytes = 4096;

  std::unique_ptr<RemoteMemory> memory_;  ///< of the program
};

}  // namespace tessera::e2e
