// Other programs' windows and processes on this desktop.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/Programs.h"
#include "platform/win32/Handle.h"
#include "platform/win32/OwnerWindow.h"

namespace tessera {

class WindowsPrograms final : public Programs {
 public:
  explicit WindowsPrograms(const OwnerWindow& owner);

  [[nodiscard]] WindowId FindWindowOfClass(const std::wstring& className) const override;
  [[nodiscard]] std::wstring PathOf(WindowId window) const override;
  void SetForeground(WindowId window) override;
  bool SendClose(WindowId window) override;
  [[nodiscard]] bool AwaitsAnswer() const override;
  bool Start(const std::wstring& commandLine) override;
  bool OpenDocument(const std::wstring& path) override;

 private:
  const OwnerWindow& owner_;

  // The last close request. The system may bring an answer after nobody waits for it any more.
  std::shared_ptr<bool> answered_ = std::make_shared<bool>(true);
  HWND asked_ = nullptr;
  UniqueHandle askedProcess_;  ///< empty when it may not be opened
  std::uint64_t askedAt_ = 0;  ///< milliseconds
};

}  // namespace tessera
