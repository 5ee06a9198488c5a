// The events of the main window, from its making to its end.
#include "app/frmMain.h"

#include <utility>

#include "platform/win32/DroppedFile.h"
#include "platform/win32/Guarded.h"
#include "platform/win32/Icons.h"
#include "platform/win32/InputMethod.h"
#include "platform/win32/TellFailure.h"
#include "resources/icons.h"

namespace tessera {
namespace {

/// Posted at an activation, so that the window stands on the screen before files are loaded.
constexpr UINT ActivationMessage = WM_APP;

/// Goes with a drop of files; the headers do not name it.
constexpr UINT CopyGlobalData = 0x0049;

}  // namespace

frmMain::frmMain(WindowsSystem& windowsSystem)
    : windowsSystem_(windowsSystem),
      editor_(windowsSystem.Seams(),
              [this](const LoadProgress& progress) { views_.Show(progress); }),
      commands_(editor_, views_, work_, windowsSystem.Seams().Clock),
      work_(editor_, views_),
      views_(editor_, work_.FindEvents(), work_.ListEvents(), work_.PanelEvents(),
             work_.KeysListEvents()),
      popupMenus_(editor_, views_, work_),
      keyboard_(editor_, views_, work_, commands_, popupMenus_),
      ending_(editor_, views_, windowsSystem.Seams().MessageBoxes) {
  windowsSystem_.SetMessageFilter([this](MSG& message) { return FilterMessage(message); });
}

frmMain::~frmMain() { windowsSystem_.SetMessageFilter(nullptr); }

bool frmMain::Form_Load(std::wstring fileToOpen) {
  editor_.Load(std::move(fileToOpen));
  Create();
  if (window_ == nullptr) return false;
  AcceptDrops();
  windowsSystem_.SetMainWindow(window_, [this] { work_.HideKeysList(); });
  views_.Create(window_, static_cast<int>(GetDpiForWindow(window_)));
  TurnOffInputMethod(window_);
  views_.ApplyLanguage();
  ApplyDpi(views_.Dpi());
  views_.ApplyDisplaySettings();
  views_.List().SetUpColumns();
  placement_.Apply(views_, editor_.Options());
  views_.Sync();
  return true;
}

void frmMain::Create() {
  RegisterWindowClass(MainWindowClass, WindowProcedure);
  const DWORD direction = editor_.Language().RightToLeft() ? WS_EX_LAYOUTRTL : 0;
  CreateWindowExW(WS_EX_CONTROLPARENT | WS_EX_ACCEPTFILES | direction, MainWindowClass,
                  editor_.Document().Caption().c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                  CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                  GetModuleHandleW(nullptr), this);
}

// A program of lower rights, as the desktop is for an elevated window, may drop files too.
void frmMain::AcceptDrops() {
  for (const UINT message : {UINT{WM_DROPFILES}, UINT{WM_COPYDATA}, CopyGlobalData}) {
    ChangeWindowMessageFilterEx(window_, message, MSGFLT_ALLOW, nullptr);
  }
}

void frmMain::ApplyDpi(int dpi) {
  const auto showIcon = [&](WPARAM kind, int metric, Unique<HICON>& shown) {
    const int size = GetSystemMetricsForDpi(metric, static_cast<UINT>(dpi));
    Unique<HICON> icon = LoadIconOfSize(IDI_TESSERA, size);
    SendMessageW(window_, WM_SETICON, kind, reinterpret_cast<LPARAM>(icon.get()));
    shown = std::move(icon);
  };
  showIcon(ICON_BIG, SM_CXICON, icon_);
  showIcon(ICON_SMALL, SM_CXSMICON, smallIcon_);
  views_.ApplyDpi(dpi);
}

void frmMain::Show(int showCommand) {
  const bool maximised = editor_.Options().MainWindowMaxmized == 1;
  views_.LayOutFromNowOn();
  ShowWindow(window_, maximised ? SW_SHOWMAXIMIZED : showCommand);
}

LRESULT CALLBACK frmMain::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto& creation = *reinterpret_cast<const CREATESTRUCTW*>(lParam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation.lpCreateParams));
    static_cast<frmMain*>(creation.lpCreateParams)->window_ = window;
  }
  auto* self = reinterpret_cast<frmMain*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  return Guarded(window, [&] { return self->Handle(message, wParam, lParam); });
}

LRESULT frmMain::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      views_.LayOut();
      views_.MoveKeysList();
      break;
    case WM_COMMAND:
      OnControl(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
      break;
    case WM_NOTIFY:
      return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_DROPFILES:
      commands_.OpenDropped(TakeDroppedFile(reinterpret_cast<HDROP>(wParam)));
      break;
    case WM_MOVE:
      views_.MoveKeysList();
      break;
    case WM_CONTEXTMENU:
      if (!popupMenus_.IsForList(reinterpret_cast<HWND>(wParam), lParam)) {
        return HandleDefault(message, wParam, lParam);
      }
      popupMenus_.ShowOverList(lParam);
      break;
    case WM_INITMENUPOPUP:
      editor_.RefreshRestartItems();
      views_.SyncMenus();
      break;
    case WM_ACTIVATE:
      OnActivate(wParam);
      break;
    case ActivationMessage:
      Form_Activate();
      break;
    case WM_SETFOCUS:
      // None had it yet, or the find box, which may have been hidden meanwhile.
      SetFocus(IsWindowVisible(lastFocus_) != FALSE ? lastFocus_ : views_.List().Control());
      break;
    case WM_GETMINMAXINFO: {
      const Size smallest = views_.SmallestSize();
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {smallest.Width, smallest.Height};
      break;
    }
    case WM_DPICHANGED:
      OnDpiChanged(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      break;
    default:
      return HandleEnd(message, wParam, lParam);
  }
  return 0;
}

LRESULT frmMain::HandleEnd(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CLOSE:
      if (ending_.MayClose()) DestroyWindow(window_);
      break;
    case WM_QUERYENDSESSION:
      return ending_.MaySessionEnd() ? TRUE : FALSE;
    case WM_ENDSESSION:
      ending_.OnSessionEnd(wParam != FALSE);
      break;
    case FailureMessage:
      ending_.OnFailure();
      break;
    case WM_DESTROY:
      Form_Unload();
      break;
    case WM_NCDESTROY:
      DefWindowProcW(std::exchange(window_, nullptr), message, wParam, lParam);
      views_.Forget();
      break;
    default:
      return HandleDefault(message, wParam, lParam);
  }
  return 0;
}

// These the system handles too.
LRESULT frmMain::HandleDefault(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETTINGCHANGE:
      // The message font, by which texts become larger.
      if (wParam == SPI_SETNONCLIENTMETRICS) views_.ApplyFonts();
      break;
    case WM_SETCURSOR:
      if (editor_.Document().Busy() && LOWORD(lParam) == HTCLIENT) {
        SetCursor(LoadCursorW(nullptr, IDC_WAIT));
        return TRUE;
      }
      break;
    case WM_PAINT:
      // Not before, so that it has its rows unless they take long: a scroll bar that came later
      // would have it painted once more.
      views_.List().Show();
      break;
    case WM_SYSCOLORCHANGE:
      views_.Forward(message, wParam, lParam);
      views_.ApplyDisplaySettings();
      break;
    case WM_THEMECHANGED:
      views_.ApplyDisplaySettings();
      break;
    default:
      break;
  }
  return DefWindowProcW(window_, message, wParam, lParam);
}

void frmMain::OnControl(WORD id, WORD notification, HWND control) {
  if (control == nullptr || control != views_.FindBox().Control()) {
    commands_.Run(id, control);
  } else if (notification == EN_CHANGE) {
    views_.FindBox().OnChange();
  }
}

LRESULT frmMain::OnNotify(NMHDR& header) {
  if (header.hwndFrom == views_.List().Control()) return views_.List().OnNotify(header);
  if (header.code == TBN_DROPDOWN) {
    popupMenus_.ShowUnderButton(reinterpret_cast<const NMTOOLBARW&>(header));
  }
  return 0;  // of a drop-down, that it has been dealt with
}

void frmMain::OnActivate(WPARAM wParam) {
  const bool minimised = HIWORD(wParam) != 0;
  if (LOWORD(wParam) == WA_INACTIVE) {
    const HWND focus = GetFocus();
    if (IsChild(window_, focus) != FALSE) lastFocus_ = focus;
  } else if (!minimised) {
    SetFocus(window_);
    PostMessageW(window_, ActivationMessage, 0, 0);
  }
}

void frmMain::OnDpiChanged(int dpi, const RECT& suggested) {
  ApplyDpi(dpi);
  SetWindowPos(window_, nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
               suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmMain::Form_Activate() {
  if (editor_.Document().Busy()) return;
  editor_.Activate();
  views_.Sync();
  // The system may have put a restored window before it.
  views_.AllKeys().BringToFront();
}

void frmMain::Form_Unload() {
  PostQuitMessage(0);  // before anything that may throw: the message of that goes with the window
  editor_.Unload(placement_.Current(views_, editor_.Options()), views_.List().Columns());
  windowsSystem_.SetMainWindow(nullptr, nullptr);
}

}  // namespace tessera
