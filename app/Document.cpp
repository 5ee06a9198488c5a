// Opening and saving "Wincmd.ini", and the question about unsaved changes.
#include "app/Document.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <span>
#include <utility>

#include "localisation/TextTable.h"
#include "shortcuts/DefaultHotkeys.h"
#include "shortcuts/InternalCommands.h"
#include "shortcuts/ReadKeys.h"
#include "shortcuts/SaveShortcuts.h"
#include "shortcuts/UserCommands.h"
#include "text/Text.h"
#include "text/Trim.h"

namespace tessera {
namespace {

bool HasCurrentKeys(const std::vector<CommandEntry>& rows, const HotkeyNotation& notation) {
  return std::ranges::any_of(rows, [&](const CommandEntry& row) {
    return !row.IsHeading() && row.CurrentKeys != notation.UndefinedHotkey;
  });
}

News NewsOf(const SaveOutcome& outcome, const std::wstring& wincmdPath) {
  News news{.Kind = NewsKind::Saved, .File = wincmdPath};
  if (!EqualIgnoringCase(outcome.Path, wincmdPath)) news.KeysFile = outcome.Path;
  news.DroppedLines = outcome.Dropped.Lines.size();
  news.DroppedLost = outcome.Dropped.Error != FileError::None;
  news.DroppedIn = news.DroppedLost ? outcome.Path + L".bak" : outcome.Dropped.Path;
  return news;
}

std::size_t RowsWithKeys(const DisplayTable& rows, const HotkeyNotation& notation) {
  std::size_t count = 0;
  for (std::size_t position = 0; position < rows.Count(); ++position) {
    const CommandEntry& row = rows.At(position);
    if (!row.IsHeading() && row.CurrentKeys != notation.UndefinedHotkey) ++count;
  }
  return count;
}

}  // namespace

Document::Document(const System& system, const Texts& texts, const Settings& settings,
                   InputFiles& inputFiles)
    : system_(system),
      texts_(texts),
      settings_(settings),
      inputFiles_(inputFiles),
      files_(system_.Files, UnsavedFiles::Targets::Replaced) {}

const DisplayTable& Document::Rows() const { return catalogue_.ListView1; }

const EditHistory& Document::Edits() const { return catalogue_.Edits; }

std::wstring Document::Caption() const {
  const std::wstring title(ProgramTitle);
  return wincmdPath_.empty() ? title : wincmdPath_ + L" - " + title;
}

const std::wstring& Document::Path() const { return wincmdPath_; }

bool Document::Modified() const { return !catalogue_.Edits.AtSaved(); }

bool Document::SaveAndRestartEnabled() const { return offersRestart_ && Modified(); }

bool Document::RestartButtonEnabled() const { return restartButtonEnabled_; }

bool Document::Busy() const { return loading_ || saving_; }

const std::optional<FailedSave>& Document::Failure() const { return failure_; }

const Catalogue& Document::Commands() const { return catalogue_; }

Catalogue& Document::Commands() { return catalogue_; }

const HotkeyNotation& Document::Notation() const { return notation_; }

BusyTime Document::BeginLoad() { return BusyTime(loading_); }

void Document::ReadNotation() {
  notation_.MultiHotkeySeparator = settings_.MultiHotkeySeparator;
  notation_.UndefinedHotkey = settings_.UndefinedHotkey;
  notation_.ReverseOrderHotkey = settings_.ReverseOrderHotkey != 0;
  ReadModifierNames();
}

void Document::ReadModifierNames() {
  // A blank name would be found in every key, and a save would then give it all modifiers.
  const auto nameOf = [this](TextId id) {
    const std::wstring name(TrimSpaces(texts_.GetLangText(id)));
    return name.empty() ? std::wstring(BuiltInTextOf(id)) : name;
  };
  HotkeyNotation notation = notation_;
  notation.CtrlName = nameOf(TextId::CtrlName);
  notation.AltName = nameOf(TextId::AltName);
  notation.ShiftName = nameOf(TextId::ShiftName);
  if (notation == notation_) return;
  // Keys of files that were opened before stay as they are shown, and the keys that they are.
  for (CommandEntry& row : catalogue_.lvwHidden) RememberKeys(row, notation_);
  notation_ = std::move(notation);
}

bool Document::Open(const std::wstring& path, WhenUnread whenUnread, const ProgressStep& step) {
  KnownContents known;
  const WincmdIni wincmd = ReadWincmdIni(path, known);
  const bool unread = wincmd.Unread() != nullptr;
  if (unread && whenUnread == WhenUnread::KeepsOpenFile) return false;
  catalogue_.Edits.Clear();  // before a log-off or a failure in the load could ask
  ReadModifierNames();
  wincmdPath_ = path;
  known_ = std::move(known);
  seen_ = known_;
  unread_ = unread;
  keepsUnknownShortcuts_ = settings_.KeepUnknownShortcuts != 0;
  showsUserCommands_ = settings_.ShowUserCommands != 0;
  News news = LoadCatalogue(wincmd, step);
  failure_.reset();
  if (!unread) {
    news.Kind = NewsKind::Opened;
    news.File = path;
    news.Rows = RowsWithKeys(catalogue_.ListView1, notation_);
    news_ = std::move(news);
  }
  return true;
}

WincmdIni Document::ReadWincmdIni(const std::wstring& path, KnownContents& known) {
  for (;;) {
    WincmdIni wincmd(system_.Files, system_.Clock, inputFiles_.CommanderVariables(), path, &known);
    const ProfileFile* const unread = wincmd.Unread();
    if (unread == nullptr || !AskToRetry(unread->Path())) return wincmd;
  }
}

bool Document::AskToRetry(const std::wstring& path) {
  const std::wstring text = texts_.GetLangText(TextId::CannotReadThisFile) + L" " + path;
  return system_.MessageBoxes.Show(text, BoxButtons::RetryCancel, BoxIcon::Exclamation) ==
         BoxAnswer::Retry;
}

/// Gives what there is to tell of the keys and the commands.
News Document::LoadCatalogue(const WincmdIni& wincmd, const ProgressStep& step) {
  News news;
  // Until the table is built anew, the list shows the rows that hold views of them.
  const std::shared_ptr<const UserCommandTexts> shownTexts = catalogue_.UserTexts;
  catalogue_.StartMenuKeys = ReadStartMenuKeys(wincmd.StartMenu(), notation_);
  if (catalogue_.lvwHidden.size() == catalogue_.UserRows) ReadMasterRows(step);
  if (settings_.ForgetKeysAtOpen != 0) ForgetFormerKeys();
  news.UnreadFile = ReadUserRows();
  news.HasFormerKeys = HasCurrentKeys(catalogue_.lvwHidden, notation_);
  inputFiles_.FindDefaultHotkeys();
  const ProfileFile defaults(system_.Files, settings_.DefaultHotKeysDataFile);
  const std::size_t masterRows = catalogue_.lvwHidden.size() - catalogue_.UserRows;
  FillDefaultKeys(std::span(catalogue_.lvwHidden).first(masterRows), defaults, notation_, step);
  ReadShortcuts(catalogue_.lvwHidden, wincmd.Shortcuts(), notation_, step);
  BuildDisplayTable(catalogue_, notation_, step);
  BuildKeyIndexes(catalogue_, notation_);
  MarkOverriddenDefaults(catalogue_);
  return news;
}

/// Else the rows keep the keys of the files that were opened before, deliberately.
void Document::ForgetFormerKeys() {
  for (CommandEntry& row : catalogue_.lvwHidden) {
    if (!row.IsHeading()) ForgetAllKeys(row, notation_);
  }
}

void Document::ReadMasterRows(const ProgressStep& step) {
  std::string bytes;
  if (system_.Files.Read(inputFiles_.TotalcmdInc(), bytes) == FileError::None) {
    catalogue_.Text = std::make_shared<const std::wstring>(DecodeInternalCommands(bytes));
    std::vector<CommandEntry> rows =
        ReadInternalCommands(*catalogue_.Text, notation_.UndefinedHotkey, step);
    // Rows of user commands may stand there, when the file could not be read at an earlier open.
    std::ranges::move(catalogue_.lvwHidden, std::back_inserter(rows));
    catalogue_.lvwHidden = std::move(rows);
  }
}

/// Gives the path of a file that is there and could not be read.
std::wstring Document::ReadUserRows() {
  UserCommandFile file;
  if (showsUserCommands_) file = ReadUserCommands(system_.Files, system_.Clock, wincmdPath_);
  ReplaceUserRows(catalogue_, std::move(file.Commands), texts_.GetLangText(TextId::OwnCommands),
                  notation_);
  const bool isUnread = file.Error != FileError::None && file.Error != FileError::NotFound;
  return isUnread ? std::move(file.Path) : std::wstring();
}

bool Document::ChangesMayGo() {
  if (Busy()) return false;
  const BoxAnswer answer = AskToSaveChanges();
  const bool saveFailed = answer == BoxAnswer::Yes && Modified();
  if (answer != BoxAnswer::Yes) DropUnsaved();
  return answer != BoxAnswer::Cancel && !saveFailed;
}

/// Yes, No or Cancel; No when there is nothing to save. After Yes the save has been tried.
BoxAnswer Document::AskToSaveChanges() {
  if (!Modified()) return BoxAnswer::No;
  const BoxAnswer answer = system_.MessageBoxes.Show(
      texts_.GetLangText(TextId::SaveChangesTo) + L"  " + wincmdPath_ + L"\n",
      BoxButtons::YesNoCancel, BoxIcon::Exclamation);
  if (answer == BoxAnswer::Yes) FileSave();
  return answer;
}

bool Document::KeepUnsaved() {
  if (loading_ || unread_ || !Modified()) return false;
  if (!kept_) kept_.emplace(files_, UnsavedFiles::Targets::LeftAlone);
  kept_->Begin();
  KnownContents known = known_;  // what is kept is not saved
  // The error of a file that cannot be read comes also when its changes lie there.
  static_cast<void>(WriteUnsavedShortcuts(catalogue_, notation_, SaveRequestOfNow(known), *kept_,
                                          system_.Clock, inputFiles_.CommanderVariables()));
  return !kept_->Left().empty();
}

void Document::DropUnsaved() {
  if (kept_) kept_->TakeAway();
}

bool Document::LeaveUnsaved() {
  const bool isKept = KeepUnsaved();
  kept_.reset();
  return isKept;
}

SaveRequest Document::SaveRequestOfNow(KnownContents& known) const {
  return {wincmdPath_, keepsUnknownShortcuts_, showsUserCommands_, &known, &seen_};
}

void Document::FileSave() { Save(settings_.AlwaysRestartTC != 0); }

void Document::FileSaveAndRestart() { Save(true); }

void Document::Save(bool restarts) {
  if (Busy() || !Modified()) return;
  if (unread_) {
    // A save would drop every key that the list does not show.
    system_.MessageBoxes.Beep();
    failure_ = {.Unread = true};
    return;
  }
  const BusyTime busy(saving_);
  const bool wasRunning = restarts && FindTotalCommander(system_.Programs) != 0;
  const std::wstring commander = wasRunning ? RunningTotalCommander(system_.Programs) : L"";
  const bool mayStart = restarts && Restart(true) != RestartResult::NotAllowed;
  kept_.reset();  // a save that succeeds takes it away, and one that fails writes its own
  files_.Begin();
  const SaveOutcome outcome = SaveShortcuts(catalogue_, notation_, SaveRequestOfNow(known_), files_,
                                            system_.Clock, inputFiles_.CommanderVariables());
  if (outcome.Error == FileError::None) {
    seen_ = known_;
    failure_.reset();
    news_ = NewsOf(outcome, wincmdPath_);
  } else {
    system_.MessageBoxes.Beep();
    failure_ = {.Error = outcome.Error, .KeptIn = files_.Left()};
    news_ = {.Kind = NewsKind::NotSaved};
  }
  // It runs on with its former keys, which it would not tell by itself.
  if (restarts && !mayStart) system_.MessageBoxes.Beep();
  const bool isMissed = mayStart && Restart(false) == RestartResult::NotStarted;
  // Its user may have chosen not to close it.
  news_.CommanderIsClosed = isMissed && wasRunning && FindTotalCommander(system_.Programs) == 0;
  if (news_.CommanderIsClosed) news_.Commander = commander;
}

/// Closes Total Commander before the save, or starts it after that.
/// One that may be closed, and whose user then chose otherwise, is started a second time,
/// deliberately: its window cannot tell that from a close that takes long.
RestartResult Document::Restart(bool closeIt) {
  return RestartTotalCommander(system_.Programs, system_.Clock, system_.Files, system_.Environment,
                               {.WincmdPath = wincmdPath_, .CloseIt = closeIt});
}

bool Document::StartCommander(const std::wstring& program) {
  return StartTotalCommander(system_.Programs, program, {.WincmdPath = wincmdPath_});
}

void Document::NoteEdit() { offersRestart_ = true; }

News Document::TakeNews() { return std::exchange(news_, {}); }

void Document::RefreshRestartItems() {
  restartButtonEnabled_ = FindTotalCommander(system_.Programs) != 0;
  offersRestart_ = restartButtonEnabled_;
}

}  // namespace tessera
