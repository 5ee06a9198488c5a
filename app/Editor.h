// The program without its window: what it consists of, its start and end, and its commands. The
// window turns an event into one call and afterwards shows what the queries tell.
#pragma once

#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "app/Document.h"
#include "app/InputFiles.h"
#include "app/LoadProgress.h"
#include "app/Placement.h"
#include "editing/CommandList.h"
#include "editing/HolderTour.h"
#include "editing/HotkeyAssignment.h"
#include "editing/HotkeyPanel.h"
#include "editing/KeysList.h"
#include "editing/News.h"
#include "editing/Reaction.h"
#include "export/ClipboardExport.h"
#include "localisation/Texts.h"
#include "options/OptionsSelection.h"
#include "platform/Pinned.h"
#include "platform/System.h"
#include "recent/cRecentFiles.h"
#include "settings/Settings.h"
#include "settings/SettingsFile.h"

namespace tessera {

/// What the window has to do after the options dialog.
struct OptionsOutcome {
  Reaction Panel;
  bool LanguageChanged = false;  ///< all texts of the window are to be shown anew
};

class Editor : Pinned {
 public:
  /// `showProgress` is called while a long load runs; it may handle window events.
  Editor(const System& system, std::function<void(const LoadProgress&)> showProgress);

  // -- Queries: what the window shows

  [[nodiscard]] const tessera::Document& Document() const;
  [[nodiscard]] const CommandList& List() const;
  [[nodiscard]] const HotkeyPanel& Panel() const;
  [[nodiscard]] const KeysList& AllKeys() const;
  [[nodiscard]] const cRecentFiles& RecentFiles() const;
  [[nodiscard]] const Settings& Options() const;
  [[nodiscard]] const Texts& Language() const;

  /// What the last edit, save or open did, until another row is selected.
  [[nodiscard]] const News& LatestNews() const;

  [[nodiscard]] bool ShowEnabled() const;

  /// Show would start Total Commander.
  [[nodiscard]] bool ShowStartsCommander() const;

  // -- Work on the rows

  /// Runs an operation of the panel, the command list or the keys list, and does what follows from
  /// it. While the document is busy, nothing.
  template <typename Part, typename... Parameters>
  Reaction Work(Reaction (Part::*operation)(Parameters...),
                std::type_identity_t<Parameters>... arguments) {
    if (document_.Busy()) return {};
    Part& part = std::get<Part&>(workplace_);
    return FollowUp((part.*operation)(std::forward<Parameters>(arguments)...));
  }

  /// Before a box or a dialog opens: behind a modal one the keys list could not be used.
  void HideKeysList();

  // -- Start and end of the program

  /// Reads settings and texts; the window is made from what the queries tell afterwards. The file
  /// `fileToOpen` (a full path; empty for none) will be opened in place of the one that is found.
  void Load(std::wstring fileToOpen = {});

  /// At each activation of the window; the first one finds Total Commander's files and opens them.
  void Activate();

  /// Asks about unsaved changes; false when the program is to go on running.
  [[nodiscard]] bool QueryUnload();

  /// As Document's: at a log-off, and when the program must end.
  bool KeepUnsaved();
  void DropUnsaved();
  bool LeaveUnsaved();

  /// Stores columns, window and settings.
  void Unload(const WindowPlacement& placement, const ColumnLayout& columns);

  // -- The menus and the main toolbar

  void FileOpen();
  void FileSave();
  void FileSaveAndRestart();
  void ToggleToolbar();

  /// What the button beside the line does: it leads to the command that has the composed key; with
  /// no key composed it starts the Total Commander that a save has closed and not found again.
  void Show();

  /// When the File menu or the Save button's menu is about to open.
  void RefreshRestartItems();

  /// Opens the file that the user picks, with `browse`, or the one at `path`.
  void OpenShortcutFile(bool browse, const std::wstring& path, bool addToRecent);

  /// Opens the file of that 1-based index of the recent files, or tells that it has gone.
  void mnuFileRecentFiles_Click(int index);
  void ClearRecentFiles();

  /// Opens the help file, or tells that it is missing.
  void ShowHelpTopics();

  // -- Copies to the clipboard, of the selected row and of the whole list; a beep tells that it did
  // not take one

  void CopyCommandName();
  void CopyRow();
  void CopyTable();

  // -- The page of all keys

  /// The page as HTML in UTF-8: the keys as the list shows them, saved or not.
  [[nodiscard]] std::string KeysPage() const;

  /// Writes it to the folder for temporary files, always under the same name, and opens it there,
  /// or the line tells that this failed.
  void ShowKeysPage();

  // -- The dialogs: what one shows and edits, with the texts of the language in use, and what
  // follows when it has closed, by whichever button

  ClipboardExport& BeginExport();
  void EndExport();
  OptionsSelection& BeginOptions();

  OptionsOutcome EndOptions();

 private:
  Reaction FollowUp(const Reaction& reaction);
  void Tell(News news);
  void GatherNews();
  void OpenPath(const std::wstring& path, bool addToRecent, WhenUnread whenUnread);
  void ShowOpenedFile(const std::wstring& path, bool addToRecent);
  void ReadRecentFiles(const ProfileFile& stored);
  void SaveRecentFiles();
  void ApplyLanguage();
  [[nodiscard]] bool MayCopyRow() const;
  [[nodiscard]] const CommandEntry& SelectedEntry() const;
  void BeepUnless(bool taken);

  System system_;
  SettingsFile settingsFile_;
  Settings settings_;
  Texts texts_;
  InputFiles inputFiles_;
  tessera::Document document_;
  CommandList list_;
  HotkeyAssignment assignment_;
  HotkeyPanel panel_;
  KeysList keysList_;
  HolderTour holders_;
  std::tuple<HotkeyPanel&, CommandList&, KeysList&, HolderTour&> workplace_{panel_, list_,
                                                                            keysList_, holders_};
  ClipboardExport export_;
  OptionsSelection options_;
  cRecentFiles recentFiles_;
  LoadProgress progress_;
  News news_;
  std::size_t newsSelection_ = 0;  ///< how often rows had been selected when it came
  std::wstring fileToOpen_;
  bool activated_ = false;
};

}  // namespace tessera
