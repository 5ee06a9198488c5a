// The row below the panel's controls: the line that tells, and the buttons beside it.
#pragma once

#include <string>

#include "app/Editor.h"
#include "app/frmTip.h"
#include "app/Layout.h"
#include "app/StatusLine.h"
#include "platform/Pinned.h"
#include "platform/win32/Controls.h"

namespace tessera {

class frmStatusRow : Pinned {
 public:
  /// Makes its controls in the panel's frame, at the end of the order by Tab.
  void Create(HWND frame);

  /// The command behind one of its buttons; 0 for any other window.
  [[nodiscard]] int CommandOf(HWND button) const;
  [[nodiscard]] HWND Line() const { return lblStatus_; }

  void ApplyLanguage(const Texts& texts);

  /// Takes the font, which stays the caller's, and gives the height that the row needs with it.
  int ApplyFont(HFONT font, int dpi);

  /// Places it below what stands above `top`, over the whole width of the frame.
  void LayOut(int top);

  void Sync(const Editor& editor);

  /// Tells screen readers what the line says, unless it is too early.
  void Tell(bool timerRuns);

  /// Takes what WM_MOUSEMOVE brings the frame: over the line, a tip shows what does not fit.
  void FollowPointer(WPARAM wParam, LPARAM lParam);

  /// To be called once its windows are destroyed: their numbers may become those of others.
  void Forget();

 private:
  [[nodiscard]] StatusRow Row() const;
  [[nodiscard]] bool LineIsCut(const std::wstring& text) const;
  void SetUndoTip(const std::wstring& text);

  HWND frame_ = nullptr;
  HWND lblStatus_ = nullptr;
  HWND cmdShow_ = nullptr;
  HWND cmdUndo_ = nullptr;
  HFONT font_ = nullptr;
  int dpi_ = 96;
  int top_ = 0;
  StatusTelling telling_;
  frmTip tip_;
  std::wstring tipText_;
  HWND undoTip_ = nullptr;
  std::wstring undoTipText_;
};

}  // namespace tessera
