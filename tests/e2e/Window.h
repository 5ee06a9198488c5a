// A window of the program with controls in it, which are found by the IDs of resources/resource.h.
#pragma once

#include <windows.h>

#include <string>

namespace tessera::e2e {

[[nodiscard]] RECT RectangleOf(HWND window);               ///< on the screen
[[nodiscard]] RECT OnScreen(HWND window, RECT rectangle);  ///< given in the window's coordinates
[[nodiscard]] POINT CenterOf(const RECT& rectangle);

class Window {
 public:
  explicit Window(HWND window);

  [[nodiscard]] HWND Handle() const;
  [[nodiscard]] DWORD ProcessId() const;
  [[nodiscard]] std::wstring Caption() const;

  /// Throws std::runtime_error when the window has no control of that ID.
  [[nodiscard]] HWND Control(int id) const;
  [[nodiscard]] std::wstring ControlText(int id) const;
  [[nodiscard]] bool HasFocus(int id) const;
  [[nodiscard]] bool Enabled(int id) const;
  [[nodiscard]] bool Visible(int id) const;

  /// Of a check box or an option button.
  [[nodiscard]] bool BoxChecked(int id) const;
  void ClickControl(int id);

 private:
  HWND window_;
};

}  // namespace tessera::e2e
