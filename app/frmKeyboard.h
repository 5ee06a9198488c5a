// The keyboard: what the window does with a key before its controls see it.
#pragma once

#include "app/Editor.h"
#include "app/FindBoxKeys.h"
#include "app/frmCommands.h"
#include "app/frmPopupMenus.h"
#include "app/frmViews.h"
#include "app/frmWork.h"
#include "editing/PressedKey.h"
#include "platform/Pinned.h"

namespace tessera {

class frmKeyboard : Pinned {
 public:
  /// All of them must outlive the keyboard.
  frmKeyboard(Editor& editor, frmViews& views, frmWork& work, frmCommands& commands,
              frmPopupMenus& popupMenus);

  /// Looks at a message before it is dispatched. True when the message has been dealt with.
  bool FilterMessage(MSG& message);

 private:
  bool Filter(MSG& message);
  [[nodiscard]] KeyPress PressOf(const MSG& message) const;
  bool FilterKey(const MSG& message);
  bool FilterFindKey(FindBoxKey meaning);
  bool KeyDown(const KeyPress& press);
  bool KeyUp(const KeyEvent& event);

  Editor& editor_;
  frmViews& views_;
  frmWork& work_;
  frmCommands& commands_;
  frmPopupMenus& popupMenus_;
  FindBoxKeys findKeys_;
};

}  // namespace tessera
