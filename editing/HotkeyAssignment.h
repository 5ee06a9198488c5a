// Giving keys to commands and taking them away, with every question that this needs.
#pragma once

#include <string>

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

 private:
  bool CheckStartMenuConflict(RowKey row, const std::wstring& key);
  bool CheckConflicts(RowKey row, const std::wstring& key, bool replace);

  Catalogue& catalogue_;
  const HotkeyNotation& notation_;
  const Texts& texts_;
  MessageBoxes& messageBoxes_;
};

}  // namespace tessera
