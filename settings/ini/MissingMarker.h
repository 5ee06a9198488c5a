// How an absent value is told from an empty one.
#pragma once

#include <string_view>

namespace tessera {

/// Stands for a value that is absent. Given as default to a read, it tells absence from an empty
/// value; writing it is a no-op.
inline constexpr std::wstring_view MissingMarker = L"///can\\not/find\\this/data\\\\\\";

/// Compared whole, and with regard to case.
[[nodiscard]] constexpr bool IsMissing(std::wstring_view value) { return value == MissingMarker; }

}  // namespace tessera
