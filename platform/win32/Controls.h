// What all windows need: owned handles of system objects, and small helpers around controls.
#pragma once

#include <windows.h>
#include <commctrl.h>
#include <windowsx.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "platform/Area.h"

namespace tessera {

struct ObjectReleaser {
  void operator()(HFONT font) const noexcept { DeleteObject(font); }
  void operator()(HBRUSH brush) const noexcept { DeleteObject(brush); }
  void operator()(HBITMAP bitmap) const noexcept { DeleteObject(bitmap); }
  void operator()(HDC context) const noexcept { DeleteDC(context); }
  void operator()(HMENU menu) const noexcept { DestroyMenu(menu); }
  void operator()(HICON icon) const noexcept { DestroyIcon(icon); }
  void operator()(HIMAGELIST images) const noexcept { ImageList_Destroy(images); }
};

template <typename Object>
using Unique = std::unique_ptr<std::remove_pointer_t<Object>, ObjectReleaser>;

/// A device context for drawing in a window, or for measuring.
class WindowContext {
 public:
  explicit WindowContext(HWND window) : window_(window), context_(GetDC(window)) {}
  ~WindowContext() { ReleaseDC(window_, context_); }
  WindowContext(const WindowContext&) = delete;
  WindowContext& operator=(const WindowContext&) = delete;

  [[nodiscard]] HDC Get() const { return context_; }

 private:
  HWND window_;
  HDC context_;
};

/// A font, a bitmap or the like, in use by a device context for as long as this lives.
class SelectedObject {
 public:
  SelectedObject(HDC context, HGDIOBJ object)
      : context_(context), former_(SelectObject(context, object)) {}
  ~SelectedObject() { SelectObject(context_, former_); }
  SelectedObject(const SelectedObject&) = delete;
  SelectedObject& operator=(const SelectedObject&) = delete;

 private:
  HDC context_;
  HGDIOBJ former_;
};

/// Registers a class of windows on the colour of buttons, under the arrow pointer. `style` has the
/// CS_ bits of the class; each window gets `extraBytes` more. A class that exists stays as it is.
void RegisterWindowClass(const wchar_t* name, WNDPROC procedure, UINT style = 0,
                         int extraBytes = 0);

/// The font that the system uses for messages, at that resolution and in that character set.
[[nodiscard]] LOGFONTW MessageFont(int dpi, int characterSet);

void GiveFont(HWND control, HFONT font);

/// A window before its owner, without text, not yet placed. WS_ and WS_EX_ bits; WS_POPUP is added.
HWND CreatePopup(HWND owner, const wchar_t* className, DWORD style, DWORD extendedStyle);

/// A child of `parent`, without text, not yet placed. WS_ and WS_EX_ bits; WS_CHILD and
/// WS_CLIPSIBLINGS are added.
HWND CreateControl(HWND parent, const wchar_t* className, int id, DWORD style = 0,
                   DWORD extendedStyle = 0);

/// Its direct children, the uppermost first.
[[nodiscard]] std::vector<HWND> ChildrenOf(HWND window);

/// False for no window, too.
[[nodiscard]] bool IsTextBox(HWND window);

[[nodiscard]] std::wstring TextOf(HWND window);

/// Does nothing when it is so already.
void SetText(HWND window, const std::wstring& text);

/// What a screen reader calls a control, in place of its text. This starts components: where a
/// label before the control will do, hidden or not, prefer that.
void SetAccessibleName(HWND control, const std::wstring& name);

/// To be called before such a control goes; the system would keep its name.
void ClearAccessibleName(HWND control);

/// Does nothing when it is so already: no flicker, no lost focus.
void SetEnabled(HWND control, bool enabled);

/// Adds or takes away bits of a control's style, and lets its frame follow. Does nothing when it is
/// so already.
void SetStyleBits(HWND control, int styleIndex, DWORD bits, bool on);

/// The size of a text on one line in that font, in pixels. An "&" that marks a mnemonic takes no
/// room, unless `format` is DT_NOPREFIX.
[[nodiscard]] Size TextSize(HWND control, HFONT font, const std::wstring& text, UINT format = 0);

[[nodiscard]] bool IsHeld(int key);

/// A colour of the settings: 0x00BBGGRR, or a system colour when the highest bit is set.
[[nodiscard]] COLORREF ColorOf(int setting);

/// Behind texts, for translators, who see by it how much room these have.
inline constexpr COLORREF TranslatorsColor = RGB(0, 255, 255);

/// What a window's styles add to its inside: frame, caption, and a menu bar of one line.
[[nodiscard]] Size FrameSize(HWND window, int dpi, bool withMenuBar = false);

[[nodiscard]] Area WindowArea(HWND window);
[[nodiscard]] Area AreaOf(const RECT& rectangle);

/// The part of the screen that programs may use, on the monitor where most of the window is.
[[nodiscard]] Area WorkArea(HWND window);

/// All monitors, the primary one first. A single one has the resolution `dpi`.
[[nodiscard]] std::vector<Screen> Screens(int dpi);

void Place(HWND control, const Area& area);

[[nodiscard]] bool IsRightToLeft(HWND window);

/// Gives a window and all that is in it the direction of a language, unless it has that already.
void SetRightToLeft(HWND window, bool rightToLeft);

}  // namespace tessera
