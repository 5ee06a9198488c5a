// Comparing the names of sections and keys without regard to letter case.
#pragma once

#include <cstddef>
#include <string_view>

namespace tessera {

/// Hash and equality for unordered containers of names; characters above ASCII are those of the
/// code page.
struct IniNameHash {
  unsigned CodePage;
  [[nodiscard]] std::size_t operator()(std::string_view name) const;
};

struct IniNameEqual {
  unsigned CodePage;
  [[nodiscard]] bool operator()(std::string_view left, std::string_view right) const;
};

}  // namespace tessera
