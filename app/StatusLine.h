// What the line under the panel says.
#pragma once

#include <string>

#include "app/Editor.h"

namespace tessera {

/// The first of these that there is: the composed key and who holds it; why the last save failed;
/// what the last edit, save or open did; while searching, how many commands were found; the
/// description of the selected row. On one line, whatever the texts in it hold.
[[nodiscard]] std::wstring StatusText(const Editor& editor);

/// When screen readers are told what the line says: not while a key is still being composed.
class StatusTelling {
 public:
  /// True for a text that was not told before, unless a modifier is held, or Timer1 is to take its
  /// box yet. It then counts as told.
  [[nodiscard]] bool TakeIfDue(const std::wstring& text, bool modifierHeld, bool timerRuns);

 private:
  std::wstring told_;
};

}  // namespace tessera
