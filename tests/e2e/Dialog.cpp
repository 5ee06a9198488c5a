// Closing is waited for by what can be seen: some windows are only hidden.
#include "tests/e2e/Dialog.h"

// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <array>
#include <vector>

#include "tests/e2e/Folder.h"
#include "tests/e2e/Input.h"
#include "tests/support/win32/Program.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e {
namespace {

constexpr std::size_t TextLength = 256;  // characters with the terminator
constexpr std::size_t TextAt = 256;      // bytes into the program's memory

}  // namespace

HWND WaitForDialog(DWORD process, const std::wstring& className) {
  return WaitFor("window " + Utf8(className), [&]() -> HWND {
    const std::vector<HWND> windows = VisibleWindows(process, className);
    return windows.empty() || IsWindowEnabled(windows.front()) == FALSE ? nullptr : windows.front();
  });
}

Dialog::Dialog(HWND window, HANDLE process)
    : Window(window), memory_(std::make_unique<RemoteMemory>(process, MemoryBytes)) {}

void Dialog::CloseBy(int id) {
  ClickControl(id);
  WaitUntilClosed();
}

void Dialog::CloseByKey(WORD key) {
  BringToFront(Handle());
  Press(key);
  WaitUntilClosed();
}

void Dialog::CloseByCaption() {
  const RECT place = RectangleOf(Handle());
  const int frame = GetSystemMetrics(SM_CXFIXEDFRAME);
  BringToFront(Handle());
  Click({place.right - frame - GetSystemMetrics(SM_CXSIZE) / 2,
         place.top + frame + GetSystemMetrics(SM_CYSIZE) / 2});
  WaitUntilClosed();
}

void Dialog::WaitUntilClosed() const {
  WaitFor("the dialog to close", [&] { return IsWindowVisible(Handle()) == FALSE; });
}

std::wstring Dialog::TabText(int tabs, int tab) const {
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.cchTextMax = TextLength;
  item.pszText = static_cast<wchar_t*>(memory_->At(TextAt));
  memory_->Put(item);
  Send(Control(tabs), TCM_GETITEMW, static_cast<WPARAM>(tab), memory_->At());
  return memory_->Get<std::array<wchar_t, TextLength>>(TextAt).data();
}

int Dialog::ChosenTab(int tabs) const {
  return static_cast<int>(Send(Control(tabs), TCM_GETCURSEL));
}

void Dialog::ClickTab(int tabs, int tab) {
  const HWND control = Control(tabs);
  Send(control, TCM_GETITEMRECT, static_cast<WPARAM>(tab), memory_->At());
  BringToFront(Handle());
  Click(CenterOf(OnScreen(control, memory_->Get<RECT>())));
  WaitFor("tab " + std::to_string(tab) + " to be chosen", [&] { return ChosenTab(tabs) == tab; });
}

}  // namespace tessera::e2e
