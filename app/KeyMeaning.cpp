// The chooser's own list comes before the panel, and the panel before everything else.
#include "app/KeyMeaning.h"

#include <algorithm>

namespace tessera {
namespace {

/// A key that opens something at one place, by itself.
struct Opener {
  KeyCode Code{};
  FocusPlace Focus{};
  KeyMeaning Meaning{};
};

constexpr Opener Openers[] = {
    {KeyCode::F1, FocusPlace::CommandList, KeyMeaning::OpensHelp},
    {KeyCode::Down, FocusPlace::Toolbar, KeyMeaning::OpensButtonMenu},
};

}  // namespace

KeyMeaning MeaningOf(const KeyPress& press, bool pressed) {
  const KeyEvent& event = press.Event;
  if (press.Focus == FocusPlace::TextBox) return KeyMeaning::ForControl;
  const auto* const opener = std::ranges::find_if(Openers, [&](const Opener& each) {
    return each.Code == event.Code && each.Focus == press.Focus;
  });
  const bool opens = pressed && !event.WasDown && !AnyModifierHeld(event);
  if (opens && opener != std::end(Openers)) return opener->Meaning;
  const bool closesChooser = event.Code == KeyCode::Enter || event.Code == KeyCode::Escape;
  if (closesChooser && press.ChooserOpen) return KeyMeaning::ForControl;
  const bool atClosedChooser = press.Focus == FocusPlace::Chooser && !press.ChooserOpen;
  return pressed && event.Code == KeyCode::Right && atClosedChooser ? KeyMeaning::OpensKeysList
                                                                    : KeyMeaning::ForPanel;
}

bool PressesFocusedButton(const KeyEvent& event) {
  return event.Code == KeyCode::Enter && !event.WasDown && !AnyModifierHeld(event);
}

}  // namespace tessera
