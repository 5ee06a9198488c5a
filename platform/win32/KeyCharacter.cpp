// The system has a shorter function for it, which gives A to Z for those keys in every layout.
#include "platform/win32/KeyCharacter.h"

#include <array>

namespace tessera {

wchar_t KeyCharacter(const MSG& message) {
  // A dead key that the user pressed before stays pressed.
  constexpr UINT LeavesTheKeyboardAlone = 4;
  const std::array<BYTE, 256> nothingHeld{};
  std::array<wchar_t, 4> characters{};
  const auto scanCode = static_cast<UINT>(message.lParam >> 16) & 0xFF;
  const int count =
      ToUnicode(static_cast<UINT>(message.wParam), scanCode, nothingHeld.data(), characters.data(),
                static_cast<int>(characters.size()), LeavesTheKeyboardAlone);
  return count == 1 ? characters[0] : L'\0';
}

}  // namespace tessera
