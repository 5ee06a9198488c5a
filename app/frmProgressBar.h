// The progress of a long load on the screen.
#pragma once

#include "app/LoadProgress.h"
#include "platform/win32/Controls.h"

namespace tessera {

class frmProgressBar {
 public:
  /// Makes it, hidden, above its neighbours.
  void Create(HWND window);
  [[nodiscard]] HWND Control() const;

  /// The pointer shows too that the program is at work.
  void Show(const LoadProgress& progress) const;

  /// To be called once its windows are destroyed: their numbers may become those of others.
  void Forget() { ProgressBar1_ = nullptr; }

 private:
  HWND ProgressBar1_ = nullptr;
};

}  // namespace tessera
