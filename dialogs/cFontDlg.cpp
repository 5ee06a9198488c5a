// Translates the font description to the system's font record and back.
#include "dialogs/cFontDlg.h"

#include <algorithm>

#include "text/Numbers.h"

namespace tessera {
namespace {

constexpr std::size_t LongestFaceName = 31;
constexpr int NormalWeight = 400;
constexpr int BoldWeight = 700;

}  // namespace

cFontDlg::cFontDlg(Dialogs& dialogs) : dialogs_(dialogs) {}

bool cFontDlg::ShowFont() {
  FontRecord record;
  record.FaceName = FaceName.substr(0, LongestFaceName);
  record.Weight = (FontStyle & Bold) != 0 ? BoldWeight : NormalWeight;
  record.Italic = (FontStyle & Italic) != 0;
  record.StrikeOut = (FontStyle & StrikeOut) != 0;
  record.Underline = (FontStyle & Underline) != 0;
  record.CharSet = static_cast<std::uint8_t>(std::clamp(Script, 0, 255));
  record.PointSizeInTenths = Size * 10;
  if (!dialogs_.Font(record)) return false;

  FaceName = record.FaceName.substr(0, record.FaceName.find(L'\0'));
  Size = RoundTo32Bits(record.PointSizeInTenths / 10.0);
  Script = record.CharSet;
  // Deliberate: semi-bold and heavy faces do not count as bold.
  FontStyle = (record.Weight == BoldWeight ? Bold : 0) | (record.Italic ? Italic : 0) |
              (record.StrikeOut ? StrikeOut : 0) | (record.Underline ? Underline : 0);
  return true;
}

}  // namespace tessera
