// The hotkey panel's controls, in a window of their own.
#include "app/frmPanel.h"

#include <algorithm>
#include <string>
#include <utility>

#include "app/MnemonicLetters.h"
#include "localisation/Mnemonic.h"
#include "platform/win32/Guarded.h"
#include "platform/win32/Icons.h"
#include "resources/icons.h"
#include "resources/resource.h"

namespace tessera {
namespace {

constexpr wchar_t FrameClass[] = L"frmMain.Frame1";
constexpr int BoxIds[] = {IDC_chkCtrlAlt0, IDC_chkCtrlAlt1, IDC_chkCtrlAlt2};

/// For 96 pixels an inch.
constexpr int AllKeysIconSize = 16;

constexpr int RowsOfOpenChooser = 16;

constexpr UINT_PTR Timer1 = 1;

/// Until a row is selected nothing can be chosen.
constexpr DWORD InputStyle = WS_VISIBLE | WS_DISABLED;

}  // namespace

frmPanel::frmPanel(const Editor& editor, Events events)
    : editor_(editor), events_(std::move(events)), Toolbar2_(PanelToolbar()) {}

void frmPanel::Create(HWND window) {
  translatorsBrush_.reset(CreateSolidBrush(TranslatorsColor));
  RegisterWindowClass(FrameClass, FrameProcedure);
  Frame1_ = CreateControl(window, FrameClass, IDC_Frame1, WS_VISIBLE | WS_CLIPCHILDREN,
                          WS_EX_CONTROLPARENT);
  SetWindowLongPtrW(Frame1_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  for (std::size_t box = 0; box < chkCtrlAlt_.size(); ++box) {
    chkCtrlAlt_[box] =
        CreateControl(Frame1_, WC_BUTTONW, BoxIds[box], InputStyle | WS_TABSTOP | BS_AUTOCHECKBOX);
  }
  // Arrow keys stay within a group.
  SetStyleBits(chkCtrlAlt_.front(), GWL_STYLE, WS_GROUP, true);
  // Screen readers call a control without a text of its own by the label before it.
  lblHotkey_ = CreateControl(Frame1_, WC_STATICW, IDC_lblHotkey, WS_VISIBLE | WS_GROUP);
  Combo1_ = CreateControl(Frame1_, WC_COMBOBOXW, IDC_Combo1,
                          InputStyle | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST);
  // Each string would have the scroll bar set up anew.
  SetWindowRedraw(Combo1_, FALSE);
  for (const std::wstring_view key : KeyVocabulary()) {
    SendMessageW(Combo1_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::wstring(key).c_str()));
  }
  SetWindowRedraw(Combo1_, TRUE);
  ComboBox_SetMinVisible(Combo1_, RowsOfOpenChooser);
  cmdAllList_ =
      CreateControl(Frame1_, WC_BUTTONW, IDC_cmdAllList, InputStyle | BS_PUSHBUTTON | BS_ICON);
  Toolbar2_.Create(Frame1_, IDC_Toolbar2);
  statusRow_.Create(Frame1_);
}

HWND frmPanel::Control() const { return Frame1_; }

const frmToolbar& frmPanel::Toolbar() const { return Toolbar2_; }

Size frmPanel::WholeSize() const { return wholeSize_; }

Area frmPanel::AllKeysButton() const { return WindowArea(cmdAllList_); }

ChooserState frmPanel::Chooser() const {
  return {.HasFocus = GetFocus() == Combo1_, .Open = ComboBox_GetDroppedState(Combo1_) != FALSE};
}

void frmPanel::FocusOnChooser() { SetFocus(Combo1_); }

bool frmPanel::PressFocusedButton() {
  const HWND focus = GetFocus();
  if (statusRow_.CommandOf(focus) == 0) return false;
  SendMessageW(focus, BM_CLICK, 0, 0);
  return true;
}

bool frmPanel::ChooserWouldLose(const MSG& message) const {
  const bool isSystemKey = message.message == WM_SYSKEYDOWN || message.message == WM_SYSKEYUP;
  return isSystemKey && message.hwnd == Combo1_ && message.wParam != VK_UP &&
         message.wParam != VK_DOWN;
}

void frmPanel::ApplyLanguage() {
  const Texts& texts = editor_.Language();
  Toolbar2_.ApplyLanguage(texts);
  SetText(lblHotkey_, texts.GetLangText(TextId::Hotkey));
  for (std::size_t box = 0; box < chkCtrlAlt_.size(); ++box) {
    SetText(chkCtrlAlt_[box], texts.GetLangText(BoxCaptions[box]));
  }
  SetText(cmdAllList_, WithoutMnemonic(texts.GetLangText(TextId::Hotkey)));
  statusRow_.ApplyLanguage(texts);
}

void frmPanel::ApplyDpi(int dpi) {
  Unique<HICON> icon = LoadIconOfSize(IDI_ALLKEYS, Scaled(AllKeysIconSize, dpi));
  SendMessageW(cmdAllList_, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon.get()));
  allKeysIcon_ = std::move(icon);
  Toolbar2_.ApplyDpi(dpi);
}

void frmPanel::ApplyFont(HFONT font, int dpi) {
  GiveFont(lblHotkey_, font);
  for (const HWND box : chkCtrlAlt_) GiveFont(box, font);
  GiveFont(Combo1_, font);
  GiveFont(Toolbar2_.Control(), font);
  LayOut(font, dpi);
}

void frmPanel::LayOut(HFONT font, int dpi) {
  const auto textSize = [&](TextId id) {
    return TextSize(Frame1_, font, editor_.Language().GetLangText(id));
  };
  PanelSizes sizes{.Label = textSize(TextId::Hotkey),
                   .Boxes = {},
                   .ChooserHeight = WindowArea(Combo1_).Height,
                   .Toolbar = Toolbar2_.ButtonsSize()};
  std::ranges::transform(BoxCaptions, sizes.Boxes.begin(), textSize);
  const PanelLayout layout = LayOutPanel(sizes, dpi);
  Place(lblHotkey_, layout.Label);
  for (std::size_t box = 0; box < chkCtrlAlt_.size(); ++box) {
    Place(chkCtrlAlt_[box], layout.Boxes[box]);
  }
  Place(Combo1_, layout.Chooser);
  Place(Toolbar2_.Control(), layout.Toolbar);
  const Area& button = layout.AllKeysButton;
  SetWindowPos(cmdAllList_, HWND_TOP, button.Left, button.Top, button.Width, button.Height,
               SWP_NOACTIVATE);
  controlsHeight_ = layout.Whole.Height;
  wholeSize_ = {layout.Whole.Width, controlsHeight_ + statusRow_.ApplyFont(font, dpi)};
  statusRow_.LayOut(controlsHeight_);
}

void frmPanel::Sync() {
  const HotkeyPanel& panel = editor_.Panel();
  const bool enabled = panel.InputsEnabled();
  KeepFocusEnabled(enabled);
  for (std::size_t box = 0; box < chkCtrlAlt_.size(); ++box) {
    const bool checked = panel.BoxChecked(AllModifiers[box]);
    if ((Button_GetCheck(chkCtrlAlt_[box]) == BST_CHECKED) != checked) {
      Button_SetCheck(chkCtrlAlt_[box], checked ? BST_CHECKED : BST_UNCHECKED);
    }
    SetEnabled(chkCtrlAlt_[box], enabled);
  }
  if (ComboBox_GetCurSel(Combo1_) != panel.ChosenKey()) {
    ComboBox_SetCurSel(Combo1_, panel.ChosenKey());
  }
  SetEnabled(Combo1_, enabled);
  SetEnabled(cmdAllList_, enabled);
  SetEnabled(Toolbar2_.Control(), editor_.AllKeys().PanelToolbarEnabled());
  statusRow_.Sync(editor_);
}

/// A control that is about to be disabled must not keep the focus, where no key would reach it.
void frmPanel::KeepFocusEnabled(bool inputsEnabled) const {
  const HWND focus = GetFocus();
  if (IsChild(Frame1_, focus) == FALSE) return;
  const int command = statusRow_.CommandOf(focus);
  const bool staysEnabled = command != 0 ? CommandEnabled(editor_, command) : inputsEnabled;
  if (!staysEnabled) events_.GiveFocusAway();
}

void frmPanel::ShowState(const CommandState& state) const {
  Toolbar2_.ShowState(state.Id, state.EnabledOnPanel, state.Checked);
}

LRESULT CALLBACK frmPanel::FrameProcedure(HWND frame, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const self = reinterpret_cast<frmPanel*>(GetWindowLongPtrW(frame, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(frame, message, wParam, lParam);
  return Guarded(frame, [&] { return self->Handle(message, wParam, lParam); });
}

LRESULT frmPanel::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (OnCommand(LOWORD(wParam), HIWORD(wParam))) break;
      if (const int command = statusRow_.CommandOf(reinterpret_cast<HWND>(lParam));
          command != 0 && HIWORD(wParam) == BN_CLICKED) {
        return SendMessageW(GetParent(Frame1_), WM_COMMAND, static_cast<WPARAM>(command), 0);
      }
      return SendMessageW(GetParent(Frame1_), message, wParam, lParam);
    case WM_NOTIFY:
      return SendMessageW(GetParent(Frame1_), message, wParam, lParam);
    case WM_TIMER:
      OnTimer();
      break;
    case WM_SIZE:
      statusRow_.LayOut(controlsHeight_);
      break;
    case WM_MOUSEMOVE:
      statusRow_.FollowPointer(wParam, lParam);
      break;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      if (editor_.Options().ShowControlsBackColor != 0 &&
          IsTranslatorsControl(reinterpret_cast<HWND>(lParam))) {
        SetBkColor(reinterpret_cast<HDC>(wParam), TranslatorsColor);
        return reinterpret_cast<LRESULT>(translatorsBrush_.get());
      }
      [[fallthrough]];
    default:
      return DefWindowProcW(Frame1_, message, wParam, lParam);
  }
  return 0;
}

bool frmPanel::OnCommand(int id, int notification) {
  const auto* const box = std::ranges::find(BoxIds, id);
  if (box != std::end(BoxIds) && notification == BN_CLICKED) {
    const auto index = static_cast<std::size_t>(box - BoxIds);
    events_.SetBox(AllModifiers[index], Button_GetCheck(chkCtrlAlt_[index]) == BST_CHECKED);
  } else if (id == IDC_Combo1 && notification == CBN_SELCHANGE) {
    events_.ChooseKey(ComboBox_GetCurSel(Combo1_));
  } else if (id == IDC_Combo1 && notification == CBN_DROPDOWN) {
    events_.ChooserDropsDown();
  } else if (id == IDC_cmdAllList && notification == BN_CLICKED) {
    events_.ToggleKeysList();
  } else {
    return false;
  }
  return true;
}

void frmPanel::StartTimer() {
  timerRuns_ = SetTimer(Frame1_, Timer1, PanelTimerMilliseconds, nullptr) != 0;
}

void frmPanel::OnTimer() {
  KillTimer(Frame1_, Timer1);
  timerRuns_ = false;
  events_.TimerTick();
}

bool frmPanel::IsTranslatorsControl(HWND control) const {
  return control == lblHotkey_ || control == statusRow_.Line() ||
         std::ranges::find(chkCtrlAlt_, control) != chkCtrlAlt_.end();
}

void frmPanel::Forget() {
  Toolbar2_.Forget();
  statusRow_.Forget();
  chkCtrlAlt_.fill(nullptr);
  Frame1_ = lblHotkey_ = Combo1_ = cmdAllList_ = nullptr;
}

}  // namespace tessera
