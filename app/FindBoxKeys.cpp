// A key that is held goes on repeating where the focus has gone, and must not assign anything
// there.
#include "app/FindBoxKeys.h"

namespace tessera {
namespace {

FindBoxKey MeaningInBox(const KeyEvent& event, bool pressed, bool boxIsEmpty) {
  using enum FindBoxKey;
  if (event.Code == KeyCode::Tab) return MovesFocus;
  if (!pressed || AnyModifierHeld(event)) return ForBox;
  switch (event.Code) {
    case KeyCode::Down:
    case KeyCode::Enter:
      return GoesToList;
    case KeyCode::Escape:
      return boxIsEmpty ? GoesToList : EmptiesBox;
    default:
      return ForBox;
  }
}

}  // namespace

FindBoxKey FindBoxKeys::Take(const KeyPress& press, bool pressed, bool boxIsEmpty) {
  const KeyEvent& event = press.Event;
  if (pressed && event.WasDown && event.Code == done_) return FindBoxKey::DoesNothing;
  if (pressed) done_ = {};
  if (press.Focus != FocusPlace::TextBox) return FindBoxKey::IsElsewhere;
  const FindBoxKey meaning = MeaningInBox(event, pressed, boxIsEmpty);
  const bool isDone = meaning == FindBoxKey::GoesToList || meaning == FindBoxKey::EmptiesBox;
  // Down may go on through the list.
  if (isDone && event.Code != KeyCode::Down) done_ = event.Code;
  return meaning;
}

}  // namespace tessera
