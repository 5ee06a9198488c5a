// The windows that the main window opens: the two dialogs, and the keys list.
#include "app/frmMain.h"

namespace tessera {

void frmMain::ShowExport() {
  ClipboardExport& model = editor_.BeginExport();
  frmExportToClipboard_.Show(window_, model, [&model] { model.Ok(); });
  editor_.EndExport();
}

void frmMain::ShowOptions() {
  frmOptions_.Show(window_, editor_.BeginOptions());
  ApplyFonts();
  ApplyDisplaySettings();
  // May show a box, behind which the window is to have its new looks.
  const OptionsOutcome outcome = editor_.EndOptions();
  if (outcome.LanguageChanged) {
    ApplyLanguage();
    ApplyFonts();
    ApplyDisplaySettings();
  }
  React(outcome.Panel);
}

void frmMain::ToggleKeysList() {
  if (AcceptsInput()) {
    React(editor_.Work(&KeysList::ToggleKeysList));
  }
}

// Few users open the list, so it is made when it first opens.
void frmMain::CreateKeysList() {
  frmKeysList_.Create(window_);
  frmKeysList_.ApplyFont(font_.get(), dpi_);
  LabelPanel();
}

void frmMain::SyncKeysList() {
  const KeysList& list = editor_.AllKeys();
  SetEnabled(Toolbar2_, list.PanelToolbarEnabled());
  if (list.Visible() && !frmKeysList_.Created()) {
    CreateKeysList();
  }
  frmKeysList_.Select(list.Selection());
  // While the window is minimised the system hides the list with it.
  if (list.Visible() == frmKeysList_.Visible() || IsIconic(window_) != FALSE) {
    return;
  }
  if (list.Visible()) {
    MoveKeysList();
    frmKeysList_.Show();
  } else {
    frmKeysList_.Hide();
  }
}

void frmMain::MoveKeysList() {
  const Area size = frmKeysList_.Size();
  frmKeysList_.MoveTo(PlaceKeysList({.Panel = WindowArea(Frame1_),
                                     .Button = WindowArea(cmdAllList_),
                                     .Screen = WorkArea(window_),
                                     .RightToLeft = editor_.Language().RightToLeft()},
                                    size.Width, size.Height));
}

}  // namespace tessera
