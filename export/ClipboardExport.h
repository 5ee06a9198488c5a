// The export to the clipboard: what its dialog holds from one showing to the next, and the copying
// that follows when the dialog has closed.
#pragma once

#include <string>

#include "export/ExportSelection.h"
#include "localisation/Texts.h"
#include "platform/Clipboard.h"
#include "platform/Pinned.h"
#include "settings/SettingsFile.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

class ClipboardExport : Pinned {
 public:
  ClipboardExport(const Catalogue& catalogue, const HotkeyNotation& notation, const Texts& texts,
                  SettingsFile& settingsFile);

  // -- Queries

  [[nodiscard]] const ExportSelection& Selection() const;

  /// The table that the last OK built; empty before the first one and after Cancel.
  [[nodiscard]] const std::wstring& ExportText() const;

  // -- The dialog

  /// Takes the stored selection, before the dialog is first shown. Later showings find the boxes as
  /// they were left.
  void Load(const ProfileFile& stored);

  /// As ExportSelection::Click.
  void Click(Column box);

  /// Builds the table of the displayed rows and stores the selection.
  void Ok();

  void Cancel();

  // -- After the dialog

  /// Copies the table with all that follows it; an empty one is not copied. When the dialog was
  /// closed by its close button that is, deliberately, the table of the OK before. False when there
  /// was one, and the clipboard did not take it.
  [[nodiscard]] bool CopyTo(Clipboard& clipboard, bool modified) const;

  // -- Without the dialog

  /// Copies the displayed rows in the columns of the last OK, as text and as HTML. False when the
  /// clipboard did not take them.
  [[nodiscard]] bool CopyTable(Clipboard& clipboard) const;

 private:
  const Catalogue& catalogue_;
  const HotkeyNotation& notation_;
  const Texts& texts_;
  SettingsFile& settingsFile_;
  ExportSelection selection_;
  ExportColumns exported_ = selection_.Columns();  ///< those of the last OK, or the stored ones
  std::wstring exportText_;
};

}  // namespace tessera
