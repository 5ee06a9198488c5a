// The conversion between twips and pixels.
#include "app/Twips.h"

#include "platform/Area.h"

namespace tessera {
namespace {

constexpr int TwipsPerInch = 1440;

}  // namespace

int TwipsToPixels(int twips, int dpi) { return Proportion(twips, dpi, TwipsPerInch); }

int PixelsToTwips(int pixels, int dpi) { return Proportion(pixels, TwipsPerInch, dpi); }

int PixelsToTwips(int pixels, int dpi, int storedTwips) {
  return TwipsToPixels(storedTwips, dpi) == pixels ? storedTwips : PixelsToTwips(pixels, dpi);
}

}  // namespace tessera
