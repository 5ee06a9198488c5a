// Exceptions cannot pass through the system's code, which calls our window procedures.
#pragma once

#include <windows.h>

namespace tessera {

/// Posted to the program's main window after an exception: it is to end the program in good order.
inline constexpr UINT FailureMessage = WM_APP + 2;

/// What `body` gives; after an exception nothing, and the window at the root of the owners of
/// `window`, which is the main window, learns of it.
template <typename Body>
auto Guarded(HWND window, Body body) noexcept -> decltype(body()) {
  try {
    return body();
  } catch (...) {
    PostMessageW(GetAncestor(window, GA_ROOTOWNER), FailureMessage, 0, 0);
    return {};
  }
}

}  // namespace tessera
