// How the page of keys looks.
#pragma once

#include <string_view>

namespace tessera {

/// A style sheet. Keys have the looks of their data-use, in light and dark colours and in print.
[[nodiscard]] std::string_view KeysPageStyle();

}  // namespace tessera
