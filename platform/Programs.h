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

  virtual void SetForeground(WindowId window) = 0;

  /// Sends the close request and waits until the window has taken it; a program that hangs is not
  /// waited for, one that asks its user something is for ten minutes.
  virtual void SendClose(WindowId window) = 0;

  /// Starts a command line in a normal window, and does not wait for it; false when that fails.
  virtual bool Start(const std::wstring& commandLine) = 0;

  /// Opens a document with the program registered for it; false when that fails.
  virtual bool OpenDocument(const std::wstring& path) = 0;
};

}  // namespace tessera
