// Who has an overridden key is found in the cells themselves: they are what the user sees.
#include "app/CellTip.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "shortcuts/KeyHolders.h"

namespace tessera {
namespace {

void AddLine(std::wstring& tip, const std::wstring& line) {
  if (!tip.empty()) tip += L'\n';
  tip += line;
}

/// A line for each command that has one of the default keys as its current key; of several keys
/// each line names its own.
void AddOwners(std::wstring& tip, const DisplayTable& rows, const CommandEntry& row,
               const HotkeyNotation& notation, const Texts& texts) {
  const std::vector<std::wstring> defaults = notation.KeysOf(row.DefaultKeys);
  for (std::size_t position = 0; position < rows.Count(); ++position) {
    const CommandEntry& owner = rows.At(position);
    for (const std::wstring& key : notation.KeysOf(owner.CurrentKeys)) {
      const bool isDefault = std::ranges::any_of(
          defaults, [&key](const std::wstring& piece) { return IsKeyWithMarks(piece, key); });
      if (!isDefault) continue;
      const std::wstring which = defaults.size() > 1 ? L"[" + key + L"] " : L"";
      AddLine(tip, which + texts.GetLangText(TextId::CurrentHotkeyFor) + L"  " +
                       std::wstring(owner.CommandName));
    }
  }
}

}  // namespace

bool IsCut(const CellExtent& extent) {
  const int end = std::min(extent.CellEnd, extent.ListEnd);
  return extent.TextLength > 0 &&
         (extent.TextBegin < 0 || extent.TextBegin + extent.TextLength > end);
}

std::wstring CellTip(const DisplayTable& rows, std::size_t position, Column column, bool isCut,
                     const HotkeyNotation& notation, const Texts& texts) {
  if (position >= rows.Count()) return {};
  const CommandEntry& row = rows.At(position);
  std::wstring tip(isCut ? CellText(row, column) : std::wstring_view());
  if (column == Column::Defaults && row.DefaultKeysAreRed) {
    AddOwners(tip, rows, row, notation, texts);
  }
  return tip;
}

}  // namespace tessera
