// The system's clipboard.
#pragma once

#include "platform/Clipboard.h"
#include "platform/win32/OwnerWindow.h"

namespace tessera {

class WindowsClipboard final : public Clipboard {
 public:
  explicit WindowsClipboard(const OwnerWindow& owner);

  bool SetText(const std::wstring& text) override;
  bool SetTextAndHtml(const std::wstring& text, const std::string& html) override;

 private:
  const OwnerWindow& owner_;
};

}  // namespace tessera
