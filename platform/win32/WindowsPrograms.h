// Other programs' windows and processes on this desktop.
#pragma once

#include "platform/Programs.h"
#include "platform/win32/OwnerWindow.h"

namespace tessera {

class WindowsPrograms final : public Programs {
 public:
  explicit WindowsPrograms(const OwnerWindow& owner);

  [[nodiscard]] WindowId FindWindowOfClass(const std::wstring& className) const override;
  void SetForeground(WindowId window) override;
  void SendClose(WindowId window) override;
  bool Start(const std::wstring& commandLine) override;
  bool OpenDocument(const std::wstring& path) override;

 private:
  const OwnerWindow& owner_;
};

}  // namespace tessera
