// The program's entry: makes the main window and runs the message loop.
#include <windows.h>
#include <commctrl.h>
#include <objbase.h>
#include <shellapi.h>

#include <memory>
#include <string>

#include "app/frmMain.h"

namespace {

/// The system's file dialogs use components that need this.
class ComponentsOfThread {
 public:
  ComponentsOfThread() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~ComponentsOfThread() {
    if (SUCCEEDED(result_)) {
      CoUninitialize();
    }
  }
  ComponentsOfThread(const ComponentsOfThread&) = delete;
  ComponentsOfThread& operator=(const ComponentsOfThread&) = delete;

 private:
  HRESULT result_;
};

/// The first argument of the command line as a full path; empty without one.
std::wstring FileToOpen() {
  int count = 0;
  const std::unique_ptr<wchar_t*, decltype(&LocalFree)> arguments(
      CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
  if (arguments == nullptr || count < 2 || *arguments.get()[1] == L'\0') {
    return {};
  }
  const wchar_t* const argument = arguments.get()[1];
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
                    int showCommand) {
  const ComponentsOfThread components;
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES |
                                                           ICC_PROGRESS_CLASS | ICC_TAB_CLASSES |
                                                           ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&controls);
  tessera::WindowsSystem windowsSystem;
  tessera::frmMain window(windowsSystem);
  if (!window.Form_Load(FileToOpen())) {
    return 1;
  }
  window.Show(showCommand);
  return RunMessageLoop(window);
}
