// The state of the panel's controls, and the keyboard of the window.
#include "editing/HotkeyPanel.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "editing/KeyConflicts.h"

namespace tessera {
namespace {

constexpr std::size_t IndexOf(Modifier modifier) { return static_cast<std::size_t>(modifier); }

}  // namespace

HotkeyPanel::HotkeyPanel(Catalogue& catalogue, CommandList& list, HotkeyAssignment& assignment,
                         const HotkeyNotation& notation, const Settings& settings,
                         MessageBoxes& messageBoxes)
    : catalogue_(catalogue),
      list_(list),
      assignment_(assignment),
      notation_(notation),
      settings_(settings),
      messageBoxes_(messageBoxes),
      ModifierToggle_(ToggleResetValues()) {}

HotkeyPanel::PerModifier HotkeyPanel::ToggleResetValues() const {
  return {true, settings_.UseContextMenuKey != 0, true};
}

bool HotkeyPanel::BoxChecked(Modifier box) const { return boxesChecked_[IndexOf(box)]; }

int HotkeyPanel::ChosenKey() const { return chosenKey_; }

bool HotkeyPanel::InputsEnabled() const { return list_.CommandSelected(); }

bool HotkeyPanel::AssignEnabled() const {
  return list_.CommandSelected() && chosenKey_ != NoKeyChosen;
}

bool HotkeyPanel::DeleteEnabled() const { return list_.CommandSelected(); }

bool HotkeyPanel::AddEnabled() const {
  return list_.CommandSelected() &&
         catalogue_.ListView1.Row(list_.SelectedRow()).CurrentKeys != notation_.UndefinedHotkey;
}

std::wstring HotkeyPanel::ComposeKey() const { return ComposeWith(chosenKey_); }

bool HotkeyPanel::IsTaken(int key) const {
  const std::wstring composed = ComposeWith(key);
  const HoldersOfKey holders = catalogue_.ListView1.HoldersOf(composed, notation_);
  return !holders.Currents.empty() || FindStartMenuSlot(catalogue_, composed) != nullptr ||
         !std::ranges::all_of(holders.Defaults, &HoldersOfKey::Default::Overridden);
}

std::wstring HotkeyPanel::ComposeWith(int chosenKey) const {
  const HeldModifiers held{BoxChecked(Modifier::Ctrl), BoxChecked(Modifier::Alt),
                           BoxChecked(Modifier::Shift)};
  const bool isChosen = chosenKey != NoKeyChosen;
  if (!isChosen && held == HeldModifiers{}) {
    return notation_.ApplyReverseOrder(notation_.UndefinedHotkey);
  }
  return notation_.DisplayKey(
      held, isChosen ? KeyVocabulary()[static_cast<std::size_t>(chosenKey)] : L"");
}

bool HotkeyPanel::ContextMenuKeyIsAlt() const {
  return settings_.UseContextMenuKey != 0 && list_.CommandSelected();
}

Reaction HotkeyPanel::SetBox(Modifier box, bool checked) {
  boxesChecked_[IndexOf(box)] = checked;
  return {};
}

Reaction HotkeyPanel::ChooseKey(int index) {
  const bool exists = index >= 0 && static_cast<std::size_t>(index) < KeyVocabulary().size();
  chosenKey_ = exists ? index : NoKeyChosen;
  return {.FollowChooser = true};
}

void HotkeyPanel::ClearModifiers() {
  boxesChecked_.fill(false);
  ModifierToggle_ = ToggleResetValues();
}

Reaction HotkeyPanel::ResetPanel() {
  ClearModifiers();
  pressedWithModifier_ = false;
  chosenKey_ = NoKeyChosen;
  return {.FollowChooser = true, .FocusTo = Reaction::Focus::CommandList, .Handled = true};
}

Reaction HotkeyPanel::Assign() {
  if (!AssignEnabled()) {
    messageBoxes_.Beep();
    return {};
  }
  return {.Changed = assignment_.Assign(list_.SelectedRow(), ComposeKey())};
}

Reaction HotkeyPanel::Add() {
  if (!AssignEnabled() || !AddEnabled()) {
    messageBoxes_.Beep();
    return {};
  }
  return {.Changed = assignment_.Add(list_.SelectedRow(), ComposeKey())};
}

Reaction HotkeyPanel::Delete() {
  if (!list_.CommandSelected()) {
    messageBoxes_.Beep();
    return {};
  }
  return {.Changed = assignment_.Delete(list_.SelectedRow())};
}

Reaction HotkeyPanel::DeleteAll() { return {.Changed = assignment_.DeleteAll()}; }

Reaction HotkeyPanel::KeyDown(const KeyEvent& event) {
  if (!list_.CommandSelected()) return {};
  BeginAnew(event);
  Reaction reaction = Act(event);
  if (!reaction.Handled) reaction.Handled = Take(event);
  return reaction;
}

bool HotkeyPanel::IsModifier(KeyCode code) const {
  const bool usesContextMenuKey = settings_.UseContextMenuKey != 0;
  return code == KeyCode::Ctrl || code == KeyCode::Shift ||
         code == (usesContextMenuKey ? KeyCode::ContextMenu : KeyCode::Alt);
}

// Else a second press of a modifier would take its box away.
void HotkeyPanel::BeginAnew(const KeyEvent& event) {
  if (event.Code == KeyCode::Alt && !event.WasDown) takenWithAlt_ = false;
  if (!pressedWithModifier_) return;
  if (!IsModifier(event.Code)) {
    // Who is faster than the timer is to find the box as it will be.
    if (tick_ == Tick::Due) {
      FlipAlt();
      tick_ = Tick::Stale;
    }
    return;
  }
  const bool otherHeld = (event.CtrlHeld && event.Code != KeyCode::Ctrl) ||
                         (event.AltHeld && event.Code != KeyCode::Alt) ||
                         (event.ShiftHeld && event.Code != KeyCode::Shift);
  if (otherHeld || event.WasDown) return;
  ClearModifiers();
  pressedWithModifier_ = false;
  if (tick_ == Tick::Due) tick_ = Tick::Stale;
}

Reaction HotkeyPanel::Act(const KeyEvent& event) {
  Reaction reaction{.FollowChooser = true};
  const auto press = [&](Modifier box) {
    boxesChecked_[IndexOf(box)] = ModifierToggle_[IndexOf(box)];
    reaction.FocusTo = Reaction::Focus::Chooser;
  };
  if (event.Code == KeyCode::Delete) {
    reaction.Changed = Delete().Changed;
    reaction.Handled = true;
  }
  if (event.CtrlHeld) press(Modifier::Ctrl);
  const bool altPressed =
      settings_.UseContextMenuKey != 0 ? event.Code == KeyCode::ContextMenu : event.AltHeld;
  if (altPressed) {
    press(Modifier::Alt);
    reaction.Handled |= event.Code == KeyCode::ContextMenu;
  }
  if (event.ShiftHeld) press(Modifier::Shift);
  if (event.Code == KeyCode::Enter && chosenKey_ != NoKeyChosen) {
    const bool changed = Assign().Changed;
    reaction = ResetBy(event);
    reaction.Changed = changed;
  }
  if (event.Code == KeyCode::Backspace || event.Code == KeyCode::Escape) reaction = ResetBy(event);
  return reaction;
}

// A modifier that is still held flips its toggle once more when it is released.
Reaction HotkeyPanel::ResetBy(const KeyEvent& event) {
  const bool beginsAnew = pressedWithModifier_ && AnyModifierHeld(event);
  const Reaction reaction = ResetPanel();
  pressedWithModifier_ = beginsAnew;
  return reaction;
}

// One that repeats does nothing more, wherever the focus has gone.
bool HotkeyPanel::Take(const KeyEvent& event) {
  if (event.WasDown) return event.Code == taken_;
  const bool takes = event.Chooses != NoKeyChosen;
  taken_ = takes ? event.Code : KeyCode{};
  if (!takes) return false;
  ChooseKey(event.Chooses);
  pressedWithModifier_ |= AnyModifierHeld(event);
  takenWithAlt_ |= event.AltHeld;
  return true;
}

Reaction HotkeyPanel::KeyUp(const KeyEvent& event) {
  if (!list_.CommandSelected()) return {};
  const auto flip = [this](Modifier box) {
    bool& toggle = ModifierToggle_[IndexOf(box)];
    toggle = !toggle;
  };
  const bool usesContextMenuKey = settings_.UseContextMenuKey != 0;
  Reaction reaction;
  if (event.Code == KeyCode::Ctrl) {
    flip(Modifier::Ctrl);
  } else if (event.Code == KeyCode::ContextMenu && usesContextMenuKey) {
    flip(Modifier::Alt);
    reaction.Handled = true;
  } else if (event.Code == KeyCode::Alt && !usesContextMenuKey) {
    reaction.StartTimer = true;
    tick_ = Tick::Due;
    // The system missed the key in between and would go to the menu bar.
    reaction.Handled = std::exchange(takenWithAlt_, false);
  } else if (event.Code == KeyCode::Shift) {
    flip(Modifier::Shift);
  }
  return reaction;
}

Reaction HotkeyPanel::TimerTick() {
  if (std::exchange(tick_, Tick::None) == Tick::Stale) return {};
  FlipAlt();
  return {.FocusTo = Reaction::Focus::Chooser};
}

void HotkeyPanel::FlipAlt() {
  bool& toggle = ModifierToggle_[IndexOf(Modifier::Alt)];
  toggle = !toggle;
  boxesChecked_[IndexOf(Modifier::Alt)] = toggle;
}

}  // namespace tessera
