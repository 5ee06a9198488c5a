// The system's message boxes.
#pragma once

#include "platform/MessageBoxes.h"
#include "platform/win32/OwnerWindow.h"

namespace tessera {

class WindowsMessageBoxes final : public MessageBoxes {
 public:
  /// `owner` must outlive this object.
  explicit WindowsMessageBoxes(const OwnerWindow& owner);

  /// A box that cannot be shown gives the answer that changes least.
  BoxAnswer Show(const std::wstring& text, BoxButtons buttons, BoxIcon icon,
                 BoxDefault defaultButton) override;
  void Beep() override;

 private:
  const OwnerWindow& owner_;
};

}  // namespace tessera
