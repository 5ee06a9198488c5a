// How a row of the command list looks: its colours, and how far its texts run.
#pragma once

#include <array>

#include "shortcuts/DisplayTable.h"

namespace tessera {

/// As the system has it: 0x00BBGGRR.
using Rgb = unsigned;

struct ListColors {
  Rgb Text = 0;  ///< what the user chose for the list, as is the next
  Rgb Back = 0xFFFFFF;
  Rgb Highlight = 0;  ///< the system's for what is selected, as is the next
  Rgb HighlightText = 0;
  Rgb Shadow = 0;  ///< the system's for the dark edges of buttons
  bool HighContrast = false;
};

struct CellColors {
  Rgb Text = 0;
  Rgb Back = 0;
  bool operator==(const CellColors&) const = default;
};

/// How much two colours differ in lightness, from 1 for alike to 21 for black and white. A text can
/// be read from 4.5 on.
[[nodiscard]] double Contrast(Rgb one, Rgb other);

/// The selected row stands out from the others, whatever colours the user and the system have; that
/// it has the focus is to be seen too, where the system's colours allow it.
[[nodiscard]] CellColors ColorsOfRow(const ListColors& colors, bool selected, bool hasFocus);

/// The colours of a cell in a row of those colours.
[[nodiscard]] CellColors ColorsOfCell(const ListColors& colors, const CellColors& rowColors,
                                      const CommandEntry& row, Column column);

/// True when the row's description may take the room of all columns: nothing stands in the others,
/// which all come after it. `order` has the columns (0-based) as they stand.
[[nodiscard]] bool RunsOverAllColumns(const CommandEntry& row, const std::array<int, 4>& order);

}  // namespace tessera
