// The progress of a long load: a bar that grows with the work.
#pragma once

#include <functional>

#include "platform/Clock.h"
#include "platform/Pinned.h"

namespace tessera {

class LoadProgress : Pinned {
 public:
  /// `show` is called at the start, at the end, and between them every 50 milliseconds. Then events
  /// are handled too: a short load has no time for them.
  LoadProgress(Clock& clock, std::function<void(const LoadProgress&)> show);

  [[nodiscard]] bool Visible() const;
  [[nodiscard]] int Maximum() const;
  [[nodiscard]] int Value() const;

  void Start();
  void Step();
  void Finish();

 private:
  void ShowWhenDue();

  Clock& clock_;
  std::function<void(const LoadProgress&)> show_;
  bool visible_ = false;
  int maximum_ = 0;
  int value_ = 0;
  unsigned steps_ = 0;
  float handledAt_ = 0;  ///< when events were last; seconds since midnight
};

}  // namespace tessera
