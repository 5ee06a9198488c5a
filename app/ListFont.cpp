// The style is stored as bits.
#include "app/ListFont.h"

#include <algorithm>

#include "dialogs/cFontDlg.h"
#include "platform/Area.h"
#include "text/Text.h"

namespace tessera {
namespace {

constexpr std::wstring_view BitmapFace = L"MS Sans Serif";
constexpr int PointsPerInch = 72;
constexpr int SmallestPoints = 1;
constexpr int LargestPoints = 200;

}  // namespace

ListFont ReadListFont(const Settings& settings, int dpi) {
  const int points = std::clamp<int>(settings.FontSize, SmallestPoints, LargestPoints);
  const auto has = [&settings](cFontDlg::Style style) { return (settings.FontStyle & style) != 0; };
  return {.HasMessageFace = EqualIgnoringCase(settings.FontName, BitmapFace),
          .FaceName = settings.FontName,
          .CharacterSet = settings.FontScript,
          .HeightPixels = Proportion(points, dpi, PointsPerInch),
          .Bold = has(cFontDlg::Bold),
          .Italic = has(cFontDlg::Italic),
          .StrikeOut = has(cFontDlg::StrikeOut),
          .Underline = has(cFontDlg::Underline)};
}

}  // namespace tessera
