// The calls that fakes received, in their order; fakes that share one log show how calls
// interleave.
#pragma once

#include <string>
#include <vector>

namespace tessera {

using Log = std::vector<std::wstring>;

}  // namespace tessera
