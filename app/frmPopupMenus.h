// The menus that open at a place in the window: under a toolbar's button, and over the command
// list.
#pragma once

#include "app/Editor.h"
#include "app/frmViews.h"
#include "app/frmWork.h"
#include "platform/Pinned.h"

namespace tessera {

class frmPopupMenus : Pinned {
 public:
  /// All of them must outlive the menus.
  frmPopupMenus(Editor& editor, frmViews& views, frmWork& work);

  /// Answers a toolbar's TBN_DROPDOWN.
  void ShowUnderButton(const NMTOOLBARW& notification);

  /// The same for the button that has the keyboard's focus; false when it has no menu.
  bool ShowUnderFocusedButton();

  /// Of a WM_CONTEXTMENU for that control, with that place.
  [[nodiscard]] bool IsForList(HWND control, LPARAM place) const;

  /// Answers one that is.
  void ShowOverList(LPARAM place);

 private:
  Editor& editor_;
  frmViews& views_;
  frmWork& work_;
};

}  // namespace tessera
