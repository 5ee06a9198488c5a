// The pair rule of the export dialog.
#include "export/ExportSelection.h"

#include <vector>

#include "shortcuts/HotkeyNotation.h"
#include "text/Numbers.h"

namespace tessera {
namespace {

/// Texts are one pair, keys the other.
Column PartnerOf(Column column) {
  switch (column) {
    case Column::Description:
      return Column::Command;
    case Column::Command:
      return Column::Description;
    case Column::Defaults:
      return Column::Current;
    case Column::Current:
      break;
  }
  return Column::Defaults;
}

}  // namespace

bool ExportSelection::Checked(Column box) const { return columns_[IndexOf(box)]; }

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
  if (values.size() < columns_.size()) return;
  for (std::size_t i = 0; i < columns_.size(); ++i) columns_[i] = LeadingNumber(values[i]) != 0;
}

void ExportSelection::Click(Column box) {
  columns_[IndexOf(box)] = !Checked(box);
  const Column partner = PartnerOf(box);
  KeepOneOfPair(box, partner, partner);
}

void ExportSelection::KeepOneOfPair(Column first, Column second, Column target) {
  if (!Checked(first) && !Checked(second)) columns_[IndexOf(target)] = true;
}

}  // namespace tessera
