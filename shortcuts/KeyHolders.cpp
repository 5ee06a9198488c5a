// Lists rows by their keys, and looks into their cells before it names one.
#include "shortcuts/KeyHolders.h"

#include <algorithm>
#include <span>
#include <utility>

#include "shortcuts/DisplayTable.h"
#include "text/Text.h"

namespace tessera {
namespace {

std::wstring_view WithoutMarks(std::wstring_view key) {
  while (key.ends_with(OverriddenMark)) key.remove_suffix(OverriddenMark.size());
  return key;
}

/// What the mark of a default-keys cell says of one of its keys.
enum class Mark {
  None,
  OnKey,  ///< it is the only key
  OnCell  ///< of several keys those are meant that somebody has now
};

struct RowHolds {
  bool IsListed = false;  ///< under the key without marks
  bool Default = false;
  bool Current = false;
  Mark DefaultMark = Mark::None;
};

Mark MarkOf(std::span<const std::wstring> defaults, std::wstring_view key) {
  if (defaults.size() > 1) {
    return defaults.back().ends_with(OverriddenMark) ? Mark::OnCell : Mark::None;
  }
  return EqualIgnoringCase(defaults.front(), key) ? Mark::None : Mark::OnKey;
}

RowHolds HoldsOf(const CommandEntry& row, std::wstring_view key, const HotkeyNotation& notation) {
  RowHolds holds;
  const auto isListed = [listed = WithoutMarks(key)](const std::wstring& piece) {
    return EqualIgnoringCase(WithoutMarks(piece), listed);
  };
  const std::vector<std::wstring> defaults = notation.KeysOf(row.DefaultKeys);
  for (const std::wstring& piece : defaults) {
    holds.IsListed |= isListed(piece);
    holds.Default |= IsKeyWithMarks(piece, key);
  }
  for (const std::wstring& piece : notation.KeysOf(row.CurrentKeys)) {
    holds.IsListed |= isListed(piece);
    holds.Current |= EqualIgnoringCase(piece, key);
  }
  if (holds.Default) holds.DefaultMark = MarkOf(defaults, key);
  return holds;
}

}  // namespace

bool IsKeyWithMarks(std::wstring_view piece, std::wstring_view key) {
  if (!EqualIgnoringCase(piece.substr(0, key.size()), key)) return false;
  piece.remove_prefix(std::min(piece.size(), key.size()));
  while (piece.starts_with(OverriddenMark)) piece.remove_prefix(OverriddenMark.size());
  return piece.empty();
}

std::wstring_view WithoutKeyMarks(std::wstring_view piece) {
  constexpr std::wstring_view Num = L"Num";
  std::wstring_view key = WithoutMarks(piece);
  const bool isMultiply = key.size() < piece.size() && key.ends_with(Num) &&
                          (key.size() == Num.size() || key[key.size() - Num.size() - 1] == L' ');
  // The first mark is the name of the key.
  if (isMultiply) key = piece.substr(0, key.size() + OverriddenMark.size());
  return key;
}

void KeyHolders::Clear() { *this = KeyHolders(); }

void KeyHolders::NoteChange(RowKey row) {
  if (made_) changed_.push_back(row);
}

HoldersOfKey KeyHolders::Of(std::wstring_view key, const DisplayTable& rows,
                            const HotkeyNotation& notation) {
  if (!std::exchange(made_, true)) {
    rows.ForEachRow([&](const CommandEntry& row) { ListRow(row, notation); });
  }
  for (const RowKey row : std::exchange(changed_, {})) ListRow(rows.Row(row), notation);

  HoldersOfKey holders;
  std::vector<std::size_t> inMarkedCells;
  const auto group = rows_.find(WithoutMarks(key));
  if (group == rows_.end()) return holders;
  std::erase_if(group->second, [&](RowKey row) {
    const RowHolds holds = HoldsOf(rows.Row(row), key, notation);
    if (holds.DefaultMark == Mark::OnCell) inMarkedCells.push_back(holders.Defaults.size());
    if (holds.Default) holders.Defaults.push_back({row, holds.DefaultMark == Mark::OnKey});
    if (holds.Current) holders.Currents.push_back(row);
    return !holds.IsListed;
  });
  for (const std::size_t each : inMarkedCells) {
    holders.Defaults[each].Overridden = !holders.Currents.empty();
  }
  return holders;
}

void KeyHolders::ListRow(const CommandEntry& row, const HotkeyNotation& notation) {
  for (const std::wstring* const cell : {&row.DefaultKeys, &row.CurrentKeys}) {
    for (const std::wstring& key : notation.KeysOf(*cell)) {
      rows_[std::wstring(WithoutMarks(key))].insert(row.Key);
    }
  }
}

}  // namespace tessera
