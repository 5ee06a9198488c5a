// Injected input goes the way of real input: through the queue of the window in front.
#include "tests/e2e/Input.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <vector>

#include "tests/support/win32/Wait.h"

namespace tessera::e2e {
namespace {

constexpr std::array ExtendedKeys{VK_INSERT, VK_DELETE, VK_HOME, VK_END,  VK_PRIOR,
                                  VK_NEXT,   VK_LEFT,   VK_UP,   VK_DOWN, VK_RIGHT,
                                  VK_APPS,   VK_DIVIDE, VK_RMENU};

INPUT KeyInput(WORD key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  const bool extended = std::ranges::find(ExtendedKeys, int{key}) != ExtendedKeys.end();
  input.ki.dwFlags = flags | (extended ? KEYEVENTF_EXTENDEDKEY : 0);
  return input;
}

void SendKey(WORD key, DWORD flags) {
  INPUT input = KeyInput(key, flags);
  SendInput(1, &input, sizeof input);
}

/// The absolute coordinate of the mouse input that means this pixel.
LONG Absolute(LONG pixel, int screenMetric) {
  const LONG size = GetSystemMetrics(screenMetric);
  return (pixel * 65536 + size - 1) / size;
}

void SendMouse(POINT place, DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = Absolute(place.x, SM_CXSCREEN);
  input.mi.dy = Absolute(place.y, SM_CYSCREEN);
  input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  SendInput(1, &input, sizeof input);
}

/// Over a window that reads from the right Wine reports the pointer one pixel beside its place.
bool PointerIsAt(POINT place) {
  POINT now{};
  GetCursorPos(&now);
  return std::abs(now.x - place.x) <= 1 && now.y == place.y;
}

/// A click on the spot of the last one becomes a double click unless it comes late enough.
void ClickApart(POINT place, DWORD down, DWORD up) {
  static POINT lastPlace{-1, -1};
  static ULONGLONG lastTime = 0;
  if (place.x == lastPlace.x && place.y == lastPlace.y) {
    const ULONGLONG earliest = lastTime + GetDoubleClickTime() + 50;
    WaitFor("the end of the double click time", [&] { return GetTickCount64() >= earliest; });
  }
  MoveTo(place);
  SendMouse(place, down);
  SendMouse(place, up);
  lastPlace = place;
  lastTime = GetTickCount64();
}

}  // namespace

// The system reports moves late; only a pointer that stays where it was put has settled.
void MoveTo(POINT place) {
  constexpr int LooksInARow = 8;
  constexpr DWORD BetweenLooks = 5;  // milliseconds
  WaitFor("the mouse pointer at " + std::to_string(place.x) + "," + std::to_string(place.y), [&] {
    SendMouse(place, 0);
    for (int look = 0; look < LooksInARow; ++look) {
      Sleep(BetweenLooks);
      if (!PointerIsAt(place)) return false;
    }
    return true;
  });
}

void Press(WORD key) {
  KeyDown(key);
  KeyUp(key);
}

void KeyDown(WORD key) { SendKey(key, 0); }

void KeyUp(WORD key) { SendKey(key, KEYEVENTF_KEYUP); }

void PressTogether(std::span<const WORD> keys) {
  std::vector<INPUT> inputs;
  for (const WORD key : keys) inputs.push_back(KeyInput(key, 0));
  for (std::size_t left = keys.size(); left > 0; --left) {
    inputs.push_back(KeyInput(keys[left - 1], KEYEVENTF_KEYUP));
  }
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void Type(std::wstring_view text) {
  for (const wchar_t character : text) {
    for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
      INPUT input{};
      input.type = INPUT_KEYBOARD;
      input.ki.wScan = character;
      input.ki.dwFlags = KEYEVENTF_UNICODE | flags;
      SendInput(1, &input, sizeof input);
    }
  }
}

HeldKey::HeldKey(WORD key) : key_(key) { KeyDown(key_); }

HeldKey::~HeldKey() { KeyUp(key_); }

void Click(POINT place) { ClickApart(place, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP); }

void RightClick(POINT place) { ClickApart(place, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP); }

void BringToFront(HWND window) {
  DWORD wanted = 0;
  GetWindowThreadProcessId(window, &wanted);
  WaitFor("the program to be in front", [&] {
    // A box that was just closed is in front for a moment longer, and loses what is typed.
    const HWND front = GetForegroundWindow();
    DWORD inFront = 0;
    GetWindowThreadProcessId(front, &inFront);
    if (inFront == wanted && IsWindowVisible(front) && IsWindowEnabled(front)) return true;
    SetForegroundWindow(window);
    return false;
  });
}

}  // namespace tessera::e2e
