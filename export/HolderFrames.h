// How holders of keys are named on the page: what stands around a name.
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

/// By kind of holder.
class HolderFrames {
 public:
  explicit HolderFrames(const Texts& texts);

  [[nodiscard]] const HolderFrame& Of(HolderKind kind) const {
    return frames_[static_cast<std::size_t>(kind)];
  }

 private:
  std::array<HolderFrame, 4> frames_;
};

}  // namespace tessera
