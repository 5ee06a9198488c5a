// What the user does, as calls of the editor, and the dialogs.
#include "app/frmMain.h"

namespace tessera {

frmFindBox::Events frmMain::FindEvents() {
  return {.Search = [this](const std::wstring& text) { Search(text); },
          .SetCanSearch =
              [this](bool canSearch) {
                editor_.Work(&CommandList::SetCanSearch, canSearch);
                views_.Sync();
              },
          .GiveFocusAway = [this] { SetFocus(views_.List().Control()); }};
}

frmCommandList::Events frmMain::ListEvents() {
  return {.SelectRow =
              [this](std::size_t position) {
                if (views_.AcceptInput()) {
                  editor_.Work(&CommandList::SelectRow, position);
                  views_.SyncKeys();
                }
              },
          .ClickColumn =
              [this](int column) {
                if (views_.AcceptInput()) {
                  editor_.Work(&CommandList::SortByColumn, column);
                  views_.Sync();
                }
              }};
}

frmPanel::Events frmMain::PanelEvents() {
  return {.SetBox =
              [this](Modifier box, bool checked) {
                if (views_.AcceptInput()) editor_.Work(&HotkeyPanel::SetBox, box, checked);
                views_.SyncKeys();
              },
          .ChooseKey =
              [this](int index) {
                if (views_.AcceptInput()) editor_.Work(&HotkeyPanel::ChooseKey, index);
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

frmKeysList::Events frmMain::KeysListEvents() {
  return {.Select = [this](int index) { React(editor_.Work(&KeysList::Select, index)); },
          .KeyDown = [this](KeyCode code) { React(editor_.Work(&KeysList::KeyDown, code)); },
          .ReleaseMouse = [this] { editor_.Work(&KeysList::ReleaseMouse); },
          .Close = [this] { React(editor_.Work(&KeysList::KeyDown, KeyCode::Escape)); }};
}

void frmMain::OnControl(WORD id, WORD notification, HWND control) {
  if (control == nullptr || control != views_.FindBox().Control()) {
    OnCommand(id, control);
  } else if (notification == EN_CHANGE) {
    views_.FindBox().OnChange();
  }
}

void frmMain::Search(const std::wstring& text) {
  if (views_.AcceptInput()) editor_.Work(&CommandList::Search, text);
  views_.Sync();
  views_.ShowSelectedRow();
}

void frmMain::OnCommand(int id, HWND control) {
  if (!IsCommand(id) || !views_.AcceptInput()) return;
  if (views_.IsMainToolbar(control)) windowsSystem_.Seams().Clock.DoEvents();
  // The events before it may have started something else.
  const WindowTask task = views_.AcceptInput() ? RunCommand(editor_, id) : WindowTask::None;
  views_.Sync();
  Do(task);
}

void frmMain::Do(WindowTask task) {
  switch (task) {
    case WindowTask::LayOut:
      views_.LayOut();
      break;
    case WindowTask::ShowSelectedRow:
      views_.ShowSelectedRow();
      break;
    case WindowTask::FocusFindBox:
      views_.FindBox().TakeFocus();
      break;
    case WindowTask::ShowExport:
      mnuFileExportToClipboard_Click();
      break;
    case WindowTask::ShowOptions:
      mnuViewOptions_Click();
      break;
    case WindowTask::Close:
      PostMessageW(window_, WM_CLOSE, 0, 0);
      break;
    case WindowTask::None:
      break;
  }
}

void frmMain::mnuFileExportToClipboard_Click() {
  HideKeysList();
  ClipboardExport& model = editor_.BeginExport();
  frmExportToClipboard_.Show(window_, model, [&model] { model.Ok(); });
  editor_.EndExport();
  views_.Sync();
}

void frmMain::mnuViewOptions_Click() {
  HideKeysList();
  frmOptions_.Show(window_, editor_.BeginOptions());
  views_.ApplyFonts();
  views_.ApplyDisplaySettings();
  // May show a box, behind which the window is to have its new looks.
  const OptionsOutcome outcome = editor_.EndOptions();
  if (outcome.LanguageChanged) {
    views_.ApplyLanguage();
    views_.ApplyFonts();
    views_.ApplyDisplaySettings();
    // Controls that move while a window is mirrored may stay half unpainted.
    RedrawWindow(window_, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
  }
  React(outcome.Panel);
  views_.Sync();
}

void frmMain::OnInitMenu() {
  editor_.RefreshRestartItems();
  views_.SyncMenus();
}

void frmMain::OnDropDown(const NMTOOLBARW& notification) {
  const ToolbarButton* const button = ButtonOf(notification.iItem);
  if (button == nullptr || !views_.AcceptInput()) return;
  editor_.RefreshRestartItems();
  const Unique<HMENU> menu = MenuUnder(*button, editor_);
  ShowMenuUnderButton(notification, menu.get(), window_, editor_.Language().RightToLeft());
}

// By keyboard it is the list's wherever the focus is: Shift, of Shift+F10, goes to the chooser.
bool frmMain::OnContextMenu(HWND control, LPARAM place) {
  const bool byKeyboard = place == -1;
  if (!views_.AcceptInput() || (!byKeyboard && control != views_.List().Control())) return false;
  POINT corner{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
  // Some systems send it for a key that the window has taken; with Shift it is that of Shift+F10.
  const bool isAlt = editor_.Panel().ContextMenuKeyIsAlt() && GetKeyState(VK_SHIFT) >= 0;
  if (byKeyboard && isAlt) return true;
  if (byKeyboard) {
    corner = views_.MenuPlace();
  } else if (!views_.SelectRowAt(corner)) {
    return true;
  }
  const Unique<HMENU> menu = ContextMenu(editor_);
  const UINT direction = editor_.Language().RightToLeft() ? TPM_LAYOUTRTL : 0;
  const bool withShift = byKeyboard && GetKeyState(VK_SHIFT) < 0;
  TrackPopupMenuEx(menu.get(), TPM_RIGHTBUTTON | direction, corner.x, corner.y, window_, nullptr);
  // The menu has had the release of the key, which the panel counts.
  if (withShift && GetKeyState(VK_SHIFT) >= 0) KeyUp({.Code = KeyCode::Shift});
  return true;
}

void frmMain::ToggleKeysList() {
  if (views_.AcceptInput()) React(editor_.Work(&KeysList::ToggleKeysList));
}

void frmMain::HideKeysList() {
  editor_.HideKeysList();
  views_.SyncKeys();
}

void frmMain::React(const Reaction& reaction) {
  if (reaction.StartTimer) views_.StartPanelTimer();
  if (reaction.Changed || reaction.Restored) {
    views_.Sync();
  } else {
    views_.SyncKeys();
  }
  if (!views_.AcceptInput() || reaction.FocusTo == Reaction::Focus::Unchanged) return;
  if (reaction.FocusTo == Reaction::Focus::Chooser) {
    views_.Panel().FocusOnChooser();
  } else {
    SetFocus(views_.List().Control());
  }
}

}  // namespace tessera
