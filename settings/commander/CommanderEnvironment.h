// The environment as Total Commander gives it to the programs that it starts.
#pragma once

#include <string>

#include "platform/Environment.h"

namespace tessera {

/// The variables of another environment, and Commander_Path also where that one lacks it: paths in
/// "Wincmd.ini" are written with it, but a program that Explorer started does not inherit it.
class CommanderEnvironment final : public Environment {
 public:
  explicit CommanderEnvironment(const Environment& environment);

  [[nodiscard]] std::wstring Variable(const std::wstring& name) const override;
  [[nodiscard]] std::wstring ProgramDirectory() const override;
  [[nodiscard]] std::wstring TemporaryDirectory() const override;
  [[nodiscard]] TwipsSize ScreenSize() const override;

  /// Takes Total Commander's folder; a trailing backslash is left away.
  void SetTotalCommanderDirectory(std::wstring directory);

 private:
  const Environment& environment_;
  std::wstring directory_;
};

}  // namespace tessera
