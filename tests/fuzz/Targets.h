// What the fuzzers call: each target reads any bytes and throws when a rule is broken. A unit test
// replays what they found.
#pragma once

#include <span>
#include <string_view>

namespace tessera::fuzz {

struct Target {
  std::string_view Name;  ///< of its folder in tests/fuzz/corpus
  void (*Run)(std::string_view bytes);
};

[[nodiscard]] std::span<const Target> Targets();

}  // namespace tessera::fuzz
