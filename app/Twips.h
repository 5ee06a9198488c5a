// Lengths as the settings store them, and as the screen has them.
#pragma once

namespace tessera {

/// Twips (1/1440 inch) to pixels at `dpi` pixels an inch, and back; halves are rounded away from 0.
[[nodiscard]] int TwipsToPixels(int twips, int dpi);
[[nodiscard]] int PixelsToTwips(int pixels, int dpi);

/// Pixels to twips; `storedTwips` when that is what these pixels were made from, so that a length
/// that nobody changed is stored as it was read.
[[nodiscard]] int PixelsToTwips(int pixels, int dpi, int storedTwips);

}  // namespace tessera
