// Two tests repeat what they do; how often is asked of the environment.
#pragma once

#include <cstdlib>
#include <string_view>

namespace tessera::e2e {

/// True when TESSERA_LONG is 1.
[[nodiscard]] inline bool LongRun() {
  const char* const value = std::getenv("TESSERA_LONG");
  return value != nullptr && std::string_view(value) == "1";
}

}  // namespace tessera::e2e
