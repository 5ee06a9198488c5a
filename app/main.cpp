// The program's entry: makes the main window and runs the message loop.
#include <windows.h>
#include <commctrl.h>

#include <cstdlib>
#include <string>

#include "app/frmMain.h"

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
