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
  /// The shapes and the keyboard without modifiers.
  [[nodiscard]] HtmlPage Draw() const {
    const KeyUses uses(catalogue_, notation_);
    const HolderFrames frames(texts_);
    std::string html = "<!DOCTYPE html>\n<main>";
    AppendShapes(html, notation_);
    AppendKeyboard(html, MakeKeyboards(uses, notation_).front(), {uses, notation_, texts_, frames});
    HtmlPage page = ReadHtml(html + "</main>");
    EXPECT_EQ(page.Problem, "");
    return page;
  }

  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
  MemoryFiles files_;
  Texts texts_{files_};
};

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
