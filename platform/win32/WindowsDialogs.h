// The system's dialogs for files, colours and fonts.
#pragma once

#include <array>

#include "platform/Dialogs.h"
#include "platform/win32/OwnerWindow.h"

namespace tessera {

class WindowsDialogs final : public Dialogs {
 public:
  /// `owner` must outlive this object.
  explicit WindowsDialogs(const OwnerWindow& owner);

  std::optional<std::wstring> Open(const FileDialogRequest& request) override;
  std::optional<std::wstring> Save(const FileDialogRequest& request) override;
  std::optional<std::uint32_t> Color() override;
  bool Font(FontRecord& font) override;

 private:
  const OwnerWindow& owner_;
  std::array<COLORREF, 16> customColors_{};  // the user's own, kept for the run
};

}  // namespace tessera
