// A length that nobody changed is stored as it was read.
#include "app/Placement.h"

#include <algorithm>
#include <utility>

#include "app/Twips.h"

namespace tessera {
namespace {

bool Holds(const Area& area, int left, int top) {
  return left >= area.Left && left < area.Left + area.Width && top >= area.Top &&
         top < area.Top + area.Height;
}

/// True when a window on a screen of that resolution can have been stored with that length.
bool AreWholePixels(int twips, int dpi) {
  return PixelsToTwips(TwipsToPixels(twips, dpi), dpi) == twips;
}

bool Overlaps(const Area& first, const Area& second) {
  return first.Left < second.Left + second.Width && second.Left < first.Left + first.Width &&
         first.Top < second.Top + second.Height && second.Top < first.Top + first.Height;
}

}  // namespace

Area MakeReachable(const Area& window, std::span<const Screen> screens, int dpi) {
  // The part of the title bar between the icon and the buttons is what a window is moved by.
  const int ends = std::min(Scaled(100, dpi), window.Width / 3);
  const Area grip{window.Left + ends, window.Top, window.Width - 2 * ends, Scaled(24, dpi)};
  const bool reachable = std::ranges::any_of(screens, [&](const Screen& each) {
    return Overlaps(grip, each.WorkArea) && grip.Top >= each.WorkArea.Top - Scaled(8, dpi);
  });
  if (reachable || screens.empty()) return window;
  const Area& screen = screens.front().WorkArea;
  const int width = std::min(window.Width, screen.Width);
  const int height = std::min(window.Height, screen.Height);
  return {std::clamp(window.Left, screen.Left, screen.Left + screen.Width - width),
          std::clamp(window.Top, screen.Top, screen.Top + screen.Height - height), width, height};
}

int ResolutionOfStoredPlace(const Settings& settings, std::span<const Screen> screens, int dpi) {
  const int left = settings.MainWindowLeft;
  const int top = settings.MainWindowTop;
  // The less is to be preferred.
  const auto rank = [&](const Screen& screen) {
    const bool whole = AreWholePixels(left, screen.Dpi) && AreWholePixels(top, screen.Dpi);
    return std::pair(!whole, screen.Dpi);
  };
  const Screen* found = nullptr;
  for (const Screen& screen : screens) {
    const bool holds =
        Holds(screen.WorkArea, TwipsToPixels(left, screen.Dpi), TwipsToPixels(top, screen.Dpi));
    if (holds && (found == nullptr || rank(screen) < rank(*found))) found = &screen;
  }
  return found == nullptr ? dpi : found->Dpi;
}

Area StoredPlace(const Settings& settings, const Surroundings& around) {
  const int dpi = ResolutionOfStoredPlace(settings, around.Screens, around.Dpi);
  // Where a window that is enlarged then reaches decides whether it can be reached.
  const Area stored{TwipsToPixels(settings.MainWindowLeft, dpi),
                    TwipsToPixels(settings.MainWindowTop, dpi),
                    std::max(TwipsToPixels(settings.MainWindowWidth, dpi), around.SmallestWidth),
                    std::max(TwipsToPixels(settings.MainWindowHeight, dpi), around.SmallestHeight)};
  return MakeReachable(stored, around.Screens, dpi);
}

Area RestoredSize(int dpi) {
  return {0, 0, TwipsToPixels(FirstRunSize.Width, dpi), TwipsToPixels(FirstRunSize.Height, dpi)};
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
