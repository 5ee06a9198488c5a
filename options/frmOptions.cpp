// The four pages of the options dialog, and what their controls do.
#include "options/frmOptions.h"

#include <algorithm>

#include "resources/resource.h"

namespace tessera {
namespace {

enum Page { Layout, ColorAndFont, Operation, Language };

constexpr TextId TabCaptions[] = {TextId::LayoutTab, TextId::ColorAndFontTab, TextId::OperationTab,
                                  TextId::LanguageTab};

constexpr DialogControl Controls[] = {
    {IDC_Frame1, ControlKind::Frame, TextId::VisualEffects, Layout},
    {IDC_chkShowgridlines, ControlKind::CheckBox, TextId::GridLines, Layout},
    {IDC_chkFixedBorders, ControlKind::CheckBox, TextId::FixedBorders, Layout},
    {IDC_chkFlatUserInterface, ControlKind::CheckBox, TextId::FlatUserInterface, Layout},
    {IDC_Frame7, ControlKind::Frame, TextId::TextColors, ColorAndFont},
    {IDC_Label3, ControlKind::Label, TextId::Foreground, ColorAndFont},
    {IDC_lblColorChange0, ControlKind::Swatch, TextId::Foreground, ColorAndFont},
    {IDC_Label4, ControlKind::Label, TextId::Background, ColorAndFont},
    {IDC_lblColorChange1, ControlKind::Swatch, TextId::Background, ColorAndFont},
    {IDC_Frame3, ControlKind::Frame, TextId::Font, ColorAndFont},
    {IDC_cmdChangeFont, ControlKind::Button, TextId::ChangeFont, ColorAndFont},
    {IDC_chkAlwaysRestartTC, ControlKind::CheckBox, TextId::AutoRestart, Operation},
    {IDC_chkUseContextMenuKey, ControlKind::CheckBox, TextId::UseContextMenuKey, Operation},
    {IDC_chkReverseOrderHotkey, ControlKind::CheckBox, TextId::ReverseOrder, Operation},
    {IDC_chkKeepUnknownShortcuts, ControlKind::CheckBox, TextId::KeepUnknownKeys, Operation},
    {IDC_chkForgetKeysAtOpen, ControlKind::CheckBox, TextId::ForgetKeys, Operation},
    {IDC_chkShowUserCommands, ControlKind::CheckBox, TextId::ShowOwnCommands, Operation},
    {IDC_Frame4, ControlKind::Frame, TextId::ChangeLanguage, Language},
    {IDC_optUseDefaultLanguage, ControlKind::OptionButton, TextId::DefaultLanguage, Language},
    {IDC_optUseOtheLanguage, ControlKind::OptionButton, TextId::OtherLanguage, Language},
    {IDC_txtLanguageFilePath, ControlKind::TextBox, TextId::LanguageTab, Language},
    {IDC_cmdBrowseForLangFile, ControlKind::SideButton, TextId::LanguageTab, Language},
};

constexpr DialogControl Buttons[] = {
    {IDC_cmdOK, ControlKind::Button, TextId::Ok},
    {IDC_cmdCancel, ControlKind::Button, TextId::Cancel},
    {IDC_cmdApply, ControlKind::Button, TextId::Apply},
};

constexpr DialogPlan Plan{
    .ClassName = L"frmOptions",
    .Title = TextId::OptionsTitle,
    .Controls = Controls,
    .Buttons = Buttons,
    .TabsId = IDC_tbsOptions,
    .TabCaptions = TabCaptions,
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
    {IDC_chkKeepUnknownShortcuts, OptionBox::KeepUnknownShortcuts},
    {IDC_chkForgetKeysAtOpen, OptionBox::ForgetKeysAtOpen},
    {IDC_chkShowUserCommands, OptionBox::ShowUserCommands},
};

OptionColor SwatchOf(int swatchId) {
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
  for (const Box& box : Boxes) SetChecked(box.Id, model_->Checked(box.Option));
  SetChecked(IDC_optUseDefaultLanguage, model_->UsesDefaultLanguage());
  SetChecked(IDC_optUseOtheLanguage, !model_->UsesDefaultLanguage());
  SetText(Control(IDC_txtLanguageFilePath), model_->LanguageFilePath());
  SetEnabled(Control(IDC_txtLanguageFilePath), model_->LanguageFileEnabled());
  SetEnabled(Control(IDC_cmdBrowseForLangFile), model_->LanguageFileEnabled());
  const HWND apply = Control(IDC_cmdApply);
  if (!model_->ApplyEnabled() && GetFocus() == apply) FocusOn(IDC_cmdOK);
  SetEnabled(apply, model_->ApplyEnabled());
  InvalidateRect(Control(IDC_lblColorChange0), nullptr, FALSE);
  InvalidateRect(Control(IDC_lblColorChange1), nullptr, FALSE);
}

COLORREF frmOptions::SwatchColor(int id) const { return ColorOf(model_->Color(SwatchOf(id))); }

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
  if (box != std::end(Boxes)) model_->Click(box->Option);
  switch (id) {
    case IDC_lblColorChange0:
    case IDC_lblColorChange1:
      model_->PickColor(SwatchOf(id));
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
  if (id == IDC_cmdOK || id == IDC_cmdCancel) Close();
}

// An option button that gets the focus sends a click too, though nothing is chosen anew.
void frmOptions::ChooseLanguage(bool useDefault) {
  if (useDefault != model_->UsesDefaultLanguage()) model_->UseDefaultLanguage(useDefault);
}

void frmOptions::OnCloseButton() { Close(); }

}  // namespace tessera
