// The options dialog's state, between the settings and the controls.
#include "options/OptionsSelection.h"

#include <utility>

#include "dialogs/cFontDlg.h"
#include "settings/ini/MissingMarker.h"
#include "settings/Paths.h"
#include "text/Numbers.h"
#include "text/Text.h"

namespace tessera {
namespace {

/// The settings behind the boxes, in the order of OptionBox.
constexpr short Settings::*BoxSettings[] = {
    &Settings::CommandListShowLines, &Settings::FixedBorders,      &Settings::FlatUserInterface,
    &Settings::AlwaysRestartTC,      &Settings::UseContextMenuKey, &Settings::ReverseOrderHotkey,
    &Settings::KeepUnknownShortcuts, &Settings::ForgetKeysAtOpen,  &Settings::ShowUserCommands,
};
static_assert(std::size(BoxSettings) == static_cast<std::size_t>(OptionBox::Count));

int Settings::*ColorSetting(OptionColor swatch) {
  return swatch == OptionColor::Foreground ? &Settings::ForegroundColor
                                           : &Settings::BackgroundColor;
}

}  // namespace

OptionsSelection::OptionsSelection(Settings& settings, Dialogs& dialogs,
                                   const Environment& environment)
    : settings_(settings), dialogs_(dialogs), environment_(environment) {}

bool OptionsSelection::Checked(OptionBox box) const {
  return boxes_.at(static_cast<std::size_t>(box));
}

int OptionsSelection::Color(OptionColor swatch) const { return settings_.*ColorSetting(swatch); }

bool OptionsSelection::UsesDefaultLanguage() const { return usesDefaultLanguage_; }

const std::wstring& OptionsSelection::LanguageFilePath() const { return languageFilePath_; }

bool OptionsSelection::LanguageFileEnabled() const { return !usesDefaultLanguage_; }

bool OptionsSelection::ApplyEnabled() const { return applyEnabled_; }

bool OptionsSelection::LanguageChanged() const {
  return settings_.UseDefaultLanguage != rememberedUseDefaultLanguage_ ||
         !EqualIgnoringCase(settings_.LanguageFile, rememberedLanguageFile_);
}

void OptionsSelection::RememberLanguage() {
  rememberedLanguageFile_ = settings_.LanguageFile;
  rememberedUseDefaultLanguage_ = settings_.UseDefaultLanguage;
}

void OptionsSelection::Load() {
  for (std::size_t box = 0; box < boxes_.size(); ++box) {
    boxes_[box] = settings_.*BoxSettings[box] != 0;
  }
  usesDefaultLanguage_ = settings_.UseDefaultLanguage == 1;
  languageFilePath_ = IsMissing(settings_.LanguageFile) ? std::wstring() : settings_.LanguageFile;
  applyEnabled_ = false;
}

void OptionsSelection::Click(OptionBox box) {
  bool& checked = boxes_.at(static_cast<std::size_t>(box));
  checked = !checked;
  applyEnabled_ = true;
}

void OptionsSelection::UseDefaultLanguage(bool use) {
  usesDefaultLanguage_ = use;
  applyEnabled_ = true;
}

void OptionsSelection::EditLanguageFilePath(std::wstring path) {
  if (path != languageFilePath_) {
    languageFilePath_ = std::move(path);
    applyEnabled_ = true;
  }
}

void OptionsSelection::BrowseForLanguageFile() {
  const std::wstring folder = AddBackslash(environment_.ProgramDirectory()) + L"Languages\\";
  std::wstring path = cCommonDialog(dialogs_).BrowseForOpen(folder, {}, FileFilter::Language);
  if (!IsMissing(path)) {
    languageFilePath_ = std::move(path);
    applyEnabled_ = true;
  }
}

void OptionsSelection::PickColor(OptionColor swatch) {
  const std::wstring color = cCommonDialog(dialogs_).ColorSelect();
  if (!IsMissing(color)) {
    settings_.*ColorSetting(swatch) = RoundTo32Bits(LeadingNumber(color));
    applyEnabled_ = true;
  }
}

void OptionsSelection::PickFont() {
  cFontDlg dialog(dialogs_);
  dialog.FaceName = settings_.FontName;
  dialog.Size = settings_.FontSize;
  dialog.FontStyle = settings_.FontStyle;
  dialog.Script = settings_.FontScript;
  if (dialog.ShowFont()) {
    settings_.FontName = dialog.FaceName;
    settings_.FontSize = RoundTo16Bits(dialog.Size);
    settings_.FontStyle = RoundTo16Bits(dialog.FontStyle);
    settings_.FontScript = RoundTo16Bits(dialog.Script);
    applyEnabled_ = true;
  }
}

void OptionsSelection::Apply() {
  for (std::size_t box = 0; box < boxes_.size(); ++box) {
    settings_.*BoxSettings[box] = boxes_[box] ? 1 : 0;
  }
  settings_.UseDefaultLanguage = usesDefaultLanguage_ ? 1 : 0;
  settings_.LanguageFile = languageFilePath_;
  settings_.ExpandedLanguageFile = ExpandPath(environment_, languageFilePath_);
  applyEnabled_ = false;
}

}  // namespace tessera
