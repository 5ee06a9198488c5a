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

int PercentOf(int value, int maximum) { return value / (maximum / 100); }

}  // namespace

LoadProgress::LoadProgress(std::function<void(const LoadProgress&)> show)
    : show_(std::move(show)) {}

bool LoadProgress::Visible() const { return visible_; }

int LoadProgress::Maximum() const { return maximum_; }

int LoadProgress::Value() const { return value_; }

void LoadProgress::Start() {
  visible_ = true;
  maximum_ = FirstMaximum;
  value_ = FirstValue;
  shownPercent_ = 0;
  show_(*this);
}

void LoadProgress::Step() {
  if (maximum_ >= LastMaximum) {
    return;
  }
  ++value_;
  if (value_ > FirstMaximum) {
    maximum_ += MoreRoom;
  }
  // Showing every step would take longer than the work itself.
  if (const int percent = PercentOf(value_, maximum_); percent != shownPercent_) {
    shownPercent_ = percent;
    show_(*this);
  }
}

void LoadProgress::Finish() {
  visible_ = false;
  show_(*this);
}

}  // namespace tessera
