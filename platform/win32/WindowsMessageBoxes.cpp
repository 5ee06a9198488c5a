// The program's own enumerations become the system's styles here.
#include "platform/win32/WindowsMessageBoxes.h"

#include <array>

#include "platform/win32/Controls.h"

namespace tessera {
namespace {

struct ButtonStyle {
  UINT Style;
  BoxAnswer WhenNotShown;
};

// In the order of BoxButtons.
constexpr std::array<ButtonStyle, 4> ButtonStyles{{{MB_OK, BoxAnswer::Ok},
                                                   {MB_YESNO, BoxAnswer::No},
                                                   {MB_YESNOCANCEL, BoxAnswer::Cancel},
                                                   {MB_RETRYCANCEL, BoxAnswer::Cancel}}};

// In the order of BoxIcon.
constexpr std::array<UINT, 4> IconStyles{MB_ICONERROR, MB_ICONQUESTION, MB_ICONWARNING,
                                         MB_ICONINFORMATION};

/// A box reads from the side from which its owner does.
UINT DirectionStyle(HWND owner) { return IsRightToLeft(owner) ? MB_RTLREADING | MB_RIGHT : 0U; }

}  // namespace

WindowsMessageBoxes::WindowsMessageBoxes(const OwnerWindow& owner) : owner_(owner) {}

BoxAnswer WindowsMessageBoxes::Show(const std::wstring& text, BoxButtons buttons, BoxIcon icon,
                                    BoxDefault defaultButton) {
  const ButtonStyle& style = ButtonStyles.at(static_cast<std::size_t>(buttons));
  const UINT defaultStyle = defaultButton == BoxDefault::Second ? MB_DEFBUTTON2 : MB_DEFBUTTON1;
  const HWND owner = owner_.ForModal();
  const int answer = MessageBoxW(owner, text.c_str(), ProgramTitle,
                                 style.Style | IconStyles.at(static_cast<std::size_t>(icon)) |
                                     defaultStyle | DirectionStyle(owner));
  return answer == 0 ? style.WhenNotShown : static_cast<BoxAnswer>(answer);
}

void WindowsMessageBoxes::Beep() { MessageBeep(MB_OK); }

}  // namespace tessera
