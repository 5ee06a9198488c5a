// The list's font, from the settings.
#include <gtest/gtest.h>

#include "app/ListFont.h"
#include "dialogs/cFontDlg.h"

namespace tessera::list_font_test {
namespace {

Settings WithFont(const std::wstring& name, short size, short style = 0) {
  Settings settings;
  settings.FontName = name;
  settings.FontSize = size;
  settings.FontStyle = style;
  return settings;
}

TEST(ListFont, BitmapFaceStandsForTheFontOfMessages) {
  EXPECT_TRUE(ReadListFont(Settings(), 96).HasMessageFace);
  EXPECT_TRUE(ReadListFont(WithFont(L"ms sans SERIF", 10), 96).HasMessageFace);
  EXPECT_FALSE(ReadListFont(WithFont(L"Microsoft Sans Serif", 10), 96).HasMessageFace);
  EXPECT_FALSE(ReadListFont(WithFont(L"", 10), 96).HasMessageFace);
}

TEST(ListFont, PointsArePixelsOfTheScreen) {
  EXPECT_EQ(ReadListFont(WithFont(L"Tahoma", 9), 96).HeightPixels, 12);
  EXPECT_EQ(ReadListFont(WithFont(L"Tahoma", 10), 192).HeightPixels, 27);
}

TEST(ListFont, SizeOutOfRangeIsTheNearestPossibleOne) {
  EXPECT_EQ(ReadListFont(WithFont(L"Tahoma", -5), 72).HeightPixels, 1);
  EXPECT_EQ(ReadListFont(WithFont(L"Tahoma", 30000), 72).HeightPixels, 200);
}

TEST(ListFont, EachBitOfTheStyleIsOneLook) {
  const ListFont font =
      ReadListFont(WithFont(L"Tahoma", 10, cFontDlg::Bold | cFontDlg::StrikeOut), 96);
  EXPECT_TRUE(font.Bold);
  EXPECT_FALSE(font.Italic);
  EXPECT_TRUE(font.StrikeOut);
  EXPECT_FALSE(font.Underline);
}

}  // namespace

}  // namespace tessera::list_font_test
