// The pair rule of the export dialog.
#include "export/ExportSelection.h"

#include <vector>

#include "shortcuts/HotkeyNotation.h"
#include "text/Numbers.h"

namespace tessera {

bool ExportSelection::Checked(int box) const { return columns_.at(static_cast<std::size_t>(box)); }

const ExportColumns& ExportSelection::Columns() const { return columns_; }

std::wstring ExportSelection::ClipOptions() const {
  std::wstring text;
  for (const bool checked : columns_) {
    text.append(text.empty() ? L"" : L",").append(checked ? L"1" : L"0");
  }
  return text;
}

void ExportSelection::Load(std::wstring_view clipOptions) {
  const std::vector<std::wstring> values = SplitText(clipOptions, L",");
  columns_ = {false, true, true, true};
  if (values.size() < columns_.size()) {
    return;
  }
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    columns_[i] = LeadingNumber(values[i]) != 0;
  }
}

void ExportSelection::Click(int box) {
  bool& checked = columns_.at(static_cast<std::size_t>(box));
  checked = !checked;
  const int first = box / 2 * 2;
  const int second = first + 1;
  KeepOneOfPair(first, second, box == first ? second : first);
}

void ExportSelection::KeepOneOfPair(int first, int second, int target) {
  if (!Checked(first) && !Checked(second)) {
    columns_[static_cast<std::size_t>(target)] = true;
  }
}

}  // namespace tessera
