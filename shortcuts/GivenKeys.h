// Which keys the edits of this run of the program gave to which rows. It outlives saves and opens.
#pragma once

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shortcuts/CommandEntry.h"

namespace tessera {

/// Keys are in Total Commander's notation, however they are spelt.
class GivenKeys {
 public:
  /// A row, a key as it is held here, and its moment as it was; 0 for none.
  using FormerMoment = std::pair<std::pair<RowKey, std::wstring>, std::size_t>;

  /// Higher for a row that an edit gave the key to later; 0 when none did, or one took it again.
  [[nodiscard]] std::size_t MomentOf(RowKey row, std::wstring_view key) const;

  void Give(RowKey row, std::wstring_view key);

  /// To be told the keys of a row before and after an edit: what is missing then was taken.
  void Change(RowKey row, std::span<const std::wstring> before,
              std::span<const std::wstring> after);

  /// Each change to come is noted there, until it is called with null.
  void NoteChangesIn(std::vector<FormerMoment>* changes);

  /// Brings back a moment as it was, and takes the one that there is in exchange.
  void Exchange(FormerMoment& former);

  /// Lets the row `to`, 0 for none, follow in the place of the row `from`, which goes.
  void Move(RowKey from, RowKey to);

 private:
  std::map<std::pair<RowKey, std::wstring>, std::size_t> moments_;
  std::size_t lastMoment_ = 0;
  std::vector<FormerMoment>* changes_ = nullptr;
};

}  // namespace tessera
