// Arithmetic of lengths and rectangles.
#include "platform/Area.h"

#include <algorithm>
#include <cmath>

namespace tessera {

int Proportion(int value, int numerator, int denominator) {
  return static_cast<int>(std::llround(static_cast<double>(value) * numerator / denominator));
}

int Scaled(int pixelsAt96, int dpi) { return Proportion(pixelsAt96, dpi, 96); }

Area Centred(const Area& room, int width, int height) {
  const int fitting = std::min(width, room.Width);
  return {room.Left + (room.Width - fitting) / 2, room.Top + (room.Height - height) / 2, fitting,
          height};
}

}  // namespace tessera
