// Passes over texts that need not be looked up.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tessera {

/// Tells of most texts that they are none of those added, without looking for them.
class TextFilter {
 public:
  /// For about `count` texts.
  explicit TextFilter(std::size_t count);

  void Add(std::wstring_view text);

  /// False only for a text that was not added; letter case is ignored.
  [[nodiscard]] bool MayHold(std::wstring_view text) const;

 private:
  [[nodiscard]] std::size_t PlaceOf(std::wstring_view text) const;

  std::vector<bool> lengths_;  ///< those that texts have: of another, a text need not be hashed
  std::vector<bool> hashes_;   ///< those that texts have, cut to a power of two
};

}  // namespace tessera
