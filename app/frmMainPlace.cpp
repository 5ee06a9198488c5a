// The main window itself: how it is made, its icon, and where it stands.
#include <utility>
#include <vector>

#include "app/frmMain.h"
#include "platform/win32/Icons.h"
#include "resources/icons.h"

namespace tessera {
namespace {

constexpr wchar_t WindowClass[] = L"frmMain";

/// Goes with a drop of files; the headers do not name it.
constexpr UINT CopyGlobalData = 0x0049;

}  // namespace

bool frmMain::Create() {
  RegisterWindowClass(WindowClass, WindowProcedure);
  const DWORD direction = editor_.Language().RightToLeft() ? WS_EX_LAYOUTRTL : 0;
  CreateWindowExW(WS_EX_CONTROLPARENT | WS_EX_ACCEPTFILES | direction, WindowClass,
                  editor_.Document().Caption().c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                  CW_USEDEFAULT, CW_USEDEFAULT, 0, 0, nullptr, nullptr, GetModuleHandleW(nullptr),
                  this);
  if (window_ == nullptr) return false;
  dpi_ = static_cast<int>(GetDpiForWindow(window_));
  // A program of lower rights, as the desktop is for an elevated window, may drop files too.
  for (const UINT message : {UINT{WM_DROPFILES}, UINT{WM_COPYDATA}, CopyGlobalData}) {
    ChangeWindowMessageFilterEx(window_, message, MSGFLT_ALLOW, nullptr);
  }
  return true;
}

void frmMain::ApplyDpi() {
  const auto showIcon = [this](WPARAM kind, int metric, Unique<HICON>& shown) {
    const int size = GetSystemMetricsForDpi(metric, static_cast<UINT>(dpi_));
    Unique<HICON> icon = LoadIconOfSize(IDI_TESSERA, size);
    SendMessageW(window_, WM_SETICON, kind, reinterpret_cast<LPARAM>(icon.get()));
    shown = std::move(icon);
  };
  showIcon(ICON_BIG, SM_CXICON, icon_);
  showIcon(ICON_SMALL, SM_CXSMICON, smallIcon_);
  views_.ApplyDpi(dpi_);
}

void frmMain::ApplyPlacement() {
  const Settings& settings = editor_.Options();
  if (settings.MainWindowMaxmized == 1) {
    const Area restored = RestoredSize(dpi_);
    SetWindowPos(window_, nullptr, 0, 0, restored.Width, restored.Height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return;
  }
  // Moving to another screen may change the resolution, and with it what the twips stand for.
  int dpi = 0;
  for (int attempt = 0; attempt < 2 && dpi != dpi_; ++attempt) {
    dpi = dpi_;
    const SIZE smallest = views_.SmallestSize();
    const std::vector<Screen> screens = Screens(dpi_);
    Place(window_, StoredPlace(settings, {.SmallestWidth = smallest.cx,
                                          .SmallestHeight = smallest.cy,
                                          .Screens = screens,
                                          .Dpi = dpi_}));
  }
  placed_ = WindowArea(window_);
}

WindowPlacement frmMain::CurrentPlacement() const {
  return PlacementToStore({.Place = WindowArea(window_),
                           .Minimised = IsIconic(window_) != FALSE,
                           .Maximised = IsZoomed(window_) != FALSE,
                           .Dpi = dpi_},
                          placed_, editor_.Options());
}

}  // namespace tessera
