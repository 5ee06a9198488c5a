// Who else uses a key: found out here, asked about and acted upon elsewhere.
#pragma once

#include <string>
#include <string_view>

#include "localisation/Texts.h"
#include "shortcuts/Catalogue.h"

namespace tessera {

/// The outcomes of looking for a key among the default and current keys, in the order of
/// precedence.
enum class ConflictKind {
  SameKey,     ///< it is exactly what the row has already
  Free,        ///< nobody has it
  DefaultKey,  ///< a command has it by default; this hides a current key
  CurrentKey   ///< a command has it now
};

struct KeyConflict {
  ConflictKind Kind = ConflictKind::Free;
  KeyIndex::EntryId Entry = 0;  ///< in lvwDefKeys or lvwCurrKeys, as the kind says
  RowKey Owner = 0;             ///< the row of that entry
};

/// `key` is in display notation.
[[nodiscard]] KeyConflict FindConflict(const Catalogue& catalogue, RowKey row,
                                       std::wstring_view key);

/// The slot of a Start Menu entry that has the key and keeps it; null when there is none.
[[nodiscard]] const StartMenuSlot* FindStartMenuSlot(const Catalogue& catalogue,
                                                     std::wstring_view key);

// -- The questions' texts

[[nodiscard]] std::wstring StartMenuQuestion(const Texts& texts, const StartMenuSlot& slot,
                                             const CommandEntry& row);
[[nodiscard]] std::wstring DefaultKeyQuestion(const Texts& texts, const CommandEntry& owner,
                                              const CommandEntry& row);
[[nodiscard]] std::wstring CurrentKeyQuestion(const Texts& texts, const CommandEntry& owner,
                                              const CommandEntry& row);
[[nodiscard]] std::wstring DeleteAllQuestion(const Texts& texts);

}  // namespace tessera
