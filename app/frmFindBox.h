// The box at the end of the main toolbar, in which the user types what to look for.
#pragma once

#include <functional>
#include <string>

#include "app/Editor.h"
#include "app/Layout.h"
#include "platform/Pinned.h"
#include "platform/win32/Controls.h"

namespace tessera {

class frmFindBox : Pinned {
 public:
  struct Events {
    std::function<void(const std::wstring& text)> Search;
    std::function<void(bool canSearch)> SetCanSearch;
    std::function<void()> GiveFocusAway;
  };

  /// `editor` must outlive the box.
  frmFindBox(const Editor& editor, Events events);

  /// Makes it in the main window, hidden.
  void Create(HWND window);

  [[nodiscard]] HWND Control() const { return txtFind_; }
  [[nodiscard]] bool HasFocus() const;
  [[nodiscard]] bool IsEmpty() const;

  void ApplyLanguage();

  /// The font stays the caller's.
  void ApplyFont(HFONT font);

  /// The text that invites to type, in the box's font.
  [[nodiscard]] Size CueSize() const;

  /// Shows it there; hides and empties it for an area of no size.
  void PlaceAt(const Area& area);

  void Sync();

  /// No typing while a load or save runs.
  void SyncEnabled();

  /// With all of its text selected.
  void TakeFocus();

  /// When its text has changed, by whoever did it.
  void OnChange();

  void Empty() const { events_.Search({}); }
  void GiveFocusAway() const { events_.GiveFocusAway(); }

  /// To be called once its windows are destroyed: their numbers may become those of others.
  void Forget();

 private:
  const Editor& editor_;
  Events events_;
  HWND lblFind_ = nullptr;
  HWND txtFind_ = nullptr;
  bool fits_ = false;
  bool hadFocus_ = false;  ///< when it was disabled
};

}  // namespace tessera
