// The hotkey panel on the screen, with its toolbar.
#pragma once

#include <array>
#include <functional>

#include "app/Commands.h"
#include "app/Editor.h"
#include "app/frmStatusRow.h"
#include "app/frmToolbar.h"
#include "app/KeyMeaning.h"
#include "app/Layout.h"
#include "platform/Pinned.h"
#include "platform/win32/Controls.h"

namespace tessera {

class frmPanel : Pinned {
 public:
  /// What the user does in the panel; the commands of its toolbar go to the window above it.
  struct Events {
    std::function<void(Modifier box, bool checked)> SetBox;
    std::function<void(int index)> ChooseKey;
    std::function<void()> ChooserDropsDown;
    std::function<void()> ToggleKeysList;  ///< a click on the all-keys button
    std::function<void()> TimerTick;       ///< once after each StartTimer
    std::function<void()> GiveFocusAway;   ///< its controls are about to be disabled
  };

  /// `editor` must outlive it.
  frmPanel(const Editor& editor, Events events);

  void Create(HWND window);
  [[nodiscard]] HWND Control() const;
  [[nodiscard]] const frmToolbar& Toolbar() const;

  /// What its controls need.
  [[nodiscard]] Size WholeSize() const;

  /// On the screen.
  [[nodiscard]] Area AllKeysButton() const;

  [[nodiscard]] ChooserState Chooser() const;
  void FocusOnChooser();

  /// Presses the button beside the line that has the focus; false when none has it.
  bool PressFocusedButton();

  /// True for Alt with a key that the chooser might hand to its hidden list, where it would be
  /// lost, as Alt+F4 and F10.
  [[nodiscard]] bool ChooserWouldLose(const MSG& message) const;

  /// Give it what it takes from the texts, and from the resolution. The font stays the caller's;
  /// the panel is laid out for it.
  void ApplyLanguage();
  void ApplyDpi(int dpi);
  void ApplyFont(HFONT font, int dpi);

  void Sync();
  void ShowState(const CommandState& state) const;

  /// Tells screen readers what the line below the controls says, unless it is too early.
  void TellStatus() { statusRow_.Tell(timerRuns_); }

  /// Starts Timer1, anew when it runs.
  void StartTimer();

  /// To be called once its windows are destroyed: their numbers may become those of others.
  void Forget();

 private:
  static LRESULT CALLBACK FrameProcedure(HWND frame, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  bool OnCommand(int id, int notification);
  void OnTimer();
  void KeepFocusEnabled(bool inputsEnabled) const;
  [[nodiscard]] bool IsTranslatorsControl(HWND control) const;
  void LayOut(HFONT font, int dpi);

  const Editor& editor_;
  Events events_;
  HWND Frame1_ = nullptr;
  std::array<HWND, 3> chkCtrlAlt_{};
  HWND lblHotkey_ = nullptr;
  HWND Combo1_ = nullptr;
  HWND cmdAllList_ = nullptr;
  frmToolbar Toolbar2_;
  frmStatusRow statusRow_;
  Size wholeSize_;
  int controlsHeight_ = 0;  ///< above the status row
  bool timerRuns_ = false;  ///< Timer1
  Unique<HICON> allKeysIcon_;
  Unique<HBRUSH> translatorsBrush_;
};

}  // namespace tessera
