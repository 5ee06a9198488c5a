// Collects the holders as they stand in the rows, and orders them by key afterwards.
#include "export/KeyUses.h"

#include <algorithm>

namespace tessera {

const KeyHolder* ChiefHolder(std::span<const KeyHolder> holders) {
  if (holders.empty()) return nullptr;
  // A Start Menu entry wins over a default key, but is named last.
  const bool isDefault = holders.front().Kind != HolderKind::Current;
  const bool isStartMenu = holders.back().Kind == HolderKind::StartMenu;
  return isDefault && isStartMenu ? &holders.back() : &holders.front();
}

KeyUse UseOf(std::span<const KeyHolder> holders) {
  const KeyHolder* const chief = ChiefHolder(holders);
  if (chief == nullptr) return KeyUse::Free;
  if (chief->Kind == HolderKind::StartMenu) return KeyUse::StartMenu;
  if (chief->Kind != HolderKind::Current) return KeyUse::Default;
  const bool isOverDefault = std::ranges::any_of(holders, [](const KeyHolder& holder) {
    return holder.Kind == HolderKind::Default || holder.Kind == HolderKind::OverriddenDefault;
  });
  return isOverDefault ? KeyUse::UserOverDefault : KeyUse::User;
}

KeyUses::KeyUses(const Catalogue& catalogue, const HotkeyNotation& notation) {
  const DisplayTable& rows = catalogue.ListView1;
  rows.ForEachRow([&](const CommandEntry& row) { AddCurrents(row, notation); });
  currentKeys_ = keys_.size();
  rows.ForEachRow([&](const CommandEntry& row) { AddDefaults(row, notation); });
  for (const StartMenuSlot& slot : catalogue.StartMenuKeys) {
    const bool isTakenAway = slot.Key.ends_with(OverriddenMark);
    if (!slot.Key.empty() && !isTakenAway) {
      Add(PlaceOf(slot.Key), {HolderKind::StartMenu, 0, slot.Caption});
    }
  }
  SortByKey();
}

std::span<const KeyHolder> KeyUses::HoldersOf(std::size_t key) const {
  if (key >= keys_.size()) return {};
  return std::span(holders_).subspan(begins_[key], begins_[key + 1] - begins_[key]);
}

std::size_t KeyUses::Find(std::wstring_view key) const {
  const auto found = places_.find(key);
  return found == places_.end() ? keys_.size() : found->second;
}

void KeyUses::AddCurrents(const CommandEntry& row, const HotkeyNotation& notation) {
  notation.ForEachKeyOf(row.CurrentKeys, [&](std::wstring_view key) {
    if (!key.empty()) Add(PlaceOf(key), {HolderKind::Current, row.Key, row.CommandName});
  });
}

void KeyUses::AddDefaults(const CommandEntry& row, const HotkeyNotation& notation) {
  std::size_t pieces = 0;
  notation.ForEachKeyOf(row.DefaultKeys, [&pieces](std::wstring_view) { ++pieces; });
  const bool isMarked = row.DefaultKeys.ends_with(OverriddenMark);
  notation.ForEachKeyOf(row.DefaultKeys, [&](std::wstring_view piece) {
    const std::wstring_view text = WithoutKeyMarks(piece);
    if (text.empty()) return;
    const std::size_t key = PlaceOf(text);
    // The mark of a cell with several keys means those that somebody has now.
    const bool isOverridden =
        pieces == 1 ? text.size() < piece.size() : isMarked && key < currentKeys_;
    Add(key, {isOverridden ? HolderKind::OverriddenDefault : HolderKind::Default, row.Key,
              row.CommandName});
  });
}

std::size_t KeyUses::PlaceOf(std::wstring_view key) {
  const auto [place, isNew] = places_.try_emplace(key, keys_.size());
  if (isNew) {
    keys_.push_back(key);
    latest_.push_back(holdings_.size());
  }
  return place->second;
}

void KeyUses::Add(std::size_t key, const KeyHolder& holder) {
  const std::size_t latest = latest_[key];
  // A cell may hold a key twice.
  if (holder.Row != 0 && latest < holdings_.size() && holdings_[latest].Holder == holder) return;
  latest_[key] = holdings_.size();
  holdings_.push_back({key, holder});
}

void KeyUses::SortByKey() {
  begins_.assign(keys_.size() + 1, 0);
  for (const Holding& holding : holdings_) ++begins_[holding.Key + 1];
  for (std::size_t key = 0; key < keys_.size(); ++key) begins_[key + 1] += begins_[key];
  std::vector<std::size_t> ends = begins_;
  holders_.resize(holdings_.size());
  for (const Holding& holding : holdings_) holders_[ends[holding.Key]++] = holding.Holder;
}

}  // namespace tessera
