// How the main window ends: when its user closes it, at a log-off, and after an exception.
#pragma once

#include "app/Editor.h"
#include "app/frmViews.h"
#include "platform/MessageBoxes.h"
#include "platform/Pinned.h"

namespace tessera {

class frmEnding : Pinned {
 public:
  /// All of them must outlive it.
  frmEnding(Editor& editor, frmViews& views, MessageBoxes& messageBoxes);

  /// Asks about unsaved changes; false when the window is to stay.
  bool MayClose();

  /// The same when the session is to end; then the changes are kept beside their file before
  /// anybody is asked.
  bool MaySessionEnd();

  /// After the answers of all programs: the window goes with the session, or goes on.
  void OnSessionEnd(bool ends);

  /// Keeps what is unsaved, tells the user, and ends the program; only once.
  void OnFailure();

 private:
  Editor& editor_;
  frmViews& views_;
  MessageBoxes& messageBoxes_;
  bool mayLoseChanges_ = false;  ///< at a log-off, since the user said so
  bool failed_ = false;
};

}  // namespace tessera
