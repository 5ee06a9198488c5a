// The main window: turns events into calls of the editor, and shows afterwards what it tells.
#pragma once

#include <string>

#include "app/Editor.h"
#include "app/FindBoxKeys.h"
#include "app/frmEnding.h"
#include "app/frmPlacement.h"
#include "app/frmViews.h"
#include "editing/PressedKey.h"
#include "export/frmExportToClipboard.h"
#include "options/frmOptions.h"
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
  bool FilterMessage(MSG& message);

 private:
  // -- Events (frmMain.cpp)
  static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleDefault(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnNotify(NMHDR& header);
  void OnActivate(WPARAM wParam);
  void OnTimer();
  void OnDpiChanged(int dpi, const RECT& suggested);
  void Form_Activate();
  void Form_Unload();
  void OnDropFile(const std::wstring& path);

  // -- The window itself
  bool Create();
  void ApplyDpi(int dpi);

  // -- Keys (frmMainKeys.cpp)
  bool Filter(MSG& message);
  [[nodiscard]] KeyPress PressOf(const MSG& message) const;
  bool FilterKey(const MSG& message);
  bool FilterFindKey(FindBoxKey meaning);
  bool KeyDown(const KeyPress& press);
  bool KeyUp(const KeyEvent& event);
  bool OpenButtonMenu();

  // -- Commands, and what they do in the views (frmMainCommands.cpp)
  [[nodiscard]] frmFindBox::Events FindEvents();
  [[nodiscard]] frmCommandList::Events ListEvents();
  [[nodiscard]] frmPanel::Events PanelEvents();
  [[nodiscard]] frmKeysList::Events KeysListEvents();
  void OnControl(WORD id, WORD notification, HWND control);
  void OnCommand(int id, HWND control);
  void Search(const std::wstring& text);
  void Do(WindowTask task);
  void mnuFileExportToClipboard_Click();
  void mnuViewOptions_Click();
  void OnInitMenu();
  void OnDropDown(const NMTOOLBARW& notification);
  bool OnContextMenu(HWND control, LPARAM place);
  void ToggleKeysList();
  void HideKeysList();
  void React(const Reaction& reaction);

  WindowsSystem& windowsSystem_;
  Editor editor_;
  // They end in the reverse order: the keys list of the views, options, export.
  frmExportToClipboard frmExportToClipboard_;
  frmOptions frmOptions_;
  frmViews views_;
  frmEnding ending_;
  frmPlacement placement_;
  HWND window_ = nullptr;
  HWND lastFocus_ = nullptr;  ///< the control that had the focus when the window was left
  FindBoxKeys findKeys_;
  Unique<HICON> icon_;
  Unique<HICON> smallIcon_;
};

}  // namespace tessera
