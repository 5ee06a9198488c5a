// A length that nobody changed is stored as it was read.
#include "app/Placement.h"

#include <algorithm>

#include "app/Twips.h"

namespace tessera {
namespace {

/// First-run size of the settings file.
constexpr int RestoredWidthTwips = 10000;
constexpr int RestoredHeightTwips = 7000;

bool Overlaps(const Area& first, const Area& second) {
  return first.Left < second.Left + second.Width && second.Left < first.Left + first.Width &&
         first.Top < second.Top + second.Height && second.Top < first.Top + first.Height;
}

}  // namespace

Area MakeReachable(const Area& window, std::span<const Area> screens, int dpi) {
  // The part of the title bar between the icon and the buttons is what a window is moved by.
  const int ends = std::min(Scaled(100, dpi), window.Width / 3);
  const Area grip{window.Left + ends, window.Top, window.Width - 2 * ends, Scaled(24, dpi)};
  const bool reachable = std::ranges::any_of(screens, [&](const Area& screen) {
    return Overlaps(grip, screen) && grip.Top >= screen.Top - Scaled(8, dpi);
  });
  if (reachable || screens.empty()) return window;
  const Area& screen = screens.front();
  const int width = std::min(window.Width, screen.Width);
  const int height = std::min(window.Height, screen.Height);
  return {std::clamp(window.Left, screen.Left, screen.Left + screen.Width - width),
          std::clamp(window.Top, screen.Top, screen.Top + screen.Height - height), width, height};
}

Area StoredPlace(const Settings& settings, const Surroundings& around) {
  // Where a window that is enlarged then reaches decides whether it can be reached.
  const Area stored{
      TwipsToPixels(settings.MainWindowLeft, around.Dpi),
      TwipsToPixels(settings.MainWindowTop, around.Dpi),
      std::max(TwipsToPixels(settings.MainWindowWidth, around.Dpi), around.SmallestWidth),
      std::max(TwipsToPixels(settings.MainWindowHeight, around.Dpi), around.SmallestHeight)};
  return MakeReachable(stored, around.Screens, around.Dpi);
}

Area RestoredSize(int dpi) {
  return {0, 0, TwipsToPixels(RestoredWidthTwips, dpi), TwipsToPixels(RestoredHeightTwips, dpi)};
}

WindowPlacement PlacementToStore(const ShownWindow& window, const Area& placed,
                                 const Settings& stored) {
  const bool moved = window.Place != placed;
  const auto twipsOf = [&](int pixels, int storedTwips) {
    return moved ? PixelsToTwips(pixels, window.Dpi, storedTwips) : storedTwips;
  };
  return {.Minimised = window.Minimised,
          .Maximised = window.Maximised,
          .Left = twipsOf(window.Place.Left, stored.MainWindowLeft),
          .Top = twipsOf(window.Place.Top, stored.MainWindowTop),
          .Width = twipsOf(window.Place.Width, stored.MainWindowWidth),
          .Height = twipsOf(window.Place.Height, stored.MainWindowHeight)};
}

}  // namespace tessera
