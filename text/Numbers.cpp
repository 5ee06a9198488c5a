// Reading numbers out of texts, and rounding.
#include "text/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tessera {
namespace {

constexpr bool IsDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }

std::size_t SkipDigits(std::wstring_view text, std::size_t position) {
  while (position < text.size() && IsDigit(text[position])) ++position;
  return position;
}

std::size_t SkipSign(std::wstring_view text, std::size_t position) {
  const bool isSign = position < text.size() && (text[position] == L'-' || text[position] == L'+');
  return position + (isSign ? 1 : 0);
}

/// The length of what looks like a number at the begin of a text without sign.
std::size_t NumberLength(std::wstring_view text) {
  std::size_t end = SkipDigits(text, 0);
  if (end < text.size() && text[end] == L'.') end = SkipDigits(text, end + 1);
  if (end < text.size() && (text[end] == L'e' || text[end] == L'E')) {
    const std::size_t exponent = SkipSign(text, end + 1);
    const std::size_t exponentEnd = SkipDigits(text, exponent);
    if (exponentEnd > exponent) end = exponentEnd;
  }
  return end;
}

template <typename Integer>
Integer Rounded(double number) {
  if (std::isnan(number)) return 0;
  constexpr double Smallest = std::numeric_limits<Integer>::min();
  constexpr double Largest = std::numeric_limits<Integer>::max();
  return static_cast<Integer>(std::nearbyint(std::clamp(number, Smallest, Largest)));
}

}  // namespace

double LeadingNumber(std::wstring_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(L" \t"), text.size()));
  const bool negative = text.starts_with(L'-');
  text.remove_prefix(SkipSign(text, 0));
  const std::wstring_view wide = text.substr(0, NumberLength(text));
  std::string digits(wide.size(), '\0');
  std::ranges::transform(wide, digits.begin(),
                         [](wchar_t digit) { return static_cast<char>(digit); });
  double number = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (result.ec == std::errc::result_out_of_range && digits.find('-') == std::string::npos) {
    number = std::numeric_limits<double>::max();
  }
  return negative ? -number : number;
}

short RoundTo16Bits(double number) { return Rounded<short>(number); }

int RoundTo32Bits(double number) { return Rounded<int>(number); }

std::string DecimalText(double number) {
  if (!std::isfinite(number)) return "0";
  std::array<char, 1100> digits{};  // the longest finite number in decimal fits
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number + 0.0,
                                 std::chars_format::fixed);
  return {digits.data(), end.ptr};
}

}  // namespace tessera
