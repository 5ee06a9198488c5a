// What is unsaved is in safety before a question that may never be answered.
#include "app/frmEnding.h"

#include <cstdlib>
#include <string>
#include <utility>

#include "app/Failure.h"

namespace tessera {
namespace {

/// What the system tells its user at a log-off about a program that holds it up.
class LogOffReason {
 public:
  LogOffReason(HWND window, const std::wstring& text) : window_(window) {
    ShutdownBlockReasonCreate(window, text.c_str());
  }
  ~LogOffReason() { ShutdownBlockReasonDestroy(window_); }
  LogOffReason(const LogOffReason&) = delete;
  LogOffReason& operator=(const LogOffReason&) = delete;

 private:
  HWND window_;
};

}  // namespace

frmEnding::frmEnding(Editor& editor, frmViews& views, MessageBoxes& messageBoxes)
    : editor_(editor), views_(views), messageBoxes_(messageBoxes) {}

bool frmEnding::MayClose() {
  // While a message box is open the window is disabled: the box is to be answered first.
  const bool closes = views_.AcceptInput() && editor_.QueryUnload();
  views_.Sync();
  return closes;
}

bool frmEnding::MaySessionEnd() {
  // Without changes whatever is open goes with the window, and a load stops mattering.
  if (!editor_.Document().Modified()) return true;
  // First of all: the rest may wait for files, and the system does not wait long.
  const LogOffReason reason(views_.Window(), editor_.Document().Caption());
  // The system soon covers the question, and lets its user end the program over it.
  editor_.KeepUnsaved();
  return views_.AcceptInput() && MayClose();
}

void frmEnding::OnSessionEnd(bool ends) {
  if (ends) {
    DestroyWindow(views_.Window());
  } else {
    editor_.DropUnsaved();  // another program has refused
  }
}

void frmEnding::OnFailure() {
  if (std::exchange(failed_, true)) return;
  KeepAndTell(editor_, messageBoxes_);
  DestroyWindow(views_.Window());
  PostQuitMessage(EXIT_FAILURE);
}

}  // namespace tessera
