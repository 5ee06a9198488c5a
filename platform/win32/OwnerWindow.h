// The window that message boxes and dialogs belong to.
#pragma once

#include <windows.h>

namespace tessera {

class OwnerWindow {
 public:
  /// The program's active window, or its main window while another program is active; null before
  /// there is one.
  [[nodiscard]] HWND Current() const {
    const HWND active = GetActiveWindow();
    return active != nullptr ? active : main_;
  }

  void SetMain(HWND window) { main_ = window; }

 private:
  HWND main_ = nullptr;
};

}  // namespace tessera
