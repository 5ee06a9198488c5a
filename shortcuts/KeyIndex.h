// An ordered list of single keys, each with the row that has it, looked up by text without regard
// to letter case. A look-up costs the same however long the list is.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "shortcuts/CommandEntry.h"

namespace tessera {

class KeyIndex {
 public:
  /// Names an entry until it is removed; later entries have higher numbers.
  using EntryId = std::size_t;

  struct Entry {
    std::wstring Text;  ///< the key, with " *" appended while it is overridden
    RowKey Owner = 0;
  };

  /// An entry as it was; nothing when it was not there.
  using FormerEntry = std::pair<EntryId, std::optional<Entry>>;

  // -- Queries

  [[nodiscard]] std::size_t Count() const;
  /// Valid until the next entry is added or removed.
  [[nodiscard]] const Entry& At(EntryId id) const;

  /// All entries in the order in which they were added.
  [[nodiscard]] std::vector<EntryId> Ids() const;

  /// The first entry whose text is `text`.
  [[nodiscard]] std::optional<EntryId> FindWhole(std::wstring_view text) const;

  /// The first entry whose text is `key`, or begins with `key` and a blank.
  [[nodiscard]] std::optional<EntryId> FindKey(std::wstring_view key) const;

  // -- Changes

  EntryId Add(std::wstring text, RowKey owner);
  void SetText(EntryId id, std::wstring text);
  void SetOwner(EntryId id, RowKey owner);
  void RemoveOwnedBy(RowKey owner);
  void Clear();

  /// Each change to come is noted there, until it is called with null.
  void NoteChangesIn(std::vector<FormerEntry>* changes);

  /// Brings back an entry as it was, and takes the one that there is in exchange.
  void Exchange(FormerEntry& former);

 private:
  /// The entries whose texts have a hash in common, the first one first.
  using Groups = std::unordered_map<std::size_t, std::set<EntryId>>;

  struct EditIndexes {
    Groups ByKey;  ///< under the whole text, and each part of it that ends before a blank
    std::vector<std::vector<EntryId>> ByOwner;

    void AddOwned(EntryId id, RowKey owner);
  };

  EditIndexes& ForEdits() const;
  void NoteFormer(EntryId id);
  void AddToGroups(EntryId id, const Entry& entry);
  void RemoveFromGroups(EntryId id, const Entry& entry);

  std::vector<std::optional<Entry>> entries_;  ///< by id; nothing once removed
  std::size_t count_ = 0;
  std::vector<FormerEntry>* changes_ = nullptr;
  Groups byWhole_;

  // Made when first asked for: made as keys are added, it lengthens opening 600 commands by 15 %.
  mutable std::optional<EditIndexes> forEdits_;
};

}  // namespace tessera
