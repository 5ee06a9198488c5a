// The text from which the main toolbar is built.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "localisation/TextId.h"

namespace tessera {

enum class ToolbarStyle { Normal = 0, Check = 1, Separator = 3, DropDown = 5 };

struct ToolbarButton {
  ToolbarStyle Style = ToolbarStyle::Normal;
  std::wstring Key;  ///< in lower case; empty for a separator
  TextId ToolTip = TextId::None;
  int Image = -1;  ///< its place among the images; -1 for a separator

  [[nodiscard]] bool operator==(const ToolbarButton&) const = default;
};

/// `buttons` has one item per button, joined by ",": a digit for the style, then the key. The
/// buttons that are no separators take the text IDs of `tags` in order; one without its tag gets
/// none. A digit that is no style makes a normal button; an empty item is skipped.
[[nodiscard]] std::vector<ToolbarButton> ParseToolbar(std::wstring_view buttons,
                                                      std::wstring_view tags);

}  // namespace tessera
