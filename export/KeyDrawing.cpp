// Each shape is drawn once, at its place; a keyboard uses it, gives it its look, and adds the name.
#include "export/KeyDrawing.h"

#include <span>
#include <vector>

#include "export/Html.h"
#include "export/KeyboardShape.h"
#include "export/KeyLabel.h"
#include "localisation/Mnemonic.h"
#include "localisation/Placeholders.h"

namespace tessera {
namespace {

// In units of the drawing.
constexpr int Quarter = 15;
constexpr int Gap = 2;     ///< between the edge of a key's place and its shape
constexpr int Margin = 6;  ///< between that edge and its texts
constexpr int NameLine = 17;
constexpr int FirstLine = 30;
constexpr int LineHeight = 12;
constexpr int LabelSize = 11;

/// The word that stands for a use in the page, for its style.
std::string_view NameOfUse(KeyUse use) {
  constexpr std::string_view Names[] = {"free", "default", "user", "over", "startmenu"};
  return Names[static_cast<std::size_t>(use)];
}

void AppendPlace(std::string& html, std::string_view name, int number) {
  html.append(1, ' ').append(name).append("=\"");
  AppendNumber(html, static_cast<std::size_t>(number));
  html += '"';
}

void AppendRectangle(std::string& html, const KeyShape& shape) {
  html += "<rect class=\"s\"";
  AppendPlace(html, "x", shape.X * Quarter + Gap);
  AppendPlace(html, "y", shape.Y * Quarter + Gap);
  AppendPlace(html, "width", shape.Width * Quarter - 2 * Gap);
  AppendPlace(html, "height", shape.Height * Quarter - 2 * Gap);
  html += " rx=\"7\"/>";
}

void AppendName(std::string& html, const KeyShape& shape, std::wstring_view name) {
  html += "<text class=\"n\"";
  AppendPlace(html, "x", shape.X * Quarter + Margin);
  AppendPlace(html, "y", shape.Y * Quarter + NameLine);
  html += '>';
  AppendText(html, name);
  html += "</text>";
}

/// The shapes of one kind as one, with a name on each unless it is empty.
void AppendGroup(std::string& html, std::string_view id, ShapeKind kind, std::wstring_view name) {
  html.append("<g id=\"").append(id).append("\">");
  for (const KeyShape& shape : KeyboardShape()) {
    if (shape.Kind != kind) continue;
    AppendRectangle(html, shape);
    if (!name.empty()) AppendName(html, shape, name);
  }
  html += "</g>\n";
}

void AppendLabel(std::string& html, const KeyShape& shape, const KeyHolder& holder) {
  const int width = (shape.Width * Quarter - 2 * Margin) * 100 / LabelSize;
  const int most = (shape.Height * Quarter - FirstLine) / LineHeight + 1;
  const bool isCaption = holder.Kind == HolderKind::StartMenu;
  const std::vector<std::wstring> lines =
      LabelLines(isCaption ? WithoutMnemonic(holder.Name) : std::wstring(holder.Name),
                 {width, static_cast<std::size_t>(most)});
  const int x = shape.X * Quarter + Margin;
  html += "<text";
  AppendPlace(html, "x", x);
  AppendPlace(html, "y", shape.Y * Quarter + FirstLine);
  html += '>';
  for (std::size_t line = 0; line < lines.size(); ++line) {
    if (line != 0) {
      html += "<tspan";
      AppendPlace(html, "x", x);
      AppendPlace(html, "dy", LineHeight);
      html += '>';
    }
    AppendText(html, lines[line]);
    if (line != 0) html += "</tspan>";
  }
  html += "</text>";
}

/// Beside its colour, what is over a default bears a corner.
void AppendCorner(std::string& html, const KeyShape& shape) {
  html += "<use href=\"#corner\"";
  AppendPlace(html, "x", (shape.X + shape.Width) * Quarter - Gap);
  AppendPlace(html, "y", shape.Y * Quarter + Gap);
  html += "/>";
}

void AppendKey(std::string& html, const KeyboardKey& key, std::size_t number, const KeyShape& shape,
               const KeyDrawing& drawing) {
  const std::span<const KeyHolder> holders = drawing.Uses.HoldersOf(key.Place);
  const KeyUse use = UseOf(holders);
  html += "<g class=\"key\"";
  AppendKeyAttributes(html, key.Key, use);
  html += "><title>";
  AppendTitle(html, key.Key, key.Place, drawing);
  html += "</title><use href=\"#k";
  AppendNumber(html, number);
  html += "\"/>";
  if (use == KeyUse::UserOverDefault) AppendCorner(html, shape);
  if (!holders.empty()) AppendLabel(html, shape, *ChiefHolder(holders));
  html += "</g>\n";
}

void AppendModifiers(std::string& html, const HeldModifiers& held) {
  const auto append = [&html](std::string_view id, bool isHeld) {
    html.append("<use href=\"#").append(id).append(isHeld ? R"(" class="held"/>)" : "\"/>");
  };
  html += R"(<g class="idle"><use href="#blank"/>)";
  append("ctrl", held.Ctrl);
  append("alt", held.Alt);
  append("shift", held.Shift);
  html += "</g>\n";
}

void AppendSectionHead(std::string& html, const Keyboard& keyboard, const KeyDrawing& drawing) {
  const std::wstring names = drawing.Notation.NamesOf(keyboard.Held);
  const std::string free = std::to_string(keyboard.Free);
  const std::string all = std::to_string(keyboard.Keys.size());
  const TextId count = names.empty() ? TextId::FreeAlone : TextId::FreeWithModifiers;
  html += R"(<section class="keyboard" data-modifiers=")";
  AppendValue(html, names);
  html += "\">\n<h2><bdi>";
  AppendText(html, names.empty() ? drawing.Language.GetLangText(TextId::NoModifier) : names);
  html.append("</bdi></h2>\n<p class=\"count\" data-free=\"").append(free);
  html.append("\" data-all=\"").append(all).append("\">");
  AppendText(html, WithValues(drawing.Language.GetLangText(count),
                              {std::to_wstring(keyboard.Free),
                               std::to_wstring(keyboard.Keys.size()), names}));
  html += "</p>\n";
}

}  // namespace

void AppendShapes(std::string& html, const HotkeyNotation& notation) {
  html +=
      "<svg class=\"shapes\" width=\"0\" height=\"0\" aria-hidden=\"true\"><defs>\n"
      "<pattern id=\"hatch\" width=\"8\" height=\"8\" patternUnits=\"userSpaceOnUse\" "
      "patternTransform=\"rotate(45)\"><rect class=\"h0\" width=\"8\" height=\"8\"/>"
      "<rect class=\"h1\" width=\"3\" height=\"8\"/></pattern>\n"
      "<path id=\"corner\" class=\"c\" d=\"M-18 0h11a7 7 0 0 1 7 7v11z\"/>\n"
      "<rect id=\"swatch\" class=\"s\" x=\"2\" y=\"2\" width=\"56\" height=\"56\" rx=\"7\"/>\n";
  AppendGroup(html, "blank", ShapeKind::Blank, L"");
  AppendGroup(html, "ctrl", ShapeKind::Ctrl, notation.CtrlName);
  AppendGroup(html, "alt", ShapeKind::Alt, notation.AltName);
  AppendGroup(html, "shift", ShapeKind::Shift, notation.ShiftName);
  const std::span<const KeyShape> shapes = ShapesOfVocabulary();
  for (std::size_t number = 0; number < shapes.size(); ++number) {
    html.append("<g id=\"k").append(std::to_string(number)).append("\">");
    AppendRectangle(html, shapes[number]);
    AppendName(html, shapes[number], shapes[number].Key);
    html += "</g>\n";
  }
  html += "</defs></svg>\n";
}

void AppendLegend(std::string& html, const Texts& texts) {
  struct Entry {
    KeyUse Use;
    TextId Text;
  };
  constexpr Entry Entries[] = {{KeyUse::Free, TextId::UsedByNobody},
                               {KeyUse::Default, TextId::UsedByDefault},
                               {KeyUse::User, TextId::UsedByUser},
                               {KeyUse::UserOverDefault, TextId::UsedOverDefault},
                               {KeyUse::StartMenu, TextId::UsedByStartMenu}};
  html += "<ul id=\"legend\">\n";
  for (const Entry& entry : Entries) {
    html.append("<li data-use=\"").append(NameOfUse(entry.Use));
    html += R"("><svg viewBox="0 0 60 60" aria-hidden="true"><use href="#swatch"/>)";
    if (entry.Use == KeyUse::UserOverDefault) html += R"(<use href="#corner" x="58" y="2"/>)";
    html += "</svg> ";
    AppendText(html, texts.GetLangText(entry.Text));
    html += "</li>\n";
  }
  html += "</ul>\n";
}

void AppendKeyboard(std::string& html, const Keyboard& keyboard, const KeyDrawing& drawing) {
  const std::span<const KeyShape> shapes = ShapesOfVocabulary();
  AppendSectionHead(html, keyboard, drawing);
  html += R"(<div class="board" dir="ltr"><svg viewBox="0 0)";
  html.append(1, ' ').append(std::to_string(KeyboardWidth * Quarter));
  html.append(1, ' ').append(std::to_string(KeyboardHeight * Quarter)).append("\">\n");
  AppendModifiers(html, keyboard.Held);
  for (std::size_t number = 0; number < keyboard.Keys.size(); ++number) {
    AppendKey(html, keyboard.Keys[number], number, shapes[number], drawing);
  }
  html += "</svg></div>\n</section>\n";
}

void AppendKeyAttributes(std::string& html, std::wstring_view key, KeyUse use) {
  html += " data-key=\"";
  AppendValue(html, key);
  html.append("\" data-use=\"").append(NameOfUse(use)).append(1, '"');
}

void AppendTitle(std::string& html, std::wstring_view key, std::size_t place,
                 const KeyDrawing& drawing) {
  const std::span<const KeyHolder> holders = drawing.Uses.HoldersOf(place);
  if (holders.empty()) {
    html += drawing.Frames.Free().Before;
    AppendText(html, key);
    html += drawing.Frames.Free().After;
    return;
  }
  AppendText(html, key);
  for (const KeyHolder& holder : holders) {
    const HolderFrame& frame = drawing.Frames.Of(holder.Kind);
    html.append(1, '\n').append(frame.Before);
    AppendText(html, holder.Name);
    html += frame.After;
  }
}

}  // namespace tessera
