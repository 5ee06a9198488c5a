// Nothing is copied while the rows are being read.
#include "app/Editor.h"
#include "export/HtmlTable.h"

namespace tessera {

void Editor::CopyCommandName() {
  if (!MayCopyRow()) return;
  BeepUnless(system_.Clipboard.SetText(std::wstring(SelectedEntry().CommandName)));
}

void Editor::CopyRow() {
  if (MayCopyRow()) BeepUnless(system_.Clipboard.SetText(RowText(SelectedEntry())));
}

void Editor::CopyTable() {
  if (!document_.Busy()) BeepUnless(export_.CopyTable(system_.Clipboard));
}

bool Editor::MayCopyRow() const { return !document_.Busy() && list_.CommandSelected(); }

const CommandEntry& Editor::SelectedEntry() const {
  return document_.Rows().Row(list_.SelectedRow());
}

void Editor::BeepUnless(bool taken) {
  if (!taken) system_.MessageBoxes.Beep();
}

}  // namespace tessera
