// The window that message boxes and dialogs belong to.
#pragma once

#include <windows.h>

#include <functional>
#include <utility>

namespace tessera {

class OwnerWindow {
 public:
  /// The main window, or the modal dialog that has disabled it; null before there is one. Never a
  /// pop-up such as the keys list: the main window would stay enabled behind a question.
  [[nodiscard]] HWND Current() const {
    return IsWindowEnabled(main_) != FALSE ? main_ : GetLastActivePopup(main_);
  }

  /// The same, for a box or dialog that opens now.
  [[nodiscard]] HWND ForModal() const {
    if (beforeModal_) beforeModal_();
    return Current();
  }

  /// `beforeModal`, where given, is called before each box or dialog opens.
  void SetMain(HWND window, std::function<void()> beforeModal = nullptr) {
    main_ = window;
    beforeModal_ = std::move(beforeModal);
  }

 private:
  HWND main_ = nullptr;
  std::function<void()> beforeModal_;
};

}  // namespace tessera
