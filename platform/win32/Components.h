// The system's components (COM), for the one thread of the program.
#pragma once

#include <windows.h>

namespace tessera {

/// To be called before anything of the system that uses components, as its dialogs do. They are
/// started at the first call, so as not to delay the start of the program, and stay until its end.
void StartComponents();

/// An interface of a new component in this process, for the caller to release; null when there is
/// no such component.
[[nodiscard]] void* CreateComponent(const GUID& classId, const GUID& interfaceId);

}  // namespace tessera
