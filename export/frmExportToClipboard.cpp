// The four boxes and two buttons of the export dialog.
#include "export/frmExportToClipboard.h"

#include <algorithm>

#include "resources/resource.h"

namespace tessera {

namespace {

constexpr DialogControl Controls[] = {
    {IDC_Frame1, ControlKind::Frame, 0},           {IDC_chkColumn0, ControlKind::CheckBox, 3003},
    {IDC_chkColumn1, ControlKind::CheckBox, 3004}, {IDC_chkColumn2, ControlKind::CheckBox, 3200},
    {IDC_chkColumn3, ControlKind::CheckBox, 3201},
};

constexpr int Boxes[] = {IDC_chkColumn0, IDC_chkColumn1, IDC_chkColumn2, IDC_chkColumn3};

constexpr DialogControl Buttons[] = {
    {IDC_cmdOK, ControlKind::Button, 1008},
    {IDC_cmdCancel, ControlKind::Button, 1009},
};

constexpr DialogPlan Plan{
    .ClassName = L"frmExportToClipboard",
    .TitleTextId = 407,
    .Controls = Controls,
    .Buttons = Buttons,
};

}  // namespace

frmExportToClipboard::frmExportToClipboard(const Texts& texts, const Settings& settings)
    : frmDialog(Plan, texts, settings) {}

void frmExportToClipboard::Show(HWND owner, ClipboardExport& model,
                                const std::function<void()>& ok) {
  model_ = &model;
  ok_ = ok;
  ShowModal(owner);
}

void frmExportToClipboard::Sync() {
  for (int box = 0; const int id : Boxes) {
    SetChecked(id, model_->Selection().Checked(box++));
  }
}

void frmExportToClipboard::OnCommand(int id, int notification) {
  if (notification != BN_CLICKED) {
    return;
  }
  const auto* const box = std::ranges::find(Boxes, id);
  if (box != std::end(Boxes)) {
    model_->Click(static_cast<int>(box - Boxes));
    Sync();
  } else if (id == IDC_cmdOK) {
    ok_();
    Close();
  } else if (id == IDC_cmdCancel) {
    model_->Cancel();
    Close();
  }
}

// The table of the OK before stays, deliberately, and is copied again.
void frmExportToClipboard::OnCloseButton() { Close(); }

}  // namespace tessera
