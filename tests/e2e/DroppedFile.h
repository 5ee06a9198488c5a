// A file dropped on a window, as the system tells it.
#pragma once

#include <windows.h>

#include <string>

namespace tessera::e2e {

/// Posts the message that a drop of that file is. `process` is the window's.
void DropFile(HWND window, HANDLE process, const std::wstring& path);

}  // namespace tessera::e2e
