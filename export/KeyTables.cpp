// A name in the table by key leads to the command's row in the other one, which has its texts.
#include "export/KeyTables.h"

#include "export/Html.h"
#include "export/HtmlTable.h"
#include "export/KeyDrawing.h"
#include "text/Trim.h"

namespace tessera {
namespace {

void AppendHolder(std::string& html, const KeyHolder& holder, const HolderFrames& frames) {
  const HolderFrame& frame = frames.Of(holder.Kind);
  const bool isRow = holder.Row != 0;
  html.append("<div>").append(frame.Before);
  if (isRow) {
    html += "<a href=\"#c";
    AppendNumber(html, holder.Row);
    html += "\">";
  } else {
    html += "<bdi>";
  }
  AppendText(html, holder.Name);
  html.append(isRow ? "</a>" : "</bdi>").append(frame.After).append("</div>");
}

void AppendKeyRow(std::string& html, std::wstring_view key, std::span<const KeyHolder> holders,
                  const HolderFrames& frames) {
  html += "<tr";
  AppendKeyAttributes(html, key, UseOf(holders));
  html += "><th><bdi>";
  AppendText(html, key);
  html += "</bdi></th><td>";
  for (const KeyHolder& holder : holders) AppendHolder(html, holder, frames);
  html += "</td></tr>\n";
}

void AppendHeadings(std::string& html, std::initializer_list<TextId> ids, const Texts& texts) {
  html += "<thead><tr>";
  for (const TextId id : ids) {
    html += "<th>";
    AppendText(html, texts.GetLangText(id));
    html += "</th>";
  }
  html += "</tr></thead>\n";
}

/// A heading as "[____File____]" says it without what draws a line.
std::wstring_view BlockName(std::wstring_view heading) {
  const std::wstring_view name = Trim(heading, [](wchar_t character) {
    return std::wstring_view(L"[]_-= ").find(character) != std::wstring_view::npos;
  });
  return name.empty() ? heading : name;
}

void AppendCommandRow(std::string& html, const CommandEntry& row,
                      const std::wstring& undefinedHotkey) {
  html += "<tr id=\"c";
  AppendNumber(html, row.Key);
  html += "\">";
  for (const Column column : AllColumns) {
    const std::wstring_view text = CellText(row, column);
    const bool isStruck = column == Column::Defaults && DefaultsAreStruck(row);
    html += isStruck ? "<td><s>" : "<td>";
    if (text != undefinedHotkey) AppendText(html, text);
    html += isStruck ? "</s></td>" : "</td>";
  }
  html += "</tr>\n";
}

}  // namespace

void AppendTableByKey(std::string& html, const KeyUses& uses,
                      const std::vector<Keyboard>& keyboards,
                      const std::vector<std::size_t>& elsewhere, const HolderFrames& frames,
                      const Texts& texts) {
  html += "<table id=\"by-key\">\n";
  AppendHeadings(html, {TextId::KeyColumn, TextId::CommandColumn}, texts);
  html += "<tbody>\n";
  // Several keyboards have the same keys where the notation does not tell their modifiers apart.
  std::vector<bool> isWritten(uses.Keys().size() + 1, false);
  isWritten.back() = true;
  for (const Keyboard& keyboard : keyboards) {
    for (const KeyboardKey& key : keyboard.Keys) {
      if (isWritten[key.Place]) continue;
      isWritten[key.Place] = true;
      AppendKeyRow(html, key.Key, uses.HoldersOf(key.Place), frames);
    }
  }
  for (const std::size_t place : elsewhere) {
    AppendKeyRow(html, uses.Keys()[place], uses.HoldersOf(place), frames);
  }
  html += "</tbody>\n</table>\n";
}

void AppendTableByCommand(std::string& html, const DisplayTable& rows, const Texts& texts,
                          const std::wstring& undefinedHotkey) {
  html += "<table id=\"by-command\">\n";
  AppendHeadings(html,
                 {TextId::DescriptionColumn, TextId::CommandColumn, TextId::DefaultHotkeyColumn,
                  TextId::CurrentHotkeyColumn},
                 texts);
  html += "<tbody>\n";
  rows.ForEachRow([&](const CommandEntry& row) {
    if (!row.IsHeading()) {
      AppendCommandRow(html, row, undefinedHotkey);
      return;
    }
    html += "</tbody>\n<tbody>\n<tr class=\"block\"><th colspan=\"4\">";
    AppendText(html, BlockName(row.Description));
    html += "</th></tr>\n";
  });
  html += "</tbody>\n</table>\n";
}

}  // namespace tessera
