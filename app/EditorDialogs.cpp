// The help, and what happens around the dialogs.
#include "app/Editor.h"
#include "settings/Paths.h"

namespace tessera {

void Editor::ShowHelpTopics() {
  const std::wstring path = AddBackslash(system_.Environment.ProgramDirectory()) + L"Readme.chm";
  if (FileExists(system_.Files, path, false)) {
    // Where a browser has marked the file as downloaded, its viewer shows no page.
    system_.Files.Remove(path + L":Zone.Identifier");
    system_.Programs.OpenDocument(path);
  } else {
    system_.MessageBoxes.Show(texts_.GetLangText(TextId::FileNotFound), BoxButtons::Ok,
                              BoxIcon::Critical);
  }
}

ClipboardExport& Editor::BeginExport() {
  ApplyLanguage();
  return export_;
}

void Editor::EndExport() { BeepUnless(export_.CopyTo(system_.Clipboard, document_.Modified())); }

OptionsSelection& Editor::BeginOptions() {
  options_.RememberLanguage();
  ApplyLanguage();
  options_.Load();
  return options_;
}

OptionsOutcome Editor::EndOptions() {
  const Reaction panel = FollowUp(panel_.ResetPanel());
  SaveSettings(settings_, settingsFile_);
  const bool languageChanged = options_.LanguageChanged();
  if (languageChanged) {
    ApplyLanguage();
    recentFiles_.ChangeLanguage();
    list_.RefreshSearch();
  }
  return {panel, languageChanged};
}

}  // namespace tessera
