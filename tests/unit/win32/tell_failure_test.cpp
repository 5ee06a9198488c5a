// Whom a failure is told that no window procedure has seen.
#include <windows.h>  // must come before the headers of others
#include <gtest/gtest.h>

#include "platform/win32/Controls.h"
#include "platform/win32/Guarded.h"
#include "platform/win32/TellFailure.h"

namespace tessera::tell_failure_test {
namespace {

/// Counts the failures that a window is told of.
LRESULT CALLBACK CountFailures(HWND window, UINT message, WPARAM first, LPARAM second) {
  if (message != FailureMessage) return DefWindowProcW(window, message, first, second);
  SetWindowLongPtrW(window, GWLP_USERDATA, GetWindowLongPtrW(window, GWLP_USERDATA) + 1);
  return 0;
}

HWND MakeWindow(const wchar_t* className) {
  RegisterWindowClass(className, CountFailures);
  return CreateWindowW(className, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                       GetModuleHandleW(nullptr), nullptr);
}

LONG_PTR FailuresTold(HWND window) { return GetWindowLongPtrW(window, GWLP_USERDATA); }

TEST(TellFailure, MainWindowIsToldAtOnceAndNoOther) {
  const HWND before = MakeWindow(L"TesseraOtherWindow");
  EXPECT_FALSE(TellFailure()) << "there is no main window";
  const HWND main = MakeWindow(MainWindowClass);
  const HWND after = MakeWindow(L"TesseraOtherWindow");
  ASSERT_NE(main, nullptr);
  EXPECT_TRUE(TellFailure());
  EXPECT_EQ(FailuresTold(main), 1);
  EXPECT_EQ(FailuresTold(before) + FailuresTold(after), 0);
  for (const HWND window : {before, main, after}) DestroyWindow(window);
  EXPECT_FALSE(TellFailure());
}

}  // namespace
}  // namespace tessera::tell_failure_test
