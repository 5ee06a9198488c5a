// Time, and the messages that are handled while a long operation runs.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "platform/win32/WindowsClock.h"

namespace tessera::windows_clock_test {
namespace {

constexpr UINT FirstMessage = WM_APP + 1;
constexpr UINT SecondMessage = WM_APP + 2;

SYSTEMTIME LocalTime() {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return now;
}

/// Whole ones, since midnight.
float SecondsOf(const SYSTEMTIME& time) {
  return static_cast<float>((time.wHour * 60 + time.wMinute) * 60 + time.wSecond);
}

TEST(WindowsClock, SecondsSinceMidnightFollowTheLocalTime) {
  const SYSTEMTIME before = LocalTime();
  const float seconds = WindowsClock().SecondsSinceMidnight();
  const SYSTEMTIME after = LocalTime();
  if (after.wDay != before.wDay) {
    GTEST_SKIP() << "midnight passed just now";
  }
  EXPECT_GE(seconds, SecondsOf(before));
  EXPECT_LE(seconds, SecondsOf(after) + 1);  // a float may be rounded up to it
}

TEST(WindowsClock, DateAndTimeAreLocal) {
  const SYSTEMTIME before = LocalTime();
  const DateAndTime now = WindowsClock().Now();
  const SYSTEMTIME after = LocalTime();
  if (after.wDay != before.wDay) {
    GTEST_SKIP() << "midnight passed just now";
  }
  EXPECT_EQ(now.Year, before.wYear);
  EXPECT_EQ(now.Month, before.wMonth);
  EXPECT_EQ(now.Day, before.wDay);
  const auto seconds = static_cast<float>((now.Hour * 60 + now.Minute) * 60 + now.Second);
  EXPECT_GE(seconds, SecondsOf(before));
  EXPECT_LE(seconds, SecondsOf(after));
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

std::vector<UINT> arrived;

LRESULT CALLBACK NoteMessages(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  arrived.push_back(message);
  return DefWindowProcW(window, message, wParam, lParam);
}

TEST(WindowsClock, WhatTheFilterLeavesReachesItsWindow) {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = NoteMessages;
  windowClass.lpszClassName = L"TesseraClockTest";
  ASSERT_NE(RegisterClassW(&windowClass), 0);
  const HWND window = CreateWindowW(L"TesseraClockTest", L"", WS_POPUP, 0, 0, 9, 9, nullptr,
                                    nullptr, nullptr, nullptr);
  WindowsClock clock;
  for (const bool filtered : {false, true}) {
    if (filtered) clock.SetMessageFilter([](const MSG&) { return false; });
    arrived.clear();
    PostMessageW(window, FirstMessage, 0, 0);
    PostMessageW(window, WM_KEYDOWN, 'A', 1);
    clock.DoEvents();
    EXPECT_EQ(std::ranges::count(arrived, FirstMessage), 1);
    EXPECT_EQ(std::ranges::count(arrived, UINT{WM_CHAR}), 1) << "keys give characters";
  }
  DestroyWindow(window);
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
