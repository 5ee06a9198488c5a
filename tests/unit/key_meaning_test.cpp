// Whom a key is for.
#include <gtest/gtest.h>

#include "app/KeyMeaning.h"

namespace tessera::key_meaning_test {
namespace {

constexpr KeyPress Elsewhere{.Focus = FocusPlace::Elsewhere};
constexpr KeyPress Closed{.Focus = FocusPlace::Chooser, .ChooserOpen = false};
constexpr KeyPress Open{.Focus = FocusPlace::Chooser, .ChooserOpen = true};

/// Of a key at one of these places.
KeyMeaning MeaningOf(KeyCode code, bool pressed, KeyPress place) {
  place.Event.Code = code;
  return MeaningOf(place, pressed);
}

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

KeyPress PressIn(FocusPlace focus, KeyCode code) {
  return {.Event = {.Code = code}, .Focus = focus};
}

TEST(KeyMeaning, F1InTheCommandListOpensTheHelp) {
  const KeyPress press = PressIn(FocusPlace::CommandList, KeyCode::F1);
  EXPECT_EQ(MeaningOf(press, true), KeyMeaning::OpensHelp);
  EXPECT_EQ(MeaningOf(press, false), KeyMeaning::ForPanel);
  for (const FocusPlace focus : {FocusPlace::Chooser, FocusPlace::Toolbar, FocusPlace::Elsewhere}) {
    EXPECT_EQ(MeaningOf(PressIn(focus, KeyCode::F1), true), KeyMeaning::ForPanel);
  }
}

TEST(KeyMeaning, DownOnAToolbarOpensTheMenuOfItsButton) {
  const KeyPress press = PressIn(FocusPlace::Toolbar, KeyCode::Down);
  EXPECT_EQ(MeaningOf(press, true), KeyMeaning::OpensButtonMenu);
  EXPECT_EQ(MeaningOf(press, false), KeyMeaning::ForPanel);
  EXPECT_EQ(MeaningOf(PressIn(FocusPlace::CommandList, KeyCode::Down), true), KeyMeaning::ForPanel);
}

TEST(KeyMeaning, NothingOpensByAKeyThatRepeatsOrWithAModifier) {
  for (KeyPress press : {PressIn(FocusPlace::CommandList, KeyCode::F1),
                         PressIn(FocusPlace::Toolbar, KeyCode::Down)}) {
    press.Event.WasDown = true;
    EXPECT_EQ(MeaningOf(press, true), KeyMeaning::ForPanel);
    press.Event.WasDown = false;
    press.Event.ShiftHeld = true;
    EXPECT_EQ(MeaningOf(press, true), KeyMeaning::ForPanel);
  }
}

TEST(KeyMeaning, EveryKeyInATextBoxIsForIt) {
  for (int code = 0; code < 256; ++code) {
    for (const bool pressed : {true, false}) {
      EXPECT_EQ(MeaningOf(PressIn(FocusPlace::TextBox, KeyCode{code}), pressed),
                KeyMeaning::ForControl);
    }
  }
}

TEST(KeyMeaning, EnterByItselfPressesTheFocusedButtonOnce) {
  KeyEvent event{.Code = KeyCode::Enter};
  EXPECT_TRUE(PressesFocusedButton(event));
  event.WasDown = true;
  EXPECT_FALSE(PressesFocusedButton(event));
  EXPECT_FALSE(PressesFocusedButton({.Code = KeyCode::Enter, .AltHeld = true}));
  EXPECT_FALSE(PressesFocusedButton({.Code = KeyCode::Space}));
}

}  // namespace

}  // namespace tessera::key_meaning_test
