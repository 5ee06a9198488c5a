// Resolution and place depend on each other where screens differ.
#include "app/frmPlacement.h"

#include <vector>

namespace tessera {
namespace {

void PlaceAsStored(const frmViews& views, const Settings& settings) {
  const Size smallest = views.SmallestSize();
  const std::vector<Screen> screens = Screens(views.Dpi());
  Place(views.Window(), StoredPlace(settings, {.SmallestWidth = smallest.Width,
                                               .SmallestHeight = smallest.Height,
                                               .Screens = screens,
                                               .Dpi = views.Dpi()}));
}

}  // namespace

void frmPlacement::Apply(const frmViews& views, const Settings& settings) {
  const HWND window = views.Window();
  if (settings.MainWindowMaxmized == 1) {
    const Area restored = RestoredSize(views.Dpi());
    SetWindowPos(window, nullptr, 0, 0, restored.Width, restored.Height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return;
  }
  const int dpi = views.Dpi();
  PlaceAsStored(views, settings);
  // Moving to another screen may change the resolution, and with it what the twips stand for.
  if (views.Dpi() != dpi) PlaceAsStored(views, settings);
  placed_ = WindowArea(window);
}

WindowPlacement frmPlacement::Current(const frmViews& views, const Settings& settings) const {
  const HWND window = views.Window();
  return PlacementToStore({.Place = WindowArea(window),
                           .Minimised = IsIconic(window) != FALSE,
                           .Maximised = IsZoomed(window) != FALSE,
                           .Dpi = views.Dpi()},
                          placed_, settings);
}

}  // namespace tessera
