// Windows without an input context get letters as they are typed.
#include "platform/win32/InputMethod.h"

#include <imm.h>

#include "platform/win32/Controls.h"
#include "platform/win32/SystemFunction.h"

namespace tessera {
namespace {

using Associate = decltype(ImmAssociateContext);

BOOL CALLBACK TurnOff(HWND window, LPARAM function) {
  if (!IsTextBox(window)) (*reinterpret_cast<Associate*>(function))(window, nullptr);
  return TRUE;
}

}  // namespace

void TurnOffInputMethod(HWND window) {
  auto* const associate = SystemFunction<Associate>(L"imm32.dll", "ImmAssociateContext");
  if (associate == nullptr) return;
  associate(window, nullptr);
  EnumChildWindows(window, TurnOff, reinterpret_cast<LPARAM>(associate));
}

}  // namespace tessera
