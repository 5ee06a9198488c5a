// Only what every reader of HTML knows, without styles.
#include "export/HtmlTable.h"

#include "export/Html.h"
#include "text/ControlCharacters.h"

namespace tessera {
namespace {

/// `appendCell` appends a cell of a column.
template <typename AppendCell>
void AppendRow(std::string& html, const ExportColumns& columns, AppendCell appendCell) {
  html += "<tr>";
  for (const Column column : AllColumns) {
    if (columns[IndexOf(column)]) appendCell(column);
  }
  html += "</tr>\r\n";
}

void AppendElement(std::string& html, std::string_view begin, std::wstring_view text,
                   std::string_view end) {
  html += begin;
  AppendText(html, text);
  html += end;
}

void AppendCell(std::string& html, const CommandEntry& row, Column column) {
  const bool isStruck = column == Column::Defaults && DefaultsAreStruck(row);
  AppendElement(html, isStruck ? "<td><s>" : "<td>", CellText(row, column),
                isStruck ? "</s></td>" : "</td>");
}

}  // namespace

bool DefaultsAreStruck(const CommandEntry& row) {
  constexpr std::wstring_view Multiply = L"Num *";
  // The red colour stays when a key is free again, but the mark goes. "Num *" is a key.
  return row.DefaultKeysAreRed && row.DefaultKeys.ends_with(OverriddenMark) &&
         !row.DefaultKeys.ends_with(Multiply);
}

std::string BuildHtmlTable(const DisplayTable& rows, const ExportColumns& columns,
                           const Texts& texts, const std::wstring& undefinedHotkey) {
  std::string html = "<table>\r\n";
  AppendRow(html, columns, [&](Column column) {
    AppendElement(html, "<th>", texts.GetLangText(ColumnHeadings[IndexOf(column)]), "</th>");
  });
  for (std::size_t position = 0; position < rows.Count(); ++position) {
    const CommandEntry& row = rows.At(position);
    if (!IsExported(row, columns, undefinedHotkey)) continue;
    AppendRow(html, columns, [&](Column column) { AppendCell(html, row, column); });
  }
  return html + "</table>";
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
