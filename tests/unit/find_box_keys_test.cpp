// What keys do while the find box has the focus.
#include <gtest/gtest.h>

#include "app/FindBoxKeys.h"

namespace tessera::find_box_keys_test {
namespace {

using enum FindBoxKey;

constexpr bool Pressed = true;
constexpr bool Released = false;
constexpr bool Empty = true;
constexpr bool Filled = false;

KeyPress PressIn(FocusPlace focus, KeyCode code) {
  return {.Event = {.Code = code}, .Focus = focus};
}

KeyPress InBox(KeyCode code) { return PressIn(FocusPlace::TextBox, code); }

FindBoxKey Take(const KeyPress& press, bool pressed, bool boxIsEmpty) {
  return FindBoxKeys().Take(press, pressed, boxIsEmpty);
}

KeyPress Repeated(KeyPress press) {
  press.Event.WasDown = true;
  return press;
}

TEST(FindBoxKeys, DownAndEnterGoToTheList) {
  for (const bool boxIsEmpty : {Empty, Filled}) {
    EXPECT_EQ(Take(InBox(KeyCode::Down), Pressed, boxIsEmpty), GoesToList);
    EXPECT_EQ(Take(InBox(KeyCode::Enter), Pressed, boxIsEmpty), GoesToList);
    EXPECT_EQ(Take(InBox(KeyCode::Enter), Released, boxIsEmpty), ForBox);
  }
}

TEST(FindBoxKeys, EscEmptiesTheBoxAndThenGoesToTheList) {
  EXPECT_EQ(Take(InBox(KeyCode::Escape), Pressed, Filled), EmptiesBox);
  EXPECT_EQ(Take(InBox(KeyCode::Escape), Pressed, Empty), GoesToList);
}

TEST(FindBoxKeys, AllOthersButTabAreForTheBoxAlone) {
  for (int code = 0; code < 256; ++code) {
    const KeyCode key{code};
    if (key == KeyCode::Down || key == KeyCode::Enter || key == KeyCode::Escape) continue;
    const FindBoxKey expected = key == KeyCode::Tab ? MovesFocus : ForBox;
    for (const bool pressed : {Pressed, Released}) {
      EXPECT_EQ(Take(InBox(key), pressed, Empty), expected) << code;
      EXPECT_EQ(Take(InBox(key), pressed, Filled), expected) << code;
    }
  }
}

TEST(FindBoxKeys, WithAModifierOnlyTabLeavesTheBox) {
  for (const KeyCode code : {KeyCode::Down, KeyCode::Enter, KeyCode::Escape, KeyCode::Tab}) {
    for (bool KeyEvent::*modifier :
         {&KeyEvent::CtrlHeld, &KeyEvent::AltHeld, &KeyEvent::ShiftHeld}) {
      KeyPress press = InBox(code);
      press.Event.*modifier = true;
      const FindBoxKey expected = code == KeyCode::Tab ? MovesFocus : ForBox;
      EXPECT_EQ(Take(press, Pressed, Filled), expected);
    }
  }
}

TEST(FindBoxKeys, KeysElsewhereAreNotTheirs) {
  for (const FocusPlace focus : {FocusPlace::Elsewhere, FocusPlace::CommandList,
                                 FocusPlace::Chooser, FocusPlace::Toolbar, FocusPlace::KeysList}) {
    for (const KeyCode code : {KeyCode::Enter, KeyCode::Tab, KeyCode::LetterA}) {
      EXPECT_EQ(Take(PressIn(focus, code), Pressed, Filled), IsElsewhere);
      EXPECT_EQ(Take(Repeated(PressIn(focus, code)), Pressed, Filled), IsElsewhere);
    }
  }
}

TEST(FindBoxKeys, AHeldKeyDoesNothingAfterItHasDoneItsWork) {
  for (const KeyCode code : {KeyCode::Enter, KeyCode::Escape}) {
    for (const bool boxIsEmpty : {Empty, Filled}) {
      FindBoxKeys keys;
      EXPECT_NE(keys.Take(InBox(code), Pressed, boxIsEmpty), ForBox);
      EXPECT_EQ(keys.Take(Repeated(InBox(code)), Pressed, Empty), DoesNothing);
      const KeyPress inList = PressIn(FocusPlace::CommandList, code);
      EXPECT_EQ(keys.Take(Repeated(inList), Pressed, Empty), DoesNothing);
      EXPECT_EQ(keys.Take(inList, Released, Empty), IsElsewhere);
      EXPECT_EQ(keys.Take(inList, Pressed, Empty), IsElsewhere) << "pressed once more";
      EXPECT_EQ(keys.Take(Repeated(inList), Pressed, Empty), IsElsewhere);
    }
  }
}

TEST(FindBoxKeys, HeldDownGoesOnThroughTheList) {
  FindBoxKeys keys;
  EXPECT_EQ(keys.Take(InBox(KeyCode::Down), Pressed, Filled), GoesToList);
  const KeyPress inList = PressIn(FocusPlace::CommandList, KeyCode::Down);
  EXPECT_EQ(keys.Take(Repeated(inList), Pressed, Filled), IsElsewhere);
}

}  // namespace
}  // namespace tessera::find_box_keys_test
