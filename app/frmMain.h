// The main window: turns events into calls of the editor, and shows afterwards what it tells.
#pragma once

#include <array>
#include <string>

#include "app/Editor.h"
#include "app/Layout.h"
#include "editing/frmKeysList.h"
#include "export/frmExportToClipboard.h"
#include "options/frmOptions.h"
#include "platform/win32/Controls.h"
#include "platform/win32/WindowsSystem.h"

namespace tessera {

class frmMain {
 public:
  /// `windowsSystem` must outlive the window.
  explicit frmMain(WindowsSystem& windowsSystem);
  ~frmMain();
  frmMain(const frmMain&) = delete;
  frmMain& operator=(const frmMain&) = delete;

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
  LRESULT OnNotify(NMHDR& header, LPARAM lParam);
  void OnActivate(WPARAM wParam);
  void OnTimer();
  void OnDpiChanged(int dpi, const RECT& suggested);
  void Form_Activate();
  void Form_QueryUnload();
  bool MayClose();
  void Form_Unload();
  void OnDropFile(const std::wstring& path);
  void ForwardToControls(UINT message, WPARAM wParam, LPARAM lParam) const;
  bool AcceptsInput() const;

  // -- The dialogs and the keys list (frmMainDialogs.cpp)
  void ShowExport();
  void ShowOptions();
  void ToggleKeysList();
  void CreateKeysList();
  void SyncKeysList();
  void MoveKeysList();

  // -- Looks (frmMainLooks.cpp)
  void CreateControls();
  void ApplyLanguage();
  void ApplyDisplaySettings();
  void ApplyDpi();
  void ApplyFonts();
  void ApplyPlacement();
  WindowPlacement CurrentPlacement() const;
  void LayOut();
  void LayOutPanel();
  Area InnerArea() const;
  void ShowProgress(const LoadProgress& progress);
  SIZE SmallestSize() const;
  bool IsTranslatorsControl(LPARAM control) const;
  LRESULT ColourControl(WPARAM wParam) const;

  // -- Menus and commands (frmMainMenus.cpp)
  void BuildMenus();
  void SyncCommands();
  bool CommandEnabled(int id) const;
  void OnCommand(int id, HWND control);
  bool OpenDialog(int id);
  bool OpenRecentFile(int id);
  void OnInitMenu();
  void FillRecentMenu(HMENU menu, bool withClearEntry) const;

  // -- Toolbars (frmMainToolbars.cpp)
  void CreateToolbars();
  void LabelToolbars();
  void LoadToolbarImages();
  void ShowOnToolbars(int id, bool enabled, bool checked);
  void OnDropDown(const NMTOOLBARW& button);
  void ShowUnderButton(const NMTOOLBARW& button, HMENU menu);
  int ToolbarHeight() const;

  // -- The command list (frmMainList.cpp)
  void CreateCommandList();
  void LabelColumns();
  void ApplyListFont();
  void LoadListImages();
  LRESULT OnListNotify(NMHDR& header);
  LRESULT OnListCustomDraw(NMLVCUSTOMDRAW& draw);
  bool DrawOverriddenKeys(const NMLVCUSTOMDRAW& draw);
  void OnListItemChanged(const NMLISTVIEW& change);
  void SelectListRow(int position);
  void FillListCell(LVITEMW& item) const;
  void SyncList();
  void SyncListSelection();
  void SyncHeaderIcons();
  void ShowSelectedRow();
  void SetColumnWidths(const std::array<int, 4>& twips);
  ColumnLayout CurrentColumns() const;

  // -- The panel (frmMainPanel.cpp)
  void CreatePanel();
  void LabelPanel();
  void SyncPanel();
  bool OnPanelCommand(int id, int notification);
  bool FilterKey(const MSG& message);
  void React(const Reaction& reaction);
  bool ChooserIsOpen() const;

  /// Shows the state of the editor in every control.
  void Sync();

  WindowsSystem& windowsSystem_;
  Editor editor_;
  frmOptions frmOptions_;
  frmExportToClipboard frmExportToClipboard_;
  frmKeysList frmKeysList_;
  int dpi_ = 96;
  HWND window_ = nullptr;
  HWND Toolbar1_ = nullptr;
  HWND lblListView1_ = nullptr;
  HWND ListView1_ = nullptr;
  HWND Frame1_ = nullptr;
  std::array<HWND, 3> chkCtrlAlt_{};
  HWND lblHotkey_ = nullptr;
  HWND Combo1_ = nullptr;
  HWND cmdAllList_ = nullptr;
  HWND Toolbar2_ = nullptr;
  HWND ProgressBar1_ = nullptr;
  HMENU mnuRecent_ = nullptr;  ///< part of the menu bar
  HWND lastFocus_ = nullptr;   ///< the control that had the focus when the window was left
  Area placed_;                ///< where the stored placement has put the window
  int panelWidth_ = 0;         ///< what the panel's controls need
  int frameHeight_ = 0;
  bool syncing_ = false;  ///< notifications of the controls are answers to our own changes

  Unique<HICON> icon_;
  Unique<HICON> smallIcon_;
  Unique<HICON> allKeysIcon_;
  Unique<HFONT> font_;
  Unique<HFONT> listFont_;
  Unique<HBRUSH> translatorsBrush_;
  Unique<HIMAGELIST> ilsToolbar_;
  Unique<HIMAGELIST> ilsDisabledToolbar_;
  Unique<HIMAGELIST> ilsListView_;
  Unique<HIMAGELIST> ilsColumnHeader_;
};

}  // namespace tessera
