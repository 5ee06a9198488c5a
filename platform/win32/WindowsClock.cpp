// Messages are handled as the program's own message loop handles them.
#include "platform/win32/WindowsClock.h"

#include <utility>

namespace tessera {

DateAndTime WindowsClock::Now() const {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

float WindowsClock::SecondsSinceMidnight() const {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  const int milliseconds =
      ((now.wHour * 60 + now.wMinute) * 60 + now.wSecond) * 1000 + now.wMilliseconds;
  return static_cast<float>(milliseconds / 1000.0);
}

std::uint64_t WindowsClock::Milliseconds() const { return GetTickCount64(); }

void WindowsClock::DoEvents() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (filter_ && filter_(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void WindowsClock::Sleep(int milliseconds) { ::Sleep(static_cast<DWORD>(milliseconds)); }

void WindowsClock::SetMessageFilter(MessageFilter filter) { filter_ = std::move(filter); }

}  // namespace tessera
