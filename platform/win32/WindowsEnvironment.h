// The surroundings of this process.
#pragma once

#include "platform/Environment.h"

namespace tessera {

class WindowsEnvironment final : public Environment {
 public:
  [[nodiscard]] std::wstring Variable(const std::wstring& name) const override;
  [[nodiscard]] std::wstring ProgramDirectory() const override;
  [[nodiscard]] std::wstring TemporaryDirectory() const override;
  [[nodiscard]] TwipsSize ScreenSize() const override;
};

}  // namespace tessera
