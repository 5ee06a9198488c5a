// The geometry of the main window, in plain numbers.
#include "app/Layout.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr int TwipsPerInch = 1440;

/// One screen pixel is the unit of the gaps around the list, at any resolution.
constexpr int Pixel = 1;
constexpr int SideGap = 5 * Pixel;

bool Overlaps(const Area& first, const Area& second) {
  return first.Left < second.Left + second.Width && second.Left < first.Left + first.Width &&
         first.Top < second.Top + second.Height && second.Top < first.Top + first.Height;
}

}  // namespace

int TwipsToPixels(int twips, int dpi) { return Ratio(twips, dpi, TwipsPerInch); }

int PixelsToTwips(int pixels, int dpi) { return Ratio(pixels, TwipsPerInch, dpi); }

int PixelsToTwips(int pixels, int dpi, int storedTwips) {
  return TwipsToPixels(storedTwips, dpi) == pixels ? storedTwips : PixelsToTwips(pixels, dpi);
}

MainLayout LayOutMainWindow(int innerWidth, int innerHeight, int toolbarHeight, int frameHeight) {
  const int listTop = toolbarHeight + Pixel;
  const int listWidth = std::max(0, innerWidth - 2 * SideGap);
  const int listHeight = std::max(0, innerHeight - frameHeight - toolbarHeight);
  return {.Toolbar1 = {0, 0, innerWidth, toolbarHeight},
          .ListView1 = {SideGap, listTop, listWidth, listHeight},
          .Frame1 = {SideGap, listTop + listHeight, listWidth, frameHeight}};
}

std::vector<Area> LayOutRow(std::span<const RowItem> items, int rowHeight) {
  std::vector<Area> areas;
  int left = 0;
  for (const RowItem& item : items) {
    left += item.Gap;
    areas.push_back({left, (rowHeight - item.Height) / 2, item.Width, item.Height});
    left += item.Width;
  }
  return areas;
}

Area PlaceAllKeysButton(const Area& chooser, int dpi) {
  const int width = Scaled(15, dpi);
  return {chooser.Left + chooser.Width - width - Scaled(2, dpi), chooser.Top + Scaled(3, dpi),
          width, Scaled(16, dpi)};
}

Area PlaceKeysList(const KeysListRoom& room, int width, int height) {
  const Area& screen = room.Screen;
  const int below = room.Panel.Top + room.Panel.Height;
  const bool fitsBelow = below + height <= screen.Top + screen.Height;
  const int top = fitsBelow ? below : room.Panel.Top - height;
  const int left =
      room.RightToLeft ? room.Button.Left : room.Button.Left + room.Button.Width - width;
  const int lowest = screen.Top + std::max(0, screen.Height - height);
  const int rightmost = screen.Left + std::max(0, screen.Width - width);
  return {std::clamp(left, screen.Left, rightmost), std::clamp(top, screen.Top, lowest), width,
          height};
}

Area MakeReachable(const Area& window, std::span<const Area> screens, int dpi) {
  // The part of the title bar between the icon and the buttons is what a window is moved by.
  const int ends = std::min(Scaled(100, dpi), window.Width / 3);
  const Area grip{window.Left + ends, window.Top, window.Width - 2 * ends, Scaled(24, dpi)};
  const bool reachable = std::ranges::any_of(screens, [&](const Area& screen) {
    return Overlaps(grip, screen) && grip.Top >= screen.Top - Scaled(8, dpi);
  });
  if (reachable || screens.empty()) {
    return window;
  }
  const Area& screen = screens.front();
  const int width = std::min(window.Width, screen.Width);
  const int height = std::min(window.Height, screen.Height);
  return {std::clamp(window.Left, screen.Left, screen.Left + screen.Width - width),
          std::clamp(window.Top, screen.Top, screen.Top + screen.Height - height), width, height};
}

std::array<int, 4> OrderOfPositions(const std::array<int, 4>& positions) {
  std::array<int, 4> order{};
  for (std::size_t column = 0; column < positions.size(); ++column) {
    order.at(static_cast<std::size_t>(positions[column] - 1)) = static_cast<int>(column);
  }
  return order;
}

std::array<int, 4> PositionsOfOrder(const std::array<int, 4>& order) {
  std::array<int, 4> positions{};
  for (std::size_t place = 0; place < order.size(); ++place) {
    positions.at(static_cast<std::size_t>(order[place])) = static_cast<int>(place) + 1;
  }
  return positions;
}

}  // namespace tessera
