// Remembers keys by what all their spellings have in common.
#include "shortcuts/GivenKeys.h"

#include <set>

#include "shortcuts/HotkeyNotation.h"
#include "shortcuts/NativeKey.h"

namespace tessera {
namespace {

/// A cell's second keypad key is written with its "Num", but is given without it.
std::wstring Given(std::wstring_view key) { return CanonicalKey(WithoutNum(std::wstring(key))); }

}  // namespace

std::size_t GivenKeys::MomentOf(RowKey row, std::wstring_view key) const {
  const auto found = moments_.find({row, Given(key)});
  return found == moments_.end() ? 0 : found->second;
}

void GivenKeys::Give(RowKey row, std::wstring_view key) {
  std::pair<RowKey, std::wstring> place{row, Given(key)};
  std::size_t& moment = moments_[place];
  if (changes_ != nullptr) changes_->emplace_back(std::move(place), moment);
  moment = ++lastMoment_;
}

void GivenKeys::Change(RowKey row, std::span<const std::wstring> before,
                       std::span<const std::wstring> after) {
  std::set<std::wstring> present;
  for (const std::wstring& key : after) present.insert(Given(key));
  for (const std::wstring& key : before) {
    if (present.contains(Given(key))) continue;
    const auto gone = moments_.find({row, Given(key)});
    if (gone == moments_.end()) continue;
    if (changes_ != nullptr) changes_->emplace_back(*gone);
    moments_.erase(gone);
  }
}

void GivenKeys::NoteChangesIn(std::vector<FormerMoment>* changes) { changes_ = changes; }

void GivenKeys::Exchange(FormerMoment& former) {
  const auto& [place, formerMoment] = former;
  const auto found = moments_.find(place);
  const std::size_t moment = found == moments_.end() ? 0 : found->second;
  if (formerMoment != 0) {
    moments_[place] = formerMoment;
  } else {
    moments_.erase(place);
  }
  former.second = moment;
}

void GivenKeys::Move(RowKey from, RowKey to) {
  auto next = moments_.lower_bound({from, {}});
  while (next != moments_.end() && next->first.first == from) {
    auto moment = moments_.extract(next++);
    moment.key().first = to;
    if (to != 0) moments_.insert(std::move(moment));
  }
}

}  // namespace tessera
