// Looks at the length of a text first, and at its hash only then.
#include "shortcuts/TextFilter.h"

#include <bit>

#include "text/TextHash.h"

namespace tessera {

namespace {

constexpr std::size_t PlacesOfText = 16;  // so that few texts share theirs with another

}  // namespace

TextFilter::TextFilter(std::size_t count) : hashes_(std::bit_ceil(PlacesOfText * (count + 1))) {}

void TextFilter::Add(std::wstring_view text) {
  if (text.size() >= lengths_.size()) lengths_.resize(text.size() + 1);
  lengths_[text.size()] = true;
  hashes_[PlaceOf(text)] = true;
}

bool TextFilter::MayHold(std::wstring_view text) const {
  return text.size() < lengths_.size() && lengths_[text.size()] && hashes_[PlaceOf(text)];
}

std::size_t TextFilter::PlaceOf(std::wstring_view text) const {
  return HashIgnoringCase()(text) & (hashes_.size() - 1);
}

}  // namespace tessera
