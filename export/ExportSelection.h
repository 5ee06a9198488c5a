// Which columns the user exports: the check boxes of the export dialog.
#pragma once

#include <string>
#include <string_view>

#include "export/ClipboardTable.h"

namespace tessera {

class ExportSelection {
 public:
  [[nodiscard]] bool Checked(Column box) const;
  [[nodiscard]] const ExportColumns& Columns() const;

  /// The selection as it is stored: "0" or "1" for each column, joined by ",".
  [[nodiscard]] std::wstring ClipOptions() const;

  /// Takes a stored selection; one with fewer than four values gives the default, "0,1,1,1".
  void Load(std::wstring_view clipOptions);

  /// A click turns a box round. When that leaves both boxes of its pair unchecked (description and
  /// command, defaults and current), the other one is checked.
  void Click(Column box);

 private:
  void KeepOneOfPair(Column first, Column second, Column target);

  ExportColumns columns_{false, true, true, true};
};

}  // namespace tessera
