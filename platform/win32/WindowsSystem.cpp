// Puts the seams together.
#include "platform/win32/WindowsSystem.h"

#include <utility>

namespace tessera {

WindowsSystem::WindowsSystem()
    : messageBoxes_(owner_), dialogs_(owner_), programs_(owner_), clipboard_(owner_) {}

System WindowsSystem::Seams() {
  return {files_, registry_, environment_, messageBoxes_, dialogs_, programs_, clock_, clipboard_};
}

void WindowsSystem::SetMainWindow(HWND window, std::function<void()> beforeModal) {
  owner_.SetMain(window, std::move(beforeModal));
}

void WindowsSystem::SetMessageFilter(MessageFilter filter) {
  clock_.SetMessageFilter(std::move(filter));
}

}  // namespace tessera
