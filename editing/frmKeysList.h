// The pop-up window that shows all keys at once.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "editing/HotkeyPanel.h"
#include "platform/win32/Controls.h"

namespace tessera {

class frmKeysList {
 public:
  /// What the user does in the list.
  struct Events {
    std::function<void(int index)> Select;
    std::function<void(KeyCode code)> KeyDown;
    std::function<void()> ReleaseMouse;
    std::function<void()> Close;  ///< the system asks for it
  };

  explicit frmKeysList(Events events);
  ~frmKeysList();
  frmKeysList(const frmKeysList&) = delete;
  frmKeysList& operator=(const frmKeysList&) = delete;

  /// Makes the window, hidden, with the key vocabulary in its list. Before that there is nothing
  /// that the other functions could change or show.
  void Create(HWND owner);
  [[nodiscard]] bool Created() const;

  /// Gives the list the size that suits the font, which stays the caller's.
  void ApplyFont(HFONT font, int dpi);

  /// What a screen reader calls it, and where its lines begin.
  void ApplyLanguage(const std::wstring& name, bool rightToLeft);

  /// Its size; where it stands does not matter.
  [[nodiscard]] Area Size() const;
  [[nodiscard]] bool Visible() const;
  [[nodiscard]] bool HasFocus() const;

  void Select(int index);

  /// Shows which keys, by index, somebody has: they look quieter and bear a mark.
  void ShowTaken(std::vector<bool> taken);
  void MoveTo(const Area& area);

  /// Puts it before the window that it belongs to.
  void BringToFront();

  /// Shows it and gives it the focus.
  void Show();
  void Hide();

 private:
  static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam,
                                        UINT_PTR id, DWORD_PTR self);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void DrawKey(const DRAWITEMSTRUCT& draw) const;

  Events events_;
  HWND window_ = nullptr;
  HWND List1_ = nullptr;
  std::vector<bool> taken_;
};

}  // namespace tessera
