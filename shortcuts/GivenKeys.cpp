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
  moments_[{row, Given(key)}] = ++lastMoment_;
}

void GivenKeys::Change(RowKey row, std::span<const std::wstring> before,
                       std::span<const std::wstring> after) {
  std::set<std::wstring> present;
  for (const std::wstring& key : after) present.insert(Given(key));
  for (const std::wstring& key : before) {
    if (!present.contains(Given(key))) moments_.erase({row, Given(key)});
  }
}

}  // namespace tessera
