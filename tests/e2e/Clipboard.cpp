// Opened for as short a time as can be: while it is open nobody else can put anything there.
#include "tests/e2e/Clipboard.h"

#include <windows.h>

#include <algorithm>
#include <stdexcept>

#include "tests/support/win32/Wait.h"

namespace tessera::e2e {
namespace {

class OpenedClipboard {
 public:
  OpenedClipboard() {
    WaitFor("the clipboard to be free", [] { return OpenClipboard(nullptr) != FALSE; });
  }
  ~OpenedClipboard() { CloseClipboard(); }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
};

}  // namespace

std::wstring ClipboardText() {
  const OpenedClipboard clipboard;
  const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  const auto* const text =
      static_cast<const wchar_t*>(memory == nullptr ? nullptr : GlobalLock(memory));
  if (text == nullptr) return {};
  std::wstring copy = text;
  GlobalUnlock(memory);
  return copy;
}

std::string ClipboardHtml() {
  const OpenedClipboard clipboard;
  const HANDLE memory = GetClipboardData(RegisterClipboardFormatW(L"HTML Format"));
  const auto* const html =
      static_cast<const char*>(memory == nullptr ? nullptr : GlobalLock(memory));
  if (html == nullptr) return {};
  std::string copy = html;
  GlobalUnlock(memory);
  return copy;
}

void SetClipboardText(const std::wstring& text) {
  const OpenedClipboard clipboard;
  EmptyClipboard();
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
  auto* const target = static_cast<wchar_t*>(memory == nullptr ? nullptr : GlobalLock(memory));
  if (target == nullptr) throw std::runtime_error("No memory for the clipboard");
  *std::ranges::copy(text, target).out = L'\0';
  GlobalUnlock(memory);
  if (SetClipboardData(CF_UNICODETEXT, memory) == nullptr) {
    throw std::runtime_error("The clipboard takes no text");
  }
}

}  // namespace tessera::e2e
