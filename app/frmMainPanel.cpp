// The hotkey panel's controls, and the keyboard of the window.
#include <algorithm>

#include "app/frmMain.h"
#include "localisation/Mnemonic.h"
#include "resources/resource.h"

namespace tessera {

namespace {

constexpr int BoxIds[] = {IDC_chkCtrlAlt0, IDC_chkCtrlAlt1, IDC_chkCtrlAlt2};
constexpr TextId BoxCaptions[] = {TextId::ControlBox, TextId::AltBox, TextId::ShiftBox};
constexpr wchar_t FrameClass[] = L"frmMain.Frame1";

/// The panel's controls speak to the main window.
LRESULT CALLBACK FrameProcedure(HWND frame, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      return SendMessageW(GetParent(frame), message, wParam, lParam);
    default:
      return DefWindowProcW(frame, message, wParam, lParam);
  }
}

bool Held(int key) { return GetKeyState(key) < 0; }

bool IsKeyMessage(UINT message) {
  return message == WM_KEYDOWN || message == WM_SYSKEYDOWN || message == WM_KEYUP ||
         message == WM_SYSKEYUP;
}

}  // namespace

void frmMain::CreatePanel() {
  RegisterWindowClass(FrameClass, FrameProcedure);
  Frame1_ = CreateControl(window_, FrameClass, WS_VISIBLE | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT,
                          IDC_Frame1);
  for (std::size_t box = 0; box < chkCtrlAlt_.size(); ++box) {
    // Arrow keys stay within a group.
    const DWORD group = box == 0 ? WS_GROUP : 0;
    chkCtrlAlt_[box] = CreateControl(
        Frame1_, WC_BUTTONW, WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX | group, 0, BoxIds[box]);
  }
  // Screen readers call a control without a text of its own by the label before it.
  lblHotkey_ = CreateControl(Frame1_, WC_STATICW, WS_VISIBLE | WS_GROUP, 0, IDC_lblHotkey);
  Combo1_ = CreateControl(Frame1_, WC_COMBOBOXW,
                          WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, 0, IDC_Combo1);
  for (const std::wstring_view key : KeyVocabulary()) {
    SendMessageW(Combo1_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::wstring(key).c_str()));
  }
  SendMessageW(Combo1_, CB_SETMINVISIBLE, 16, 0);
  cmdAllList_ =
      CreateControl(Frame1_, WC_BUTTONW, WS_VISIBLE | BS_PUSHBUTTON | BS_ICON, 0, IDC_cmdAllList);
}

void frmMain::LabelPanel() {
  const Texts& texts = editor_.Language();
  SetText(lblHotkey_, texts.GetLangText(TextId::Hotkey));
  for (std::size_t box = 0; box < chkCtrlAlt_.size(); ++box) {
    SetText(chkCtrlAlt_[box], texts.GetLangText(BoxCaptions[box]));
  }
  const std::wstring name = WithoutMnemonic(texts.GetLangText(TextId::Hotkey));
  SetText(cmdAllList_, name);
  frmKeysList_.SetName(name);
}

void frmMain::SyncPanel() {
  const HotkeyPanel& panel = editor_.Panel();
  const bool enabled = panel.InputsEnabled();
  const HWND focus = GetFocus();
  if (!enabled && focus != nullptr && IsChild(Frame1_, focus) != FALSE) {
    SetFocus(ListView1_);
  }
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
}

bool frmMain::OnPanelCommand(int id, int notification) {
  if (id == IDC_cmdAllList && notification == BN_CLICKED) {
    ToggleKeysList();
    return true;
  }
  if (id == IDC_Combo1 && notification == CBN_DROPDOWN) {
    editor_.Work(&KeysList::ChooserDropsDown);
    SyncCommands();
    SyncKeysList();
    return true;
  }
  const auto* const box = std::ranges::find(BoxIds, id);
  const bool isBox = box != std::end(BoxIds) && notification == BN_CLICKED;
  const bool isChooser = id == IDC_Combo1 && notification == CBN_SELCHANGE;
  if (!isBox && !isChooser) {
    return false;
  }
  if (AcceptsInput()) {
    if (isBox) {
      const auto index = static_cast<std::size_t>(box - BoxIds);
      editor_.Work(&HotkeyPanel::SetBox, AllModifiers[index],
                   Button_GetCheck(chkCtrlAlt_[index]) == BST_CHECKED);
    } else {
      editor_.Work(&HotkeyPanel::ChooseKey, ComboBox_GetCurSel(Combo1_));
    }
  }
  SyncPanel();
  SyncCommands();
  SyncKeysList();
  return true;
}

bool frmMain::FilterMessage(MSG& message) {
  if (window_ == nullptr || (message.hwnd != window_ && IsChild(window_, message.hwnd) == FALSE)) {
    return false;
  }
  if (IsKeyMessage(message.message) && FilterKey(message)) {
    return true;
  }
  // A chooser may hand Alt+F4 and F10 to its hidden list, where they would be lost.
  const bool isSystemKey = message.message == WM_SYSKEYDOWN || message.message == WM_SYSKEYUP;
  if (isSystemKey && message.hwnd == Combo1_ && message.wParam != VK_UP &&
      message.wParam != VK_DOWN) {
    message.hwnd = window_;
  }
  return IsDialogMessageW(window_, &message) != FALSE;
}

bool frmMain::FilterKey(const MSG& message) {
  const auto key = static_cast<int>(message.wParam);
  const bool closesChooser = key == VK_RETURN || key == VK_ESCAPE;
  if (!AcceptsInput() || (closesChooser && ChooserIsOpen())) {
    return false;
  }
  const KeyEvent event{.Code = static_cast<KeyCode>(key),
                       .CtrlHeld = Held(VK_CONTROL),
                       .AltHeld = Held(VK_MENU),
                       .ShiftHeld = Held(VK_SHIFT)};
  const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
  if (down && event.Code == KeyCode::Right && GetFocus() == Combo1_ && !ChooserIsOpen()) {
    ToggleKeysList();
    return true;
  }
  const Reaction reaction = editor_.Work(down ? &HotkeyPanel::KeyDown : &HotkeyPanel::KeyUp, event);
  React(reaction);
  return reaction.Handled;
}

bool frmMain::ChooserIsOpen() const { return ComboBox_GetDroppedState(Combo1_) != FALSE; }

}  // namespace tessera
