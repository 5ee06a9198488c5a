// What the command line asks for.
#pragma once

#include <optional>
#include <span>
#include <string>

namespace tessera {

struct Arguments {
  std::wstring File;  ///< the "Wincmd.ini" to open; empty for the one that is found
  /// The file to write the page of keys to, in place of a window; empty when it was left out.
  std::optional<std::wstring> Page{};
};

/// From what follows the program's name: "/page=FILE", in any letter case, and the first argument
/// beside it. Further ones say nothing.
[[nodiscard]] Arguments ReadArguments(std::span<const wchar_t* const> arguments);

}  // namespace tessera
