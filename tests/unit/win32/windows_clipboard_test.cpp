// The clipboard of the real system, free and held by another.
#include <windows.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <thread>

#include "platform/win32/WindowsClipboard.h"

namespace tessera::windows_clipboard_test {
namespace {

class WindowsClipboardTest : public testing::Test {
 protected:
  WindowsClipboardTest() { owner_.SetMain(window_); }
  ~WindowsClipboardTest() override { DestroyWindow(window_); }

  static HWND MakeWindow() {
    return CreateWindowW(L"STATIC", L"", 0, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
  }

  std::wstring ClipboardText() const {
    if (!OpenClipboard(window_)) return L"(cannot be opened)";
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    const auto* text = memory == nullptr ? nullptr : static_cast<wchar_t*>(GlobalLock(memory));
    const std::size_t room = GlobalSize(memory) / sizeof(wchar_t);
    std::wstring copy = text == nullptr ? L"(no text)" : std::wstring(text, wcsnlen(text, room));
    EXPECT_TRUE(text == nullptr || copy.size() < room) << "its end is not marked";
    if (text != nullptr) GlobalUnlock(memory);
    CloseClipboard();
    return copy;
  }

  HWND window_ = MakeWindow();
  OwnerWindow owner_;
  WindowsClipboard clipboard_{owner_};
};

TEST_F(WindowsClipboardTest, TextReplacesWhatWasThere) {
  EXPECT_TRUE(clipboard_.SetText(L"first"));
  EXPECT_EQ(ClipboardText(), L"first");
  clipboard_.SetText(L"a\tb\r\n\x017C\x3042");
  EXPECT_EQ(ClipboardText(), L"a\tb\r\n\x017C\x3042");
}

TEST_F(WindowsClipboardTest, TextAndHtmlAreThereTogetherUntilTheNextText) {
  const UINT htmlFormat = RegisterClipboardFormatW(L"HTML Format");
  EXPECT_TRUE(clipboard_.SetTextAndHtml(L"text", "<b>\xC3\x9C</b>"));
  EXPECT_EQ(ClipboardText(), L"text");
  ASSERT_TRUE(OpenClipboard(window_));
  const HANDLE memory = GetClipboardData(htmlFormat);
  ASSERT_NE(memory, nullptr);
  EXPECT_STREQ(static_cast<const char*>(GlobalLock(memory)), "<b>\xC3\x9C</b>");
  GlobalUnlock(memory);
  CloseClipboard();
  clipboard_.SetText(L"next");
  EXPECT_FALSE(IsClipboardFormatAvailable(htmlFormat));
}

TEST_F(WindowsClipboardTest, AClipboardThatIsHeldForAMomentIsWaitedFor) {
  const HANDLE held = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  std::thread holder([held] {
    const HWND window = MakeWindow();
    const bool opened = OpenClipboard(window) != FALSE;
    SetEvent(held);
    Sleep(300);
    if (opened) CloseClipboard();
    DestroyWindow(window);
    EXPECT_TRUE(opened);
  });
  WaitForSingleObject(held, 5000);
  EXPECT_TRUE(clipboard_.SetText(L"after a wait"));
  holder.join();
  CloseHandle(held);
  EXPECT_EQ(ClipboardText(), L"after a wait");
}

TEST_F(WindowsClipboardTest, AClipboardThatIsHeldForLongIsTold) {
  EXPECT_TRUE(clipboard_.SetText(L"before"));
  const HANDLE held = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  const HANDLE tried = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  std::thread holder([held, tried] {
    const HWND window = MakeWindow();
    EXPECT_TRUE(OpenClipboard(window));
    SetEvent(held);
    WaitForSingleObject(tried, 10000);
    CloseClipboard();
    DestroyWindow(window);
  });
  WaitForSingleObject(held, 5000);
  const std::uint64_t start = GetTickCount64();
  EXPECT_FALSE(clipboard_.SetText(L"never"));
  EXPECT_GE(GetTickCount64() - start, 440U);
  SetEvent(tried);
  holder.join();
  CloseHandle(tried);
  CloseHandle(held);
  EXPECT_EQ(ClipboardText(), L"before");
}

}  // namespace
}  // namespace tessera::windows_clipboard_test
