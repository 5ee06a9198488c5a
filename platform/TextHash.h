// Texts as keys of unordered containers, without regard to letter case.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/Text.h"

namespace tessera {

struct HashIgnoringCase {
  using is_transparent = void;
  [[nodiscard]] std::size_t operator()(std::wstring_view text) const;
};

struct EqualsIgnoringCase {
  using is_transparent = void;
  [[nodiscard]] bool operator()(std::wstring_view left, std::wstring_view right) const {
    return EqualIgnoringCase(left, right);
  }
};

}  // namespace tessera
