// One call of the editor for each event. A control of the panel that changes by itself is shown
// anew even where its event is refused.
#include "app/frmWork.h"

namespace tessera {

frmWork::frmWork(Editor& editor, frmViews& views) : editor_(editor), views_(views) {}

frmFindBox::Events frmWork::FindEvents() {
  return {.Search = [this](const std::wstring& text) { Search(text); },
          .SetCanSearch =
              [this](bool canSearch) {
                editor_.Work(&CommandList::SetCanSearch, canSearch);
                views_.Sync();
              },
          .GiveFocusAway = [this] { SetFocus(views_.List().Control()); }};
}

frmCommandList::Events frmWork::ListEvents() {
  return {.SelectRow =
              [this](std::size_t position) {
                if (views_.AcceptsInput()) {
                  editor_.Work(&CommandList::SelectRow, position);
                  views_.SyncKeys();
                }
              },
          .ClickColumn =
              [this](int column) {
                if (views_.AcceptsInput()) {
                  editor_.Work(&CommandList::SortByColumn, column);
                  views_.Sync();
                }
              }};
}

frmPanel::Events frmWork::PanelEvents() {
  return {.SetBox =
              [this](Modifier box, bool checked) {
                if (views_.AcceptsInput()) editor_.Work(&HotkeyPanel::SetBox, box, checked);
                views_.SyncKeys();
              },
          .ChooseKey =
              [this](int index) {
                if (views_.AcceptsInput()) editor_.Work(&HotkeyPanel::ChooseKey, index);
                views_.SyncKeys();
              },
          .ChooserDropsDown =
              [this] {
                editor_.Work(&KeysList::ChooserDropsDown);
                views_.SyncKeys();
              },
          .ToggleKeysList = [this] { ToggleKeysList(); },
          .TimerTick = [this] { OnTimer(); },
          .GiveFocusAway = [this] { SetFocus(views_.List().Control()); }};
}

frmKeysList::Events frmWork::KeysListEvents() {
  return {.Select = [this](int index) { React(editor_.Work(&KeysList::Select, index)); },
          .KeyDown = [this](KeyCode code) { React(editor_.Work(&KeysList::KeyDown, code)); },
          .ReleaseMouse = [this] { editor_.Work(&KeysList::ReleaseMouse); },
          .Close = [this] { React(editor_.Work(&KeysList::KeyDown, KeyCode::Escape)); }};
}

void frmWork::ToggleKeysList() {
  if (views_.AcceptsInput()) React(editor_.Work(&KeysList::ToggleKeysList));
}

void frmWork::HideKeysList() {
  editor_.HideKeysList();
  views_.SyncKeys();
}

void frmWork::Search(const std::wstring& text) {
  if (views_.AcceptsInput()) editor_.Work(&CommandList::Search, text);
  views_.Sync();
  views_.List().ShowSelectedRow();
}

void frmWork::OnTimer() {
  // A released Alt key has put the menu bar into its keyboard mode, where it would take the keys.
  EndMenu();
  React(editor_.Work(&HotkeyPanel::TimerTick));
}

void frmWork::React(const Reaction& reaction) {
  if (reaction.StartTimer) views_.Panel().StartTimer();
  if (reaction.Changed || reaction.Restored) {
    views_.Sync();
  } else {
    views_.SyncKeys();
  }
  if (!views_.AcceptsInput() || reaction.FocusTo == Reaction::Focus::Unchanged) return;
  if (reaction.FocusTo == Reaction::Focus::Chooser) {
    views_.Panel().FocusOnChooser();
  } else {
    SetFocus(views_.List().Control());
  }
}

}  // namespace tessera
