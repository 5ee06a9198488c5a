// The keyboard: what the window does with a key before its controls see it.
#include "app/frmMain.h"
#include "app/KeyMeaning.h"
#include "app/MnemonicLetters.h"
#include "platform/win32/Guarded.h"
#include "platform/win32/KeyCharacter.h"
#include "resources/resource.h"

namespace tessera {
namespace {

constexpr LPARAM ExtendedBit = LPARAM{1} << 24;
constexpr LPARAM WasDownBit = LPARAM{1} << 30;

bool Held(int key) { return GetKeyState(key) < 0; }

/// Of a modifier both keys, the left one and the right one.
bool TwinsHeld(WPARAM key) {
  switch (key) {
    case VK_CONTROL:
      return Held(VK_LCONTROL) && Held(VK_RCONTROL);
    case VK_MENU:
      return Held(VK_LMENU) && Held(VK_RMENU);
    case VK_SHIFT:
      return Held(VK_LSHIFT) && Held(VK_RSHIFT);
    default:
      return false;
  }
}

bool IsPress(UINT message) { return message == WM_KEYDOWN || message == WM_SYSKEYDOWN; }

bool IsKeyMessage(UINT message) {
  return IsPress(message) || message == WM_KEYUP || message == WM_SYSKEYUP;
}

}  // namespace

bool frmMain::FilterMessage(MSG& message) {
  return Guarded(window_, [&] { return Filter(message); });
}

bool frmMain::Filter(MSG& message) {
  if (window_ == nullptr || (message.hwnd != window_ && IsChild(window_, message.hwnd) == FALSE)) {
    return false;
  }
  // Those that come to a disabled box do nothing there.
  if (editor_.Document().Busy()) views_.SyncFindBox();
  if (IsKeyMessage(message.message) && FilterKey(message)) return true;
  // Else letters with Alt would reach the panel's boxes.
  const bool movesFocus = IsPress(message.message) && message.wParam == VK_TAB;
  if (views_.FindBox().HasFocus() && !movesFocus) return false;
  if (views_.Panel().ChooserWouldLose(message)) message.hwnd = window_;
  return IsDialogMessageW(window_, &message) != FALSE;
}

KeyPress frmMain::PressOf(const MSG& message) const {
  KeyPress press{
      .Event = {.Code = static_cast<KeyCode>(message.wParam),
                .CtrlHeld = Held(VK_CONTROL),
                .AltHeld = Held(VK_MENU),
                .ShiftHeld = Held(VK_SHIFT),
                .WasDown = (message.lParam & WasDownBit) != 0 || TwinsHeld(message.wParam)},
      .Extended = (message.lParam & ExtendedBit) != 0,
      .Focus = views_.Focus(),
      .ChooserOpen = views_.Panel().Chooser().Open};
  if (press.Event.AltHeld) press.Character = KeyCharacter(message);
  return press;
}

bool frmMain::FilterKey(const MSG& message) {
  if (!views_.AcceptInput()) return false;
  const bool pressed = IsPress(message.message);
  const KeyPress press = PressOf(message);
  const FindBoxKey inFindBox = findKeys_.MeaningOf(press, pressed, views_.FindBox().IsEmpty());
  if (inFindBox != FindBoxKey::IsElsewhere) return FilterFindKey(inFindBox);
  switch (MeaningOf(press, pressed)) {
    case KeyMeaning::ForControl:
      return false;
    case KeyMeaning::OpensKeysList:
      ToggleKeysList();
      return true;
    case KeyMeaning::OpensHelp:
      OnCommand(IDM_mnuHelpHelpTopics, nullptr);
      return true;
    case KeyMeaning::OpensButtonMenu:
      return OpenButtonMenu();
    case KeyMeaning::ForPanel:
      break;
  }
  return pressed ? KeyDown(press) : KeyUp(press.Event);
}

bool frmMain::FilterFindKey(FindBoxKey meaning) {
  if (meaning == FindBoxKey::EmptiesBox) views_.FindBox().Empty();
  if (meaning == FindBoxKey::GoesToList) views_.FindBox().GiveFocusAway();
  return meaning != FindBoxKey::ForBox && meaning != FindBoxKey::MovesFocus;
}

bool frmMain::KeyDown(const KeyPress& press) {
  KeyEvent event = press.Event;
  event.Chooses = KeyChosenBy(press, editor_.Options().UseContextMenuKey != 0,
                              MnemonicLetters(editor_.Language()));
  const Reaction reaction = editor_.Work(&HotkeyPanel::KeyDown, event);
  React(reaction);
  if (reaction.Handled) return true;
  return PressesFocusedButton(event) && views_.Panel().PressFocusedButton();
}

bool frmMain::KeyUp(const KeyEvent& event) {
  const Reaction reaction = editor_.Work(&HotkeyPanel::KeyUp, event);
  React(reaction);
  return reaction.Handled;
}

bool frmMain::OpenButtonMenu() {
  NMTOOLBARW button{};
  button.hdr.hwndFrom = GetFocus();
  button.iItem = views_.FocusedButton();
  const ToolbarButton* const known = ButtonOf(button.iItem);
  if (known == nullptr || known->Style != ToolbarStyle::DropDown) return false;
  OnDropDown(button);
  return true;
}

}  // namespace tessera
