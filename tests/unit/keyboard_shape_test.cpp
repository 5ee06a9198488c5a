// The drawn keyboard.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "export/KeyboardShape.h"
#include "shortcuts/HotkeyNotation.h"

namespace tessera::keyboard_shape_test {
namespace {

const KeyShape& ShapeOf(std::wstring_view key) {
  return *std::ranges::find(KeyboardShape(), key, &KeyShape::Key);
}

TEST(KeyboardShape, HasEachKeyOfTheVocabularyOnce) {
  std::multiset<std::wstring_view> keys;
  for (const KeyShape& shape : KeyboardShape()) {
    EXPECT_EQ(shape.Key.empty(), shape.Kind != ShapeKind::Key);
    if (shape.Kind == ShapeKind::Key) keys.insert(shape.Key);
  }
  const auto vocabulary = KeyVocabulary();
  EXPECT_EQ(keys, (std::multiset<std::wstring_view>{vocabulary.begin(), vocabulary.end()}));
}

TEST(KeyboardShape, GivesTheKeysOfTheVocabularyInItsOrder) {
  ASSERT_EQ(ShapesOfVocabulary().size(), KeyVocabulary().size());
  for (std::size_t number = 0; number < KeyVocabulary().size(); ++number) {
    EXPECT_EQ(ShapesOfVocabulary()[number].Key, KeyVocabulary()[number]);
  }
}

TEST(KeyboardShape, LaysNoKeyOverAnotherOneOrBeyondTheEdge) {
  std::set<std::pair<int, int>> covered;
  for (const KeyShape& shape : KeyboardShape()) {
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
  EXPECT_LT(ShapeOf(L"Q").X, ShapeOf(L"P").X);
  EXPECT_EQ(ShapeOf(L"Q").Y, ShapeOf(L"P").Y);
  EXPECT_LT(ShapeOf(L"F1").Y, ShapeOf(L"1").Y);
  EXPECT_LT(ShapeOf(L"ENTER").X, ShapeOf(L"LEFT").X);
  EXPECT_LT(ShapeOf(L"RIGHT").X, ShapeOf(L"+").X);
  EXPECT_EQ(ShapeOf(L"+").Height, 8);
}

TEST(KeyboardShape, HasItsKeysInRowsThatBeginAtTheLeftEdge) {
  std::map<int, int> firstOfRow;
  for (const KeyShape& shape : KeyboardShape()) {
    const auto [row, isNew] = firstOfRow.try_emplace(shape.Y, shape.X);
    row->second = std::min(row->second, shape.X);
  }
  EXPECT_EQ(firstOfRow, (std::map<int, int>{{0, 0}, {6, 0}, {10, 0}, {14, 0}, {18, 0}, {22, 0}}));
}

TEST(KeyboardShape, HasEachModifierOnBothSides) {
  for (const ShapeKind kind : {ShapeKind::Ctrl, ShapeKind::Alt, ShapeKind::Shift}) {
    EXPECT_EQ(std::ranges::count(KeyboardShape(), kind, &KeyShape::Kind), 2);
  }
}

}  // namespace
}  // namespace tessera::keyboard_shape_test
