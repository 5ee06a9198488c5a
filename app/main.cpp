// The program's entry: makes the main window and runs the message loop, or writes the page of keys.
#include <windows.h>
#include <commctrl.h>

#include <cstdlib>
#include <exception>
#include <span>
#include <string>

#include "app/Arguments.h"
#include "app/frmMain.h"
#include "app/PageRun.h"
#include "localisation/TextTable.h"
#include "platform/MessageBoxes.h"
#include "platform/win32/StandardError.h"
#include "platform/win32/SystemText.h"
#include "platform/win32/TellFailure.h"
#include "platform/win32/WindowsSystem.h"

namespace {

std::wstring FullPath(const std::wstring& argument) {
  return tessera::SystemText([&argument](wchar_t* buffer, DWORD size) {
    return GetFullPathNameW(argument.c_str(), size, buffer, nullptr);
  });
}

/// With full paths. The run-time library has split the line: the system's function for that is in
/// shell32, which the start does without.
tessera::Arguments ArgumentsOfThisRun() {
  const std::span all(__wargv, static_cast<std::size_t>(__argc));
  tessera::Arguments arguments = tessera::ReadArguments(all.subspan(all.empty() ? 0 : 1));
  arguments.File = FullPath(arguments.File);
  if (arguments.Page) arguments.Page = FullPath(*arguments.Page);
  return arguments;
}

/// Gives the program's exit code. Nobody may be there to close a box: an exception is told as other
/// failures are.
int RunForPage(const tessera::Arguments& arguments) {
  std::wstring failure;
  try {
    tessera::WindowsSystem windowsSystem;
    failure = tessera::WriteKeysPage(windowsSystem.Seams(), arguments);
  } catch (...) {
    failure = tessera::BuiltInTextOf(tessera::TextId::MustEndNothingKept);
  }
  if (failure.empty()) return EXIT_SUCCESS;
  tessera::WriteErrorLine(failure);
  return EXIT_FAILURE;
}

/// After an exception that nothing could catch the window does what it does after one that a window
/// procedure caught. Then it is all over: this must not return.
[[noreturn]] void OnTerminate() {
  if (!tessera::TellFailure()) {
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
  const tessera::Arguments arguments = ArgumentsOfThisRun();
  if (arguments.Page) return RunForPage(arguments);
  std::set_terminate(OnTerminate);
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES |
                                                           ICC_PROGRESS_CLASS | ICC_TAB_CLASSES |
                                                           ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&controls);
  tessera::WindowsSystem windowsSystem;
  tessera::frmMain window(windowsSystem);
  if (!window.Form_Load(arguments.File)) return 1;
  window.Show(nShowCmd);
  return RunMessageLoop(window);
}
