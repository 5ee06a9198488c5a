// The options dialog: display, operation and language.
#pragma once

#include "dialogs/frmDialog.h"
#include "options/OptionsSelection.h"

namespace tessera {

class frmOptions final : public frmDialog {
 public:
  frmOptions(const Texts& texts, const Settings& settings);

  /// Shows the dialog and returns when it has closed.
  void Show(HWND owner, OptionsSelection& model);

 private:
  void Sync() override;
  void OnCommand(int id, int notification) override;
  void OnCloseButton() override;
  [[nodiscard]] COLORREF SwatchColor(int id) const override;
  void OnClick(int id);
  void OnTextBox(int notification);
  void ChooseLanguage(bool useDefault);

  OptionsSelection* model_ = nullptr;
};

}  // namespace tessera
