// An owned kernel handle.
#pragma once

#include <windows.h>

#include <memory>

namespace tessera {

struct HandleCloser {
  void operator()(HANDLE handle) const noexcept { CloseHandle(handle); }
};

using UniqueHandle = std::unique_ptr<void, HandleCloser>;

/// Takes over a handle; the value with which opening a file fails becomes an empty handle.
[[nodiscard]] inline UniqueHandle Own(HANDLE handle) {
  return UniqueHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

}  // namespace tessera
