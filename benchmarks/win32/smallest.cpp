// The smallest program with a window like that of the real one: an empty list with four columns. No
// program of this kind starts quicker or needs less memory.
#include <windows.h>
#include <commctrl.h>

namespace {

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_SIZE:
      MoveWindow(GetTopWindow(window), 0, 0, LOWORD(second), HIWORD(second), TRUE);
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, first, second);
  }
}

void MakeList(HWND window) {
  const HWND list =
      CreateWindowExW(0, WC_LISTVIEWW, nullptr, WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA,
                      0, 0, 0, 0, window, nullptr, nullptr, nullptr);
  for (int column = 0; column < 4; ++column) {
    wchar_t title[] = L"Column";
    LVCOLUMNW header{};
    header.mask = LVCF_TEXT | LVCF_WIDTH;
    header.pszText = title;
    header.cx = 150;
    ListView_InsertColumn(list, column, &header);
  }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int show) {
  InitCommonControls();
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = WindowProcedure;
  windowClass.hInstance = instance;
  windowClass.lpszClassName = L"frmMain";
  RegisterClassW(&windowClass);
  const HWND window = CreateWindowW(L"frmMain", L"Smallest", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                                    CW_USEDEFAULT, 800, 600, nullptr, nullptr, instance, nullptr);
  MakeList(window);
  ShowWindow(window, show);
  UpdateWindow(window);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
