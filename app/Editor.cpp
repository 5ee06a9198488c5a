// The order in which things happen at the start, when a file is opened, and at the end.
#include "app/Editor.h"

#include <array>

#include "settings/ini/MissingMarker.h"
#include "text/Numbers.h"

namespace tessera {

Editor::Editor(const System& system, std::function<void(const LoadProgress&)> showProgress)
    : system_(system),
      settingsFile_(system.Files, system.Clock, system.Environment),
      texts_(system.Files),
      inputFiles_(system, texts_, settings_, settingsFile_),
      document_(system, texts_, settings_, inputFiles_),
      list_(document_.Commands(), settings_),
      assignment_(document_.Commands(), document_.Notation(), texts_, system.MessageBoxes),
      panel_(document_.Commands(), list_, assignment_, document_.Notation(), settings_,
             system.MessageBoxes),
      keysList_(panel_),
      holders_(document_.Commands(), list_, panel_, document_.Notation()),
      export_(document_.Commands(), document_.Notation(), texts_, settingsFile_),
      options_(settings_, system.Dialogs, system.Environment),
      recentFiles_(texts_, system.MessageBoxes),
      progress_(system.Clock, std::move(showProgress)) {}

const Document& Editor::Document() const { return document_; }

const CommandList& Editor::List() const { return list_; }

const HotkeyPanel& Editor::Panel() const { return panel_; }

const KeysList& Editor::AllKeys() const { return keysList_; }

const cRecentFiles& Editor::RecentFiles() const { return recentFiles_; }

const Settings& Editor::Options() const { return settings_; }

const Texts& Editor::Language() const { return texts_; }

const News& Editor::LatestNews() const { return news_; }

Reaction Editor::FollowUp(const Reaction& reaction) {
  if (reaction.Changed || reaction.Restored) document_.NoteEdit();
  // What the last edit did may hold no longer, and how much was found is newer.
  if (reaction.Restored || reaction.Searched) Tell({});
  if (reaction.FollowChooser) keysList_.FollowChooser();
  if (reaction.HideKeysList) keysList_.Hide();
  GatherNews();
  return reaction;
}

void Editor::Tell(News news) {
  news_ = std::move(news);
  newsSelection_ = list_.Selections();
}

/// To be called after whatever may open, save, edit, or select a row.
void Editor::GatherNews() {
  if (list_.Selections() != newsSelection_) Tell({});
  for (News& news : std::array{document_.TakeNews(), assignment_.TakeNews(), list_.TakeNews()}) {
    if (news.Kind != NewsKind::None) Tell(std::move(news));
  }
}

void Editor::HideKeysList() { keysList_.Hide(); }

void Editor::Load(std::wstring fileToOpen) {
  fileToOpen_ = std::move(fileToOpen);
  const ProfileFile stored = settingsFile_.Read();
  settings_ = LoadSettings(stored, settingsFile_, system_.Environment);
  ApplyLanguage();
  document_.ReadNotation();
  panel_.ResetPanel();
  export_.Load(stored);
  ReadRecentFiles(stored);
  inputFiles_.SetUpDialogs();
}

void Editor::Activate() {
  if (std::exchange(activated_, true)) return;
  inputFiles_.FindTotalcmdInc();
  const std::wstring path = inputFiles_.FindWincmdIni(fileToOpen_);
  if (!IsMissing(path)) OpenPath(path, true, WhenUnread::ShowsNoKeys);
  list_.RestoreStoredSort();
  GatherNews();
}

bool Editor::QueryUnload() { return document_.ChangesMayGo(); }

bool Editor::KeepUnsaved() { return document_.KeepUnsaved(); }

void Editor::DropUnsaved() { document_.DropUnsaved(); }

bool Editor::LeaveUnsaved() { return document_.LeaveUnsaved(); }

void Editor::Unload(const WindowPlacement& placement, const ColumnLayout& columns) {
  StoreColumnLayout(columns, settings_);
  if (!placement.Minimised) {
    settings_.MainWindowTop = RoundTo16Bits(placement.Top);
    settings_.MainWindowLeft = RoundTo16Bits(placement.Left);
    settings_.MainWindowHeight = RoundTo16Bits(placement.Height);
    settings_.MainWindowWidth = RoundTo16Bits(placement.Width);
  }
  settings_.MainWindowMaxmized = placement.Maximised ? 1 : 0;
  SaveSettings(settings_, settingsFile_);
}

void Editor::FileOpen() { OpenShortcutFile(true, {}, true); }

void Editor::FileSave() {
  document_.FileSave();
  GatherNews();
}

void Editor::FileSaveAndRestart() {
  document_.FileSaveAndRestart();
  GatherNews();
}

bool Editor::ShowEnabled() const { return holders_.ShowEnabled() || ShowStartsCommander(); }

bool Editor::ShowStartsCommander() const {
  return panel_.ChosenKey() == NoKeyChosen && !news_.Commander.empty();
}

void Editor::Show() {
  if (!ShowStartsCommander()) {
    Work(&HolderTour::Show);
  } else if (!document_.Busy() && document_.StartCommander(news_.Commander)) {
    Tell({});
  }
}

void Editor::ToggleToolbar() { settings_.ToolbarVisible = settings_.ToolbarVisible != 0 ? 0 : 1; }

void Editor::RefreshRestartItems() { document_.RefreshRestartItems(); }

void Editor::OpenShortcutFile(bool browse, const std::wstring& path, bool addToRecent) {
  if (document_.ChangesMayGo()) {
    const std::wstring opened = browse ? inputFiles_.BrowseForWincmdIni() : path;
    if (!IsMissing(opened)) OpenPath(opened, addToRecent, WhenUnread::KeepsOpenFile);
  }
  GatherNews();
}

void Editor::OpenPath(const std::wstring& path, bool addToRecent, WhenUnread whenUnread) {
  const BusyTime busy = document_.BeginLoad();
  progress_.Start();
  if (document_.Open(path, whenUnread, [this] { progress_.Step(); })) {
    ShowOpenedFile(path, addToRecent);
  }
  progress_.Finish();
}

void Editor::ShowOpenedFile(const std::wstring& path, bool addToRecent) {
  list_.EndSearch();
  list_.ShowFirstRow();
  Tell({});  // what was told before may be of rows that are gone
  keysList_.Hide();
  if (addToRecent) {
    recentFiles_.AddFile(path);
    SaveRecentFiles();
  }
  if (settings_.SortedList != 0) list_.SortCommandList();
}

void Editor::ApplyLanguage() {
  if (settings_.UseDefaultLanguage == 0 && texts_.UseLanguageFile(settings_.ExpandedLanguageFile)) {
    return;
  }
  texts_.UseBuiltIn();
  if (settings_.UseDefaultLanguage == 0) {
    // Told once: from here on the built-in texts are what is wanted.
    system_.MessageBoxes.Show(L"Cannot find language file!", BoxButtons::Ok, BoxIcon::Critical);
    settings_.UseDefaultLanguage = 1;
  }
}

}  // namespace tessera
