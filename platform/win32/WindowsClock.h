// The system's time, and this thread's pending messages.
#pragma once

#include <windows.h>

#include <functional>

#include "platform/Clock.h"

namespace tessera {

/// Looks at a message before it is dispatched: keyboard handling of dialogs, accelerators. True
/// when the message has been dealt with.
using MessageFilter = std::function<bool(MSG& message)>;

class WindowsClock final : public Clock {
 public:
  [[nodiscard]] DateAndTime Now() const override;
  [[nodiscard]] float SecondsSinceMidnight() const override;
  [[nodiscard]] std::uint64_t Milliseconds() const override;

  /// Stops at a request to quit, which stays pending for the program's message loop.
  void DoEvents() override;
  void Sleep(int milliseconds) override;

  void SetMessageFilter(MessageFilter filter);

 private:
  MessageFilter filter_;
};

}  // namespace tessera
