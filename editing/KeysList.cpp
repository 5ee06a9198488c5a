// When a selection is a choice.
#include "editing/KeysList.h"

namespace tessera {

KeysList::KeysList(HotkeyPanel& panel) : panel_(panel) {}

bool KeysList::Visible() const { return visible_; }

int KeysList::Selection() const { return moved_.value_or(panel_.ChosenKey()); }

std::vector<bool> KeysList::TakenKeys() const {
  std::vector<bool> taken;
  for (std::size_t key = 0; key < KeyVocabulary().size(); ++key) {
    taken.push_back(panel_.IsTaken(static_cast<int>(key)));
  }
  return taken;
}

bool KeysList::PanelToolbarEnabled() const { return panelToolbarEnabled_; }

Reaction KeysList::ToggleKeysList() {
  if (!panel_.InputsEnabled()) return {};
  if (visible_) return CloseKeysList();
  FollowChooser();
  visible_ = true;
  panelToolbarEnabled_ = false;
  return {};
}

Reaction KeysList::CloseKeysList() {
  Hide();
  return {.FocusTo = Reaction::Focus::Chooser, .Handled = true};
}

void KeysList::Hide() {
  visible_ = false;
  panelToolbarEnabled_ = true;
}

void KeysList::FollowChooser() { moved_.reset(); }

Reaction KeysList::ChooserDropsDown() {
  panelToolbarEnabled_ = true;
  return {};
}

Reaction KeysList::Select(int index) {
  if (!AcceptClick_) {
    moved_ = index;
    return {};
  }
  panel_.ChooseKey(index);
  FollowChooser();
  return CloseKeysList();
}

Reaction KeysList::ReleaseMouse() {
  AcceptClick_ = true;
  return {};
}

Reaction KeysList::KeyDown(KeyCode code) {
  if (code == KeyCode::Escape) return CloseKeysList();
  AcceptClick_ = code == KeyCode::Enter || code == KeyCode::Space;
  return AcceptClick_ ? Select(Selection()) : Reaction{};
}

}  // namespace tessera
