// A step that leaves nothing behind, neither in memory nor otherwise in this process.
#pragma once

#include <functional>

namespace tessera {

/// Runs the step in a copy of this process, and gives its result; false when that process could not
/// be made, or ended before the step did. What the step prints must be flushed by it.
[[nodiscard]] bool RunInOwnProcess(const std::function<bool()>& step);

}  // namespace tessera
