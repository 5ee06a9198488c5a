// The text is made before the clipboard is opened, so that it is held no longer than needed.
#include "platform/win32/WindowsClipboard.h"

#include <algorithm>
#include <memory>
#include <span>

namespace tessera {
namespace {

constexpr int Pauses = 9;          // between ten attempts to open it
constexpr DWORD PauseLength = 50;  // milliseconds

struct GlobalDeleter {
  void operator()(void* memory) const noexcept { GlobalFree(memory); }
};

using UniqueGlobal = std::unique_ptr<void, GlobalDeleter>;

/// The clipboard, open for as long as this object lives.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) : isOpen_(OpenClipboard(owner) != FALSE) {
    for (int pause = 0; !isOpen_ && pause < Pauses; ++pause) {
      Sleep(PauseLength);
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
  bool isOpen_;
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

struct Content {
  UINT Format;
  UniqueGlobal Memory;
};

bool Put(Content& content) {
  if (SetClipboardData(content.Format, content.Memory.get()) == nullptr) return false;
  // What the clipboard has taken belongs to the system.
  static_cast<void>(content.Memory.release());
  return true;
}

/// Puts all of it in the place of what was there, or leaves nothing there.
bool Replace(HWND owner, std::span<Content> contents) {
  const auto isMade = [](const Content& content) { return content.Memory != nullptr; };
  if (!std::ranges::all_of(contents, isMade)) return false;
  const OpenedClipboard clipboard(owner);
  if (!clipboard.IsOpen() || EmptyClipboard() == FALSE) return false;
  if (std::ranges::all_of(contents, Put)) return true;
  EmptyClipboard();
  return false;
}

}  // namespace

WindowsClipboard::WindowsClipboard(const OwnerWindow& owner) : owner_(owner) {}

bool WindowsClipboard::SetText(const std::wstring& text) {
  Content contents[] = {{CF_UNICODETEXT, ToGlobal(text)}};
  return Replace(owner_.Current(), contents);
}

bool WindowsClipboard::SetTextAndHtml(const std::wstring& text, const std::string& html) {
  Content contents[] = {{RegisterClipboardFormatW(L"HTML Format"), ToGlobal(html)},
                        {CF_UNICODETEXT, ToGlobal(text)}};
  return Replace(owner_.Current(), contents);
}

}  // namespace tessera
