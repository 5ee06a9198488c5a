// The dialog's buttons.
#include "export/ClipboardExport.h"

#include "settings/ini/ProfileFile.h"
#include "settings/Settings.h"

namespace tessera {

namespace {

constexpr std::wstring_view ClipOptionsKey = L"ClipOptions";

}  // namespace

ClipboardExport::ClipboardExport(const Catalogue& catalogue, const HotkeyNotation& notation,
                                 const Texts& texts)
    : catalogue_(catalogue), notation_(notation), texts_(texts) {}

const ExportSelection& ClipboardExport::Selection() const { return selection_; }

const std::wstring& ClipboardExport::ExportText() const { return exportText_; }

void ClipboardExport::Load(const Files& files, const std::wstring& settingsFile) {
  const ProfileFile settings(files, settingsFile);
  selection_.Load(settings.ReadString(ProgramSection, ClipOptionsKey, L""));
}

void ClipboardExport::Click(Column box) { selection_.Click(box); }

void ClipboardExport::Ok(Files& files, Clock& clock, const std::wstring& settingsFile) {
  exportText_ = BuildExportText(catalogue_.ListView1, selection_.Columns(), texts_,
                                notation_.UndefinedHotkey);
  ProfileFile settings(files, settingsFile);
  settings.WriteString(ProgramSection, ClipOptionsKey, selection_.ClipOptions());
  // As with all settings, a folder that cannot be written is not reported.
  static_cast<void>(settings.Save(files, clock, KeepCopies::No));
}

void ClipboardExport::Cancel() { exportText_.clear(); }

void ClipboardExport::CopyTo(Clipboard& clipboard, bool modified) const {
  if (!exportText_.empty()) {
    clipboard.SetText(exportText_ + BuildExportEnding(catalogue_.StartMenuKeys, modified, texts_));
  }
}

}  // namespace tessera
