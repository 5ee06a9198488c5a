// Looks up single keys through hashes of their texts.
#include "shortcuts/KeyIndex.h"

#include <utility>

#include "platform/Text.h"

namespace tessera {

namespace {

// FNV-1a, which hashes every beginning of a text in one walk along it.
constexpr std::uint64_t HashOfNothing = 14695981039346656037U;

std::uint64_t Extend(std::uint64_t hash, wchar_t character) {
  return (hash ^ static_cast<std::uint64_t>(character)) * 1099511628211U;
}

std::uint64_t HashOf(std::wstring_view text) {
  std::uint64_t hash = HashOfNothing;
  for (const wchar_t character : text) hash = Extend(hash, character);
  return hash;
}

/// Gives `take` the hashes of the text and of all its beginnings that end before a blank.
template <typename Take>
void ForEachHashOfKey(std::wstring_view text, Take take) {
  std::uint64_t hash = HashOfNothing;
  for (const wchar_t character : text) {
    if (character == L' ') take(hash);
    hash = Extend(hash, character);
  }
  take(hash);
}

bool IsKeyOf(std::wstring_view text, std::wstring_view key) {
  return text.starts_with(key) && (text.size() == key.size() || text[key.size()] == L' ');
}

template <typename Groups, typename Id>
void AddToGroup(Groups& groups, std::uint64_t hash, Id id) {
  auto& group = groups[hash];
  group.insert(group.end(), id);
}

template <typename Groups, typename Id>
void RemoveFromGroup(Groups& groups, std::uint64_t hash, Id id) {
  const auto group = groups.find(hash);
  if (group == groups.end()) return;
  group->second.erase(id);
  if (group->second.empty()) groups.erase(group);
}

/// The first entry of a group that really is meant: different texts may share a hash.
template <typename Groups, typename Predicate>
std::optional<KeyIndex::EntryId> FirstOfGroup(const Groups& groups, std::uint64_t hash,
                                              const Predicate& isMeant) {
  const auto group = groups.find(hash);
  if (group == groups.end()) return std::nullopt;
  for (const KeyIndex::EntryId id : group->second) {
    if (isMeant(id)) return id;
  }
  return std::nullopt;
}

}  // namespace

std::size_t KeyIndex::Count() const { return count_; }

const KeyIndex::Entry& KeyIndex::At(EntryId id) const { return Stored(id); }

std::vector<KeyIndex::EntryId> KeyIndex::Ids() const {
  std::vector<EntryId> ids;
  ids.reserve(count_);
  for (EntryId id = 0; id < entries_.size(); ++id) {
    if (entries_[id]) ids.push_back(id);
  }
  return ids;
}

std::optional<KeyIndex::EntryId> KeyIndex::FindWhole(std::wstring_view text) const {
  const std::wstring folded = ToLower(text);
  return FirstOfGroup(byWhole_, HashOf(folded),
                      [&](EntryId id) { return Stored(id).Folded == folded; });
}

std::optional<KeyIndex::EntryId> KeyIndex::FindKey(std::wstring_view key) const {
  const std::wstring folded = ToLower(key);
  return FirstOfGroup(ByKey(), HashOf(folded),
                      [&](EntryId id) { return IsKeyOf(Stored(id).Folded, folded); });
}

KeyIndex::EntryId KeyIndex::Add(std::wstring text, RowKey owner) {
  const EntryId id = entries_.size();
  std::wstring folded = ToLower(text);
  AddToTextGroups(id, *entries_.emplace_back(StoredEntry{{std::move(text)}, std::move(folded)}));
  SetOwner(id, owner);
  ++count_;
  return id;
}

void KeyIndex::SetText(EntryId id, std::wstring text) {
  StoredEntry& entry = entries_.at(id).value();
  RemoveFromTextGroups(id, entry);
  entry.Folded = ToLower(text);
  entry.Text = std::move(text);
  AddToTextGroups(id, entry);
}

void KeyIndex::SetOwner(EntryId id, RowKey owner) {
  StoredEntry& entry = entries_.at(id).value();
  if (owner >= byOwner_.size()) byOwner_.resize(owner + 1);
  if (entry.Owner < byOwner_.size()) std::erase(byOwner_[entry.Owner], id);
  byOwner_[owner].push_back(id);
  entry.Owner = owner;
}

void KeyIndex::RemoveOwnedBy(RowKey owner) {
  if (owner >= byOwner_.size()) return;
  for (const EntryId id : byOwner_[owner]) {
    RemoveFromTextGroups(id, Stored(id));
    entries_[id].reset();
    --count_;
  }
  byOwner_[owner].clear();
}

void KeyIndex::Clear() { *this = KeyIndex(); }

const KeyIndex::StoredEntry& KeyIndex::Stored(EntryId id) const { return entries_.at(id).value(); }

const KeyIndex::Groups& KeyIndex::ByKey() const {
  if (!byKey_) {
    byKey_.emplace();
    for (const EntryId id : Ids()) {
      ForEachHashOfKey(Stored(id).Folded,
                       [&](std::uint64_t hash) { AddToGroup(*byKey_, hash, id); });
    }
  }
  return *byKey_;
}

void KeyIndex::AddToTextGroups(EntryId id, const StoredEntry& entry) {
  AddToGroup(byWhole_, HashOf(entry.Folded), id);
  if (!byKey_) return;
  ForEachHashOfKey(entry.Folded, [&](std::uint64_t hash) { AddToGroup(*byKey_, hash, id); });
}

void KeyIndex::RemoveFromTextGroups(EntryId id, const StoredEntry& entry) {
  RemoveFromGroup(byWhole_, HashOf(entry.Folded), id);
  if (!byKey_) return;
  ForEachHashOfKey(entry.Folded, [&](std::uint64_t hash) { RemoveFromGroup(*byKey_, hash, id); });
}

}  // namespace tessera
