// A step holds what it changed as that was before. Exchanging it with what is there takes the step
// back, and exchanging it once more makes it again.
#include "shortcuts/EditHistory.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

#include "shortcuts/Catalogue.h"

namespace tessera {
namespace {

/// While it lives, everything that changes is noted in `former`.
class Recording {
 public:
  Recording(Catalogue& catalogue, FormerValues& former) : catalogue_(catalogue), former_(former) {
    std::ranges::transform(catalogue.StartMenuKeys, startMenuKeys_.begin(), &StartMenuSlot::Key);
    NoteIn(&former.Rows, &former.DefaultKeys, &former.CurrentKeys, &former.Given);
  }
  ~Recording() { NoteIn(nullptr, nullptr, nullptr, nullptr); }
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  /// So few that they are compared.
  void NoteStartMenuKeys() {
    for (std::size_t slot = 0; slot < startMenuKeys_.size(); ++slot) {
      if (catalogue_.StartMenuKeys[slot].Key == startMenuKeys_[slot]) continue;
      former_.StartMenuKeys.emplace_back(slot, startMenuKeys_[slot]);
    }
  }

 private:
  void NoteIn(std::vector<CommandEntry>* rows, std::vector<KeyIndex::FormerEntry>* defaultKeys,
              std::vector<KeyIndex::FormerEntry>* currentKeys,
              std::vector<GivenKeys::FormerMoment>* given) {
    catalogue_.ListView1.NoteChangesIn(rows);
    catalogue_.lvwDefKeys.NoteChangesIn(defaultKeys);
    catalogue_.lvwCurrKeys.NoteChangesIn(currentKeys);
    catalogue_.Given.NoteChangesIn(given);
  }

  Catalogue& catalogue_;
  FormerValues& former_;
  std::array<std::wstring, std::tuple_size_v<StartMenuKeyTable>> startMenuKeys_;
};

bool IsEmpty(const FormerValues& former) {
  return former.Rows.empty() && former.DefaultKeys.empty() && former.CurrentKeys.empty() &&
         former.Given.empty() && former.StartMenuKeys.empty();
}

/// False when a slot has become empty: its key is in the file no more.
bool ExchangeStartMenuKeys(StartMenuKeyTable& slots, FormerValues& values) {
  bool areAllThere = true;
  for (auto& [index, key] : values.StartMenuKeys) {
    StartMenuSlot& slot = slots.at(index);
    if (slot.ValueName.empty()) {
      areAllThere = false;
    } else {
      slot.Key.swap(key);
    }
  }
  return areAllThere;
}

template <typename Values, typename Exchange>
void ForEach(Values& values, bool backwards, const Exchange& exchange) {
  if (backwards) {
    std::for_each(values.rbegin(), values.rend(), exchange);
  } else {
    std::for_each(values.begin(), values.end(), exchange);
  }
}

bool ExchangeValues(Catalogue& catalogue, FormerValues& values, bool backwards) {
  ForEach(values.Rows, backwards,
          [&](CommandEntry& row) { std::swap(catalogue.ListView1.Edit(row.Key), row); });
  ForEach(values.DefaultKeys, backwards,
          [&](KeyIndex::FormerEntry& entry) { catalogue.lvwDefKeys.Exchange(entry); });
  ForEach(values.CurrentKeys, backwards,
          [&](KeyIndex::FormerEntry& entry) { catalogue.lvwCurrKeys.Exchange(entry); });
  ForEach(values.Given, backwards,
          [&](GivenKeys::FormerMoment& moment) { catalogue.Given.Exchange(moment); });
  return ExchangeStartMenuKeys(catalogue.StartMenuKeys, values);
}

}  // namespace

const EditHistory::Step* EditHistory::ToUndo() const {
  return made_ == 0 ? nullptr : &steps_[made_ - 1];
}

const EditHistory::Step* EditHistory::ToRedo() const {
  return made_ == steps_.size() ? nullptr : &steps_[made_];
}

bool EditHistory::AtSaved() const { return Version() == savedVersion_; }

bool EditHistory::Make(Catalogue& catalogue, EditName name, const std::function<bool()>& edit) {
  Step step{std::move(name), {}, Version()};
  bool changed = false;
  {
    Recording recording(catalogue, step.Values);
    changed = edit();
    recording.NoteStartMenuKeys();
  }
  if (!changed && IsEmpty(step.Values)) return false;
  if (changed) {
    step.Version = ++lastVersion_;
  } else {
    step.Name.Kind = EditKind::TakeFromStartMenu;
  }
  steps_.resize(made_);
  steps_.push_back(std::move(step));
  ++made_;
  return changed;
}

bool EditHistory::Undo(Catalogue& catalogue) {
  return ExchangeValues(catalogue, steps_.at(--made_).Values, true);
}

bool EditHistory::Redo(Catalogue& catalogue) {
  return ExchangeValues(catalogue, steps_.at(made_++).Values, false);
}

void EditHistory::MarkSaved() { savedVersion_ = Version(); }

void EditHistory::Clear() {
  steps_.clear();
  made_ = 0;
  openedVersion_ = savedVersion_ = ++lastVersion_;
}

std::size_t EditHistory::Version() const {
  return made_ == 0 ? openedVersion_ : steps_[made_ - 1].Version;
}

}  // namespace tessera
