// All that the main window shows: its views side by side, in one language, font and resolution.
#pragma once

#include "app/frmCommandList.h"
#include "app/frmFindBox.h"
#include "app/frmMenus.h"
#include "app/frmPanel.h"
#include "app/frmProgressBar.h"
#include "app/frmToolbar.h"
#include "editing/frmKeysList.h"

namespace tessera {

/// No view knows another one: what concerns two of them is done here.
class frmViews {
 public:
  /// `editor` must outlive the views.
  frmViews(const Editor& editor, frmFindBox::Events findEvents, frmCommandList::Events listEvents,
           frmPanel::Events panelEvents, frmKeysList::Events keysListEvents);

  /// Makes them in the main window, without texts, fonts and places.
  void Create(HWND window, int dpi);

  // -- Queries

  /// The main window; null before it has views, and once it has none.
  [[nodiscard]] HWND Window() const { return window_; }
  [[nodiscard]] int Dpi() const { return dpi_; }

  /// What the user does counts: no load or save runs, and no box or dialog is open.
  [[nodiscard]] bool AcceptsInput() const;

  [[nodiscard]] FocusPlace Focus() const;

  /// The command of the button that has the keyboard's focus, if it is enabled; else 0.
  [[nodiscard]] int FocusedButton() const;
  [[nodiscard]] bool IsMainToolbar(HWND control) const { return control == Toolbar1_.Control(); }

  /// The smallest size of the main window that leaves room for everything.
  [[nodiscard]] Size SmallestSize() const;

  // -- Those that others reach by themselves

  [[nodiscard]] frmFindBox& FindBox() { return findBox_; }
  [[nodiscard]] frmCommandList& List() { return list_; }
  [[nodiscard]] frmPanel& Panel() { return panel_; }
  [[nodiscard]] frmKeysList& AllKeys() { return keysList_; }

  // -- What all views take

  void ApplyLanguage();
  void ApplyDpi(int dpi);
  void ApplyFonts();
  void ApplyDisplaySettings();

  /// Does nothing while the window is minimised, or has no views yet.
  void LayOut();

  /// To be called before the window is shown. Until then LayOut does nothing: each time costs a
  /// start 2 %.
  void LayOutFromNowOn();

  /// The keys list stands on the screen by itself: when the window moves, it is to follow.
  void MoveKeysList();

  /// Tells the controls of the system about a change of its settings.
  void Forward(UINT message, WPARAM wParam, LPARAM lParam) const;

  // -- What they show

  /// Shows the state of the editor in every control, and in the caption.
  void Sync();

  /// As Sync, where the rows of the list did not change.
  void SyncKeys();

  /// Before a menu opens.
  void SyncMenus() const;

  void Show(const LoadProgress& progress);

  /// To be called once its windows are destroyed: their numbers may become those of others.
  void Forget();

 private:
  [[nodiscard]] const frmToolbar* FocusedToolbar() const;
  void SyncCommands() const;
  void SyncKeysList();
  void CreateKeysList();
  [[nodiscard]] std::wstring KeysListName() const;

  const Editor& editor_;
  frmMenus menus_;
  frmToolbar Toolbar1_;
  frmFindBox findBox_;
  frmCommandList list_;
  frmPanel panel_;
  frmKeysList keysList_;
  frmProgressBar progressBar_;
  HWND window_ = nullptr;
  bool placed_ = false;  ///< the window has its place
  int dpi_ = 96;
  Unique<HFONT> font_;
};

}  // namespace tessera
