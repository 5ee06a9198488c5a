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
template <typename Text>
UniqueGlobal ToGlobal(const Text& text) {
  using Character = typename Text::value_type;
  const std::size_t length = text.size() + 1;
  UniqueGlobal memory(GlobalAlloc(GMEM_MOVEABLE, length * sizeof(Character)));
  auto* target = memory ? static_cast<Character*>(GlobalLock(memory.get())) : nullptr;
  if (target == nullptr) return nullptr;
  std::copy_n(text.c_str(), length, target);
  GlobalUnlock(memory.get());
  return memory;
}

/// What the clipboard has taken belongs to the system.
bool Put(UINT format, UniqueGlobal& memory) {
  if (SetClipboardData(format, memory.get()) == nullptr) return false;
  static_cast<void>(memory.release());
  return true;
}

}  // namespace

WindowsClipboard::WindowsClipboard(const OwnerWindow& owner) : owner_(owner) {}

bool WindowsClipboard::SetText(const std::wstring& text) {
  UniqueGlobal memory = ToGlobal(text);
  if (!memory) return false;
  const OpenedClipboard clipboard(owner_.Current());
  return clipboard.IsOpen() && EmptyClipboard() != FALSE && Put(CF_UNICODETEXT, memory);
}

bool WindowsClipboard::SetTextAndHtml(const std::wstring& text, const std::string& html) {
  const UINT htmlFormat = RegisterClipboardFormatW(L"HTML Format");
  UniqueGlobal textMemory = ToGlobal(text);
  UniqueGlobal htmlMemory = ToGlobal(html);
  if (!textMemory || !htmlMemory || htmlFormat == 0) return false;
  const OpenedClipboard clipboard(owner_.Current());
  if (!clipboard.IsOpen() || EmptyClipboard() == FALSE) return false;
  if (Put(htmlFormat, htmlMemory) && Put(CF_UNICODETEXT, textMemory)) return true;
  EmptyClipboard();
  return false;
}

}  // namespace tessera
