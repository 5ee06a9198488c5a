// What is unsaved is in safety before a question that may never be answered.
#include "app/frmEnding.h"

#include <cstdlib>
#include <utility>

#include "app/Failure.h"

namespace tessera {

frmEnding::frmEnding(Editor& editor, frmViews& views, MessageBoxes& messageBoxes)
    : editor_(editor), views_(views), messageBoxes_(messageBoxes) {}

bool frmEnding::MayClose() {
  // While a message box is open the window is disabled: the box is to be answered first.
  const bool closes = views_.AcceptsInput() && editor_.QueryUnload();
  views_.Sync();
  return closes;
}

bool frmEnding::MaySessionEnd() {
  // Without changes whatever is open goes with the window, and a load stops mattering.
  if (!editor_.Document().Modified()) return true;
  mayLoseChanges_ = false;
  // First of all: the rest may wait for files, and the system does not wait long.
  ShutdownBlockReasonCreate(views_.Window(), editor_.Document().Caption().c_str());
  // The system soon covers the question, and lets its user end the program over it.
  editor_.KeepUnsaved();
  // Where nothing can be asked, the system tells the reason until all programs have answered.
  if (!views_.AcceptsInput()) return false;
  mayLoseChanges_ = MayClose();
  ShutdownBlockReasonDestroy(views_.Window());
  return mayLoseChanges_;
}

void frmEnding::OnSessionEnd(bool ends) {
  ShutdownBlockReasonDestroy(views_.Window());
  const bool mayLoseChanges = std::exchange(mayLoseChanges_, false);
  if (!ends) {
    editor_.DropUnsaved();  // another program has refused
    return;
  }
  // It ends also over an open question, and after one that was answered with Cancel.
  if (!mayLoseChanges) editor_.LeaveUnsaved();
  DestroyWindow(views_.Window());
}

void frmEnding::OnFailure() {
  if (std::exchange(failed_, true)) return;
  KeepAndTell(editor_, messageBoxes_);
  DestroyWindow(views_.Window());
  PostQuitMessage(EXIT_FAILURE);
}

}  // namespace tessera
