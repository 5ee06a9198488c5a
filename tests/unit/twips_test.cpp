// Lengths in twips and in pixels.
#include "app/Twips.h"

#include <gtest/gtest.h>

namespace tessera::twips_test {
namespace {

TEST(Twips, TwipsArePixelsAtAnyResolution) {
  struct Case {
    int Twips;
    int Dpi;
    int Pixels;
  };
  for (const Case& given : {Case{3000, 96, 200}, Case{3000, 144, 300}, Case{3000, 192, 400},
                            Case{0, 96, 0}, Case{-150, 96, -10}, Case{7, 96, 0}, Case{8, 96, 1}}) {
    EXPECT_EQ(TwipsToPixels(given.Twips, given.Dpi), given.Pixels) << given.Twips;
  }
}

TEST(Twips, PixelsSurviveTheWayThroughTwips) {
  for (const int dpi : {96, 120, 144, 168, 192, 288}) {
    for (int pixels = -2000; pixels <= 2000; ++pixels) {
      ASSERT_EQ(TwipsToPixels(PixelsToTwips(pixels, dpi), dpi), pixels) << dpi;
    }
  }
}

TEST(Twips, UnchangedLengthKeepsItsTwips) {
  EXPECT_EQ(PixelsToTwips(133, 96, 2000), 2000);
  EXPECT_EQ(PixelsToTwips(134, 96, 2000), 2010);
}

}  // namespace

}  // namespace tessera::twips_test
