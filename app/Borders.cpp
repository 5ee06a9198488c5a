// Two settings, each of which means another thing for either control.
#include "app/Borders.h"

namespace tessera {

Border ListBorder(const Settings& settings) {
  if (settings.FixedBorders == 0) return Border::None;
  return settings.FlatUserInterface != 0 ? Border::Line : Border::Sunken;
}

Border ToolbarBorder(const Settings& settings) {
  if (settings.FlatUserInterface != 0) return Border::None;
  return settings.FixedBorders != 0 ? Border::Sunken : Border::Line;
}

}  // namespace tessera
