// One text for each kind of edit.
#include "app/StepNames.h"

#include "localisation/Placeholders.h"

namespace tessera {
namespace {

TextId TextOf(EditKind kind) {
  switch (kind) {
    case EditKind::Assign:
      return TextId::StepAssign;
    case EditKind::Add:
      return TextId::StepAdd;
    case EditKind::Delete:
      return TextId::StepDelete;
    case EditKind::DeleteAll:
      return TextId::StepDeleteAll;
    case EditKind::TakeFromStartMenu:
      break;
  }
  return TextId::StepTakeFromStartMenu;
}

std::wstring Caption(const Editor& editor, const EditHistory::Step* step, TextId word,
                     TextId wordAndName) {
  const Texts& texts = editor.Language();
  if (step == nullptr) return texts.GetLangText(word);
  return WithValues(texts.GetLangText(wordAndName),
                    {StepName(step->Name, editor.Document().Rows(), texts)});
}

}  // namespace

std::wstring StepName(const EditName& step, const DisplayTable& rows, const Texts& texts) {
  const std::wstring_view command = step.Row == 0 ? L"" : rows.Row(step.Row).CommandName;
  return WithValues(texts.GetLangText(TextOf(step.Kind)), {step.Key, command});
}

std::wstring UndoCaption(const Editor& editor) {
  return Caption(editor, editor.Document().Edits().ToUndo(), TextId::Undo, TextId::UndoStep);
}

std::wstring RedoCaption(const Editor& editor) {
  return Caption(editor, editor.Document().Edits().ToRedo(), TextId::Redo, TextId::RedoStep);
}

}  // namespace tessera
