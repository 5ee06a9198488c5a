// The menu bar, and the menus that frmPopupMenus opens.
#pragma once

#include "app/Commands.h"
#include "app/ToolbarButtons.h"
#include "platform/Pinned.h"
#include "platform/win32/Controls.h"

namespace tessera {

/// The menu under a drop-down button.
[[nodiscard]] Unique<HMENU> MenuUnder(const ToolbarButton& button, const Editor& editor);

/// The context menu of the command list.
[[nodiscard]] Unique<HMENU> ContextMenu(const Editor& editor);

class frmMenus : Pinned {
 public:
  /// `editor` must outlive it.
  explicit frmMenus(const Editor& editor);

  /// Makes the menu bar of a window anew, in the language in use.
  void Build(HWND window);

  void FillRecentFiles() const;
  void ShowState(const CommandState& state) const;

  /// To be called once its windows are destroyed: their numbers may become those of others.
  void Forget() {
    window_ = nullptr;
    mnuRecent_ = nullptr;
  }

 private:
  const Editor& editor_;
  HWND window_ = nullptr;
  HMENU mnuRecent_ = nullptr;  ///< part of the menu bar
};

}  // namespace tessera
