// Whom a key is for.
#include <gtest/gtest.h>

#include "app/KeyMeaning.h"

namespace tessera::key_meaning_test {
namespace {

constexpr ChooserState Elsewhere{};
constexpr ChooserState Closed{.HasFocus = true, .Open = false};
constexpr ChooserState Open{.HasFocus = true, .Open = true};

TEST(KeyMeaning, RightInTheClosedChooserOpensTheKeysList) {
  EXPECT_EQ(MeaningOf(KeyCode::Right, true, Closed), KeyMeaning::OpensKeysList);
  EXPECT_EQ(MeaningOf(KeyCode::Right, false, Closed), KeyMeaning::ForPanel);
  EXPECT_EQ(MeaningOf(KeyCode::Right, true, Open), KeyMeaning::ForPanel);
  EXPECT_EQ(MeaningOf(KeyCode::Right, true, Elsewhere), KeyMeaning::ForPanel);
}

TEST(KeyMeaning, EnterAndEscapeOnlyCloseTheOpenChooser) {
  for (const KeyCode code : {KeyCode::Enter, KeyCode::Escape}) {
    for (const bool pressed : {true, false}) {
      EXPECT_EQ(MeaningOf(code, pressed, Open), KeyMeaning::ForControl);
      EXPECT_EQ(MeaningOf(code, pressed, Closed), KeyMeaning::ForPanel);
      EXPECT_EQ(MeaningOf(code, pressed, Elsewhere), KeyMeaning::ForPanel);
    }
  }
}

TEST(KeyMeaning, EveryOtherKeyIsForThePanel) {
  EXPECT_EQ(MeaningOf(KeyCode::Delete, true, Open), KeyMeaning::ForPanel);
  EXPECT_EQ(MeaningOf(KeyCode::Space, true, Closed), KeyMeaning::ForPanel);
}

}  // namespace

}  // namespace tessera::key_meaning_test
