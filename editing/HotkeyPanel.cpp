// The state of the panel's controls, and the keyboard of the window.
#include "editing/HotkeyPanel.h"

#include <optional>

namespace tessera {

namespace {

constexpr int Ctrl = 0;
constexpr int Alt = 1;
constexpr int Shift = 2;

std::array<bool, 3> ToggleResetValues(const Settings& settings) {
  return {true, settings.UseContextMenuKey != 0, true};
}

}  // namespace

HotkeyPanel::HotkeyPanel(Catalogue& catalogue, CommandList& list, HotkeyAssignment& assignment,
                         const HotkeyNotation& notation, const Settings& settings,
                         MessageBoxes& boxes)
    : catalogue_(catalogue),
      list_(list),
      assignment_(assignment),
      notation_(notation),
      settings_(settings),
      boxes_(boxes),
      modifierToggle_(ToggleResetValues(settings)) {}

bool HotkeyPanel::BoxChecked(int box) const {
  return boxesChecked_.at(static_cast<std::size_t>(box));
}

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

std::wstring HotkeyPanel::ComposeKey() const {
  const std::array<const std::wstring*, 3> names{&notation_.CtrlName, &notation_.AltName,
                                                 &notation_.ShiftName};
  std::wstring key;
  for (std::size_t box = 0; box < names.size(); ++box) {
    if (boxesChecked_[box]) {
      key += *names[box] + L" + ";
    }
  }
  if (chosenKey_ != NoKeyChosen) {
    key += WithNum(KeyVocabulary()[static_cast<std::size_t>(chosenKey_)]);
  }
  return notation_.ApplyReverseOrder(key.empty() ? notation_.UndefinedHotkey : key);
}

void HotkeyPanel::SetBox(int box, bool checked) {
  boxesChecked_.at(static_cast<std::size_t>(box)) = checked;
}

void HotkeyPanel::ChooseKey(int index) {
  const bool exists = index >= 0 && static_cast<std::size_t>(index) < KeyVocabulary().size();
  chosenKey_ = exists ? index : NoKeyChosen;
}

PanelReaction HotkeyPanel::ResetPanel() {
  boxesChecked_.fill(false);
  modifierToggle_ = ToggleResetValues(settings_);
  chosenKey_ = NoKeyChosen;
  return {.FocusTo = PanelReaction::Focus::CommandList, .Handled = true};
}

bool HotkeyPanel::Assign() {
  if (!AssignEnabled()) {
    boxes_.Beep();
    return false;
  }
  return assignment_.Assign(list_.SelectedRow(), ComposeKey());
}

bool HotkeyPanel::Add() {
  if (!AssignEnabled() || !AddEnabled()) {
    boxes_.Beep();
    return false;
  }
  return assignment_.Add(list_.SelectedRow(), ComposeKey());
}

bool HotkeyPanel::Delete() {
  if (!list_.CommandSelected()) {
    boxes_.Beep();
    return false;
  }
  return assignment_.Delete(list_.SelectedRow());
}

bool HotkeyPanel::DeleteAll() { return assignment_.DeleteAll(); }

PanelReaction HotkeyPanel::KeyDown(const KeyEvent& event) {
  if (!list_.CommandSelected()) {
    return {};
  }
  PanelReaction reaction;
  const auto press = [&](int box) {
    boxesChecked_[static_cast<std::size_t>(box)] = modifierToggle_[static_cast<std::size_t>(box)];
    reaction.FocusTo = PanelReaction::Focus::Chooser;
  };
  if (event.Code == KeyCode::Delete) {
    reaction.Changed = Delete();
    reaction.Handled = true;
  }
  if (event.CtrlHeld) {
    press(Ctrl);
  }
  const bool altPressed =
      settings_.UseContextMenuKey != 0 ? event.Code == KeyCode::ContextMenu : event.AltHeld;
  if (altPressed) {
    press(Alt);
    reaction.Handled |= event.Code == KeyCode::ContextMenu;
  }
  if (event.ShiftHeld) {
    press(Shift);
  }
  if (event.Code == KeyCode::Enter && chosenKey_ != NoKeyChosen) {
    const bool changed = Assign();
    reaction = ResetPanel();
    reaction.Changed = changed;
  }
  if (event.Code == KeyCode::Backspace || event.Code == KeyCode::Escape) {
    reaction = ResetPanel();
  }
  return reaction;
}

PanelReaction HotkeyPanel::KeyUp(const KeyEvent& event) {
  if (!list_.CommandSelected()) {
    return {};
  }
  const auto flip = [this](int box) {
    bool& toggle = modifierToggle_[static_cast<std::size_t>(box)];
    toggle = !toggle;
  };
  const bool usesContextMenuKey = settings_.UseContextMenuKey != 0;
  PanelReaction reaction;
  if (event.Code == KeyCode::Ctrl) {
    flip(Ctrl);
  } else if (event.Code == KeyCode::ContextMenu && usesContextMenuKey) {
    flip(Alt);
    reaction.Handled = true;
  } else if (event.Code == KeyCode::Alt && !usesContextMenuKey) {
    reaction.StartTimer = true;
  } else if (event.Code == KeyCode::Shift) {
    flip(Shift);
  }
  return reaction;
}

PanelReaction HotkeyPanel::TimerTick() {
  modifierToggle_[Alt] = !modifierToggle_[Alt];
  boxesChecked_[Alt] = modifierToggle_[Alt];
  return {.FocusTo = PanelReaction::Focus::Chooser};
}

}  // namespace tessera
