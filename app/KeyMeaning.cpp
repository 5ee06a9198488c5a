// The chooser's own list comes before the panel, and the panel before everything else.
#include "app/KeyMeaning.h"

namespace tessera {

KeyMeaning MeaningOf(KeyCode code, bool pressed, const ChooserState& chooser) {
  const bool closesChooser = code == KeyCode::Enter || code == KeyCode::Escape;
  if (closesChooser && chooser.Open) return KeyMeaning::ForControl;
  const bool atClosedChooser = chooser.HasFocus && !chooser.Open;
  return pressed && code == KeyCode::Right && atClosedChooser ? KeyMeaning::OpensKeysList
                                                              : KeyMeaning::ForPanel;
}

}  // namespace tessera
