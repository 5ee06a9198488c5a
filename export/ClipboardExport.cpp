// The dialog's buttons.
#include "export/ClipboardExport.h"

namespace tessera {

ClipboardExport::ClipboardExport(const Catalogue& catalogue, const HotkeyNotation& notation,
                                 const Texts& texts, SettingsFile& settingsFile)
    : catalogue_(catalogue), notation_(notation), texts_(texts), settingsFile_(settingsFile) {}

const ExportSelection& ClipboardExport::Selection() const { return selection_; }

const std::wstring& ClipboardExport::ExportText() const { return exportText_; }

void ClipboardExport::Load(const ProfileFile& stored) {
  selection_.Load(stored.ReadString(ProgramSection, ClipOptionsKey, L""));
}

void ClipboardExport::Click(Column box) { selection_.Click(box); }

void ClipboardExport::Ok() {
  exportText_ = BuildExportText(catalogue_.ListView1, selection_.Columns(), texts_,
                                notation_.UndefinedHotkey);
  settingsFile_.Change([this](ProfileFile& stored) {
    stored.WriteString(ProgramSection, ClipOptionsKey, selection_.ClipOptions());
  });
}

void ClipboardExport::Cancel() { exportText_.clear(); }

bool ClipboardExport::CopyTo(Clipboard& clipboard, bool modified) const {
  if (exportText_.empty()) return true;
  return clipboard.SetText(exportText_ +
                           BuildExportEnding(catalogue_.StartMenuKeys, modified, texts_));
}

}  // namespace tessera
