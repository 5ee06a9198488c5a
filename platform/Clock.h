// The time of day, and letting the window live while a long operation runs.
#pragma once

#include <cstdint>

namespace tessera {

class Clock {
 public:
  virtual ~Clock() = default;

  /// Seconds since midnight, local time.
  [[nodiscard]] virtual float SecondsSinceMidnight() const = 0;

  /// Milliseconds since some moment; never goes back, whatever is done to the time of day.
  [[nodiscard]] virtual std::uint64_t Milliseconds() const = 0;

  /// Handles the window events that are pending, and returns when there are none left.
  virtual void DoEvents() = 0;

  /// Sleeps; no events are handled meanwhile.
  virtual void Sleep(int milliseconds) = 0;
};

}  // namespace tessera
