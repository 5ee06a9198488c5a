// The recent files, the help, and what happens around the dialogs.
#include "app/Editor.h"
#include "settings/ini/MissingMarker.h"
#include "settings/ini/ReplaceContent.h"
#include "settings/Paths.h"

namespace tessera {

namespace {

constexpr std::wstring_view RecentFilesPrefix = L"RecentFiles";

}  // namespace

void Editor::OpenRecentFile(int index) {
  const std::wstring path = recentFiles_.ListItems(index);
  if (busy_ || IsMissing(path)) {
    return;
  }
  if (ExistsOrReturns(system_.FileSystem, path)) {
    OpenShortcutFile(false, path, true);
    return;
  }
  system_.Boxes.Show(texts_.GetLangText(TextId::CannotFindThisFile) + L" " + path + L"\n\n" +
                         texts_.GetLangText(TextId::VerifyPath),
                     BoxButtons::Ok, BoxIcon::Exclamation);
  recentFiles_.RemoveFile(index);
  SaveRecentFiles();
}

void Editor::ClearRecentFiles() {
  if (!busy_ && recentFiles_.Clear()) {
    SaveRecentFiles();
  }
}

void Editor::ShowHelpTopics() {
  const std::wstring path = AddBackslash(system_.Surroundings.ProgramDirectory()) + L"Readme.chm";
  if (FileExists(system_.FileSystem, path, false)) {
    system_.OtherPrograms.OpenDocument(path);
  } else {
    system_.Boxes.Show(texts_.GetLangText(TextId::FileNotFound), BoxButtons::Ok, BoxIcon::Critical);
  }
}

ClipboardExport& Editor::BeginExport() {
  ApplyLanguage();
  return export_;
}

void Editor::EndExport() { export_.CopyTo(system_.PlainText, modified_); }

OptionsSelection& Editor::BeginOptions() {
  options_.RememberLanguage();
  ApplyLanguage();
  options_.Load();
  return options_;
}

OptionsOutcome Editor::EndOptions() {
  const PanelReaction panel = panel_.ResetPanel();
  keysList_.FollowChooser();
  // As with all settings, a folder that cannot be written is not reported.
  static_cast<void>(
      SaveSettings(settings_, system_.FileSystem, system_.Time, system_.Surroundings));
  const bool languageChanged = options_.LanguageChanged();
  if (languageChanged) {
    ApplyLanguage();
    recentFiles_.ChangeLanguage();
  }
  return {panel, languageChanged};
}

void Editor::ReadRecentFiles() {
  recentFiles_.Setup(settings_.NumberOfRecentFiles);
  recentFiles_.ChangeLanguage();
  recentFiles_.ReadList(system_.FileSystem, SettingsPath(system_.Surroundings), ProgramSection,
                        RecentFilesPrefix);
}

void Editor::SaveRecentFiles() {
  recentFiles_.SaveList(system_.FileSystem, system_.Time, SettingsPath(system_.Surroundings),
                        ProgramSection, RecentFilesPrefix);
}

}  // namespace tessera
