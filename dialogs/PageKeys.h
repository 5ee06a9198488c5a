// The keys that turn the pages of a dialog with tabs.
#pragma once

#include <optional>

namespace tessera {

struct PageKey {
  unsigned Code = 0;  ///< any virtual-key code
  bool CtrlHeld = false;
  bool AltHeld = false;
  bool ShiftHeld = false;
};

/// The page that a key press leads to from `page`, both counted from 0: Ctrl+Tab and Ctrl+Page Down
/// go on, Ctrl+Shift+Tab and Ctrl+Page Up back, round from one end to the other. Nothing for other
/// keys.
[[nodiscard]] std::optional<int> PageAfterKey(const PageKey& key, int page, int pages);

}  // namespace tessera
