// The parts of the page, from top to bottom.
#include "export/KeysPage.h"

#include "export/Html.h"
#include "export/KeyDrawing.h"
#include "export/KeysPageScript.h"
#include "export/KeysPageStyle.h"
#include "export/KeyTables.h"

namespace tessera {
namespace {

/// About how much the page takes by itself, and a row of it.
constexpr std::size_t UsualBytes = 200'000;
constexpr std::size_t RowBytes = 300;

void AppendElement(std::string& html, std::string_view begin, std::wstring_view text,
                   std::string_view end) {
  html += begin;
  AppendText(html, text);
  html += end;
}

void AppendHead(std::string& html, const Texts& texts) {
  html += "<!DOCTYPE html>\n<html lang=\"";
  AppendValue(html, texts.GetLangText(TextId::LanguageTag));
  html.append("\" dir=\"").append(texts.RightToLeft() ? "rtl" : "ltr");
  html +=
      "\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
      "style-src 'unsafe-inline'; script-src 'unsafe-inline'; base-uri 'none'; "
      "form-action 'none'\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<meta name=\"color-scheme\" content=\"light dark\">\n";
  AppendElement(html, "<title>", texts.GetLangText(TextId::KeysPageTitle), "</title>\n");
  html.append("<style>").append(KeysPageStyle()).append("</style>\n</head>\n");
}

void AppendHeader(std::string& html, const Texts& texts, const KeysPageHead& head) {
  AppendElement(html, "<header>\n<h1>", texts.GetLangText(TextId::KeysPageTitle), "</h1>\n");
  AppendElement(html, R"(<p id="path"><bdi dir="ltr">)", head.Path, "</bdi></p>\n");
  if (head.Modified) {
    AppendElement(html, "<p id=\"unsaved\">", texts.GetLangText(TextId::KeysAreNotSaved), "</p>\n");
  }
  AppendLegend(html, texts);
  html += "</header>\n";
}

void AppendFinder(std::string& html, const Texts& texts) {
  AppendElement(html, "<p id=\"finder\" hidden><label>", texts.GetLangText(TextId::Find), " ");
  html += R"(<input id="search" type="search" placeholder=")";
  AppendValue(html, texts.GetLangText(TextId::FindCue));
  html += "\"></label></p>\n";
}

void AppendKeysElsewhere(std::string& html, const std::vector<std::size_t>& places,
                         const KeyDrawing& drawing) {
  if (places.empty()) return;
  AppendElement(html, "<section id=\"others\">\n<h2>",
                drawing.Language.GetLangText(TextId::KeysElsewhere),
                "</h2>\n<ul class=\"chips\">\n");
  for (const std::size_t place : places) {
    const std::wstring_view key = drawing.Uses.Keys()[place];
    html += "<li class=\"key\"";
    AppendKeyAttributes(html, key, UseOf(drawing.Uses.HoldersOf(place)));
    AppendElement(html, "><bdi><b>", key, "</b></bdi> ");
    AppendElement(html, "<bdi>", ChiefHolder(drawing.Uses.HoldersOf(place))->Name, "</bdi></li>\n");
  }
  html += "</ul>\n</section>\n";
}

void AppendTables(std::string& html, const DisplayTable& rows,
                  const std::vector<Keyboard>& keyboards, const std::vector<std::size_t>& elsewhere,
                  const KeyDrawing& drawing) {
  const Texts& texts = drawing.Language;
  AppendElement(html, "<section class=\"tables\">\n<h2>", texts.GetLangText(TextId::KeysByKey),
                "</h2>\n<div class=\"by-key\">\n");
  AppendTableByKey(html, drawing.Uses, keyboards, elsewhere, drawing.Frames, texts);
  AppendElement(html, "</div>\n</section>\n<section class=\"tables\">\n<h2>",
                texts.GetLangText(TextId::KeysByCommand), "</h2>\n");
  AppendTableByCommand(html, rows, texts, drawing.Notation.UndefinedHotkey);
  html += "</section>\n";
}

}  // namespace

std::string BuildKeysPage(const Catalogue& catalogue, const HotkeyNotation& notation,
                          const Texts& texts, const KeysPageHead& head) {
  const KeyUses uses(catalogue, notation);
  const HolderFrames frames(texts);
  const KeyDrawing drawing{uses, notation, texts, frames};
  const std::vector<Keyboard> keyboards = MakeKeyboards(uses, notation);
  const std::vector<std::size_t> elsewhere = KeysElsewhere(uses, keyboards);

  std::string html;
  html.reserve(UsualBytes + RowBytes * catalogue.ListView1.Count());
  AppendHead(html, texts);
  html += "<body>\n";
  AppendShapes(html, notation);
  AppendHeader(html, texts, head);
  AppendFinder(html, texts);
  html += "<main>\n";
  for (const Keyboard& keyboard : keyboards) AppendKeyboard(html, keyboard, drawing);
  AppendKeysElsewhere(html, elsewhere, drawing);
  AppendTables(html, catalogue.ListView1, keyboards, elsewhere, drawing);
  html.append("</main>\n<div id=\"tip\" role=\"status\" hidden></div>\n<script>");
  html.append(KeysPageScript()).append("</script>\n</body>\n</html>\n");
  return html;
}

}  // namespace tessera
