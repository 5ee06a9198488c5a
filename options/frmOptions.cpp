// The four pages of the options dialog, and what their controls do.
#include "options/frmOptions.h"

#include <algorithm>

#include "resources/resource.h"

namespace tessera {

namespace {

enum Page { Layout, ColorAndFont, Operation, Language };

constexpr int TabTextIds[] = {1002, 1004, 1005, 1006};

constexpr DialogControl Controls[] = {
    {IDC_Frame1, ControlKind::Frame, 1021, Layout},
    {IDC_chkShowgridlines, ControlKind::CheckBox, 1024, Layout},
    {IDC_chkFixedBorders, ControlKind::CheckBox, 1025, Layout},
    {IDC_chkFlatUserInterface, ControlKind::CheckBox, 1026, Layout},
    {IDC_Frame7, ControlKind::Frame, 1051, ColorAndFont},
    {IDC_Label3, ControlKind::Label, 1052, ColorAndFont},
    {IDC_lblColorChange0, ControlKind::Swatch, 1052, ColorAndFont},
    {IDC_Label4, ControlKind::Label, 1053, ColorAndFont},
    {IDC_lblColorChange1, ControlKind::Swatch, 1053, ColorAndFont},
    {IDC_Frame3, ControlKind::Frame, 1065, ColorAndFont},
    {IDC_cmdChangeFont, ControlKind::Button, 1044, ColorAndFont},
    {IDC_chkAlwaysRestartTC, ControlKind::CheckBox, 1121, Operation},
    {IDC_chkUseContextMenuKey, ControlKind::CheckBox, 1122, Operation},
    {IDC_chkReverseOrderHotkey, ControlKind::CheckBox, 1123, Operation},
    {IDC_Frame4, ControlKind::Frame, 1089, Language},
    {IDC_optUseDefaultLanguage, ControlKind::OptionButton, 1090, Language},
    {IDC_optUseOtheLanguage, ControlKind::OptionButton, 1091, Language},
    {IDC_txtLanguageFilePath, ControlKind::TextBox, 1006, Language},
    {IDC_cmdBrowseForLangFile, ControlKind::SideButton, 1006, Language},
};

constexpr DialogControl Buttons[] = {
    {IDC_cmdOK, ControlKind::Button, 1008},
    {IDC_cmdCancel, ControlKind::Button, 1009},
    {IDC_cmdApply, ControlKind::Button, 1010},
};

constexpr DialogPlan Plan{
    .ClassName = L"frmOptions",
    .TitleTextId = 1001,
    .Controls = Controls,
    .Buttons = Buttons,
    .TabsId = IDC_tbsOptions,
    .TabTextIds = TabTextIds,
};

struct Box {
  int Id;
  OptionBox Option;
};

constexpr Box Boxes[] = {
    {IDC_chkShowgridlines, OptionBox::ShowGridLines},
    {IDC_chkFixedBorders, OptionBox::FixedBorders},
    {IDC_chkFlatUserInterface, OptionBox::FlatUserInterface},
    {IDC_chkAlwaysRestartTC, OptionBox::AlwaysRestartTC},
    {IDC_chkUseContextMenuKey, OptionBox::UseContextMenuKey},
    {IDC_chkReverseOrderHotkey, OptionBox::ReverseOrderHotkey},
};

OptionColor ColorOf(int swatchId) {
  return swatchId == IDC_lblColorChange0 ? OptionColor::Foreground : OptionColor::Background;
}

}  // namespace

frmOptions::frmOptions(const Texts& texts, const Settings& settings)
    : frmDialog(Plan, texts, settings) {}

void frmOptions::Show(HWND owner, OptionsSelection& model) {
  model_ = &model;
  ShowModal(owner);
}

void frmOptions::Sync() {
  for (const Box& box : Boxes) {
    SetChecked(box.Id, model_->Checked(box.Option));
  }
  SetChecked(IDC_optUseDefaultLanguage, model_->UsesDefaultLanguage());
  SetChecked(IDC_optUseOtheLanguage, !model_->UsesDefaultLanguage());
  SetText(Control(IDC_txtLanguageFilePath), model_->LanguageFilePath());
  SetEnabled(Control(IDC_txtLanguageFilePath), model_->LanguageFileEnabled());
  SetEnabled(Control(IDC_cmdBrowseForLangFile), model_->LanguageFileEnabled());
  const HWND apply = Control(IDC_cmdApply);
  if (!model_->ApplyEnabled() && GetFocus() == apply) {
    FocusOn(IDC_cmdOK);
  }
  SetEnabled(apply, model_->ApplyEnabled());
  InvalidateRect(Control(IDC_lblColorChange0), nullptr, FALSE);
  InvalidateRect(Control(IDC_lblColorChange1), nullptr, FALSE);
}

COLORREF frmOptions::SwatchColor(int id) const { return ColourOf(model_->Color(ColorOf(id))); }

void frmOptions::OnCommand(int id, int notification) {
  if (id == IDC_txtLanguageFilePath) {
    OnTextBox(notification);
  } else if (notification == BN_CLICKED) {
    OnClick(id);
  }
}

void frmOptions::OnTextBox(int notification) {
  const HWND box = Control(IDC_txtLanguageFilePath);
  if (notification == EN_CHANGE) {
    model_->EditLanguageFilePath(TextOf(box));
    Sync();
  } else if (notification == EN_SETFOCUS) {
    // Posted: a click that gives the focus sets the caret after this.
    PostMessageW(box, EM_SETSEL, 0, -1);
  }
}

void frmOptions::OnClick(int id) {
  const auto* const box = std::ranges::find(Boxes, id, &Box::Id);
  if (box != std::end(Boxes)) {
    model_->Click(box->Option);
  }
  switch (id) {
    case IDC_lblColorChange0:
    case IDC_lblColorChange1:
      model_->PickColor(ColorOf(id));
      break;
    case IDC_cmdChangeFont:
      model_->PickFont();
      break;
    case IDC_optUseDefaultLanguage:
    case IDC_optUseOtheLanguage:
      ChooseLanguage(id == IDC_optUseDefaultLanguage);
      break;
    case IDC_cmdBrowseForLangFile:
      model_->BrowseForLanguageFile();
      break;
    case IDC_cmdApply:
    case IDC_cmdOK:
      model_->Apply();
      break;
    default:
      break;
  }
  Sync();
  if (id == IDC_cmdOK || id == IDC_cmdCancel) {
    Close();
  }
}

// An option button that gets the focus sends a click too, though nothing is chosen anew.
void frmOptions::ChooseLanguage(bool useDefault) {
  if (useDefault != model_->UsesDefaultLanguage()) {
    model_->UseDefaultLanguage(useDefault);
  }
}

void frmOptions::OnCloseButton() { Close(); }

}  // namespace tessera
