// The dialog's buttons.
#include "export/ClipboardExport.h"

#include "export/HtmlFormat.h"
#include "export/HtmlTable.h"

namespace tessera {

ClipboardExport::ClipboardExport(const Catalogue& catalogue, const HotkeyNotation& notation,
                                 const Texts& texts, SettingsFile& settingsFile)
    : catalogue_(catalogue), notation_(notation), texts_(texts), settingsFile_(settingsFile) {}

const ExportSelection& ClipboardExport::Selection() const { return selection_; }

const std::wstring& ClipboardExport::ExportText() const { return exportText_; }

void ClipboardExport::Load(const ProfileFile& stored) {
  selection_.Load(stored.ReadString(ProgramSection, ClipOptionsKey, L""));
  exported_ = selection_.Columns();
}

void ClipboardExport::Click(Column box) { selection_.Click(box); }

void ClipboardExport::Ok() {
  exported_ = selection_.Columns();
  exportText_ = BuildExportText(catalogue_.ListView1, exported_, texts_, notation_.UndefinedHotkey);
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

bool ClipboardExport::CopyTable(Clipboard& clipboard) const {
  const DisplayTable& rows = catalogue_.ListView1;
  const std::wstring& undefined = notation_.UndefinedHotkey;
  return clipboard.SetTextAndHtml(BuildExportText(rows, exported_, texts_, undefined),
                                  HtmlFormat(BuildHtmlTable(rows, exported_, texts_, undefined)));
}

}  // namespace tessera
