// The smallest program with a window like that of the real one: a menu bar, toolbars, a box to type
// in, an empty list, a panel and a progress bar, with the styles and the font that they have there,
// each made once and in its place. It knows no language, settings, pictures, keys or files.
#include <windows.h>
#include <commctrl.h>

namespace {

constexpr int Width = 667;
constexpr int Height = 497;
constexpr int ToolbarHeight = 30;
constexpr int ListHeight = 340;
constexpr int PanelHeight = 70;
constexpr int MostButtons = 4;

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, first, second);
}

HFONT MakeFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  return CreateFontIndirectW(&metrics.lfMessageFont);
}

HWND Add(HWND parent, const wchar_t* kind, const wchar_t* text, DWORD style, int left, int top,
         int width, int height) {
  static const HFONT font = MakeFont();
  const HWND control = CreateWindowExW(0, kind, text, WS_CHILD | WS_CLIPSIBLINGS | style, left, top,
                                       width, height, parent, nullptr, nullptr, nullptr);
  SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  return control;
}

HMENU MakeMenuBar() {
  const HMENU bar = CreateMenu();
  for (int place = 0; place < 3; ++place) {
    const HMENU menu = CreatePopupMenu();
    AppendMenuW(menu, MF_STRING, 1, L"Command");
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), L"Menu");
  }
  return bar;
}

void AddToolbar(HWND parent, int buttons, int left, int width) {
  const HWND toolbar = Add(parent, TOOLBARCLASSNAMEW, L"",
                           WS_VISIBLE | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN |
                               TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS,
                           left, 0, width, ToolbarHeight);
  SendMessageW(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  SendMessageW(toolbar, TB_SETEXTENDEDSTYLE, 0,
               TBSTYLE_EX_DRAWDDARROWS | TBSTYLE_EX_MIXEDBUTTONS | TBSTYLE_EX_DOUBLEBUFFER);
  TBBUTTON added[MostButtons]{};
  for (int button = 0; button < buttons; ++button) {
    added[button].iBitmap = I_IMAGENONE;
    added[button].idCommand = button + 1;
    added[button].fsState = TBSTATE_ENABLED;
    added[button].fsStyle = BTNS_DROPDOWN;
  }
  SendMessageW(toolbar, TB_ADDBUTTONSW, static_cast<WPARAM>(buttons),
               reinterpret_cast<LPARAM>(added));
}

void AddList(HWND window) {
  const HWND list = Add(window, WC_LISTVIEWW, L"",
                        WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS,
                        0, ToolbarHeight, Width, ListHeight);
  ListView_SetExtendedListViewStyle(list, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
  for (int column = 0; column < 4; ++column) {
    wchar_t title[] = L"Column";
    LVCOLUMNW header{};
    header.mask = LVCF_TEXT | LVCF_WIDTH;
    header.pszText = title;
    header.cx = 150;
    ListView_InsertColumn(list, column, &header);
  }
}

void AddPanel(HWND window) {
  const HWND panel =
      Add(window, WC_STATICW, L"", WS_VISIBLE, 0, ToolbarHeight + ListHeight, Width, PanelHeight);
  Add(panel, WC_STATICW, L"Text", WS_VISIBLE, 10, 10, 50, 20);
  for (int box = 0; box < 3; ++box) {
    Add(panel, WC_BUTTONW, L"Text", WS_VISIBLE | BS_AUTOCHECKBOX, 70 + 60 * box, 10, 50, 20);
  }
  Add(panel, WC_COMBOBOXW, L"", WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST, 260, 8, 150, 200);
  Add(panel, WC_BUTTONW, L"", WS_VISIBLE | BS_PUSHBUTTON, 420, 8, 20, 20);
  AddToolbar(panel, 2, 460, 100);
  Add(panel, WC_STATICW, L"Text", WS_VISIBLE | SS_NOPREFIX | SS_ENDELLIPSIS, 10, 40, 400, 20);
  for (int button = 0; button < 2; ++button) {
    Add(panel, WC_BUTTONW, L"Text", WS_VISIBLE | BS_PUSHBUTTON, 420 + 60 * button, 38, 55, 24);
  }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int show) {
  InitCommonControls();
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = WindowProcedure;
  windowClass.hInstance = instance;
  windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  windowClass.lpszClassName = L"frmMain";
  RegisterClassW(&windowClass);
  const HWND window =
      CreateWindowW(L"frmMain", L"Smallest", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                    CW_USEDEFAULT, Width, Height, nullptr, MakeMenuBar(), instance, nullptr);
  AddList(window);
  AddPanel(window);
  AddToolbar(window, 4, 0, Width);
  Add(window, WC_STATICW, L"Text", 0, 0, 0, 10, 10);
  Add(window, WC_EDITW, L"", WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, 420, 4, 155, 22);
  Add(window, PROGRESS_CLASSW, L"", 0, 0, 0, 100, 20);
  ShowWindow(window, show);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
