// The window's side of the commands: what Commands.h leaves to it, and the dialogs.
#pragma once

#include <string>

#include "app/Commands.h"
#include "app/Editor.h"
#include "app/frmViews.h"
#include "app/frmWork.h"
#include "export/frmExportToClipboard.h"
#include "options/frmOptions.h"
#include "platform/Clock.h"
#include "platform/Pinned.h"

namespace tessera {

class frmCommands : Pinned {
 public:
  /// `views` and `work` are not used before a command runs, and may be made later.
  frmCommands(Editor& editor, frmViews& views, frmWork& work, Clock& clock);

  /// Runs the command of that ID, while the window accepts input. `control` has sent it; null for a
  /// menu, a key, or another program.
  void Run(int id, HWND control);

  /// Opens a file that was dropped on the window; an empty path is none.
  void OpenDropped(const std::wstring& path);

 private:
  void Do(WindowTask task);
  void mnuFileExportToClipboard_Click();
  void mnuViewOptions_Click();

  Editor& editor_;
  frmViews& views_;
  frmWork& work_;
  Clock& clock_;
  frmExportToClipboard frmExportToClipboard_;
  frmOptions frmOptions_;
};

}  // namespace tessera
