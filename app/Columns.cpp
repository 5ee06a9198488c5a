// A column is known by its place in the settings: description, command, defaults, current.
#include "app/Columns.h"

#include <algorithm>

#include "app/Twips.h"

namespace tessera {

std::array<int, 4> OrderOfPositions(const std::array<int, 4>& positions) {
  std::array<int, 4> order{0, 1, 2, 3};
  std::ranges::sort(order, {},
                    [&](int column) { return positions.at(static_cast<std::size_t>(column)); });
  return order;
}

std::array<int, 4> PositionsOfOrder(const std::array<int, 4>& order) {
  std::array<int, 4> positions{};
  for (std::size_t place = 0; place < order.size(); ++place) {
    positions.at(static_cast<std::size_t>(order[place])) = static_cast<int>(place) + 1;
  }
  return positions;
}

std::array<int, 4> WidthsInPixels(const std::array<int, 4>& twips, int dpi) {
  std::array<int, 4> pixels{};
  std::ranges::transform(twips, pixels.begin(),
                         [dpi](int width) { return std::max(0, TwipsToPixels(width, dpi)); });
  return pixels;
}

ColumnLayout ColumnsToStore(const ColumnLayout& stored, const std::array<int, 4>& order,
                            const std::array<int, 4>& pixels, int dpi) {
  ColumnLayout columns{.Positions = PositionsOfOrder(order), .Widths = {}};
  for (std::size_t column = 0; column < pixels.size(); ++column) {
    columns.Widths[column] = PixelsToTwips(pixels[column], dpi, stored.Widths[column]);
  }
  return columns;
}

}  // namespace tessera
