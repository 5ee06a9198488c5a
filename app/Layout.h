// Where the controls of the main window go, and the conversion between twips and pixels.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "platform/Area.h"

namespace tessera {

/// Twips (1/1440 inch) to pixels at `dpi` pixels an inch, and back; halves are rounded away from 0.
[[nodiscard]] int TwipsToPixels(int twips, int dpi);
[[nodiscard]] int PixelsToTwips(int pixels, int dpi);

/// Pixels to twips; `storedTwips` when that is what these pixels were made from, so that a length
/// that nobody changed is stored as it was read.
[[nodiscard]] int PixelsToTwips(int pixels, int dpi, int storedTwips);

struct MainLayout {
  Area Toolbar1;
  Area ListView1;
  Area Frame1;
};

/// Divides the inside of the window; `toolbarHeight` is 0 while the toolbar is hidden. Nothing gets
/// a negative size, however small the window is.
[[nodiscard]] MainLayout LayOutMainWindow(int innerWidth, int innerHeight, int toolbarHeight,
                                          int frameHeight);

struct RowItem {
  int Gap = 0;  ///< the room before it
  int Width = 0;
  int Height = 0;
};

/// Places items side by side, each centred in the height of the row.
[[nodiscard]] std::vector<Area> LayOutRow(std::span<const RowItem> items, int rowHeight);

/// The all-keys button, over the right end of the key chooser.
[[nodiscard]] Area PlaceAllKeysButton(const Area& chooser, int dpi);

/// What the keys list is placed by, on the screen.
struct KeysListRoom {
  Area Panel;
  Area Button;  ///< the all-keys button
  Area Screen;
  bool RightToLeft = false;
};

/// The keys list, outside the window: under the panel, flush with the outer end of the all-keys
/// button; above the panel when there is no room below. It stays on the screen.
[[nodiscard]] Area PlaceKeysList(const KeysListRoom& room, int width, int height);

/// The same window where it can be reached with the mouse: one whose title bar is on no screen
/// moves into the first one. Without screens it stays.
[[nodiscard]] Area MakeReachable(const Area& window, std::span<const Area> screens, int dpi);

/// The display positions (1-based) of the four columns as the order in which the columns (0-based)
/// stand from left to right, and back. Both take and give a permutation.
[[nodiscard]] std::array<int, 4> OrderOfPositions(const std::array<int, 4>& positions);
[[nodiscard]] std::array<int, 4> PositionsOfOrder(const std::array<int, 4>& order);

}  // namespace tessera
