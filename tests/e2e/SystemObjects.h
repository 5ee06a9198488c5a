// How many objects of the system's graphics and windows a program holds.
#pragma once

#include <windows.h>

namespace tessera::e2e {

struct SystemObjects {
  int Graphics = 0;  ///< fonts, bitmaps, brushes and the like
  int User = 0;      ///< windows, menus, icons and the like
};

/// What a process holds now. Where the system does not tell, the second number is that of all
/// processes: only its growth means something.
[[nodiscard]] SystemObjects CountSystemObjects(HANDLE process);

}  // namespace tessera::e2e
