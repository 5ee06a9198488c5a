// Further exceptions end the step that they come from, and nothing else.
#include "app/Failure.h"

namespace tessera {
namespace {

template <typename Step>
void Attempt(Step step) noexcept {
  try {
    step();
  } catch (...) {
    return;
  }
}

}  // namespace

void KeepAndTell(Editor& editor, MessageBoxes& messageBoxes) noexcept {
  bool isKept = false;
  Attempt([&] { isKept = editor.LeaveUnsaved(); });
  Attempt([&] {
    const TextId text = isKept ? TextId::MustEnd : TextId::MustEndNothingKept;
    messageBoxes.Show(editor.Language().GetLangText(text), BoxButtons::Ok, BoxIcon::Critical);
  });
}

}  // namespace tessera
