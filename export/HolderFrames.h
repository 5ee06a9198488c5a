// How keys and their holders are named on the page: what stands around a name.
#pragma once

#include <array>
#include <string>

#include "export/KeyUses.h"
#include "localisation/Texts.h"

namespace tessera {

/// In HTML.
struct HolderFrame {
  std::string Before;
  std::string After;
};

class HolderFrames {
 public:
  explicit HolderFrames(const Texts& texts);

  /// Around a key that is free.
  [[nodiscard]] const HolderFrame& Free() const { return free_; }

  [[nodiscard]] const HolderFrame& Of(HolderKind kind) const {
    return frames_[static_cast<std::size_t>(kind)];
  }

 private:
  HolderFrame free_;
  std::array<HolderFrame, 4> frames_;
};

}  // namespace tessera
