// The keyboard and the mouse, as a user's hands would work them.
#pragma once

#include <windows.h>

#include <span>
#include <string_view>

namespace tessera::e2e {

/// Presses and releases a key, given by its virtual-key code.
void Press(WORD key);
void KeyDown(WORD key);
void KeyUp(WORD key);

/// Presses the keys in that order and releases them in the reverse one, faster than any hand.
void PressTogether(std::span<const WORD> keys);

/// Types characters, whatever keys the keyboard has.
void Type(std::wstring_view text);

/// A key held down as long as this object lives.
class HeldKey {
 public:
  explicit HeldKey(WORD key);
  ~HeldKey();
  HeldKey(const HeldKey&) = delete;
  HeldKey& operator=(const HeldKey&) = delete;

 private:
  WORD key_;
};

/// Moves the pointer there, and waits until it stays there.
void MoveTo(POINT place);

/// Clicks at a place of the screen. Two clicks on one spot are never a double click.
void Click(POINT place);
void RightClick(POINT place);

/// Waits until windows of that process get what is typed, bringing `window` to the front if needed.
void BringToFront(HWND window);

}  // namespace tessera::e2e
