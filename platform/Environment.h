// What surrounds the program: variables, its own folder, the screen.
#pragma once

#include <string>

namespace tessera {

/// A size in twips (1/1440 inch).
struct TwipsSize {
  int Width = 0;
  int Height = 0;
};

class Environment {
 public:
  virtual ~Environment() = default;

  /// The value of an environment variable; empty when it is not set.
  [[nodiscard]] virtual std::wstring Variable(const std::wstring& name) const = 0;

  /// The folder of the program, without a trailing backslash unless it is a root.
  [[nodiscard]] virtual std::wstring ProgramDirectory() const = 0;

  /// The user's folder for files that may be thrown away.
  [[nodiscard]] virtual std::wstring TemporaryDirectory() const = 0;

  /// The size of the primary screen.
  [[nodiscard]] virtual TwipsSize ScreenSize() const = 0;
};

}  // namespace tessera
