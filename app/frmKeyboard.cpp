// The find box comes before the panel, and the panel before the controls.
#include "app/frmKeyboard.h"

#include "app/KeyMeaning.h"
#include "app/MnemonicLetters.h"
#include "platform/win32/Guarded.h"
#include "platform/win32/KeyCharacter.h"
#include "resources/resource.h"

namespace tessera {
namespace {

constexpr LPARAM ExtendedBit = LPARAM{1} << 24;
constexpr LPARAM WasDownBit = LPARAM{1} << 30;

/// Of a modifier both keys, the left one and the right one.
bool TwinsHeld(WPARAM key) {
  switch (key) {
    case VK_CONTROL:
      return IsHeld(VK_LCONTROL) && IsHeld(VK_RCONTROL);
    case VK_MENU:
      return IsHeld(VK_LMENU) && IsHeld(VK_RMENU);
    case VK_SHIFT:
      return IsHeld(VK_LSHIFT) && IsHeld(VK_RSHIFT);
    default:
      return false;
  }
}

bool IsPress(UINT message) { return message == WM_KEYDOWN || message == WM_SYSKEYDOWN; }

bool IsKeyMessage(UINT message) {
  return IsPress(message) || message == WM_KEYUP || message == WM_SYSKEYUP;
}

}  // namespace

frmKeyboard::frmKeyboard(Editor& editor, frmViews& views, frmWork& work, frmCommands& commands,
                         frmPopupMenus& popupMenus)
    : editor_(editor), views_(views), work_(work), commands_(commands), popupMenus_(popupMenus) {}

bool frmKeyboard::FilterMessage(MSG& message) {
  return Guarded(views_.Window(), [&] { return Filter(message); });
}

bool frmKeyboard::Filter(MSG& message) {
  const HWND window = views_.Window();
  if (window == nullptr || GetAncestor(message.hwnd, GA_ROOT) != window) return false;
  // Those that come to a disabled box do nothing there.
  views_.FindBox().SyncEnabled();
  if (IsKeyMessage(message.message) && FilterKey(message)) return true;
  // Else letters with Alt would reach the panel's boxes.
  const bool movesFocus = IsPress(message.message) && message.wParam == VK_TAB;
  if (views_.FindBox().HasFocus() && !movesFocus) return false;
  if (views_.Panel().ChooserWouldLose(message)) message.hwnd = window;
  return IsDialogMessageW(window, &message) != FALSE;
}

KeyPress frmKeyboard::PressOf(const MSG& message) const {
  KeyPress press{
      .Event = {.Code = static_cast<KeyCode>(message.wParam),
                .CtrlHeld = IsHeld(VK_CONTROL),
                .AltHeld = IsHeld(VK_MENU),
                .ShiftHeld = IsHeld(VK_SHIFT),
                .WasDown = (message.lParam & WasDownBit) != 0 || TwinsHeld(message.wParam)},
      .Extended = (message.lParam & ExtendedBit) != 0,
      .Focus = views_.Focus(),
      .ChooserOpen = views_.Panel().Chooser().Open};
  if (press.Event.AltHeld) press.Character = KeyCharacter(message);
  return press;
}

bool frmKeyboard::FilterKey(const MSG& message) {
  if (!views_.AcceptsInput()) return false;
  const bool pressed = IsPress(message.message);
  const KeyPress press = PressOf(message);
  const FindBoxKey inFindBox = findKeys_.Take(press, pressed, views_.FindBox().IsEmpty());
  if (inFindBox != FindBoxKey::IsElsewhere) return FilterFindKey(inFindBox);
  switch (MeaningOf(press, pressed)) {
    case KeyMeaning::ForControl:
      return false;
    case KeyMeaning::OpensButtonMenu:
      return popupMenus_.ShowUnderFocusedButton();
    case KeyMeaning::ForPanel:
      return pressed ? KeyDown(press) : KeyUp(press.Event);
    case KeyMeaning::OpensKeysList:
      work_.ToggleKeysList();
      break;
    case KeyMeaning::OpensHelp:
      commands_.Run(IDM_mnuHelpHelpTopics, nullptr);
      break;
  }
  return true;
}

bool frmKeyboard::FilterFindKey(FindBoxKey meaning) {
  if (meaning == FindBoxKey::EmptiesBox) views_.FindBox().Empty();
  if (meaning == FindBoxKey::GoesToList) views_.FindBox().GiveFocusAway();
  return meaning != FindBoxKey::ForBox && meaning != FindBoxKey::MovesFocus;
}

bool frmKeyboard::KeyDown(const KeyPress& press) {
  KeyEvent event = press.Event;
  event.Chooses = KeyChosenBy(press, editor_.Options().UseContextMenuKey != 0,
                              MnemonicLetters(editor_.Language()));
  const Reaction reaction = editor_.Work(&HotkeyPanel::KeyDown, event);
  work_.React(reaction);
  if (reaction.Handled) return true;
  return PressesFocusedButton(event) && views_.Panel().PressFocusedButton();
}

bool frmKeyboard::KeyUp(const KeyEvent& event) {
  const Reaction reaction = editor_.Work(&HotkeyPanel::KeyUp, event);
  work_.React(reaction);
  return reaction.Handled;
}

}  // namespace tessera
