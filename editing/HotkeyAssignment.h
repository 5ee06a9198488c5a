// Giving keys to commands and taking them away, with every question that this needs.
#pragma once

#include <string>
#include <vector>

#include "editing/News.h"
#include "localisation/Texts.h"
#include "platform/MessageBoxes.h"
#include "platform/Pinned.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

/// Each operation gives true when it changed the keys of a command. Rows are command rows; keys are
/// in display notation.
class HotkeyAssignment : Pinned {
 public:
  HotkeyAssignment(Catalogue& catalogue, const HotkeyNotation& notation, const Texts& texts,
                   MessageBoxes& messageBoxes);

  /// Replaces the row's current keys by `key`.
  bool Assign(RowKey row, const std::wstring& key);

  /// Adds `key` behind the row's current keys.
  bool Add(RowKey row, const std::wstring& key);

  bool Delete(RowKey row);

  /// Takes the keys of every displayed command away, after asking.
  bool DeleteAll();

  /// What the last edit did; nothing when it was taken already.
  [[nodiscard]] News TakeNews();

 private:
  bool CheckAll(RowKey row, const std::wstring& key, bool replace);
  bool CheckStartMenuConflict(RowKey row, const std::wstring& key,
                              std::vector<std::wstring>& takenFrom);
  bool CheckConflicts(RowKey row, const std::wstring& key, bool replace);

  Catalogue& catalogue_;
  const HotkeyNotation& notation_;
  const Texts& texts_;
  MessageBoxes& messageBoxes_;
  News news_;
};

}  // namespace tessera
