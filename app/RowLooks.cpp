// Contrasts are those of the Web Content Accessibility Guidelines.
#include "app/RowLooks.h"

#include <algorithm>
#include <cmath>

namespace tessera {
namespace {

constexpr Rgb Red = 0x0000FF;
constexpr Rgb Black = 0x000000;
constexpr Rgb White = 0xFFFFFF;

/// Between backgrounds; less is easily overlooked.
constexpr double StandsOut = 2.0;
constexpr double Readable = 4.5;

double Luminance(Rgb color) {
  const auto linear = [color](unsigned shift) {
    const double part = ((color >> shift) & 0xFFU) / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(0) + 0.7152 * linear(8) + 0.0722 * linear(16);
}

/// The user's own colour where it can be read.
Rgb TextOn(Rgb back, Rgb wanted) {
  if (Contrast(back, wanted) >= Readable) return wanted;
  return Contrast(back, Black) >= Contrast(back, White) ? Black : White;
}

}  // namespace

double Contrast(Rgb one, Rgb other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

CellColors ColorsOfRow(const ListColors& colors, bool selected, bool hasFocus) {
  if (!selected) return {.Text = colors.Text, .Back = colors.Back};
  const CellColors highlight{.Text = colors.HighlightText, .Back = colors.Highlight};
  const CellColors shadow{.Text = TextOn(colors.Shadow, colors.Text), .Back = colors.Shadow};
  // With high contrast only the system's own pairs of colours are sure to be readable.
  const CellColors& wanted = hasFocus || colors.HighContrast ? highlight : shadow;
  for (const CellColors& each : {wanted, highlight, shadow}) {
    if (Contrast(each.Back, colors.Back) >= StandsOut) return each;
  }
  return {.Text = colors.Back, .Back = TextOn(colors.Back, colors.Text)};
}

CellColors ColorsOfCell(const ListColors& colors, const CellColors& rowColors,
                        const CommandEntry& row, Column column) {
  if (column != Column::Defaults || !row.DefaultKeysAreRed) return rowColors;
  // Red cannot be read on a dark highlight.
  return {.Text = Red, .Back = colors.Back};
}

bool RunsOverAllColumns(const CommandEntry& row, const std::array<int, 4>& order) {
  return row.IsHeading() && order.front() == static_cast<int>(IndexOf(Column::Description));
}

}  // namespace tessera
