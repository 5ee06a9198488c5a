// Builds what is displayed, and the indexes of single keys, from the master rows.
#include "shortcuts/Catalogue.h"

#include <utility>

namespace tessera {
namespace {

RowIcon IconOf(const CommandEntry& row, const std::wstring& undefinedHotkey) {
  if (row.IsHeading()) return RowIcon::CommentBlock;
  const bool hasKey = row.DefaultKeys != undefinedHotkey || row.CurrentKeys != undefinedHotkey;
  return hasKey ? RowIcon::HasKey : RowIcon::None;
}

void AddKeys(KeyIndex& index, const std::wstring& column, RowKey owner,
             const HotkeyNotation& notation) {
  for (std::wstring& key : notation.KeysOf(column)) index.Add(std::move(key), owner);
}

}  // namespace

void BuildDisplayTable(Catalogue& catalogue, const HotkeyNotation& notation,
                       const ProgressStep& step) {
  std::vector<CommandEntry> rows;
  rows.reserve(catalogue.lvwHidden.size());
  for (const CommandEntry& master : catalogue.lvwHidden) {
    step();
    CommandEntry& row = rows.emplace_back(master);
    row.CommandCode = {};
    row.Icon = IconOf(row, notation.UndefinedHotkey);
  }
  catalogue.ListView1.Fill(std::move(rows));
}

void BuildKeyIndexes(Catalogue& catalogue, const HotkeyNotation& notation) {
  // Edited keys of the file that was open before are gone with it.
  catalogue.Edits.Clear();
  catalogue.lvwDefKeys.Clear();
  catalogue.lvwCurrKeys.Clear();
  for (std::size_t position = 0; position < catalogue.ListView1.Count(); ++position) {
    const CommandEntry& row = catalogue.ListView1.At(position);
    if (row.Icon != RowIcon::HasKey) continue;
    AddKeys(catalogue.lvwDefKeys, row.DefaultKeys, row.Key, notation);
    AddKeys(catalogue.lvwCurrKeys, row.CurrentKeys, row.Key, notation);
  }
}

void MarkOverriddenDefaults(Catalogue& catalogue) {
  for (const KeyIndex::EntryId currentKey : catalogue.lvwCurrKeys.Ids()) {
    const auto defaultKey =
        catalogue.lvwDefKeys.FindWhole(catalogue.lvwCurrKeys.At(currentKey).Text);
    if (!defaultKey) continue;

    const KeyIndex::Entry entry = catalogue.lvwDefKeys.At(*defaultKey);
    CommandEntry& row = catalogue.ListView1.Edit(entry.Owner);
    row.DefaultKeysAreRed = true;
    // Deliberately on the whole cell, not on the one key in it.
    row.DefaultKeys += OverriddenMark;
    catalogue.lvwDefKeys.SetText(*defaultKey, std::wstring(entry.Text).append(OverriddenMark));
  }
}

}  // namespace tessera
