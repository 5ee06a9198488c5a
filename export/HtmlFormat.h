// The format in which the clipboard holds a piece of HTML.
#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// A page around the piece, both in UTF-8, behind a header that says at which bytes page and piece
/// begin and end.
[[nodiscard]] std::string HtmlFormat(std::string_view piece);

}  // namespace tessera
