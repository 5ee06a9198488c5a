// What the edits are called that can be taken back, or made again.
#pragma once

#include <string>

#include "app/Editor.h"

namespace tessera {

/// In the language in use, as "Ctrl + F3 to cm_SrcByName".
[[nodiscard]] std::wstring StepName(const EditName& step, const DisplayTable& rows,
                                    const Texts& texts);

/// With the step's name, as "Undo: Ctrl + F3 to cm_SrcByName"; without a step the word alone.
[[nodiscard]] std::wstring UndoCaption(const Editor& editor);
[[nodiscard]] std::wstring RedoCaption(const Editor& editor);

}  // namespace tessera
