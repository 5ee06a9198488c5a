// A clock that a test sets; time passes only in sleeps and by a scripted step per reading.
#pragma once

#include <functional>
#include <string>

#include "platform/Clock.h"
#include "tests/support/Log.h"

namespace tessera {

class FakeClock final : public Clock {
 public:
  FakeClock() = default;
  explicit FakeClock(Log& log) : log_(&log) {}

  mutable float Seconds = 36000;  ///< since midnight
  float StepPerReading = 0;       ///< seconds that pass after each reading
  int SleptMilliseconds = 0;      ///< in total
  int SleepCount = 0;
  int DoEventsCount = 0;
  std::function<void()> OnDoEvents;

  [[nodiscard]] float SecondsSinceMidnight() const override {
    const float now = Seconds;
    Seconds += StepPerReading;
    return now;
  }

  void DoEvents() override {
    ++DoEventsCount;
    if (log_ != nullptr && (log_->empty() || log_->back() != L"DoEvents"))
      log_->push_back(L"DoEvents");  // one entry for calls in a row
    if (OnDoEvents) OnDoEvents();
  }

  void Sleep(int milliseconds) override {
    ++SleepCount;
    SleptMilliseconds += milliseconds;
    Seconds += static_cast<float>(milliseconds) / 1000.0F;
  }

 private:
  Log* log_ = nullptr;
};

}  // namespace tessera
