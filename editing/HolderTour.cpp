// Which row Show selects.
#include "editing/HolderTour.h"

#include <algorithm>

namespace tessera {

HolderTour::HolderTour(const Catalogue& catalogue, CommandList& list, const HotkeyPanel& panel,
                       const HotkeyNotation& notation)
    : catalogue_(catalogue), list_(list), panel_(panel), notation_(notation) {}

bool HolderTour::ShowEnabled() const { return Target() != 0; }

Reaction HolderTour::Show() {
  const RowKey target = Target();
  if (!catalogue_.ListView1.PositionOf(target)) return {};
  from_ = IsWhereShowLed() ? 0 : list_.SelectedRow();
  if (!list_.Shown().PositionOf(target)) list_.EndSearch();
  const Reaction reaction = list_.SelectRow(*list_.Shown().PositionOf(target));
  there_ = list_.Selections();
  shownKey_ = panel_.ComposeKey();
  return reaction;
}

bool HolderTour::IsWhereShowLed() const {
  return catalogue_.ListView1.PositionOf(from_) && there_ == list_.Selections() &&
         shownKey_ == panel_.ComposeKey();
}

/// 0 for none. Headings are left out of a sorted list: there may be no way back to one.
RowKey HolderTour::Target() const {
  if (panel_.ChosenKey() == NoKeyChosen) return 0;
  if (IsWhereShowLed()) return from_;
  const HoldersOfKey holders = catalogue_.ListView1.HoldersOf(panel_.ComposeKey(), notation_);
  const auto isAnother = [this](RowKey row) { return row != list_.SelectedRow(); };
  const auto current = std::ranges::find_if(holders.Currents, isAnother);
  if (current != holders.Currents.end()) return *current;
  const auto byDefault =
      std::ranges::find_if(holders.Defaults, isAnother, &HoldersOfKey::Default::Row);
  return byDefault != holders.Defaults.end() ? byDefault->Row : 0;
}

}  // namespace tessera
