// The window as a whole, its panel and its toolbars; the command list has a file of its own.
#include "tests/e2e/MainWindow.h"

// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <stdexcept>

#include "resources/resource.h"
#include "tests/e2e/Folder.h"
#include "tests/e2e/Input.h"
#include "tests/support/win32/Program.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e {

MainWindow::MainWindow(HWND window, HANDLE process)
    : Window(window), memory_(process, MemoryBytes) {}

std::wstring MainWindow::ChosenKey() const {
  const HWND combo = Control(IDC_Combo1);
  const LRESULT chosen = Send(combo, CB_GETCURSEL);
  if (chosen == CB_ERR) return {};
  std::array<wchar_t, 64> text{};
  Send(combo, CB_GETLBTEXT, static_cast<WPARAM>(chosen), text.data());
  return text.data();
}

void MainWindow::ChooseKey(const std::wstring& key) {
  BringToFront(Handle());
  const HWND combo = Control(IDC_Combo1);
  const LRESULT wanted = Send(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), key.c_str());
  if (wanted == CB_ERR) throw std::runtime_error("The chooser has no key " + Utf8(key));

  // The right end of the chooser may have a button of its own.
  const RECT rectangle = RectangleOf(combo);
  Click({rectangle.left + 10, (rectangle.top + rectangle.bottom) / 2});
  const HWND list = WaitFor("the chooser's list", [&] { return DroppedList(); });
  RECT inside{};
  GetClientRect(list, &inside);
  RECT item{};
  const auto seen = [&] {
    Send(list, LB_GETITEMRECT, static_cast<WPARAM>(wanted), &item);
    return item.top >= inside.top && item.bottom <= inside.bottom;
  };
  WaitFor("the chooser's list to show " + Utf8(key), [&] {
    if (seen()) return true;
    // One page at a time: a key that is still on its way would move the list under the pointer.
    const LRESULT selected = Send(list, LB_GETCURSEL);
    Press(VK_NEXT);
    WaitFor("the next page", [&] { return Send(list, LB_GETCURSEL) != selected; });
    return false;
  });
  Click(CenterOf(OnScreen(list, item)));
  WaitFor("key " + Utf8(key) + " to be chosen", [&] { return ChosenKey() == key; });
  WaitFor("the chooser's list to close", [&] { return Send(combo, CB_GETDROPPEDSTATE) == 0; });
}

bool MainWindow::ButtonEnabled(int toolbar, int command) const {
  return (ButtonState(toolbar, command) & TBSTATE_ENABLED) != 0;
}

bool MainWindow::ButtonPressed(int toolbar, int command) const {
  return (ButtonState(toolbar, command) & TBSTATE_CHECKED) != 0;
}

void MainWindow::ClickButton(int toolbar, int command) {
  BringToFront(Handle());
  // Near the left edge: at the right one there may be the arrow of a menu.
  const RECT button = ButtonRectangle(toolbar, command);
  Click({button.left + (button.bottom - button.top) / 3, (button.top + button.bottom) / 2});
}

std::wstring MainWindow::ButtonText(int toolbar, int command) const {
  // Without an address the message only tells the length.
  const LRESULT length =
      Send(Control(toolbar), TB_GETBUTTONTEXTW, static_cast<WPARAM>(command), memory_.At());
  if (length < 0) throw std::runtime_error("No text of button " + std::to_string(command));
  std::wstring text(static_cast<std::size_t>(length), L'\0');
  memory_.Read(text.data(), text.size() * sizeof(wchar_t));
  return text;
}

RECT MainWindow::ButtonRectangle(int toolbar, int command) const {
  return RectangleBy(Control(toolbar), TB_GETRECT, static_cast<WPARAM>(command), RECT{});
}

HWND MainWindow::OpenButtonMenu(int toolbar, int command) {
  constexpr int FromTheEnd = 4;  // pixels: inside the arrow at any size of it
  BringToFront(Handle());
  const RECT button = ButtonRectangle(toolbar, command);
  const bool mirrored = (GetWindowLongPtrW(Control(toolbar), GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
  Click({mirrored ? button.left + FromTheEnd : button.right - FromTheEnd,
         (button.top + button.bottom) / 2});
  WaitFor("the button's menu to open", [&] { return !OpenMenus().empty(); });
  return OpenMenus().front();
}

void MainWindow::ChooseFromButtonMenu(int toolbar, int command, int entry) {
  OpenButtonMenu(toolbar, command);
  for (int step = 0; step < entry; ++step) Press(VK_DOWN);
  Press(VK_RETURN);
  WaitFor("the button's menu to close", [&] { return !InMenu() && OpenMenus().empty(); });
}

bool MainWindow::InMenu() const {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  GetGUIThreadInfo(GetWindowThreadProcessId(Handle(), nullptr), &info);
  return (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE)) != 0;
}

void MainWindow::CloseMenus() {
  // A menu is on the screen a moment before it takes keys, and a key that none takes would reset
  // the panel.
  WaitFor("the menu to take keys", [&] { return InMenu() || OpenMenus().empty(); });
  while (InMenu()) {
    const std::size_t open = OpenMenus().size();
    Press(VK_ESCAPE);
    WaitFor("a menu to close", [&] { return !InMenu() || OpenMenus().size() < open; });
  }
  WaitFor("the menus to go", [&] { return OpenMenus().empty(); });
}

HWND MainWindow::OpenMenu(WORD letter) {
  BringToFront(Handle());
  {
    const HeldKey alt(VK_MENU);
    Press(letter);
  }
  WaitFor("the menu to open", [&] { return !OpenMenus().empty(); });
  return OpenMenus().front();
}

void MainWindow::ChooseFromMenu(WORD menu, WORD item) {
  OpenMenu(menu);
  Press(item);
}

std::vector<HWND> MainWindow::OpenMenus() const { return VisibleWindows(ProcessId(), L"#32768"); }

void MainWindow::Command(int command) const {
  PostMessageW(Handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
}

int MainWindow::ButtonState(int toolbar, int command) const {
  const LRESULT state = Send(Control(toolbar), TB_GETSTATE, static_cast<WPARAM>(command));
  if (state == -1) throw std::runtime_error("No toolbar button " + std::to_string(command));
  return static_cast<int>(state);
}

RECT MainWindow::RectangleBy(HWND control, UINT message, WPARAM item, const RECT& asked) const {
  memory_.Put(asked);
  if (Send(control, message, item, memory_.At()) == 0) {
    throw std::runtime_error("The control tells no rectangle of " + std::to_string(item));
  }
  return OnScreen(control, memory_.Get<RECT>());
}

HWND MainWindow::DroppedList() const {
  const std::vector<HWND> lists = VisibleWindows(ProcessId(), L"ComboLBox");
  return lists.empty() ? nullptr : lists.front();
}

}  // namespace tessera::e2e
