// The time of day, and letting the window live while a long operation runs.
#pragma once

#include <cstdint>

namespace tessera {

struct DateAndTime {
  int Year = 0;
  int Month = 0;  ///< from 1, as is the day
  int Day = 0;
  int Hour = 0;
  int Minute = 0;
  int Second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;

  /// Local date and time.
  [[nodiscard]] virtual DateAndTime Now() const = 0;

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
