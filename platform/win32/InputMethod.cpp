// Windows without an input context get letters as they are typed.
#include "platform/win32/InputMethod.h"

#include <imm.h>

#include <array>

#include "platform/win32/SystemFunction.h"

namespace tessera {
namespace {

using Associate = decltype(ImmAssociateContext);

bool IsTextBox(HWND window) {
  std::array<wchar_t, 8> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return lstrcmpiW(name.data(), L"Edit") == 0;
}

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
