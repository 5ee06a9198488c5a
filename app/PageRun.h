// The run that writes the page of keys and ends, without a window.
#pragma once

#include <string>

#include "app/Arguments.h"
#include "platform/System.h"

namespace tessera {

/// Writes the page to `arguments.Page`, from the files and in the language that a start with a
/// window would take; paths are full ones. A file that would be asked for is missing, and one that
/// cannot be read, or would be overwritten by the page, is no less a failure. Nothing but the page
/// is written, and that whole or not at all. Gives why there is none, as one line; empty when there
/// is.
[[nodiscard]] std::wstring WriteKeysPage(const System& system, const Arguments& arguments);

}  // namespace tessera
