// Texts that functions of the system write into a buffer.
#pragma once

#include <windows.h>

#include <string>

namespace tessera {

/// What `ask(buffer, size)` writes, however long it is. `ask` gives the length without the
/// terminator, `size` or more when the buffer is too small, and 0 when there is no such text.
template <typename Ask>
[[nodiscard]] std::wstring SystemText(Ask ask) {
  std::wstring text(MAX_PATH, L'\0');
  DWORD length = ask(text.data(), static_cast<DWORD>(text.size()));
  while (length >= text.size()) {
    text.resize(2 * text.size());
    length = ask(text.data(), static_cast<DWORD>(text.size()));
  }
  text.resize(length);
  return text;
}

}  // namespace tessera
