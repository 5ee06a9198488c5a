// The recent files, which an open changes too.
#include "app/Editor.h"
#include "settings/ini/MissingMarker.h"
#include "settings/ini/ReplaceContent.h"

namespace tessera {

void Editor::ReadRecentFiles(const ProfileFile& stored) {
  recentFiles_.Setup(settings_.NumberOfRecentFiles);
  recentFiles_.ChangeLanguage();
  recentFiles_.ReadList(stored, ProgramSection, RecentFilesPrefix);
}

void Editor::SaveRecentFiles() {
  recentFiles_.SaveList(settingsFile_, ProgramSection, RecentFilesPrefix);
}

void Editor::mnuFileRecentFiles_Click(int index) {
  const std::wstring path = recentFiles_.ListItems(index);
  if (document_.Busy() || IsMissing(path)) return;
  if (ExistsOrReturns(system_.Files, path)) {
    OpenShortcutFile(false, path, true);
    return;
  }
  system_.MessageBoxes.Show(texts_.GetLangText(TextId::CannotFindThisFile) + L" " + path + L"\n\n" +
                                texts_.GetLangText(TextId::VerifyPath),
                            BoxButtons::Ok, BoxIcon::Exclamation);
  recentFiles_.RemoveFile(index);
  SaveRecentFiles();
}

void Editor::ClearRecentFiles() {
  if (!document_.Busy() && recentFiles_.Clear()) SaveRecentFiles();
}

}  // namespace tessera
