// Rectangles in pixels, and lengths at other resolutions.
#pragma once

namespace tessera {

/// A rectangle in pixels.
struct Area {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;

  [[nodiscard]] bool operator==(const Area&) const = default;
};

struct Size {
  int Width = 0;
  int Height = 0;
};

/// A screen by the part that programs may use, and its resolution in pixels an inch.
struct Screen {
  Area WorkArea;
  int Dpi = 96;
};

/// `value` * `numerator` / `denominator`; halves are rounded away from 0.
[[nodiscard]] int Proportion(int value, int numerator, int denominator);

/// A length given for 96 pixels an inch, at another resolution.
[[nodiscard]] int Scaled(int pixelsAt96, int dpi);

/// Centres something of that size in `room`; what is wider than the room is narrowed to it.
[[nodiscard]] Area Centred(const Area& room, int width, int height);

}  // namespace tessera
