// A file that is dropped on a window.
#pragma once

#include <windows.h>
#include <shellapi.h>

#include <string>

namespace tessera {

/// The full path of the first file of a drop, which is released by it; empty when there is none.
[[nodiscard]] std::wstring TakeDroppedFile(HDROP drop);

}  // namespace tessera
