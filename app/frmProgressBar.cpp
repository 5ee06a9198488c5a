// The progress bar control.
#include "app/frmProgressBar.h"

#include "resources/resource.h"

namespace tessera {

void frmProgressBar::Create(HWND window) {
  ProgressBar1_ = CreateControl(window, PROGRESS_CLASSW, IDC_ProgressBar1);
  SetWindowPos(ProgressBar1_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

HWND frmProgressBar::Control() const { return ProgressBar1_; }

void frmProgressBar::Show(const LoadProgress& progress) const {
  if (progress.Visible()) {
    SendMessageW(ProgressBar1_, PBM_SETRANGE32, 0, progress.Maximum());
    SendMessageW(ProgressBar1_, PBM_SETPOS, static_cast<WPARAM>(progress.Value()), 0);
  }
  if ((IsWindowVisible(ProgressBar1_) != FALSE) != progress.Visible()) {
    ShowWindow(ProgressBar1_, progress.Visible() ? SW_SHOWNA : SW_HIDE);
    SetCursor(LoadCursorW(nullptr, progress.Visible() ? IDC_WAIT : IDC_ARROW));
  }
}

}  // namespace tessera
