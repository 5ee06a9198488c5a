// The window is found by its class among those of the thread.
#include "platform/win32/TellFailure.h"

#include <windows.h>

#include <array>
#include <string_view>

#include "platform/win32/Guarded.h"

namespace tessera {
namespace {

BOOL CALLBACK FindMainWindow(HWND window, LPARAM found) {
  std::array<wchar_t, 16> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  if (std::wstring_view(name.data()) != MainWindowClass) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

}  // namespace

bool TellFailure() {
  HWND window = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), FindMainWindow, reinterpret_cast<LPARAM>(&window));
  if (window == nullptr) return false;
  SendMessageW(window, FailureMessage, 0, 0);
  return true;
}

}  // namespace tessera
