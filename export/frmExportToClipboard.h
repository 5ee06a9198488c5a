// The export dialog: which columns of the list go to the clipboard.
#pragma once

#include "dialogs/frmDialog.h"
#include "export/ClipboardExport.h"

namespace tessera {

class frmExportToClipboard final : public frmDialog {
 public:
  frmExportToClipboard(const Texts& texts, const Settings& settings);

  /// Shows the dialog and returns when it has closed.
  void Show(HWND owner, ClipboardExport& model);

 private:
  void Sync() override;
  void OnCommand(int id, int notification) override;
  void OnCloseButton() override;

  ClipboardExport* model_ = nullptr;
};

}  // namespace tessera
