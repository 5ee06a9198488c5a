// The four boxes and two buttons of the export dialog.
#include "export/frmExportToClipboard.h"

#include <algorithm>

#include "resources/resource.h"

namespace tessera {
namespace {

constexpr DialogControl Controls[] = {
    {IDC_Frame1, ControlKind::Frame, TextId::None},
    {IDC_chkColumn0, ControlKind::CheckBox, TextId::DescriptionColumn},
    {IDC_chkColumn1, ControlKind::CheckBox, TextId::CommandColumn},
    {IDC_chkColumn2, ControlKind::CheckBox, TextId::DefaultHotkeyColumn},
    {IDC_chkColumn3, ControlKind::CheckBox, TextId::CurrentHotkeyColumn},
};

struct ColumnBox {
  int Id;
  Column Exported;
};

constexpr ColumnBox Boxes[] = {
    {IDC_chkColumn0, Column::Description},
    {IDC_chkColumn1, Column::Command},
    {IDC_chkColumn2, Column::Defaults},
    {IDC_chkColumn3, Column::Current},
};

constexpr DialogControl Buttons[] = {
    {IDC_cmdOK, ControlKind::Button, TextId::Ok},
    {IDC_cmdCancel, ControlKind::Button, TextId::Cancel},
};

constexpr DialogPlan Plan{
    .ClassName = L"frmExportToClipboard",
    .Title = TextId::ExportTitle,
    .Controls = Controls,
    .Buttons = Buttons,
};

}  // namespace

frmExportToClipboard::frmExportToClipboard(const Texts& texts, const Settings& settings)
    : frmDialog(Plan, texts, settings) {}

void frmExportToClipboard::Show(HWND owner, ClipboardExport& model) {
  model_ = &model;
  ShowModal(owner);
}

void frmExportToClipboard::Sync() {
  for (const ColumnBox& box : Boxes) SetChecked(box.Id, model_->Selection().Checked(box.Exported));
}

void frmExportToClipboard::OnCommand(int id, int notification) {
  if (notification != BN_CLICKED) return;
  const auto* const box = std::ranges::find(Boxes, id, &ColumnBox::Id);
  if (box != std::end(Boxes)) {
    model_->Click(box->Exported);
    Sync();
  } else if (id == IDC_cmdOK) {
    model_->Ok();
    Close();
  } else if (id == IDC_cmdCancel) {
    model_->Cancel();
    Close();
  }
}

// The table of the OK before stays, deliberately, and is copied again.
void frmExportToClipboard::OnCloseButton() { Close(); }

}  // namespace tessera
