// The keys list's two flags.
#include "editing/KeysList.h"

namespace tessera {

KeysList::KeysList(HotkeyPanel& panel) : panel_(panel) {}

bool KeysList::Visible() const { return visible_; }

int KeysList::Selection() const { return selection_; }

bool KeysList::PanelToolbarEnabled() const { return panelToolbarEnabled_; }

PanelReaction KeysList::ToggleKeysList() {
  if (visible_) {
    return CloseKeysList();
  }
  FollowChooser();
  visible_ = true;
  panelToolbarEnabled_ = false;
  return {};
}

PanelReaction KeysList::CloseKeysList() {
  Hide();
  return {.FocusTo = PanelReaction::Focus::Chooser, .Handled = true};
}

void KeysList::Hide() {
  visible_ = false;
  panelToolbarEnabled_ = true;
}

void KeysList::FollowChooser() {
  suppressClick_ = true;
  Select(panel_.ChosenKey());
  suppressClick_ = false;
}

void KeysList::ChooserDropsDown() {
  suppressClick_ = false;
  panelToolbarEnabled_ = true;
}

PanelReaction KeysList::Select(int index) {
  selection_ = index;
  if (suppressClick_ || !acceptClick_) {
    return {};
  }
  panel_.ChooseKey(index);
  FollowChooser();
  return CloseKeysList();
}

void KeysList::ReleaseMouse() { acceptClick_ = true; }

PanelReaction KeysList::KeyDown(KeyCode code) {
  if (code == KeyCode::Escape) {
    return CloseKeysList();
  }
  acceptClick_ = code == KeyCode::Enter || code == KeyCode::Space;
  return acceptClick_ ? Select(selection_) : PanelReaction{};
}

}  // namespace tessera
