// The font dialog, and the font description that it fills.
#pragma once

#include <string>

#include "platform/Dialogs.h"

namespace tessera {

class cFontDlg {
 public:
  enum Style : int { Bold = 1, Italic = 2, StrikeOut = 4, Underline = 8 };

  explicit cFontDlg(Dialogs& dialogs);

  std::wstring FaceName;  ///< at most 31 characters are used
  int Size = 10;          ///< points
  int FontStyle = 0;      ///< bits of Style
  int Script = 1;         ///< character set, 0 to 255

  /// True when the user chose a font; the description then holds it, and is unchanged otherwise.
  bool ShowFont();

 private:
  Dialogs& dialogs_;
};

}  // namespace tessera
