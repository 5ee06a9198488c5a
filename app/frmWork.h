// What the user does in the views, as work of the editor, and what is shown of it afterwards.
#pragma once

#include <string>

#include "app/Editor.h"
#include "app/frmViews.h"
#include "platform/Pinned.h"

namespace tessera {

class frmWork : Pinned {
 public:
  /// Neither is used before something happens, so the views may be made later, with these events.
  frmWork(Editor& editor, frmViews& views);

  // -- What the views report

  [[nodiscard]] frmFindBox::Events FindEvents();
  [[nodiscard]] frmCommandList::Events ListEvents();
  [[nodiscard]] frmPanel::Events PanelEvents();
  [[nodiscard]] frmKeysList::Events KeysListEvents();

  // -- What others ask for

  void ToggleKeysList();

  /// Before a box or a dialog opens.
  void HideKeysList();

  /// Shows what the editor is like after some work, and does what that leaves to the window: the
  /// focus, the panel's timer.
  void React(const Reaction& reaction);

 private:
  void Search(const std::wstring& text);
  void OnTimer();

  Editor& editor_;
  frmViews& views_;
};

}  // namespace tessera
