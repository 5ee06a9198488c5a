// The one Windows implementation of every seam, owned together.
#pragma once

#include <functional>

#include "platform/System.h"
#include "platform/win32/OwnerWindow.h"
#include "platform/win32/WindowsClipboard.h"
#include "platform/win32/WindowsClock.h"
#include "platform/win32/WindowsDialogs.h"
#include "platform/win32/WindowsEnvironment.h"
#include "platform/win32/WindowsFiles.h"
#include "platform/win32/WindowsMessageBoxes.h"
#include "platform/win32/WindowsPrograms.h"
#include "platform/win32/WindowsRegistry.h"

namespace tessera {

class WindowsSystem {
 public:
  WindowsSystem();
  WindowsSystem(const WindowsSystem&) = delete;
  WindowsSystem& operator=(const WindowsSystem&) = delete;

  /// The seams; they live as long as this object.
  [[nodiscard]] System Seams();

  /// Message boxes and dialogs belong to this window, and `beforeModal` is called before each
  /// opens.
  void SetMainWindow(HWND window, std::function<void()> beforeModal);

  /// What looks at messages first while pending events are handled.
  void SetMessageFilter(MessageFilter filter);

 private:
  OwnerWindow owner_;
  WindowsFiles files_;
  WindowsRegistry registry_;
  WindowsEnvironment environment_;
  WindowsMessageBoxes messageBoxes_;
  WindowsDialogs dialogs_;
  WindowsPrograms programs_;
  WindowsClock clock_;
  WindowsClipboard clipboard_;
};

}  // namespace tessera
