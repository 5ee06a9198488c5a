// The open "Wincmd.ini": the commands with their keys, and whether changes to them are saved.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/BusyTime.h"
#include "app/InputFiles.h"
#include "editing/News.h"
#include "localisation/Texts.h"
#include "platform/Pinned.h"
#include "platform/System.h"
#include "settings/commander/RestartTotalCommander.h"
#include "settings/ini/ProfileFile.h"
#include "settings/ini/UnsavedFiles.h"
#include "settings/Settings.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"
#include "shortcuts/SaveShortcuts.h"
#include "shortcuts/WincmdIni.h"

namespace tessera {

/// What comes of an open when the user gives up on a file that cannot be read.
enum class WhenUnread {
  KeepsOpenFile,
  ShowsNoKeys  ///< at the start, where no file is open; nothing is saved then
};

/// Why the keys are not in the file, and where they are.
struct FailedSave {
  bool Unread = false;                 ///< the file could not be read when it was opened
  FileError Error{};                   ///< otherwise
  std::vector<std::wstring> KeptIn{};  ///< paths of files that hold what is not saved
};

class Document : Pinned {
 public:
  Document(const System& system, const Texts& texts, const Settings& settings,
           InputFiles& inputFiles);

  // -- Queries: what the window shows

  [[nodiscard]] const DisplayTable& Rows() const;
  [[nodiscard]] const EditHistory& Edits() const;
  [[nodiscard]] std::wstring Caption() const;

  /// The path of the file; empty when none is open.
  [[nodiscard]] const std::wstring& Path() const;

  /// There are changes that are not saved: File > Save, and the Save button, are enabled.
  [[nodiscard]] bool Modified() const;

  /// File > Save and Restart is enabled. Holds as of the last RefreshRestartItems or edit: a Total
  /// Commander that ends while the menu is open is started all the same.
  [[nodiscard]] bool SaveAndRestartEnabled() const;

  /// The same item on the Save button's menu.
  [[nodiscard]] bool RestartButtonEnabled() const;

  /// True while a load or a save runs, whose pauses let window events through: commands and edits
  /// do nothing then.
  [[nodiscard]] bool Busy() const;

  /// The last save, where it failed; nothing once a save or an open succeeds.
  [[nodiscard]] const std::optional<FailedSave>& Failure() const;

  // -- What edits work on

  [[nodiscard]] const Catalogue& Commands() const;
  [[nodiscard]] Catalogue& Commands();
  [[nodiscard]] const HotkeyNotation& Notation() const;

  // -- Changes

  /// Takes the notation over from settings and texts, at the start of the program.
  void ReadNotation();

  /// The document is busy with a load as long as the result lives.
  [[nodiscard]] BusyTime BeginLoad();

  /// Asks about unsaved changes; false when they have to stay: the user cancelled, a save failed,
  /// or the document is busy.
  [[nodiscard]] bool ChangesMayGo();

  /// Reads the file at `path`, and what is shown beside its keys. Of one that cannot be read the
  /// user is told, and may have it tried again. False when all stays as it was.
  [[nodiscard]] bool Open(const std::wstring& path, WhenUnread whenUnread,
                          const ProgressStep& step);

  /// Keeps what a save would write as ".unsaved" beside the file, for an end of the program without
  /// an answer. It stays until the question about unsaved changes is answered, or DropUnsaved.
  /// Nothing is kept while a file is loaded. True when all changes lie there.
  bool KeepUnsaved();
  void DropUnsaved();

  /// The same for an end that is certain: an open question, which ends with it, takes nothing away.
  bool LeaveUnsaved();

  void FileSave();
  void FileSaveAndRestart();

  /// Starts that program, a Total Commander, as a save with restart does; false when that fails.
  bool StartCommander(const std::wstring& program);

  /// To be called after each edit: Save and Restart is offered again.
  void NoteEdit();

  /// What the last open or save did; nothing when it was taken already.
  [[nodiscard]] News TakeNews();

  /// When the File menu or the Save button's menu is about to open.
  void RefreshRestartItems();

 private:
  void ReadModifierNames();
  [[nodiscard]] WincmdIni ReadWincmdIni(const std::wstring& path, KnownContents& known);
  [[nodiscard]] bool AskToRetry(const std::wstring& path);
  [[nodiscard]] News LoadCatalogue(const WincmdIni& wincmd, const ProgressStep& step);
  void ReadMasterRows(const ProgressStep& step);
  void ForgetFormerKeys();
  [[nodiscard]] std::wstring ReadUserRows();
  [[nodiscard]] BoxAnswer AskToSaveChanges();
  [[nodiscard]] SaveRequest SaveRequestOfNow(KnownContents& known) const;
  void Save(bool restarts);
  [[nodiscard]] RestartResult Restart(bool closeIt);

  System system_;
  const Texts& texts_;
  const Settings& settings_;
  InputFiles& inputFiles_;
  Catalogue catalogue_;
  HotkeyNotation notation_;
  UnsavedFiles files_;  ///< that are saved
  std::optional<UnsavedFiles> kept_;
  std::wstring wincmdPath_;
  KnownContents known_;  ///< of "Wincmd.ini" and the files that its sections are redirected to
  std::optional<FailedSave> failure_;
  News news_;
  KnownContents seen_;                  ///< the same, when they were last opened or saved
  bool keepsUnknownShortcuts_ = false;  ///< the settings at the last open, where they act
  bool showsUserCommands_ = false;
  bool unread_ = false;  ///< the file is there, and reading it failed
  bool offersRestart_ = true;
  bool restartButtonEnabled_ = true;
  bool loading_ = false;  ///< so the rows are not whole
  bool saving_ = false;
};

}  // namespace tessera
