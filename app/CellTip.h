// The tip over a cell of the command list: what the cell does not show.
#pragma once

#include <string>

#include "localisation/Texts.h"
#include "shortcuts/DisplayTable.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera {

/// Along a line, in pixels.
struct CellExtent {
  int TextBegin = 0;
  int TextLength = 0;
  int CellEnd = 0;  ///< where the cell has its text cut
  int ListEnd = 0;  ///< where the list itself ends, which begins at 0
};

/// True when the text is not to be seen as a whole.
[[nodiscard]] bool IsCut(const CellExtent& extent);

/// What the tip over a cell of the row at `position` says, in lines: the text, if `isCut`, and for
/// overridden default keys the commands that have them now. Empty for no tip.
[[nodiscard]] std::wstring CellTip(const DisplayTable& rows, std::size_t position, Column column,
                                   bool isCut, const HotkeyNotation& notation, const Texts& texts);

}  // namespace tessera
