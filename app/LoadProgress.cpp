// A progress bar that starts with room for 1500 steps and makes more as they are needed.
#include "app/LoadProgress.h"

#include <utility>

namespace tessera {
namespace {

constexpr int FirstMaximum = 1500;
constexpr int FirstValue = 1;
constexpr int MoreRoom = 300;

/// A load of more steps than the bar can count leaves it where it is.
constexpr int LastMaximum = 2000000000;

constexpr float SecondsBetweenEvents = 0.05F;

/// To ask for the time at each step would take longer than the work itself.
constexpr unsigned StepsBetweenLooks = 16;

}  // namespace

LoadProgress::LoadProgress(Clock& clock, std::function<void(const LoadProgress&)> show)
    : clock_(clock), show_(std::move(show)) {}

bool LoadProgress::Visible() const { return visible_; }

int LoadProgress::Maximum() const { return maximum_; }

int LoadProgress::Value() const { return value_; }

void LoadProgress::Start() {
  visible_ = true;
  maximum_ = FirstMaximum;
  value_ = FirstValue;
  handledAt_ = clock_.SecondsSinceMidnight();
  show_(*this);
}

void LoadProgress::Step() {
  if (++steps_ % StepsBetweenLooks == 0) ShowWhenDue();
  if (maximum_ >= LastMaximum) return;
  ++value_;
  if (value_ > FirstMaximum) maximum_ += MoreRoom;
}

void LoadProgress::Finish() {
  visible_ = false;
  show_(*this);
}

void LoadProgress::ShowWhenDue() {
  const float elapsed = clock_.SecondsSinceMidnight() - handledAt_;
  // Less than none: midnight has passed.
  if (elapsed < SecondsBetweenEvents && elapsed >= 0) return;
  show_(*this);
  clock_.DoEvents();
  handledAt_ = clock_.SecondsSinceMidnight();
}

}  // namespace tessera
