// What fits on a drawn key.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

struct LabelRoom {
  int Width = 0;  ///< of a line, in hundredths of the font's size
  std::size_t Lines = 0;
};

/// The name of a command without its "cm_" or "em_", parted where words begin. What does not fit is
/// left out, and an ellipsis tells so.
[[nodiscard]] std::vector<std::wstring> LabelLines(std::wstring_view name, const LabelRoom& room);

}  // namespace tessera
