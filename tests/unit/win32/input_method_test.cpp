// Which windows have an input method.
// clang-format off
#include <windows.h>  // must come first
#include <imm.h>
// clang-format on
#include <gtest/gtest.h>

#include "platform/win32/InputMethod.h"
#include "platform/win32/SystemFunction.h"

namespace tessera::input_method_test {
namespace {

/// True when the window has an input context.
bool HasInputMethod(HWND window) {
  auto* const get = SystemFunction<decltype(ImmGetContext)>(L"imm32.dll", "ImmGetContext");
  auto* const release =
      SystemFunction<decltype(ImmReleaseContext)>(L"imm32.dll", "ImmReleaseContext");
  const HIMC context = get(window);
  if (context != nullptr) release(window, context);
  return context != nullptr;
}

HWND Make(const wchar_t* className, HWND parent) {
  return CreateWindowW(className, L"", parent == nullptr ? WS_OVERLAPPEDWINDOW : WS_CHILD, 0, 0, 90,
                       90, parent, nullptr, nullptr, nullptr);
}

TEST(InputMethod, IsTurnedOffForAllButTextBoxes) {
  const HWND window = Make(L"STATIC", nullptr);
  const HWND group = Make(L"STATIC", window);
  const HWND list = Make(L"LISTBOX", group);
  const HWND button = Make(L"BUTTON", window);
  const HWND text = Make(L"EDIT", group);
  for (const HWND each : {window, group, list, button, text}) ASSERT_TRUE(HasInputMethod(each));
  TurnOffInputMethod(window);
  for (const HWND each : {window, group, list, button}) EXPECT_FALSE(HasInputMethod(each));
  EXPECT_TRUE(HasInputMethod(text));
  DestroyWindow(window);
}

}  // namespace
}  // namespace tessera::input_method_test
