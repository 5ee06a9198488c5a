// Facts first, then sentences: each text of the language has places for what it is about.
#include "app/StatusLine.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

#include "app/StepNames.h"
#include "editing/KeyConflicts.h"
#include "localisation/Placeholders.h"
#include "text/ControlCharacters.h"

namespace tessera {
namespace {

/// More than the line and its tip can show.
constexpr std::size_t MostNames = 20;

bool IsWithin(wchar_t character, wchar_t first, wchar_t last) {
  return character >= first && character <= last;
}

bool EndsLine(wchar_t character) { return IsWithin(character, L'\x2028', L'\x2029'); }

/// A mark that turns the direction of all that follows it.
bool TurnsDirection(wchar_t character) {
  return IsWithin(character, L'\x202A', L'\x202E') || IsWithin(character, L'\x2066', L'\x2069');
}

std::wstring OnOneLine(std::wstring_view text) {
  std::wstring line = WithoutControls(text);
  std::ranges::replace_if(line, EndsLine, L' ');
  return line;
}

/// What stands in a sentence must not turn the rest of it round.
std::wstring AsValue(std::wstring_view text) {
  std::wstring value(text);
  std::erase_if(value, TurnsDirection);
  return value;
}

std::wstring FileNameOf(std::wstring_view path) {
  return std::wstring(path.substr(path.rfind(L'\\') + 1));
}

/// Sentences in the language in use about one state of the editor.
class Teller {
 public:
  explicit Teller(const Editor& editor) : editor_(editor) {}

  [[nodiscard]] std::wstring Key() const;
  [[nodiscard]] std::wstring Failure(const FailedSave& failure) const;
  [[nodiscard]] std::wstring Tell(const News& news) const;
  [[nodiscard]] std::wstring Found() const;

 private:
  [[nodiscard]] std::wstring Say(TextId id, std::initializer_list<std::wstring_view> values) const {
    return WithValues(editor_.Language().GetLangText(id), values);
  }
  [[nodiscard]] const CommandEntry& Row(RowKey row) const {
    return editor_.Document().Rows().Row(row);
  }
  [[nodiscard]] std::wstring NameOf(RowKey row) const;
  [[nodiscard]] std::wstring NameOfEntry(std::wstring_view caption) const {
    return Say(TextId::HolderInStartMenu, {AsValue(caption)});
  }
  [[nodiscard]] std::vector<std::wstring> NamesOf(const HoldersOfKey& holders,
                                                  const StartMenuSlot* slot) const;
  [[nodiscard]] std::wstring Joined(const std::vector<std::wstring>& names) const;
  [[nodiscard]] std::wstring WithQuestion(const std::wstring& told, const std::wstring& key,
                                          const HoldersOfKey& holders,
                                          const StartMenuSlot* slot) const;
  [[nodiscard]] std::wstring WithLosers(const std::wstring& told, const News& news) const;
  [[nodiscard]] std::wstring Restored(TextId id, const News& news) const;
  [[nodiscard]] std::wstring Reason(const FailedSave& failure) const;
  [[nodiscard]] std::wstring Opened(const News& news) const;
  [[nodiscard]] std::wstring Saved(const News& news) const;

  const Editor& editor_;
};

std::wstring Teller::NameOf(RowKey row) const {
  if (row == editor_.List().SelectedRow()) return Say(TextId::ThisCommand, {});
  return AsValue(Row(row).CommandName);
}

std::vector<std::wstring> Teller::NamesOf(const HoldersOfKey& holders,
                                          const StartMenuSlot* slot) const {
  std::vector<std::wstring> names;
  for (const RowKey row : holders.Currents) {
    names.push_back(Say(TextId::HolderNow, {NameOf(row)}));
  }
  for (const auto& [row, isOverridden] : holders.Defaults) {
    const TextId id = isOverridden ? TextId::HolderOverridden : TextId::HolderByDefault;
    names.push_back(Say(id, {NameOf(row)}));
  }
  if (slot != nullptr) names.push_back(NameOfEntry(slot->Caption));
  return names;
}

std::wstring Teller::Joined(const std::vector<std::wstring>& names) const {
  std::wstring text;
  for (std::size_t i = 0; i < std::min(names.size(), MostNames); ++i) {
    text = i == 0 ? names[i] : Say(TextId::OneAndNext, {text, names[i]});
  }
  if (names.size() <= MostNames) return text;
  return Say(TextId::AndMore, {text, std::to_wstring(names.size() - MostNames)});
}

std::wstring Teller::Key() const {
  const Catalogue& catalogue = editor_.Document().Commands();
  const std::wstring key = editor_.Panel().ComposeKey();
  const HoldersOfKey holders = catalogue.ListView1.HoldersOf(key, editor_.Document().Notation());
  const StartMenuSlot* const slot = FindStartMenuSlot(catalogue, key);
  const std::vector<std::wstring> names = NamesOf(holders, slot);
  const std::wstring told = names.empty() ? Say(TextId::KeyIsFree, {key})
                                          : Say(TextId::KeyAndHolders, {key, Joined(names)});
  return editor_.List().CommandSelected() ? WithQuestion(told, key, holders, slot) : told;
}

/// Adds whom the question before an edit will name, where the cells alone do not tell.
std::wstring Teller::WithQuestion(const std::wstring& told, const std::wstring& key,
                                  const HoldersOfKey& holders, const StartMenuSlot* slot) const {
  std::vector<RowKey> rows = holders.Currents;
  for (const HoldersOfKey::Default& holder : holders.Defaults) rows.push_back(holder.Row);
  const auto areAll = [&rows](RowKey row) {
    return std::ranges::all_of(rows, [row](RowKey each) { return each == row; });
  };
  const RowKey selected = editor_.List().SelectedRow();
  const KeyConflict conflict = FindConflict(editor_.Document().Commands(), selected, key);
  if (conflict.Owner != 0) {
    if (!rows.empty() && areAll(conflict.Owner)) return told;
    return Say(TextId::QuestionNames, {told, NameOf(conflict.Owner)});
  }
  // Nobody loses a key that the row alone has.
  if (areAll(selected)) return told;
  if (slot != nullptr) return Say(TextId::QuestionNames, {told, NameOfEntry(slot->Caption)});
  return Say(TextId::NoQuestion, {told});
}

std::wstring Teller::Reason(const FailedSave& failure) const {
  struct ErrorText {
    FileError Error;
    TextId Text;
  };
  constexpr ErrorText Texts[] = {{FileError::NotFound, TextId::FileIsMissing},
                                 {FileError::AccessDenied, TextId::AccessIsDenied},
                                 {FileError::SharingViolation, TextId::FileIsInUse},
                                 {FileError::LockViolation, TextId::FileIsInUse},
                                 {FileError::DiskFull, TextId::DiskIsFull},
                                 {FileError::ChangedMeanwhile, TextId::FileHasChanged}};
  if (failure.Unread) return Say(TextId::FileWasNotRead, {});
  const auto* const found = std::ranges::find(Texts, failure.Error, &ErrorText::Error);
  if (found != std::end(Texts)) return Say(found->Text, {});
  return Say(TextId::OtherError, {std::to_wstring(static_cast<int>(failure.Error))});
}

std::wstring Teller::Failure(const FailedSave& failure) const {
  if (failure.KeptIn.empty()) return Say(TextId::NotSaved, {Reason(failure)});
  return Say(TextId::NotSavedButKept, {Reason(failure), Joined(failure.KeptIn)});
}

std::wstring Teller::Opened(const News& news) const {
  std::wstring told =
      Say(TextId::FileIsOpened, {FileNameOf(news.File), std::to_wstring(news.Rows)});
  if (news.HasFormerKeys) told = Say(TextId::FormerKeysAreShown, {told});
  if (news.UnreadFile.empty()) return told;
  return Say(TextId::OwnCommandsUnread, {told, FileNameOf(news.UnreadFile)});
}

std::wstring Teller::Saved(const News& news) const {
  std::wstring told = Say(TextId::FileIsSaved, {FileNameOf(news.File)});
  if (!news.KeysFile.empty()) told = Say(TextId::KeysAreIn, {told, news.KeysFile});
  if (news.DroppedLines == 0) return told;
  const TextId id = news.DroppedLost ? TextId::LinesAreOnlyIn : TextId::LinesAreIn;
  return Say(id, {told, std::to_wstring(news.DroppedLines), FileNameOf(news.DroppedIn)});
}

std::wstring Teller::WithLosers(const std::wstring& told, const News& news) const {
  std::vector<std::wstring> names;
  if (news.From != 0) names.push_back(NameOf(news.From));
  for (const std::wstring& caption : news.FromStartMenu) names.push_back(NameOfEntry(caption));
  return names.empty() ? told : Say(TextId::TakenFrom, {told, Joined(names)});
}

std::wstring Teller::Restored(TextId id, const News& news) const {
  const std::wstring told =
      Say(id, {AsValue(StepName({news.Step, news.Row, news.Keys}, editor_.Document().Rows(),
                                editor_.Language()))});
  return news.StartMenuKeyIsGone ? Say(TextId::StartMenuKeyIsGone, {told}) : told;
}

std::wstring Teller::Tell(const News& news) const {
  // "This command" tells too little of what is done.
  const std::wstring name = news.Row != 0 ? AsValue(Row(news.Row).CommandName) : L"";
  const std::wstring rows = std::to_wstring(news.Rows);
  switch (news.Kind) {
    case NewsKind::Opened:
      return Opened(news);
    case NewsKind::Saved:
      return Saved(news);
    case NewsKind::Assigned:
      return WithLosers(Say(TextId::KeyIsAssigned, {name, news.Keys}), news);
    case NewsKind::Added:
      return WithLosers(Say(TextId::KeyIsAdded, {name, news.Keys}), news);
    case NewsKind::Deleted:
      return Say(TextId::KeysAreDeleted, {name, news.Keys});
    case NewsKind::DeletedAll:
      return Say(TextId::AllKeysAreDeleted, {rows});
    case NewsKind::Undone:
      return Restored(TextId::IsUndone, news);
    case NewsKind::Redone:
      return Restored(TextId::IsRedone, news);
    case NewsKind::PageNotWritten:
      return Say(TextId::CannotWriteThisFile, {}) + L" " + news.File;
    case NewsKind::PageNotOpened:
      return Say(TextId::CannotOpenThisFile, {}) + L" " + news.File;
    case NewsKind::NotSaved:
    case NewsKind::None:
      break;
  }
  return {};
}

std::wstring Teller::Found() const {
  return Say(TextId::CommandsFound, {std::to_wstring(editor_.List().Shown().FoundCount())});
}

std::wstring WithCommander(const Editor& editor, const std::wstring& told) {
  if (!editor.LatestNews().CommanderIsClosed) return told;
  return WithValues(editor.Language().GetLangText(TextId::CommanderIsClosed), {told});
}

}  // namespace

std::wstring StatusText(const Editor& editor) {
  const Teller teller(editor);
  if (editor.Panel().ChosenKey() != NoKeyChosen) return OnOneLine(teller.Key());
  if (const auto& failure = editor.Document().Failure()) {
    return OnOneLine(WithCommander(editor, teller.Failure(*failure)));
  }
  if (editor.LatestNews().Kind != NewsKind::None) {
    return OnOneLine(WithCommander(editor, teller.Tell(editor.LatestNews())));
  }
  if (editor.List().Shown().Searching()) return OnOneLine(teller.Found());
  const RowKey row = editor.List().SelectedRow();
  if (row == 0) return {};
  return OnOneLine(editor.Document().Rows().Row(row).Description);
}

bool StatusTelling::TakeIfDue(const std::wstring& text, bool modifierHeld, bool timerRuns) {
  if (modifierHeld || timerRuns || text == told_) return false;
  told_ = text;
  return true;
}

}  // namespace tessera
