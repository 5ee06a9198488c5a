// The system's components (COM), for the one thread of the program.
#pragma once

#include <windows.h>
#include <unknwn.h>

#include <memory>

namespace tessera {

struct ComponentReleaser {
  void operator()(IUnknown* component) const noexcept { component->Release(); }
};

using UniqueComponent = std::unique_ptr<IUnknown, ComponentReleaser>;

/// To be called before anything of the system that uses components, as its dialogs do. They are
/// started at the first call, so as not to delay the start of the program, and stay until its end.
void StartComponents();

/// A new component in this process, by its interface of that ID; null when there is no such one.
[[nodiscard]] UniqueComponent CreateComponent(const GUID& classId, const GUID& interfaceId);

}  // namespace tessera
