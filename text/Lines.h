// Splitting a file's content into lines.
#pragma once

#include <string_view>
#include <vector>

namespace tessera {

/// Lines with their ends; LF, CR LF and a lone CR end a line.
[[nodiscard]] std::vector<std::string_view> SplitIntoLines(std::string_view text);
[[nodiscard]] std::vector<std::wstring_view> SplitIntoLines(std::wstring_view text);

}  // namespace tessera
