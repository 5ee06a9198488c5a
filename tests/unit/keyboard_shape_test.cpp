// The drawn keyboard.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "export/KeyboardShape.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera::keyboard_shape_test {
namespace {

const KeyShape& ShapeOf(const std::vector<KeyShape>& shapes, std::wstring_view key) {
  return *std::ranges::find(shapes, key, &KeyShape::Key);
}

TEST(KeyboardShape, HasEachKeyOfTheVocabularyOnce) {
  std::multiset<std::wstring_view> keys;
  for (const KeyShape& shape : MakeKeyboardShape()) {
    EXPECT_EQ(shape.Key.empty(), shape.Kind != ShapeKind::Key);
    if (shape.Kind == ShapeKind::Key) keys.insert(shape.Key);
  }
  const auto vocabulary = KeyVocabulary();
  EXPECT_EQ(keys, (std::multiset<std::wstring_view>{vocabulary.begin(), vocabulary.end()}));
}

TEST(KeyboardShape, LaysNoKeyOverAnotherOneOrBeyondTheEdge) {
  std::set<std::pair<int, int>> covered;
  for (const KeyShape& shape : MakeKeyboardShape()) {
    EXPECT_GT(shape.Width * shape.Height, 0);
    EXPECT_TRUE(shape.X >= 0 && shape.X + shape.Width <= KeyboardWidth);
    EXPECT_TRUE(shape.Y >= 0 && shape.Y + shape.Height <= KeyboardHeight);
    for (int x = shape.X; x < shape.X + shape.Width; ++x) {
      for (int y = shape.Y; y < shape.Y + shape.Height; ++y) {
        EXPECT_TRUE(covered.insert({x, y}).second) << shape.X << " " << shape.Y;
      }
    }
  }
}

TEST(KeyboardShape, LiesAsOnAnEnglishKeyboard) {
  const std::vector<KeyShape> shapes = MakeKeyboardShape();
  EXPECT_LT(ShapeOf(shapes, L"Q").X, ShapeOf(shapes, L"P").X);
  EXPECT_EQ(ShapeOf(shapes, L"Q").Y, ShapeOf(shapes, L"P").Y);
  EXPECT_LT(ShapeOf(shapes, L"F1").Y, ShapeOf(shapes, L"1").Y);
  EXPECT_LT(ShapeOf(shapes, L"ENTER").X, ShapeOf(shapes, L"LEFT").X);
  EXPECT_LT(ShapeOf(shapes, L"RIGHT").X, ShapeOf(shapes, L"+").X);
  EXPECT_EQ(ShapeOf(shapes, L"+").Height, 8);
}

TEST(KeyboardShape, HasEachModifierOnBothSides) {
  for (const ShapeKind kind : {ShapeKind::Ctrl, ShapeKind::Alt, ShapeKind::Shift}) {
    const auto shapes = MakeKeyboardShape();
    EXPECT_EQ(std::ranges::count(shapes, kind, &KeyShape::Kind), 2);
  }
}

}  // namespace
}  // namespace tessera::keyboard_shape_test
