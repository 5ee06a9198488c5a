// The way to the command that holds the composed key, and back.
#pragma once

#include <string>

#include "editing/CommandList.h"
#include "editing/HotkeyPanel.h"
#include "editing/Reaction.h"
#include "platform/Pinned.h"
#include "shortcuts/Catalogue.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

class HolderTour : Pinned {
 public:
  HolderTour(const Catalogue& catalogue, CommandList& list, const HotkeyPanel& panel,
             const HotkeyNotation& notation);

  /// True while a composed key has a holder other than the selected row, and where Show has led
  /// until another row is selected or another key composed.
  [[nodiscard]] bool ShowEnabled() const;

  /// Selects the row that has the composed key now, else one that has it by default; called again
  /// there, the row before. The composed key stays.
  Reaction Show();

 private:
  [[nodiscard]] bool IsWhereShowLed() const;
  [[nodiscard]] RowKey Target() const;

  const Catalogue& catalogue_;
  CommandList& list_;
  const HotkeyPanel& panel_;
  const HotkeyNotation& notation_;
  RowKey from_ = 0;        ///< the row before the last Show; 0 for none, or on the way back
  std::size_t there_ = 0;  ///< how often rows had been selected when Show had led there
  std::wstring shownKey_;
};

}  // namespace tessera
