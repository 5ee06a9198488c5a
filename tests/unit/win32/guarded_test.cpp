// Exceptions in window procedures.
#include "platform/win32/Guarded.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tessera::guarded_test {
namespace {

constexpr UINT ThrowingMessage = WM_APP + 100;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return Guarded(window, [&]() -> LRESULT {
    if (message == ThrowingMessage) throw std::runtime_error("on purpose");
    return DefWindowProcW(window, message, wParam, lParam);
  });
}

class GuardedTest : public testing::Test {
 protected:
  GuardedTest() {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.lpszClassName = L"TesseraGuarded";
    RegisterClassW(&windowClass);
    main_ = Make(WS_OVERLAPPEDWINDOW, nullptr);
  }
  ~GuardedTest() override { DestroyWindow(main_); }

  static HWND Make(DWORD style, HWND parent) {
    return CreateWindowW(L"TesseraGuarded", L"", style, 0, 0, 9, 9, parent, nullptr, nullptr,
                         nullptr);
  }

  /// Whether the main window was told of a failure.
  [[nodiscard]] bool IsTold() const {
    MSG message{};
    return PeekMessageW(&message, main_, FailureMessage, FailureMessage, PM_REMOVE) != FALSE;
  }

  HWND main_ = nullptr;
};

TEST_F(GuardedTest, GivesWhatTheProcedureGives) {
  EXPECT_EQ(Guarded(main_, [] { return 7; }), 7);
  EXPECT_FALSE(IsTold());
}

TEST_F(GuardedTest, ExceptionIsToldToTheMainWindowAndGoesNoFurther) {
  EXPECT_EQ(SendMessageW(main_, ThrowingMessage, 0, 0), 0);
  EXPECT_TRUE(IsTold());
  EXPECT_FALSE(IsTold()) << "once";
}

TEST_F(GuardedTest, ExceptionInAControlOfADialogIsToldToItToo) {
  const HWND dialog = Make(WS_POPUP, main_);
  const HWND control = Make(WS_CHILD, dialog);
  SendMessageW(control, ThrowingMessage, 0, 0);
  EXPECT_TRUE(IsTold());
  DestroyWindow(dialog);
}

}  // namespace
}  // namespace tessera::guarded_test
