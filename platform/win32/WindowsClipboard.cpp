// The text is made before the clipboard is opened, so that it is held no longer than needed.
#include "platform/win32/WindowsClipboard.h"

#include <algorithm>
#include <memory>

namespace tessera {
namespace {

constexpr int OpenAttempts = 10;
constexpr DWORD PauseBetweenAttempts = 50;  // milliseconds

struct GlobalDeleter {
  void operator()(void* memory) const noexcept { GlobalFree(memory); }
};

using UniqueGlobal = std::unique_ptr<void, GlobalDeleter>;

/// The clipboard, open for as long as this object lives.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) {
    for (int attempt = 1; !isOpen_ && attempt <= OpenAttempts; ++attempt) {
      if (attempt > 1) Sleep(PauseBetweenAttempts);
      isOpen_ = OpenClipboard(owner) != FALSE;
    }
  }
  ~OpenedClipboard() {
    if (isOpen_) CloseClipboard();
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;

  /// False while another program has the clipboard open.
  [[nodiscard]] bool IsOpen() const { return isOpen_; }

 private:
  bool isOpen_ = false;
};

/// The text with its terminator in movable memory; empty when there is no memory for it.
UniqueGlobal ToGlobal(const std::wstring& text) {
  const std::size_t length = text.size() + 1;
  UniqueGlobal memory(GlobalAlloc(GMEM_MOVEABLE, length * sizeof(wchar_t)));
  auto* target = memory ? static_cast<wchar_t*>(GlobalLock(memory.get())) : nullptr;
  if (target == nullptr) return nullptr;
  std::copy_n(text.c_str(), length, target);
  GlobalUnlock(memory.get());
  return memory;
}

}  // namespace

WindowsClipboard::WindowsClipboard(const OwnerWindow& owner) : owner_(owner) {}

bool WindowsClipboard::SetText(const std::wstring& text) {
  UniqueGlobal memory = ToGlobal(text);
  if (!memory) return false;
  const OpenedClipboard clipboard(owner_.Current());
  if (!clipboard.IsOpen() || EmptyClipboard() == FALSE) return false;
  // Text that the clipboard has taken belongs to the system.
  if (SetClipboardData(CF_UNICODETEXT, memory.get()) == nullptr) return false;
  static_cast<void>(memory.release());
  return true;
}

}  // namespace tessera
