// What the program still does after an exception that nobody expected.
#pragma once

#include "app/Editor.h"
#include "platform/MessageBoxes.h"

namespace tessera {

/// Keeps the unsaved keys beside their file, as at a log-off, and tells the user that the program
/// must end, and whether they are kept. What works then is not known: each of the two goes as far
/// as it can.
void KeepAndTell(Editor& editor, MessageBoxes& messageBoxes) noexcept;

}  // namespace tessera
