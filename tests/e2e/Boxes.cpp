// Both kinds are windows of the class of dialogs; the controls in them tell them apart.
#include "tests/e2e/Boxes.h"

#include <dlgs.h>

#include <algorithm>
#include <array>
#include <optional>

#include "tests/e2e/Folder.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/RemoteMemory.h"
#include "tests/support/win32/Program.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e {
namespace {

constexpr wchar_t DialogClass[] = L"#32770";
constexpr int MessageTextId = 0xFFFF;
constexpr std::array AnswerButtons{IDOK, IDCANCEL, IDRETRY, IDYES, IDNO};

bool IsFileDialog(HWND window) {
  return GetDlgItem(window, edt1) != nullptr || GetDlgItem(window, cmb13) != nullptr;
}

LONG LeftOf(HWND window) {
  RECT rectangle{};
  GetWindowRect(window, &rectangle);
  return rectangle.left;
}

int FocusedControl(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  if (GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) == FALSE) return 0;
  return info.hwndFocus == nullptr ? 0 : GetDlgCtrlID(info.hwndFocus);
}

std::optional<Box> ReadBox(HWND window) {
  const HWND text = GetDlgItem(window, MessageTextId);
  if (text == nullptr || IsFileDialog(window)) return std::nullopt;
  Box box{window, TextOf(window), TextOf(text), {}, FocusedControl(window)};
  for (const int button : AnswerButtons) {
    if (const HWND control = GetDlgItem(window, button);
        control != nullptr && IsWindowVisible(control) != FALSE) {
      box.Buttons.push_back(button);
    }
  }
  std::ranges::sort(box.Buttons, [&](int left, int right) {
    return LeftOf(GetDlgItem(window, left)) < LeftOf(GetDlgItem(window, right));
  });
  // Until a button has the focus the box is still being made.
  if (std::ranges::find(box.Buttons, box.DefaultButton) == box.Buttons.end()) return std::nullopt;
  return box;
}

void WaitUntilGone(HWND window) {
  WaitFor("the box to close", [window] { return IsWindow(window) == FALSE; });
}

}  // namespace

Box WaitForBox(DWORD process, unsigned limit) {
  const auto find = [process]() -> std::optional<Box> {
    for (const HWND window : VisibleWindows(process, DialogClass)) {
      if (const std::optional<Box> box = ReadBox(window)) return box;
    }
    return std::nullopt;
  };
  return *WaitFor("a message box", find, std::chrono::milliseconds(limit));
}

HWND WaitForFileDialog(DWORD process) {
  return WaitFor("the open-file dialog", [process]() -> HWND {
    for (const HWND window : VisibleWindows(process, DialogClass)) {
      if (IsFileDialog(window)) return window;
    }
    return nullptr;
  });
}

void Answer(const Box& box, int button) {
  RECT rectangle{};
  GetWindowRect(GetDlgItem(box.Window, button), &rectangle);
  BringToFront(box.Window);
  Click({(rectangle.left + rectangle.right) / 2, (rectangle.top + rectangle.bottom) / 2});
  WaitUntilGone(box.Window);
}

void AnswerByKey(HWND window, WORD key) {
  BringToFront(window);
  Press(key);
  WaitUntilGone(window);
}

std::string DescribeOpenBoxes(DWORD process) {
  std::string description;
  for (const HWND window : VisibleWindows(process, DialogClass)) {
    const std::optional<Box> box = ReadBox(window);
    description += "Open: " + Utf8(TextOf(window)) + (box ? ": " + Utf8(box->Text) : "") + "\n";
  }
  return description;
}

}  // namespace tessera::e2e
