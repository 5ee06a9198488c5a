// The parts of the page, from top to bottom.
#include "export/KeysPage.h"

#include "export/Html.h"

namespace tessera {
namespace {

void AppendHead(std::string& html, const Texts& texts, const KeysPageHead& head) {
  html +=
      texts.RightToLeft() ? "<!DOCTYPE html>\n<html dir=\"rtl\">\n" : "<!DOCTYPE html>\n<html>\n";
  html += "<head>\n<meta charset=\"utf-8\">\n<title>";
  AppendText(html, head.Path);
  html += "</title>\n</head>\n<body>\n";
}

void AppendCommands(std::string& html, const DisplayTable& rows) {
  html += "<table id=\"by-command\">\n<tbody>\n";
  rows.ForEachRow([&html](const CommandEntry& row) {
    html += "<tr>";
    for (const Column column : AllColumns) {
      html += "<td>";
      AppendText(html, CellText(row, column));
      html += "</td>";
    }
    html += "</tr>\n";
  });
  html += "</tbody>\n</table>\n";
}

}  // namespace

std::string BuildKeysPage(const Catalogue& catalogue, const HotkeyNotation&, const Texts& texts,
                          const KeysPageHead& head) {
  std::string html;
  AppendHead(html, texts, head);
  AppendCommands(html, catalogue.ListView1);
  html += "</body>\n</html>\n";
  return html;
}

}  // namespace tessera
