// Other programs: their windows, and starting them.
#pragma once

#include <cstdint>
#include <string>

namespace tessera {

/// A top-level window of any program; 0 is none.
using WindowId = std::uintptr_t;

class Programs {
 public:
  virtual ~Programs() = default;

  /// A top-level window of that class, whatever its title; 0 when there is none.
  [[nodiscard]] virtual WindowId FindWindowOfClass(const std::wstring& className) const = 0;

  /// The full path of the program that the window belongs to; empty when the system does not tell,
  /// and for 0.
  [[nodiscard]] virtual std::wstring PathOf(WindowId window) const = 0;

  virtual void SetForeground(WindowId window) = 0;

  /// Sends the close request, and does not wait. False when the system forbids it, as it does to a
  /// program of more rights.
  virtual bool SendClose(WindowId window) = 0;

  /// True while the window that was last sent one is at work on it; false when its program hangs or
  /// has ended, and when this one is to end. The answer comes while window events are handled.
  [[nodiscard]] virtual bool AwaitsAnswer() const = 0;

  /// Starts a command line in a normal window and in the folder of its program, and does not wait
  /// for it; false when that fails, as where no part of an unquoted line is a file.
  virtual bool Start(const std::wstring& commandLine) = 0;

  /// Opens a document with the program registered for it; false when that fails.
  virtual bool OpenDocument(const std::wstring& path) = 0;
};

}  // namespace tessera
