// Where the main window stands: what the rules of Placement.h need from the screen, and ask for.
#pragma once

#include "app/frmViews.h"
#include "app/Placement.h"

namespace tessera {

class frmPlacement {
 public:
  /// Puts a window that was not shown yet where the settings have it. One that will be maximised
  /// stays, and gets the size that it is restored to.
  void Apply(const frmViews& views, const Settings& settings);

  /// The place to store for the window as it stands.
  [[nodiscard]] WindowPlacement Current(const frmViews& views, const Settings& settings) const;

 private:
  Area placed_;  ///< where the stored place has put the window
};

}  // namespace tessera
