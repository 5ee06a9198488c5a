// Drawn keyboards.
#include <gtest/gtest.h>

#include "export/KeyboardShape.h"
#include "export/KeyDrawing.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/html_reader.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::key_drawing_test {
namespace {

constexpr int Quarter = 15;

/// Where a shape or a text begins, and where the shape ends, in units of the drawing.
struct Area {
  explicit Area(const HtmlElement& element)
      : Left(NumberIn(element, "x")),
        Top(NumberIn(element, "y")),
        Right(Left + NumberIn(element, "width")),
        Bottom(Top + NumberIn(element, "height")) {}

  static int NumberIn(const HtmlElement& element, const std::string& attribute) {
    return element.Has(attribute) ? std::stoi(element.Get(attribute)) : 0;
  }

  [[nodiscard]] bool Holds(const Area& other) const {
    return other.Left > Left && other.Top > Top && other.Right < Right && other.Bottom < Bottom;
  }

  int Left, Top, Right, Bottom;
};

/// The rectangle of the shape that has the id.
Area ShapeOf(const HtmlPage& page, const std::string& id) {
  for (const HtmlElement* rectangle : page.Find("rect", "class", "s")) {
    if (page.Elements[rectangle->Parent].Get("id") == id) return Area(*rectangle);
  }
  ADD_FAILURE() << id;
  return Area({});
}

class KeyDrawingTest : public testing::Test {
 protected:
  /// The shapes and the keyboard with those modifiers.
  [[nodiscard]] std::string Html(const HeldModifiers& held = {}) const {
    const KeyUses uses(catalogue_, notation_);
    const HolderFrames frames(texts_);
    std::string html;
    AppendShapes(html, notation_);
    for (const Keyboard& keyboard : MakeKeyboards(uses, notation_)) {
      if (keyboard.Held == held) AppendKeyboard(html, keyboard, {uses, notation_, texts_, frames});
    }
    return html;
  }

  [[nodiscard]] HtmlPage Draw() const {
    HtmlPage page = ReadHtml("<!DOCTYPE html>\n<main>" + Html() + "</main>");
    EXPECT_EQ(page.Problem, "");
    return page;
  }

  CommandEntry& Edit(RowKey row) { return catalogue_.ListView1.Edit(row); }

  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
  MemoryFiles files_;
  Texts texts_{files_};
};

bool Holds(const std::string& html, std::string_view piece) {
  return html.find(piece) != std::string::npos;
}

TEST_F(KeyDrawingTest, HasAShapeForEachKeyWithItsNameOnIt) {
  const std::string html = Html();
  EXPECT_TRUE(Holds(html,
                    R"(<g id="k4"><rect class="s" x="392" y="2" width="56" height="56" rx="7"/>)"
                    R"(<text class="n" x="396" y="17">F5</text></g>)"));
}

TEST_F(KeyDrawingTest, HasTheShapesOfAModifierAsOneAndNoNamesOnOthers) {
  const std::string html = Html();
  EXPECT_TRUE(Holds(html,
                    R"(<g id="alt"><rect class="s" x="152" y="332" width="71" height="56" rx="7"/>)"
                    R"(<text class="n" x="156" y="347">Alt</text>)"
                    R"(<rect class="s" x="602" y="332" width="71" height="56" rx="7"/>)"
                    R"(<text class="n" x="606" y="347">Alt</text></g>)"))
      << html;
  EXPECT_TRUE(Holds(html, R"(<g id="ctrl"><rect)"));
  EXPECT_TRUE(Holds(html, R"(<g id="shift"><rect)"));
  const std::size_t blank = html.find(R"(<g id="blank"><rect)");
  ASSERT_NE(blank, std::string::npos);
  EXPECT_FALSE(Holds(html.substr(blank, html.find("</g>", blank) - blank), "<text"));
}

TEST_F(KeyDrawingTest, ShowsWhichModifiersAreHeld) {
  EXPECT_TRUE(Holds(Html({.Ctrl = true, .Shift = true}),
                    "<svg viewBox=\"0 0 1350 390\">\n"
                    R"(<g class="idle"><use href="#blank"/><use href="#ctrl" class="held"/>)"
                    R"(<use href="#alt"/><use href="#shift" class="held"/></g>)"));
  EXPECT_TRUE(Holds(Html({.Alt = true}), R"(<use href="#alt" class="held"/><use href="#shift"/>)"));
}

TEST_F(KeyDrawingTest, HasOnAKeyTheLinesOfItsLabel) {
  Edit(sample::Sync).CommandName = L"cm_RenameSingleFile";
  EXPECT_TRUE(Holds(Html(), R"(<use href="#k8"/><use href="#corner" x="718" y="2"/>)"
                            R"(<text x="666" y="30">Rename<tspan x="666" dy="12">Single</tspan>)"
                            R"(<tspan x="666" dy="12">File</tspan></text></g>)"));
  Edit(sample::Sync).CommandName = L"cm_RenameAllOfTheSingleFiles";
  EXPECT_TRUE(Holds(
      Html(), "AllOfThe</tspan><tspan x=\"666\" dy=\"12\">Single\xE2\x80\xA6</tspan></text>"));
}

TEST_F(KeyDrawingTest, HasRoomForMoreOnAWideKey) {
  Edit(sample::Sync).CurrentKeys = L"SPACE";
  Edit(sample::Sync).CommandName = L"cm_RenameAllOfTheSingleFiles";
  EXPECT_TRUE(Holds(Html(), R"(<text x="231" y="360">RenameAllOfTheSingleFiles</text>)"));
}

TEST_F(KeyDrawingTest, HasEachShapeOnceWithinItsPlace) {
  const HtmlPage page = Draw();
  for (std::size_t number = 0; number < KeyVocabulary().size(); ++number) {
    const KeyShape& shape = ShapesOfVocabulary()[number];
    const Area area = ShapeOf(page, "k" + std::to_string(number));
    EXPECT_GT(area.Left, shape.X * Quarter);
    EXPECT_GT(area.Top, shape.Y * Quarter);
    EXPECT_LT(area.Right, (shape.X + shape.Width) * Quarter);
    EXPECT_LT(area.Bottom, (shape.Y + shape.Height) * Quarter);
  }
}

TEST_F(KeyDrawingTest, HasNamesOnTheirKeys) {
  const HtmlPage page = Draw();
  std::size_t names = 0;
  for (const HtmlElement* text : page.Find("text")) {
    const HtmlElement& key = page.Elements[text->Parent];
    if (key.Get("class") != "key") continue;
    ++names;
    for (std::size_t number = 0; number < KeyVocabulary().size(); ++number) {
      if (key.Get("data-key") != Utf8FromWide(KeyVocabulary()[number])) continue;
      EXPECT_TRUE(ShapeOf(page, "k" + std::to_string(number)).Holds(Area(*text)));
    }
  }
  EXPECT_EQ(names, 6U) << "one on each key that somebody holds";
}

TEST_F(KeyDrawingTest, PutsACornerOnKeysOverADefaultAlone) {
  const HtmlPage page = Draw();
  const auto corners = page.Find("use", "href", "#corner");
  ASSERT_EQ(corners.size(), 1U);
  EXPECT_EQ(page.Elements[corners[0]->Parent].Get("data-key"), "F9");
  const Area shape = ShapeOf(page, "k8");
  EXPECT_EQ(Area(*corners[0]).Left, shape.Right);
  EXPECT_EQ(Area(*corners[0]).Top, shape.Top);
}

}  // namespace
}  // namespace tessera::key_drawing_test
