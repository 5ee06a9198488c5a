// The program's entry: makes the main window and runs the message loop.
#include <windows.h>
#include <commctrl.h>

#include <array>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>

#include "app/frmMain.h"
#include "localisation/TextTable.h"
#include "platform/MessageBoxes.h"
#include "platform/win32/Guarded.h"

namespace {

/// The first argument of the command line as a full path; empty without one. The run-time library
/// has split the line: the system's function for that is in shell32, which the start does without.
std::wstring FileToOpen() {
  if (__argc < 2 || *__wargv[1] == L'\0') return {};
  const wchar_t* const argument = __wargv[1];
  std::wstring path(GetFullPathNameW(argument, 0, nullptr, nullptr), L'\0');
  path.resize(GetFullPathNameW(argument, static_cast<DWORD>(path.size()), path.data(), nullptr));
  return path;
}

BOOL CALLBACK FindMainWindow(HWND window, LPARAM found) {
  std::array<wchar_t, 16> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  if (std::wstring_view(name.data()) != L"frmMain") return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

/// After an exception that nothing could catch the window does what it does after one that a window
/// procedure caught. Then it is all over: this must not return.
[[noreturn]] void OnTerminate() {
  HWND window = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), FindMainWindow, reinterpret_cast<LPARAM>(&window));
  if (window != nullptr) {
    SendMessageW(window, tessera::FailureMessage, 0, 0);
  } else {
    MessageBoxW(nullptr, tessera::BuiltInTextOf(tessera::TextId::MustEndNothingKept).data(),
                tessera::ProgramTitle, MB_ICONERROR);
  }
  std::_Exit(EXIT_FAILURE);
}

int RunMessageLoop(tessera::frmMain& window) {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (!window.FilterMessage(message)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  return static_cast<int>(message.wParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, wchar_t* /*commandLine*/,
                    int nShowCmd) {
  std::set_terminate(OnTerminate);
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES |
                                                           ICC_PROGRESS_CLASS | ICC_TAB_CLASSES |
                                                           ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&controls);
  tessera::WindowsSystem windowsSystem;
  tessera::frmMain window(windowsSystem);
  if (!window.Form_Load(FileToOpen())) return 1;
  window.Show(nShowCmd);
  return RunMessageLoop(window);
}
