// Only what every reader of HTML knows, without styles.
#include "export/HtmlTable.h"

#include "text/ControlCharacters.h"

namespace tessera {
namespace {

std::wstring Escaped(std::wstring_view text) {
  std::wstring html;
  // A tab or a line break of its own would part a cell.
  for (const wchar_t character : WithoutControls(text)) {
    switch (character) {
      case L'&':
        html += L"&amp;";
        break;
      case L'<':
        html += L"&lt;";
        break;
      case L'>':
        html += L"&gt;";
        break;
      default:
        html += character;
    }
  }
  return html;
}

/// The red colour stays when a key is free again, but the mark goes. "Num *" is a key.
bool IsOverridden(const CommandEntry& row) {
  constexpr std::wstring_view Multiply = L"Num *";
  return row.DefaultKeysAreRed && row.DefaultKeys.ends_with(OverriddenMark) &&
         !row.DefaultKeys.ends_with(Multiply);
}

std::wstring Cell(const CommandEntry& row, Column column) {
  const std::wstring text = Escaped(CellText(row, column));
  const bool isStruck = column == Column::Defaults && IsOverridden(row);
  return L"<td>" + (isStruck ? L"<s>" + text + L"</s>" : text) + L"</td>";
}

/// `cell` gives what stands in a column.
template <typename CellOf>
std::wstring Row(const ExportColumns& columns, CellOf cell) {
  std::wstring html = L"<tr>";
  for (const Column column : AllColumns) {
    if (columns[IndexOf(column)]) html += cell(column);
  }
  return html + L"</tr>\r\n";
}

}  // namespace

std::wstring BuildHtmlTable(const DisplayTable& rows, const ExportColumns& columns,
                            const Texts& texts, const std::wstring& undefinedHotkey) {
  std::wstring html = L"<table>\r\n" + Row(columns, [&](Column column) {
                        const TextId heading = ColumnHeadings[IndexOf(column)];
                        return L"<th>" + Escaped(texts.GetLangText(heading)) + L"</th>";
                      });
  for (std::size_t position = 0; position < rows.Count(); ++position) {
    const CommandEntry& row = rows.At(position);
    if (!IsExported(row, columns, undefinedHotkey)) continue;
    html += Row(columns, [&](Column column) { return Cell(row, column); });
  }
  return html + L"</table>";
}

std::wstring RowText(const CommandEntry& row) {
  std::wstring text;
  for (const Column column : AllColumns) {
    if (column != AllColumns.front()) text += L'\t';
    text += WithoutControls(CellText(row, column));
  }
  return text;
}

}  // namespace tessera
