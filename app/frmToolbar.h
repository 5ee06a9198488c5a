// A toolbar with its images.
#pragma once

#include <span>

#include "app/Layout.h"
#include "app/ToolbarButtons.h"
#include "localisation/Texts.h"
#include "platform/win32/Controls.h"

namespace tessera {

class frmToolbar {
 public:
  explicit frmToolbar(std::span<const ToolbarButton> buttons);

  void Create(HWND parent, int id);
  [[nodiscard]] HWND Control() const;

  /// What its buttons take.
  [[nodiscard]] Size ButtonsSize() const;

  /// What a button takes, and the border.
  [[nodiscard]] int Height(int dpi) const;

  /// The command of the button that the keyboard works on, if it is enabled; else 0.
  [[nodiscard]] int HotButton() const;

  void ApplyLanguage(const Texts& texts) const;
  void ApplyDpi(int dpi);

  /// Does nothing where the toolbar lacks the command, or shows it so already.
  void ShowState(int command, bool enabled, bool checked) const;

  /// To be called once its windows are destroyed: their numbers may become those of others.
  void Forget() { toolbar_ = nullptr; }

 private:
  LRESULT Send(UINT message, WPARAM first = 0, LPARAM second = 0) const;

  std::span<const ToolbarButton> buttons_;
  HWND toolbar_ = nullptr;
  Unique<HIMAGELIST> images_;
  Unique<HIMAGELIST> disabledImages_;
};

}  // namespace tessera
