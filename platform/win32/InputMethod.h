// Input methods, by which Chinese, Japanese and Korean are written.
#pragma once

#include <windows.h>

namespace tessera {

/// Takes the input method from a window and all that is in it now, but for text boxes: a letter
/// typed there names a key, and is not the begin of a word.
void TurnOffInputMethod(HWND window);

}  // namespace tessera
