// Numbers in texts, and rounding.
#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// The leading number of a text: decimal, with optional sign, fraction and exponent; 0 when there
/// is none.
[[nodiscard]] double LeadingNumber(std::wstring_view text);

/// Rounds half to even and clamps to the range of the type.
[[nodiscard]] short RoundTo16Bits(double number);
[[nodiscard]] int RoundTo32Bits(double number);

/// The number in decimal digits, without an exponent; "0" for what is no finite number.
[[nodiscard]] std::string DecimalText(double number);

}  // namespace tessera
