// Controls of any depth: a panel's own are found through the panel.
#include "tests/e2e/Window.h"

#include <stdexcept>

#include "tests/e2e/Input.h"
#include "tests/e2e/RemoteMemory.h"

namespace tessera::e2e {
namespace {

struct ControlSearch {
  int Id;
  HWND Found = nullptr;
};

BOOL CALLBACK FindControl(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<ControlSearch*>(parameter);
  if (GetDlgCtrlID(window) != search.Id) return TRUE;
  search.Found = window;
  return FALSE;
}

}  // namespace

RECT RectangleOf(HWND window) {
  RECT rectangle{};
  GetWindowRect(window, &rectangle);
  return rectangle;
}

RECT OnScreen(HWND window, RECT rectangle) {
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&rectangle), 2);
  return rectangle;
}

POINT CenterOf(const RECT& rectangle) {
  return {(rectangle.left + rectangle.right) / 2, (rectangle.top + rectangle.bottom) / 2};
}

Window::Window(HWND window) : window_(window) {}

HWND Window::Handle() const { return window_; }

DWORD Window::ProcessId() const {
  DWORD process = 0;
  GetWindowThreadProcessId(window_, &process);
  return process;
}

std::wstring Window::Caption() const { return TextOf(window_); }

HWND Window::Control(int id) const {
  ControlSearch search{id};
  EnumChildWindows(window_, FindControl, reinterpret_cast<LPARAM>(&search));
  if (search.Found == nullptr) {
    throw std::runtime_error("The window has no control " + std::to_string(id));
  }
  return search.Found;
}

std::wstring Window::ControlText(int id) const { return TextOf(Control(id)); }

bool Window::HasFocus(int id) const {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &info);
  return info.hwndFocus == Control(id);
}

bool Window::Enabled(int id) const { return IsWindowEnabled(Control(id)) != FALSE; }

bool Window::Visible(int id) const { return IsWindowVisible(Control(id)) != FALSE; }

bool Window::BoxChecked(int id) const { return Send(Control(id), BM_GETCHECK) == BST_CHECKED; }

void Window::ClickControl(int id) {
  BringToFront(window_);
  Click(CenterOf(RectangleOf(Control(id))));
}

}  // namespace tessera::e2e
