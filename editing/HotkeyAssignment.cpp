// Assigning, adding and deleting keys.
#include "editing/HotkeyAssignment.h"

#include <utility>

#include "editing/KeyConflicts.h"
#include "editing/KeyEdits.h"
#include "text/Text.h"

namespace tessera {
namespace {

/// A question that may destroy something: No is the default button.
bool Confirmed(MessageBoxes& messageBoxes, const std::wstring& text, BoxIcon icon) {
  return messageBoxes.Show(text, BoxButtons::YesNo, icon, BoxDefault::Second) == BoxAnswer::Yes;
}

}  // namespace

HotkeyAssignment::HotkeyAssignment(Catalogue& catalogue, const HotkeyNotation& notation,
                                   const Texts& texts, MessageBoxes& messageBoxes)
    : catalogue_(catalogue), notation_(notation), texts_(texts), messageBoxes_(messageBoxes) {}

bool HotkeyAssignment::Assign(RowKey row, const std::wstring& key) {
  return catalogue_.Edits.Make(catalogue_, {EditKind::Assign, row, key}, [&] {
    if (!CheckAll(row, key, true)) return false;
    ReleaseCurrentKeys(catalogue_, row, notation_);
    GiveKey(catalogue_, row, key, notation_);
    catalogue_.ListView1.Edit(row).Icon = RowIcon::HasKey;
    news_.Kind = NewsKind::Assigned;
    return true;
  });
}

bool HotkeyAssignment::Add(RowKey row, const std::wstring& key) {
  return catalogue_.Edits.Make(catalogue_, {EditKind::Add, row, key}, [&] {
    if (!CheckAll(row, key, false)) return false;
    // The key may have been the row's own last one, which the check has just taken out of the cell.
    GiveKey(catalogue_, row, key, notation_);
    news_.Kind = NewsKind::Added;
    return true;
  });
}

bool HotkeyAssignment::Delete(RowKey row) {
  const std::wstring keys = catalogue_.ListView1.Row(row).CurrentKeys;
  const bool changed = catalogue_.Edits.Make(catalogue_, {EditKind::Delete, row, {}}, [&] {
    return DeleteCurrentKeys(catalogue_, row, notation_);
  });
  if (changed) news_ = {.Kind = NewsKind::Deleted, .Row = row, .Keys = keys};
  return changed;
}

bool HotkeyAssignment::DeleteAll() {
  if (!Confirmed(messageBoxes_, DeleteAllQuestion(texts_), BoxIcon::Question)) return false;
  return catalogue_.Edits.Make(catalogue_, {EditKind::DeleteAll, 0, {}}, [&] {
    std::size_t changed = 0;
    for (std::size_t position = 0; position < catalogue_.ListView1.Count(); ++position) {
      const CommandEntry& row = catalogue_.ListView1.At(position);
      if (!row.IsHeading() && DeleteCurrentKeys(catalogue_, row.Key, notation_)) ++changed;
    }
    if (changed > 0) news_ = {.Kind = NewsKind::DeletedAll, .Rows = changed};
    return changed > 0;
  });
}

News HotkeyAssignment::TakeNews() { return std::exchange(news_, {}); }

/// False when somebody keeps the key, or the row has just this key already.
bool HotkeyAssignment::CheckAll(RowKey row, const std::wstring& key, bool replace) {
  std::vector<std::wstring> takenFrom;
  if (!CheckStartMenuConflict(row, key, takenFrom) || !CheckConflicts(row, key, replace)) {
    return false;
  }
  news_.FromStartMenu = std::move(takenFrom);
  return true;
}

/// False when the user keeps the key for the Start Menu. The answer about the last slot decides.
bool HotkeyAssignment::CheckStartMenuConflict(RowKey row, const std::wstring& key,
                                              std::vector<std::wstring>& takenFrom) {
  bool confirmed = true;
  for (StartMenuSlot& slot : catalogue_.StartMenuKeys) {
    if (!EqualIgnoringCase(slot.Key, key)) continue;
    confirmed =
        Confirmed(messageBoxes_, StartMenuQuestion(texts_, slot, catalogue_.ListView1.Row(row)),
                  BoxIcon::Exclamation);
    if (!confirmed) continue;
    slot.Key.append(OverriddenMark);
    takenFrom.push_back(slot.Caption);
  }
  return confirmed;
}

/// False when the user leaves the key to its owner, or the row has just this key already.
bool HotkeyAssignment::CheckConflicts(RowKey row, const std::wstring& key, bool replace) {
  const KeyConflict conflict = FindConflict(catalogue_, row, key);
  const DisplayTable& rows = catalogue_.ListView1;
  bool confirmed = true;
  switch (conflict.Kind) {
    case ConflictKind::SameKey:
      messageBoxes_.Beep();
      return false;
    case ConflictKind::Free:
      break;
    case ConflictKind::DefaultKey:
      confirmed = Confirmed(messageBoxes_,
                            DefaultKeyQuestion(texts_, rows.Row(conflict.Owner), rows.Row(row)),
                            BoxIcon::Exclamation);
      break;
    case ConflictKind::CurrentKey:
      confirmed = Confirmed(messageBoxes_,
                            CurrentKeyQuestion(texts_, rows.Row(conflict.Owner), rows.Row(row)),
                            BoxIcon::Exclamation);
      break;
  }
  if (!confirmed) return false;
  TakeKey(catalogue_, row, key, conflict, replace, notation_);
  news_ = {.Row = row, .Keys = key, .From = conflict.Owner != row ? conflict.Owner : 0};
  return true;
}

}  // namespace tessera
