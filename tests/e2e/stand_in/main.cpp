// Stands in for Total Commander: a window of its class that notes in "stand-in.log" beside the
// executable when it starts, with which command line, and when it is asked to close; at both times
// it keeps a copy of the settings file as it then is.
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr DWORD BetweenLooks = 10;  // milliseconds
constexpr int MostLooks = 3000;

std::filesystem::path Folder() {
  wchar_t path[MAX_PATH]{};
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return std::filesystem::path(path).parent_path();
}

void Note(const std::string& line) {
  std::ofstream(Folder() / "stand-in.log", std::ios::app | std::ios::binary) << line << "\n";
}

void KeepSettings(const char* copy) {
  const std::filesystem::path settings = Folder() / "Wincmd.ini";
  CopyFileW(settings.c_str(), (Folder() / copy).c_str(), FALSE);
}

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_CLOSE:
      KeepSettings("at-close.ini");
      Note("close");
      // As one that has much to do before it ends: as long as a test leaves this file there.
      for (int look = 0; look < MostLooks && std::filesystem::exists(Folder() / "slow"); ++look) {
        Sleep(BetweenLooks);
      }
      DestroyWindow(window);
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, first, second);
  }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
  KeepSettings("at-start.ini");
  Note("start " + std::filesystem::path(GetCommandLineW()).string());
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = WindowProcedure;
  windowClass.hInstance = instance;
  windowClass.lpszClassName = L"TTOTAL_CMD";
  windowClass.hbrBackground = GetSysColorBrush(COLOR_APPWORKSPACE);
  RegisterClassW(&windowClass);
  const HWND window = CreateWindowW(windowClass.lpszClassName, L"Stand-in", WS_OVERLAPPEDWINDOW,
                                    700, 600, 300, 200, nullptr, nullptr, instance, nullptr);
  ShowWindow(window, show);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
