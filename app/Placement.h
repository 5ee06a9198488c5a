// Where the main window stands: from the settings to the screen, and back.
#pragma once

#include <span>

#include "platform/Area.h"
#include "settings/Settings.h"

namespace tessera {

/// Where the window stands, in twips.
struct WindowPlacement {
  bool Minimised = false;
  bool Maximised = false;
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
};

/// What a place for the window depends on beside the settings; lengths in pixels.
struct Surroundings {
  int SmallestWidth = 0;  ///< the system makes the window no smaller
  int SmallestHeight = 0;
  std::span<const Screen> Screens;  ///< the primary one first
  int Dpi = 96;                     ///< of the window as it is now
};

/// The same window where it can be reached with the mouse: one whose title bar is on no screen
/// moves into the first one. Without screens it stays.
[[nodiscard]] Area MakeReachable(const Area& window, std::span<const Screen> screens, int dpi);

/// With which resolution the stored place is to be read: that of the screen which, so read, holds
/// its corner. Of several such screens the one whose whole pixels the corner's twips are, a coarser
/// one before a finer one; `dpi` where there is none.
[[nodiscard]] int ResolutionOfStoredPlace(const Settings& settings, std::span<const Screen> screens,
                                          int dpi);

/// The stored place, where it can be reached.
[[nodiscard]] Area StoredPlace(const Settings& settings, const Surroundings& around);

/// The size that a window which starts maximised is restored to; where it stands is open.
[[nodiscard]] Area RestoredSize(int dpi);

/// The window as it is shown.
struct ShownWindow {
  Area Place;
  bool Minimised = false;
  bool Maximised = false;
  int Dpi = 96;
};

/// What to store of a window that was `placed` there at the start. One that nobody moved since goes
/// back to where it came from, also when its screen was missing.
[[nodiscard]] WindowPlacement PlacementToStore(const ShownWindow& window, const Area& placed,
                                               const Settings& stored);

}  // namespace tessera
