// What is done to the rows: selecting, ordering, and giving and taking keys.
#include "app/Editor.h"

namespace tessera {

void Editor::SelectRow(std::size_t position) {
  if (!busy_ && position < catalogue_.ListView1.Count()) {
    list_.ShowRowDetails(catalogue_.ListView1.At(position).Key);
    keysList_.Hide();
  }
}

void Editor::ClickColumn(int column) {
  if (!busy_) {
    list_.SortByColumn(column);
  }
}

void Editor::SetBox(Modifier box, bool checked) {
  if (!busy_) {
    panel_.SetBox(box, checked);
  }
}

void Editor::ChooseKey(int index) {
  if (!busy_) {
    panel_.ChooseKey(index);
    keysList_.FollowChooser();
  }
}

void Editor::AssignKey() { Edit(&HotkeyPanel::Assign); }

void Editor::AddKey() { Edit(&HotkeyPanel::Add); }

void Editor::DeleteKeys() { Edit(&HotkeyPanel::Delete); }

void Editor::DeleteAllKeys() { Edit(&HotkeyPanel::DeleteAll); }

PanelReaction Editor::KeyDown(const KeyEvent& event) {
  if (busy_) {
    return {};
  }
  const PanelReaction reaction = panel_.KeyDown(event);
  keysList_.FollowChooser();
  if (reaction.Changed) {
    SetModified(true);
  }
  return reaction;
}

PanelReaction Editor::KeyUp(const KeyEvent& event) {
  return busy_ ? PanelReaction{} : panel_.KeyUp(event);
}

PanelReaction Editor::TimerTick() { return busy_ ? PanelReaction{} : panel_.TimerTick(); }

PanelReaction Editor::ToggleKeysList() {
  return busy_ || !panel_.InputsEnabled() ? PanelReaction{} : keysList_.ToggleKeysList();
}

PanelReaction Editor::SelectInKeysList(int index) {
  return busy_ ? PanelReaction{} : keysList_.Select(index);
}

PanelReaction Editor::KeyDownInKeysList(KeyCode code) {
  return busy_ ? PanelReaction{} : keysList_.KeyDown(code);
}

void Editor::ReleaseMouseInKeysList() { keysList_.ReleaseMouse(); }

void Editor::ChooserDropsDown() { keysList_.ChooserDropsDown(); }

void Editor::Edit(bool (HotkeyPanel::*edit)()) {
  if (!busy_ && (panel_.*edit)()) {
    SetModified(true);
  }
}

}  // namespace tessera
