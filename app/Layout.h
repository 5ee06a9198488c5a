// Where the controls of the main window go. All lengths are pixels.
#pragma once

#include <array>
#include <vector>

#include "platform/Area.h"

namespace tessera {

struct MainLayout {
  Area Toolbar1;
  Area ListView1;
  Area Frame1;
};

/// Divides the inside of the window; `toolbarHeight` is 0 while the toolbar is hidden. Nothing gets
/// a negative size, however small the window is.
[[nodiscard]] MainLayout LayOutMainWindow(int innerWidth, int innerHeight, int toolbarHeight,
                                          int frameHeight);

/// How large the texts and controls of the panel want to be.
struct PanelSizes {
  Size Label{};                 ///< its text
  std::array<Size, 3> Boxes{};  ///< their texts
  int ChooserHeight = 0;
  Size Toolbar{};
};

struct PanelLayout {
  Area Label;
  std::array<Area, 3> Boxes;
  Area Chooser;
  Area Toolbar;
  Area AllKeysButton;  ///< over the right end of the chooser
  Size Whole;          ///< what the panel needs
};

/// Places the panel's controls side by side, each in the middle of the panel's height.
[[nodiscard]] PanelLayout LayOutPanel(const PanelSizes& sizes, int dpi);

/// How large the texts of the row below the panel's controls want to be.
struct StatusRowSizes {
  int TextHeight = 0;
  std::vector<Size> Captions{};  ///< of its buttons, in their order
};

struct StatusRow {
  Area Line;
  std::vector<Area> Buttons;
  int Height = 0;
};

/// The row from `top` on: its buttons stand at the end, and the line takes what they leave of the
/// width.
[[nodiscard]] StatusRow LayOutStatusRow(const StatusRowSizes& sizes, int width, int top, int dpi);

/// The room that the window is to have inside at least, below its menu bar.
[[nodiscard]] Size SmallestInside(const Size& panel, int dpi);

/// The find box, over the end of the toolbar's line, where it leaves room for the toolbar's buttons
/// and for all of the text that invites to type; else of no size.
[[nodiscard]] Area PlaceFindBox(const Area& toolbar, int buttonsWidth, const Size& cue, int dpi);

/// The progress bar, in the middle of the list.
[[nodiscard]] Area PlaceProgressBar(const Area& list, int dpi);

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

}  // namespace tessera
