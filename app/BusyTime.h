// The time in which commands and edits do nothing.
#pragma once

namespace tessera {

/// Sets a flag for as long as it lives: its end may be an exception.
class BusyTime {
 public:
  explicit BusyTime(bool& busy) : busy_(busy) { busy_ = true; }
  ~BusyTime() { busy_ = false; }
  BusyTime(const BusyTime&) = delete;
  BusyTime& operator=(const BusyTime&) = delete;

 private:
  bool& busy_;
};

}  // namespace tessera
