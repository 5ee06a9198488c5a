// Looks up single keys through hashes of their texts.
#include "shortcuts/KeyIndex.h"

#include <utility>

#include "text/Text.h"
#include "text/TextHash.h"

namespace tessera {
namespace {

std::size_t HashOf(std::wstring_view text) { return HashIgnoringCase()(text); }

/// Gives `take` the hashes of the text and of all its beginnings that end before a blank.
template <typename Take>
void ForEachHashOfKey(std::wstring_view text, Take take) {
  for (std::size_t end = text.find(L' '); end < text.size(); end = text.find(L' ', end + 1)) {
    take(HashOf(text.substr(0, end)));
  }
  take(HashOf(text));
}

bool IsKeyOf(std::wstring_view text, std::wstring_view key) {
  return EqualIgnoringCase(text.substr(0, key.size()), key) &&
         (text.size() == key.size() || text[key.size()] == L' ');
}

template <typename Groups, typename Id>
void AddToGroup(Groups& groups, std::size_t hash, Id id) {
  auto& group = groups[hash];
  group.insert(group.end(), id);
}

template <typename Groups, typename Id>
void RemoveFromGroup(Groups& groups, std::size_t hash, Id id) {
  const auto group = groups.find(hash);
  if (group == groups.end()) return;
  group->second.erase(id);
}

/// The first entry of a group that really is meant: different texts may share a hash.
template <typename Groups, typename Predicate>
std::optional<KeyIndex::EntryId> FirstOfGroup(const Groups& groups, std::size_t hash,
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

const KeyIndex::Entry& KeyIndex::At(EntryId id) const { return entries_.at(id).value(); }

std::vector<KeyIndex::EntryId> KeyIndex::Ids() const {
  std::vector<EntryId> ids;
  ids.reserve(count_);
  for (EntryId id = 0; id < entries_.size(); ++id) {
    if (entries_[id]) ids.push_back(id);
  }
  return ids;
}

std::optional<KeyIndex::EntryId> KeyIndex::FindWhole(std::wstring_view text) const {
  return FirstOfGroup(byWhole_, HashOf(text),
                      [&](EntryId id) { return EqualIgnoringCase(At(id).Text, text); });
}

std::optional<KeyIndex::EntryId> KeyIndex::FindKey(std::wstring_view key) const {
  return FirstOfGroup(ForEdits().ByKey, HashOf(key),
                      [&](EntryId id) { return IsKeyOf(At(id).Text, key); });
}

KeyIndex::EntryId KeyIndex::Add(std::wstring text, RowKey owner) {
  const EntryId id = entries_.size();
  AddToGroups(id, *entries_.emplace_back(Entry{std::move(text), owner}));
  if (forEdits_) forEdits_->AddOwned(id, owner);
  ++count_;
  if (changes_ != nullptr) changes_->emplace_back(id, std::nullopt);
  return id;
}

void KeyIndex::SetText(EntryId id, std::wstring text) {
  Entry& entry = entries_.at(id).value();
  NoteFormer(id);
  RemoveFromGroups(id, entry);
  entry.Text = std::move(text);
  AddToGroups(id, entry);
}

void KeyIndex::SetOwner(EntryId id, RowKey owner) {
  Entry& entry = entries_.at(id).value();
  NoteFormer(id);
  std::erase(ForEdits().ByOwner.at(entry.Owner), id);
  forEdits_->AddOwned(id, owner);
  entry.Owner = owner;
}

void KeyIndex::RemoveOwnedBy(RowKey owner) {
  if (owner >= ForEdits().ByOwner.size()) return;
  for (const EntryId id : std::exchange(forEdits_->ByOwner[owner], {})) {
    RemoveFromGroups(id, At(id));
    NoteFormer(id);
    entries_[id].reset();
    --count_;
  }
}

void KeyIndex::Clear() { *this = KeyIndex(); }

void KeyIndex::NoteChangesIn(std::vector<FormerEntry>* changes) { changes_ = changes; }

void KeyIndex::Exchange(FormerEntry& former) {
  const EntryId id = former.first;
  std::optional<Entry>& entry = entries_.at(id);
  if (entry) {
    std::erase(ForEdits().ByOwner.at(entry->Owner), id);
    RemoveFromGroups(id, *entry);
    --count_;
  }
  entry.swap(former.second);
  if (entry) {
    ForEdits().AddOwned(id, entry->Owner);
    AddToGroups(id, *entry);
    ++count_;
  }
}

void KeyIndex::NoteFormer(EntryId id) {
  if (changes_ != nullptr) changes_->emplace_back(id, entries_[id]);
}

void KeyIndex::EditIndexes::AddOwned(EntryId id, RowKey owner) {
  if (owner >= ByOwner.size()) ByOwner.resize(owner + 1);
  ByOwner[owner].push_back(id);
}

KeyIndex::EditIndexes& KeyIndex::ForEdits() const {
  if (!forEdits_) {
    forEdits_.emplace();
    for (const EntryId id : Ids()) {
      const Entry& entry = At(id);
      ForEachHashOfKey(entry.Text,
                       [&](std::size_t hash) { AddToGroup(forEdits_->ByKey, hash, id); });
      forEdits_->AddOwned(id, entry.Owner);
    }
  }
  return *forEdits_;
}

void KeyIndex::AddToGroups(EntryId id, const Entry& entry) {
  AddToGroup(byWhole_, HashOf(entry.Text), id);
  if (!forEdits_) return;
  ForEachHashOfKey(entry.Text, [&](std::size_t hash) { AddToGroup(forEdits_->ByKey, hash, id); });
}

void KeyIndex::RemoveFromGroups(EntryId id, const Entry& entry) {
  RemoveFromGroup(byWhole_, HashOf(entry.Text), id);
  if (!forEdits_) return;
  ForEachHashOfKey(entry.Text,
                   [&](std::size_t hash) { RemoveFromGroup(forEdits_->ByKey, hash, id); });
}

}  // namespace tessera
