// What the keys do while the find box has the focus.
#pragma once

#include "editing/PressedKey.h"

namespace tessera {

enum class FindBoxKey {
  IsElsewhere,  ///< the box has nothing to do with it
  ForBox,       ///< for it alone: nothing else in the window may see it
  MovesFocus,   ///< to the next or former control
  EmptiesBox,
  GoesToList,
  DoesNothing,
};

class FindBoxKeys {
 public:
  /// To be asked about each press and release in the main window, in their order.
  [[nodiscard]] FindBoxKey Take(const KeyPress& press, bool pressed, bool boxIsEmpty);

 private:
  KeyCode done_{};  ///< a key that has done its work, until another press
};

}  // namespace tessera
