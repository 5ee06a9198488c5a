// Memory in another process, for the messages of common controls that carry pointers.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

namespace tessera::e2e {

class RemoteMemory {
 public:
  /// `process` must stay open as long as this object lives.
  RemoteMemory(HANDLE process, std::size_t bytes);
  ~RemoteMemory();
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;

  /// The address in the other process, `offset` bytes from the start.
  [[nodiscard]] void* At(std::size_t offset = 0) const;

  void Write(const void* data, std::size_t bytes, std::size_t offset = 0);
  void Read(void* data, std::size_t bytes, std::size_t offset = 0) const;

  template <typename Value>
  void Put(const Value& value, std::size_t offset = 0) {
    Write(&value, sizeof value, offset);
  }

  template <typename Value>
  [[nodiscard]] Value Get(std::size_t offset = 0) const {
    Value value{};
    Read(&value, sizeof value, offset);
    return value;
  }

 private:
  HANDLE process_;
  std::byte* address_;
};

/// Sends a message to a window of another program; throws std::runtime_error when it does not
/// answer within some seconds.
LRESULT Send(HWND window, UINT message, WPARAM first = 0, LPARAM second = 0);

/// The same, with a pointer of any kind as the second parameter.
LRESULT Send(HWND window, UINT message, WPARAM first, const void* second);

/// The text of a window or control of any process.
[[nodiscard]] std::wstring TextOf(HWND window);

}  // namespace tessera::e2e
