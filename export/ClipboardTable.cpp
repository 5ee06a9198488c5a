// The text table that goes to the clipboard.
#include "export/ClipboardTable.h"

#include <algorithm>

namespace tessera {
namespace {

constexpr const wchar_t* LineEnd = L"\r\n";
constexpr const wchar_t* StartMenuTitle = L"Total Commander Start Menu shortcuts:";

void AppendCell(std::wstring& text, std::wstring_view cell, std::size_t width) {
  text.append(cell.substr(0, width))
      .append(width - std::min(width, cell.size()), L' ')
      .append(1, L'\t');
}

std::wstring HeadingLine(const ExportColumns& columns, const std::array<std::size_t, 4>& widths,
                         const Texts& texts) {
  std::wstring line;
  for (std::size_t i = 0; i < AllColumns.size(); ++i) {
    if (columns[i]) {
      const std::wstring heading = texts.GetLangText(ColumnHeadings[i]);
      // The last heading is always written whole, deliberately, and the others are cut.
      AppendCell(line, heading, AllColumns[i] == Column::Current ? heading.size() : widths[i]);
    }
  }
  return line;
}

}  // namespace

std::size_t ColumnMaxLength(const DisplayTable& rows, Column column) {
  std::size_t longest = 0;
  for (std::size_t position = 0; position < rows.Count(); ++position) {
    const CommandEntry& row = rows.At(position);
    if (!row.IsHeading()) longest = std::max(longest, CellText(row, column).size());
  }
  return longest;
}

bool IsExported(const CommandEntry& row, const ExportColumns& columns,
                const std::wstring& undefinedHotkey) {
  const bool hasDefault = columns[IndexOf(Column::Defaults)] && row.DefaultKeys != undefinedHotkey;
  const bool hasCurrent = columns[IndexOf(Column::Current)] && row.CurrentKeys != undefinedHotkey;
  return !row.IsHeading() && (hasDefault || hasCurrent);
}

std::wstring BuildExportText(const DisplayTable& rows, const ExportColumns& columns,
                             const Texts& texts, const std::wstring& undefinedHotkey) {
  std::array<std::size_t, 4> widths{};
  std::ranges::transform(AllColumns, widths.begin(),
                         [&](Column column) { return ColumnMaxLength(rows, column); });
  std::wstring text = HeadingLine(columns, widths, texts) + LineEnd;
  text.append(text.size() + 2, L'=').append(LineEnd);
  for (std::size_t position = 0; position < rows.Count(); ++position) {
    const CommandEntry& row = rows.At(position);
    if (!IsExported(row, columns, undefinedHotkey)) continue;
    for (std::size_t i = 0; i < AllColumns.size(); ++i) {
      if (columns[i]) AppendCell(text, CellText(row, AllColumns[i]), widths[i]);
    }
    text.append(LineEnd);
  }
  return text;
}

std::wstring BuildExportEnding(const StartMenuKeyTable& startMenuKeys, bool modified,
                               const Texts& texts) {
  std::wstring text;
  for (const StartMenuSlot& slot : startMenuKeys) {
    if (slot.Key.empty()) continue;
    if (text.empty()) {
      const std::wstring title = StartMenuTitle;
      text = std::wstring(LineEnd) + LineEnd + title + LineEnd + std::wstring(title.size(), L'=');
    }
    text.append(LineEnd).append(slot.Caption).append(1, L'\t').append(slot.Key);
  }
  text.append(LineEnd);
  if (modified) {
    const std::wstring heading = L"=   " + texts.GetLangText(TextId::Important) + L"   =";
    const std::wstring rule(heading.size(), L'=');
    for (int i = 0; i < 4; ++i) text.append(LineEnd);
    text.append(rule).append(LineEnd).append(heading).append(LineEnd);
    text.append(rule)
        .append(LineEnd)
        .append(texts.GetLangText(TextId::NotSavedYet))
        .append(LineEnd);
  }
  return text;
}

}  // namespace tessera
