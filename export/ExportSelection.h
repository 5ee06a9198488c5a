// Which columns the user exports: the check boxes of the export dialog.
#pragma once

#include <string>
#include <string_view>

#include "export/ClipboardTable.h"

namespace tessera {

class ExportSelection {
 public:
  /// Boxes are indexed 0 description, 1 command, 2 defaults, 3 current; any other index throws
  /// std::out_of_range, here and below.
  [[nodiscard]] bool Checked(int box) const;
  [[nodiscard]] const ExportColumns& Columns() const;

  /// The selection as it is stored: "0" or "1" for each column, joined by ",".
  [[nodiscard]] std::wstring ClipOptions() const;

  /// Takes a stored selection; one with fewer than four values gives the default, "0,1,1,1".
  void Load(std::wstring_view clipOptions);

  /// A click turns a box round. When that leaves both boxes of its pair unchecked (0 and 1, 2 and
  /// 3), the other one is checked.
  void Click(int box);

 private:
  void KeepOneOfPair(int first, int second, int target);

  ExportColumns columns_{false, true, true, true};
};

}  // namespace tessera
