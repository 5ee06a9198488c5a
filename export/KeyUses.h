// Who holds which key, for all keys at once, by what the cells show.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Pinned.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"
#include "text/TextHash.h"

namespace tessera {

/// In the order in which holders of one key are named.
enum class HolderKind { Current, Default, OverriddenDefault, StartMenu };

struct KeyHolder {
  HolderKind Kind = HolderKind::Current;
  RowKey Row = 0;          ///< 0 for an entry of the Start Menu
  std::wstring_view Name;  ///< of the command, or the caption of the entry

  [[nodiscard]] bool operator==(const KeyHolder&) const = default;
};

/// What a key is to the user.
enum class KeyUse { Free, Default, User, UserOverDefault, StartMenu };

/// `holders` are those of a key, named in order.
[[nodiscard]] KeyUse UseOf(std::span<const KeyHolder> holders);

/// The holder that decides the use of a key; null for a free one.
[[nodiscard]] const KeyHolder* ChiefHolder(std::span<const KeyHolder> holders);

/// Names the rows that KeyHolders names, at a cost that grows with the texts alone, and the Start
/// Menu entries besides. It holds views of the catalogue, which must not change meanwhile.
class KeyUses : Pinned {
 public:
  KeyUses(const Catalogue& catalogue, const HotkeyNotation& notation);

  /// The keys that somebody holds, each once, as the first cell in file order spells it.
  [[nodiscard]] std::span<const std::wstring_view> Keys() const { return keys_; }

  /// By the place of a key in Keys(). Rows of one kind are in file order.
  [[nodiscard]] std::span<const KeyHolder> HoldersOf(std::size_t key) const;

  /// The place of the key, given in display notation, letter case ignored; Keys().size() when it is
  /// free.
  [[nodiscard]] std::size_t Find(std::wstring_view key) const;

 private:
  struct Holding {
    std::size_t Key = 0;
    KeyHolder Holder;
  };

  void AddCurrents(const CommandEntry& row, const HotkeyNotation& notation);
  void AddDefaults(const CommandEntry& row, const HotkeyNotation& notation);
  std::size_t PlaceOf(std::wstring_view key);
  void Add(std::size_t key, const KeyHolder& holder);
  void SortByKey();

  std::vector<std::wstring_view> keys_;
  std::unordered_map<std::wstring_view, std::size_t, HashIgnoringCase, EqualsIgnoringCase> places_;
  std::size_t currentKeys_ = 0;         ///< so many keys, the first ones, are current ones
  std::vector<Holding> holdings_;       ///< as they are met
  std::vector<std::size_t> latest_;     ///< of each key, the place in holdings_
  std::vector<KeyHolder> holders_;      ///< key by key
  std::vector<std::size_t> begins_{0};  ///< where those of each key begin in holders_, and the end
};

}  // namespace tessera
