// The changes that an edit makes to the catalogue.
#include "editing/KeyEdits.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "shortcuts/ReadKeys.h"
#include "text/Text.h"

namespace tessera {
namespace {

/// The length of the default separator, deliberately also when another one is set.
constexpr std::size_t CutLength = 3;

std::wstring WithMark(std::wstring_view text) { return std::wstring(text).append(OverriddenMark); }

std::wstring WithoutMark(std::wstring_view text) {
  return std::wstring(text.substr(0, text.size() - std::min(text.size(), OverriddenMark.size())));
}

/// Runs a change to the row's current keys; keys that it takes are no longer given ones.
template <typename Change>
void ChangeCurrentKeys(Catalogue& catalogue, CommandEntry& row, const HotkeyNotation& notation,
                       Change change) {
  const std::vector<std::wstring> former = NativeKeysOf(row, notation);
  change();
  catalogue.Given.Change(row.Key, former, NativeKeysOf(row, notation));
}

void RemoveCurrentKey(CommandEntry& row, std::wstring_view key, const HotkeyNotation& notation) {
  // Of a long separator the cut leaves a part, which would count as one of the last key.
  if (notation.MultiHotkeySeparator.size() > CutLength + 1) RememberKeys(row, notation);
  row.CurrentKeys = RemoveKeyFromList(row.CurrentKeys, key, notation);
  ForgetKey(row, key, notation);
}

void TakeDefaultKey(Catalogue& catalogue, const KeyConflict& conflict,
                    const HotkeyNotation& notation) {
  KeyIndex& defaults = catalogue.lvwDefKeys;
  defaults.SetText(conflict.Entry, WithMark(defaults.At(conflict.Entry).Text));
  CommandEntry& owner = catalogue.ListView1.Edit(conflict.Owner);
  owner.DefaultKeys = WithMark(owner.DefaultKeys);
  owner.DefaultKeysAreRed = true;
  if (owner.CurrentKeys == notation.UndefinedHotkey) owner.Icon = RowIcon::None;
}

void TakeCurrentKey(Catalogue& catalogue, const KeyConflict& conflict, std::wstring_view key,
                    const HotkeyNotation& notation) {
  CommandEntry& owner = catalogue.ListView1.Edit(conflict.Owner);
  ChangeCurrentKeys(catalogue, owner, notation, [&] { RemoveCurrentKey(owner, key, notation); });
  const bool defaultIsOverridden = owner.DefaultKeys.ends_with(L'*');
  const bool hasNoKey = owner.DefaultKeys == notation.UndefinedHotkey &&
                        owner.CurrentKeys == notation.UndefinedHotkey;
  if (defaultIsOverridden || hasNoKey) owner.Icon = RowIcon::None;
}

void WithdrawMarks(Catalogue& catalogue, std::wstring_view key) {
  const std::wstring marked = WithMark(key);
  for (StartMenuSlot& slot : catalogue.StartMenuKeys) {
    if (EqualIgnoringCase(slot.Key, marked)) slot.Key = WithoutMark(slot.Key);
  }
  if (const auto entry = catalogue.lvwDefKeys.FindWhole(marked)) {
    CommandEntry& owner = catalogue.ListView1.Edit(catalogue.lvwDefKeys.At(*entry).Owner);
    catalogue.lvwDefKeys.SetText(*entry, WithoutMark(catalogue.lvwDefKeys.At(*entry).Text));
    owner.DefaultKeys = WithoutMark(owner.DefaultKeys);
    owner.Icon = RowIcon::HasKey;
  }
}

}  // namespace

std::wstring RemoveKeyFromList(std::wstring_view list, std::wstring_view key,
                               const HotkeyNotation& notation) {
  std::wstring kept;
  for (const std::wstring& piece : SplitText(list, notation.TrimmedSeparator())) {
    if (piece != key) kept += piece + notation.MultiHotkeySeparator;
  }
  return kept.empty() ? notation.UndefinedHotkey : kept.substr(0, kept.size() - CutLength);
}

void TakeKey(Catalogue& catalogue, RowKey row, const std::wstring& key, const KeyConflict& conflict,
             bool replace, const HotkeyNotation& notation) {
  switch (conflict.Kind) {
    case ConflictKind::SameKey:
      return;
    case ConflictKind::Free:
      catalogue.lvwCurrKeys.Add(key, row);
      // The new entry deliberately goes with the former ones: until the next open the row has none.
      if (replace && catalogue.ListView1.Row(row).CurrentKeys != notation.UndefinedHotkey) {
        catalogue.lvwCurrKeys.RemoveOwnedBy(row);
      }
      return;
    case ConflictKind::DefaultKey:
      TakeDefaultKey(catalogue, conflict, notation);
      catalogue.lvwCurrKeys.Add(key, row);
      return;
    case ConflictKind::CurrentKey:
      catalogue.lvwCurrKeys.SetOwner(conflict.Entry, row);
      TakeCurrentKey(catalogue, conflict, key, notation);
      return;
  }
}

void GiveKey(Catalogue& catalogue, RowKey row, const std::wstring& key,
             const HotkeyNotation& notation) {
  AddComposedKey(catalogue.ListView1.Edit(row), key, notation);
  for (const std::wstring& native : notation.NativeKeysOf(key)) catalogue.Given.Give(row, native);
}

void ReleaseCurrentKeys(Catalogue& catalogue, RowKey row, const HotkeyNotation& notation) {
  CommandEntry& entry = catalogue.ListView1.Edit(row);
  const std::vector<std::wstring> keys = notation.KeysOf(entry.CurrentKeys);
  ChangeCurrentKeys(catalogue, entry, notation, [&] {
    entry.CurrentKeys = notation.UndefinedHotkey;
    entry.ReadKeys.clear();
  });
  if (entry.DefaultKeys == notation.UndefinedHotkey) entry.Icon = RowIcon::None;
  for (const std::wstring& key : keys) WithdrawMarks(catalogue, key);
}

bool DeleteCurrentKeys(Catalogue& catalogue, RowKey row, const HotkeyNotation& notation) {
  if (catalogue.ListView1.Row(row).CurrentKeys == notation.UndefinedHotkey) return false;
  ReleaseCurrentKeys(catalogue, row, notation);
  catalogue.lvwCurrKeys.RemoveOwnedBy(row);
  return true;
}

}  // namespace tessera
