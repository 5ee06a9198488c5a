// The program without its window: its state for the whole run, and every operation on it. The
// window turns an event into one call and afterwards shows what the queries tell.
#pragma once

#include <functional>
#include <string>

#include "app/LoadProgress.h"
#include "dialogs/cCommonDialog.h"
#include "editing/CommandList.h"
#include "editing/HotkeyAssignment.h"
#include "editing/HotkeyPanel.h"
#include "editing/KeysList.h"
#include "export/ClipboardExport.h"
#include "localisation/Texts.h"
#include "options/OptionsSelection.h"
#include "platform/System.h"
#include "recent/cRecentFiles.h"
#include "settings/commander/CommanderEnvironment.h"
#include "settings/commander/LocateTotalCommander.h"
#include "settings/Settings.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

/// Where the window stands, in twips.
struct WindowPlacement {
  bool Minimised = false;
  bool Maximised = false;
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
};

/// What the window has to do after the options dialog.
struct OptionsOutcome {
  PanelReaction Panel;
  bool LanguageChanged = false;  ///< all texts of the window are to be shown anew
};

class Editor {
 public:
  /// `showProgress` is called while a long load runs; it may handle window events.
  Editor(const System& system, std::function<void(const LoadProgress&)> showProgress);

  // -- Queries: what the window shows

  [[nodiscard]] const DisplayTable& Rows() const;
  [[nodiscard]] const CommandList& List() const;
  [[nodiscard]] const HotkeyPanel& Panel() const;
  [[nodiscard]] const KeysList& AllKeys() const;
  [[nodiscard]] const cRecentFiles& RecentFiles() const;
  [[nodiscard]] const Settings& Options() const;
  [[nodiscard]] const Texts& Language() const;
  [[nodiscard]] std::wstring Caption() const;

  /// There are changes that are not saved: File > Save, and the Save button, are enabled.
  [[nodiscard]] bool Modified() const;

  /// File > Save and Restart is enabled. Holds as of the last RefreshRestartItems or edit.
  [[nodiscard]] bool SaveAndRestartEnabled() const;

  /// The same item on the Save button's menu.
  [[nodiscard]] bool RestartButtonEnabled() const;

  /// True while a load or a save runs, whose pauses let window events through: commands and edits
  /// do nothing then.
  [[nodiscard]] bool Busy() const;

  // -- Start and end of the program

  /// Reads settings and texts; the window is made from what the queries tell afterwards. The file
  /// `fileToOpen` (a full path; empty for none) will be opened in place of the one that is found.
  void Load(std::wstring fileToOpen = {});

  /// At each activation of the window; the first one finds Total Commander's files and opens them.
  void Activate();

  /// Asks about unsaved changes; false when the program is to go on running.
  [[nodiscard]] bool QueryUnload();

  /// Stores columns, window and settings.
  void Unload(const WindowPlacement& placement, const ColumnLayout& columns);

  // -- The menus and the main toolbar

  void FileOpen();
  void FileSave();
  void FileSaveAndRestart();
  void ToggleToolbar();
  void ToggleSortedList();

  /// When the File menu or the Save button's menu is about to open.
  void RefreshRestartItems();

  void OpenShortcutFile(bool browse, std::wstring path, bool addToRecent);

  /// A file that was dropped on the window.
  void OpenFile(const std::wstring& path);

  /// Opens the file of that 1-based index of the recent files, or tells that it has gone.
  void OpenRecentFile(int index);
  void ClearRecentFiles();

  /// Opens the help file, or tells that it is missing.
  void ShowHelpTopics();

  // -- The dialogs: what one shows and edits, with the texts of the language in use, and what
  // follows when it has closed, by whichever button

  ClipboardExport& BeginExport();
  void EndExport();
  OptionsSelection& BeginOptions();

  OptionsOutcome EndOptions();

  // -- The command list

  /// Selects the row at a 0-based position of the list; one outside the list is ignored.
  void SelectRow(std::size_t position);

  /// A click on the header of the column of that 1-based index.
  void ClickColumn(int column);

  // -- The panel

  void SetBox(Modifier box, bool checked);
  void ChooseKey(int index);
  void AssignKey();
  void AddKey();
  void DeleteKeys();
  void DeleteAllKeys();
  PanelReaction KeyDown(const KeyEvent& event);
  PanelReaction KeyUp(const KeyEvent& event);
  PanelReaction TimerTick();

  // -- The keys list

  PanelReaction ToggleKeysList();
  PanelReaction SelectInKeysList(int index);
  PanelReaction KeyDownInKeysList(KeyCode code);
  void ReleaseMouseInKeysList();
  void ChooserDropsDown();

 private:
  /// Yes, No or Cancel; No when there is nothing to save. After Yes the save has been tried.
  [[nodiscard]] BoxAnswer AskToSaveChanges();

  /// Asks about unsaved changes; false when they have to stay: the user cancelled, or a save
  /// failed.
  [[nodiscard]] bool ChangesMayGo();
  void SetModified(bool modified);
  void Save(bool restarts);
  void Edit(bool (HotkeyPanel::*edit)());
  void LoadCatalogue();
  void AskForMissingDataFile();
  [[nodiscard]] std::wstring FindWincmdIni(const LocateSources& sources);
  void ReadRecentFiles();
  void SaveRecentFiles();
  void ApplyLanguage();
  void ReadModifierNames();
  [[nodiscard]] std::wstring AskForFile(TextId message, BoxIcon icon, const std::wstring& folder,
                                        const std::wstring& fileName, FileFilter filter);

  System system_;
  Settings settings_;
  Texts texts_;
  HotkeyNotation notation_;
  Catalogue catalogue_;
  CommandList list_;
  HotkeyAssignment assignment_;
  HotkeyPanel panel_;
  KeysList keysList_;
  ClipboardExport export_;
  OptionsSelection options_;
  cRecentFiles recentFiles_;
  cCommonDialog commonDialog_;
  CommanderEnvironment commanderEnvironment_;
  LoadProgress progress_;
  std::wstring fileToOpen_;
  std::wstring totalcmdIncPath_;
  std::wstring wincmdPath_;
  bool activated_ = false;
  bool modified_ = false;
  bool wincmdUnread_ = false;  ///< the file is there, and reading it failed
  bool saveAndRestartEnabled_ = false;
  bool restartButtonEnabled_ = false;
  bool busy_ = false;
};

}  // namespace tessera
