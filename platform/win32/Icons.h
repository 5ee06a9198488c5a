// The icons of the program's resources, alone and as lists.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <span>

#include "platform/win32/Controls.h"

namespace tessera {

/// The icon resource of that ID at exactly that size in pixels; null when there is none.
[[nodiscard]] Unique<HICON> LoadIconOfSize(int id, int size);

/// An image list of icon resources, in their order.
[[nodiscard]] Unique<HIMAGELIST> LoadImages(std::span<const int> iconIds, int size);

}  // namespace tessera
