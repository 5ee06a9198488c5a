// The life of a modal dialog: its making, its texts and its messages.
#include "dialogs/frmDialog.h"

#include <algorithm>
#include <array>
#include <vector>

#include "dialogs/PageKeys.h"
#include "localisation/Mnemonic.h"
#include "platform/win32/Guarded.h"

namespace tessera {
namespace {

struct ControlClass {
  ControlKind Kind{};
  const wchar_t* Name = nullptr;
  DWORD Style{};
  DWORD ExtendedStyle{};
};

constexpr ControlClass Classes[] = {
    {ControlKind::Frame, WC_BUTTONW, BS_GROUPBOX},
    {ControlKind::CheckBox, WC_BUTTONW, BS_AUTOCHECKBOX | WS_TABSTOP},
    {ControlKind::OptionButton, WC_BUTTONW, BS_AUTORADIOBUTTON | WS_TABSTOP},
    {ControlKind::Label, WC_STATICW, SS_LEFT},
    {ControlKind::Swatch, WC_BUTTONW, BS_OWNERDRAW | WS_TABSTOP},
    {ControlKind::TextBox, WC_EDITW, ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
    {ControlKind::SideButton, WC_BUTTONW, BS_PUSHBUTTON | WS_TABSTOP},
    {ControlKind::Button, WC_BUTTONW, BS_PUSHBUTTON | WS_TABSTOP},
};

const ControlClass& ClassOf(ControlKind kind) {
  return *std::ranges::find(Classes, kind, &ControlClass::Kind);
}

/// One that does not show its caption, so that a screen reader has to be told.
bool HasAccessibleName(ControlKind kind) {
  return kind == ControlKind::SideButton || kind == ControlKind::TextBox;
}

/// A dialog without controls, as a resource would hold it.
std::vector<WORD> EmptyTemplate(const wchar_t* className) {
  constexpr DWORD Style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
  DLGTEMPLATE head{};
  head.style = Style;
  const auto* const words = reinterpret_cast<const WORD*>(&head);
  std::vector<WORD> whole(words, words + sizeof head / sizeof(WORD));
  whole.push_back(0);
  for (const wchar_t* letter = className; *letter != L'\0'; ++letter) {
    whole.push_back(static_cast<WORD>(*letter));
  }
  whole.insert(whole.end(), 2, WORD{0});
  return whole;
}

/// Shows messages to a function before a modal dialog of this thread takes them.
class MessageHook {
 public:
  explicit MessageHook(HOOKPROC function)
      : hook_(SetWindowsHookExW(WH_MSGFILTER, function, nullptr, GetCurrentThreadId())) {}
  ~MessageHook() { UnhookWindowsHookEx(hook_); }
  MessageHook(const MessageHook&) = delete;
  MessageHook& operator=(const MessageHook&) = delete;

 private:
  HHOOK hook_;
};

}  // namespace

frmDialog::frmDialog(const DialogPlan& plan, const Texts& texts, const Settings& settings)
    : plan_(plan), texts_(texts), settings_(settings) {}

void frmDialog::ShowModal(HWND owner) {
  // The window procedure of dialogs, under a class name of our own.
  RegisterWindowClass(plan_.ClassName, DefDlgProcW, 0, DLGWINDOWEXTRA);
  const std::vector<WORD> empty = EmptyTemplate(plan_.ClassName);
  const MessageHook filter(FilterMessage);
  DialogBoxIndirectParamW(GetModuleHandleW(nullptr),
                          reinterpret_cast<const DLGTEMPLATE*>(empty.data()), owner,
                          DialogProcedure, reinterpret_cast<LPARAM>(this));
  window_ = nullptr;
  tabs_ = nullptr;
}

void frmDialog::Close() { EndDialog(window_, 0); }

HWND frmDialog::Control(int id) const { return GetDlgItem(window_, id); }

void frmDialog::SetChecked(int id, bool checked) const {
  if ((Button_GetCheck(Control(id)) == BST_CHECKED) != checked) {
    Button_SetCheck(Control(id), checked ? BST_CHECKED : BST_UNCHECKED);
  }
}

void frmDialog::FocusOn(int id) const {
  SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(id)), TRUE);
}

LRESULT CALLBACK frmDialog::FilterMessage(int code, WPARAM wParam, LPARAM lParam) {
  const MSG& message = *reinterpret_cast<const MSG*>(lParam);
  if (code == MSGF_DIALOGBOX && message.message == WM_KEYDOWN) {
    // Boxes and dialogs of the system that are open above it come here too.
    const HWND window = GetAncestor(message.hwnd, GA_ROOT);
    const bool isOwn =
        GetWindowLongPtrW(window, DWLP_DLGPROC) == reinterpret_cast<LONG_PTR>(DialogProcedure);
    auto* const self = reinterpret_cast<frmDialog*>(GetWindowLongPtrW(window, DWLP_USER));
    if (isOwn && Guarded(window, [&] { return self->TurnPage(message.wParam); })) return 1;
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

INT_PTR CALLBACK frmDialog::DialogProcedure(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, lParam);
    auto& dialog = *reinterpret_cast<frmDialog*>(lParam);
    dialog.window_ = window;
    Guarded(window, [&] { return (dialog.OnInit(), FALSE); });
    return FALSE;  // the focus has been set
  }
  auto* const self = reinterpret_cast<frmDialog*>(GetWindowLongPtrW(window, DWLP_USER));
  if (self == nullptr) return FALSE;
  return Guarded(window, [&] { return self->Handle(message, wParam, lParam); });
}

INT_PTR frmDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      OnCommandMessage(LOWORD(wParam), HIWORD(wParam));
      break;
    case WM_NOTIFY:
      if (const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
          header.code == TCN_SELCHANGE) {
        ShowPage(TabCtrl_GetCurSel(tabs_));
      }
      break;
    case WM_CLOSE:
      OnCloseButton();
      break;
    case WM_ERASEBKGND:
      DrawBackground(reinterpret_cast<HDC>(wParam));
      break;
    case WM_DRAWITEM:
      DrawSwatch(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      break;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
      return ColorControl(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    case WM_DPICHANGED: {
      const auto& suggested = *reinterpret_cast<const RECT*>(lParam);
      ApplyDpi(HIWORD(wParam), POINT{suggested.left, suggested.top});
      break;
    }
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      for (const HWND child : ChildrenOf(window_)) SendMessageW(child, message, wParam, lParam);
      LayOut();
      return FALSE;
    case WM_SETTINGCHANGE:
      if (wParam == SPI_SETNONCLIENTMETRICS) ApplyDpi(metrics_.Dpi);  // the message font
      return FALSE;
    case WM_DESTROY:
      for (const auto& controls : {plan_.Controls, plan_.Buttons}) {
        for (const DialogControl& control : controls) {
          if (HasAccessibleName(control.Kind)) ClearAccessibleName(Control(control.Id));
        }
      }
      return FALSE;
    default:
      return FALSE;
  }
  return TRUE;
}

void frmDialog::OnInit() {
  CreateControls();
  ApplyLanguage();
  // Moved to its screen first: that decides the resolution.
  CenterForm();
  ApplyDpi(static_cast<int>(GetDpiForWindow(window_)));
  Sync();
  ShowPage(page_);
  CenterForm();
  SetFocus(FirstToFocus());
}

void frmDialog::OnCommandMessage(int id, int notification) {
  if (id == IDOK || id == IDCANCEL) {
    OnCommand(plan_.Buttons[id == IDOK ? 0 : 1].Id, BN_CLICKED);
    return;
  }
  OnCommand(id, notification);
}

HWND frmDialog::Create(const DialogControl& control, bool startsGroup) {
  const ControlClass& kind = ClassOf(control.Kind);
  const HWND made = CreateControl(window_, kind.Name, control.Id, kind.Style, kind.ExtendedStyle);
  SetStyleBits(made, GWL_STYLE, WS_GROUP, startsGroup);
  // A frame lies before what it encloses, which must not be clipped by it.
  SetStyleBits(made, GWL_STYLE, WS_CLIPSIBLINGS, false);
  if (control.Kind == ControlKind::TextBox) {
    SetRightToLeft(made, false);  // paths are written from left to right
  }
  return made;
}

void frmDialog::CreateControls() {
  translatorsBrush_.reset(CreateSolidBrush(TranslatorsColor));
  SetStyleBits(window_, GWL_EXSTYLE, WS_EX_LAYOUTRTL, texts_.RightToLeft());
  for (ControlKind before{}; const DialogControl& control : plan_.Controls) {
    // The arrow keys go from one option to the next.
    Create(control, control.Kind != ControlKind::OptionButton || control.Kind != before);
    before = control.Kind;
  }
  for (const DialogControl& button : plan_.Buttons) ShowWindow(Create(button, true), SW_SHOWNA);
  SendMessageW(window_, DM_SETDEFID, static_cast<WPARAM>(plan_.Buttons.front().Id), 0);
  Button_SetStyle(Control(plan_.Buttons.front().Id), BS_DEFPUSHBUTTON, FALSE);
  if (plan_.TabsId != 0) {
    // Made last, the tabs lie below the controls of their pages.
    tabs_ =
        CreateControl(window_, WC_TABCONTROLW, plan_.TabsId, WS_VISIBLE | WS_TABSTOP | WS_GROUP);
    PadTabs(static_cast<int>(GetDpiForWindow(window_)));
  }
}

void frmDialog::ApplyLanguage() {
  SetText(window_, texts_.GetLangText(plan_.Title));
  for (const auto& controls : {plan_.Controls, plan_.Buttons}) {
    for (const DialogControl& control : controls) {
      const std::wstring text = texts_.GetLangText(control.Caption);
      if (control.Kind == ControlKind::SideButton) SetText(Control(control.Id), L"...");
      if (HasAccessibleName(control.Kind)) {
        SetAccessibleName(Control(control.Id), WithoutMnemonic(text));
      } else {
        SetText(Control(control.Id), text);
      }
    }
  }
  for (int page = 0; const TextId text : plan_.TabCaptions) {
    std::wstring caption = texts_.GetLangText(text);
    TCITEMW tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = caption.data();
    SendMessageW(tabs_, TCM_INSERTITEMW, static_cast<WPARAM>(page++),
                 reinterpret_cast<LPARAM>(&tab));
  }
}

void frmDialog::ShowPage(int page) {
  page_ = page;
  if (tabs_ != nullptr) TabCtrl_SetCurSel(tabs_, page);
  for (const DialogControl& control : plan_.Controls) {
    ShowWindow(Control(control.Id), control.Page == page ? SW_SHOWNA : SW_HIDE);
  }
}

bool frmDialog::TurnPage(WPARAM key) {
  const std::optional<int> page = PageAfterKey({.Code = static_cast<unsigned>(key),
                                                .CtrlHeld = IsHeld(VK_CONTROL),
                                                .AltHeld = IsHeld(VK_MENU),
                                                .ShiftHeld = IsHeld(VK_SHIFT)},
                                               page_, static_cast<int>(plan_.TabCaptions.size()));
  if (!page) return false;
  // The tabs and the buttons below them keep the focus.
  const bool focusOnPage = Find(GetDlgCtrlID(GetFocus())) != nullptr;
  ShowPage(*page);
  if (focusOnPage) {
    SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(FirstToFocus()), TRUE);
  }
  return true;
}

HWND frmDialog::FirstToFocus() const {
  const auto first = std::ranges::find_if(plan_.Controls, [this](const DialogControl& each) {
    return each.Page == page_ && (ClassOf(each.Kind).Style & WS_TABSTOP) != 0;
  });
  HWND control = Control(first->Id);
  const bool optionChosenLater =
      first->Kind == ControlKind::OptionButton && Button_GetCheck(control) != BST_CHECKED;
  if (optionChosenLater) control = Control((first + 1)->Id);
  return control;
}

const DialogControl* frmDialog::Find(int id) const {
  const auto found = std::ranges::find(plan_.Controls, id, &DialogControl::Id);
  return found != plan_.Controls.end() ? &*found : nullptr;
}

}  // namespace tessera
