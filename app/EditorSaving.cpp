// Unsaved changes: saving them, around a restart of Total Commander, and asking about them.
#include "app/BusyTime.h"
#include "app/Editor.h"
#include "settings/commander/RestartTotalCommander.h"
#include "shortcuts/SaveShortcuts.h"

namespace tessera {

bool Editor::QueryUnload() { return !busy_ && ChangesMayGo(); }

void Editor::FileSave() { Save(settings_.AlwaysRestartTC != 0); }

void Editor::FileSaveAndRestart() { Save(true); }

void Editor::Save(bool restarts) {
  if (busy_ || !modified_) {
    return;
  }
  if (wincmdUnread_) {
    // A save would drop every key that the list does not show.
    system_.MessageBoxes.Beep();
    return;
  }
  const BusyTime busy(busy_);
  RestartRequest restart{.WincmdPath = wincmdPath_, .CloseIt = true};
  if (restarts) {
    RestartTotalCommander(system_.Programs, system_.Clock, system_.Files, system_.Environment,
                          restart);
  }
  const SaveRequest request{wincmdPath_, settings_.KeepUnknownShortcuts != 0};
  const FileError error = SaveShortcuts(catalogue_, notation_, request, system_.Files,
                                        system_.Clock, commanderEnvironment_);
  if (error == FileError::None) {
    SetModified(false);
  } else {
    system_.MessageBoxes.Beep();
  }
  if (restarts) {
    restart.CloseIt = false;
    RestartTotalCommander(system_.Programs, system_.Clock, system_.Files, system_.Environment,
                          restart);
  }
}

void Editor::RefreshRestartItems() {
  const bool running = FindTotalCommander(system_.Programs) != 0;
  restartButtonEnabled_ = running;
  saveAndRestartEnabled_ = running && modified_;
}

BoxAnswer Editor::AskToSaveChanges() {
  if (!modified_) {
    return BoxAnswer::No;
  }
  const BoxAnswer answer = system_.MessageBoxes.Show(
      texts_.GetLangText(TextId::SaveChangesTo) + L"  " + wincmdPath_ + L"\n",
      BoxButtons::YesNoCancel, BoxIcon::Exclamation);
  if (answer == BoxAnswer::Yes) {
    FileSave();
  }
  return answer;
}

bool Editor::ChangesMayGo() {
  const BoxAnswer answer = AskToSaveChanges();
  const bool saveFailed = answer == BoxAnswer::Yes && modified_;
  return answer != BoxAnswer::Cancel && !saveFailed;
}

void Editor::SetModified(bool modified) {
  modified_ = modified;
  saveAndRestartEnabled_ = modified;
}

}  // namespace tessera
