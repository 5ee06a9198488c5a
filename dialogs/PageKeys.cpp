// As the dialogs of the system have them.
#include "dialogs/PageKeys.h"

namespace tessera {
namespace {

constexpr unsigned Tab = 9;
constexpr unsigned PageUp = 33;
constexpr unsigned PageDown = 34;

/// 1 or -1; 0 for other keys.
int StepOf(const PageKey& key) {
  if (!key.CtrlHeld || key.AltHeld) return 0;
  if (key.Code == Tab) return key.ShiftHeld ? -1 : 1;
  if (key.ShiftHeld) return 0;
  return key.Code == PageDown ? 1 : key.Code == PageUp ? -1 : 0;
}

}  // namespace

std::optional<int> PageAfterKey(const PageKey& key, int page, int pages) {
  const int step = StepOf(key);
  if (step == 0 || pages <= 0) return std::nullopt;
  return (page + step + pages) % pages;
}

}  // namespace tessera
