// A clock that a test sets; time passes only in sleeps and by a scripted step per reading.
#pragma once

#include <cmath>
#include <functional>
#include <string>

#include "platform/Clock.h"
#include "tests/support/Log.h"

namespace tessera {

class FakeClock final : public Clock {
 public:
  FakeClock() = default;
  explicit FakeClock(Log& log) : log_(&log) {}

  DateAndTime Today{2026, 3, 7, 9, 5, 0};  ///< stands still
  mutable double Seconds = 36000;          ///< since the first midnight
  double SetBackBy = 0;                    ///< seconds that the time of day was set back by
  float StepPerReading = 0;                ///< seconds that pass after each reading
  int SleptMilliseconds = 0;               ///< in total
  int SleepCount = 0;
  int DoEventsCount = 0;
  std::function<void()> OnDoEvents;

  [[nodiscard]] DateAndTime Now() const override { return Today; }

  [[nodiscard]] float SecondsSinceMidnight() const override {
    constexpr double SecondsPerDay = 86400;
    const double now = std::fmod(Seconds - SetBackBy, SecondsPerDay);
    Seconds += StepPerReading;
    return static_cast<float>(now);
  }

  [[nodiscard]] std::uint64_t Milliseconds() const override {
    return static_cast<std::uint64_t>(std::llround(Seconds * 1000));
  }

  void DoEvents() override {
    ++DoEventsCount;
    if (log_ != nullptr && (log_->empty() || log_->back() != L"DoEvents")) {
      log_->push_back(L"DoEvents");  // one entry for calls in a row
    }
    if (OnDoEvents) OnDoEvents();
  }

  void Sleep(int milliseconds) override {
    ++SleepCount;
    SleptMilliseconds += milliseconds;
    Seconds += milliseconds / 1000.0;
  }

 private:
  Log* log_ = nullptr;
};

}  // namespace tessera
