// The main window: owns its parts, and turns messages into calls of them and of the editor.
#pragma once

#include <string>

#include "app/Editor.h"
#include "app/frmCommands.h"
#include "app/frmEnding.h"
#include "app/frmKeyboard.h"
#include "app/frmPlacement.h"
#include "app/frmPopupMenus.h"
#include "app/frmViews.h"
#include "app/frmWork.h"
#include "platform/Pinned.h"
#include "platform/win32/Controls.h"
#include "platform/win32/WindowsSystem.h"

namespace tessera {

class frmMain : Pinned {
 public:
  /// `windowsSystem` must outlive the window.
  explicit frmMain(WindowsSystem& windowsSystem);
  ~frmMain();

  /// Loads the settings and makes the window; false when the system refuses to make it. The file
  /// `fileToOpen` (a full path; empty for none) is opened in place of the one that is found.
  [[nodiscard]] bool Form_Load(std::wstring fileToOpen);

  /// Shows the window, maximised when it was closed so.
  void Show(int showCommand);

  /// Looks at a message before it is dispatched: the window sees keys before its controls. True
  /// when the message has been dealt with.
  bool FilterMessage(MSG& message) { return keyboard_.FilterMessage(message); }

 private:
  static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleEnd(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleDefault(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnNotify(NMHDR& header);
  void OnControl(WORD id, WORD notification, HWND control);
  void OnActivate(WPARAM wParam);
  void OnDpiChanged(int dpi, const RECT& suggested);
  void Form_Activate();
  void Form_Unload();
  void Create();
  void AcceptDrops();
  void ApplyDpi(int dpi);

  WindowsSystem& windowsSystem_;
  Editor editor_;
  // They end in the reverse order: the keys list of the views, options, export.
  frmCommands commands_;
  frmWork work_;
  frmViews views_;
  frmPopupMenus popupMenus_;
  frmKeyboard keyboard_;
  frmEnding ending_;
  frmPlacement placement_;
  HWND window_ = nullptr;
  HWND lastFocus_ = nullptr;  ///< the control that had the focus when the window was left
  Unique<HICON> icon_;
  Unique<HICON> smallIcon_;
};

}  // namespace tessera
