// Texts with places for values: "%1" for the first, "%2" for the second, in any order.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace tessera {

/// The text with each place taken by its value. What a value holds is no place; one without a value
/// stays as it stands.
[[nodiscard]] std::wstring WithValues(std::wstring_view text,
                                      std::initializer_list<std::wstring_view> values);

}  // namespace tessera
