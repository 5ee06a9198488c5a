// Waiting for a condition, never for a time: every wait ends as soon as what it waits for holds.
#pragma once

#include <windows.h>

#include <chrono>
#include <stdexcept>
#include <string>

namespace tessera::e2e {

inline constexpr std::chrono::seconds UsualLimit{10};

/// Looks at `condition` until its result is true, and gives that result. Throws std::runtime_error
/// with `what` in its text when that takes longer than `limit`.
/// `pause` is the time between two looks, in milliseconds.
template <typename Condition>
auto WaitFor(const std::string& what, Condition condition,
             std::chrono::milliseconds limit = UsualLimit, DWORD pause = 10) {
  const auto end = std::chrono::steady_clock::now() + limit;
  for (;;) {
    auto result = condition();
    if (result) return result;
    if (std::chrono::steady_clock::now() >= end) {
      throw std::runtime_error("Waited " + std::to_string(limit.count()) + " ms in vain for " +
                               what);
    }
    Sleep(pause);
  }
}

}  // namespace tessera::e2e
