// Time, and the messages that are handled while a long operation runs.
#include <gtest/gtest.h>

#include <vector>

#include "platform/win32/WindowsClock.h"

namespace tessera::windows_clock_test {
namespace {

constexpr UINT FirstMessage = WM_APP + 1;
constexpr UINT SecondMessage = WM_APP + 2;

TEST(WindowsClock, SecondsSinceMidnightFollowTheLocalTime) {
  const WindowsClock clock;
  SYSTEMTIME now{};
  GetLocalTime(&now);
  const float seconds = clock.SecondsSinceMidnight();
  const auto expected = static_cast<float>((now.wHour * 60 + now.wMinute) * 60 + now.wSecond);
  if (seconds < expected) {
    GTEST_SKIP() << "midnight passed just now";
  }
  EXPECT_LT(seconds - expected, 5.0F);
}

TEST(WindowsClock, DateAndTimeAreLocal) {
  SYSTEMTIME before{};
  GetLocalTime(&before);
  const DateAndTime now = WindowsClock().Now();
  if (now.Day != before.wDay) {
    GTEST_SKIP() << "midnight passed just now";
  }
  EXPECT_EQ(now.Year, before.wYear);
  EXPECT_EQ(now.Month, before.wMonth);
  const int start = (before.wHour * 60 + before.wMinute) * 60 + before.wSecond;
  const int seconds = (now.Hour * 60 + now.Minute) * 60 + now.Second - start;
  EXPECT_GE(seconds, 0);
  EXPECT_LT(seconds, 5);
}

TEST(WindowsClock, FilterSeesPendingMessagesInOrder) {
  WindowsClock clock;
  std::vector<UINT> seen;
  clock.SetMessageFilter([&](MSG& message) {
    seen.push_back(message.message);
    return true;
  });
  PostThreadMessageW(GetCurrentThreadId(), FirstMessage, 0, 0);
  PostThreadMessageW(GetCurrentThreadId(), SecondMessage, 0, 0);
  clock.DoEvents();
  EXPECT_EQ(seen, (std::vector<UINT>{FirstMessage, SecondMessage}));
}

TEST(WindowsClock, RequestToQuitStaysPending) {
  WindowsClock clock;
  PostQuitMessage(42);
  clock.DoEvents();
  MSG message{};
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 42U);
}

}  // namespace
}  // namespace tessera::windows_clock_test
