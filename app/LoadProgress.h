// The progress of a long load: a bar that grows with the work.
#pragma once

#include <functional>

namespace tessera {

class LoadProgress {
 public:
  /// `show` is called when the bar has visibly moved.
  explicit LoadProgress(std::function<void(const LoadProgress&)> show);

  [[nodiscard]] bool Visible() const;
  [[nodiscard]] int Maximum() const;
  [[nodiscard]] int Value() const;

  void Start();
  void Step();
  void Finish();

 private:
  std::function<void(const LoadProgress&)> show_;
  bool visible_ = false;
  int maximum_ = 1500;
  int value_ = 1;
  int shownPercent_ = 0;
};

}  // namespace tessera
