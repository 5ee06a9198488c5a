// Keys that turn the pages of a dialog.
#include <gtest/gtest.h>

#include "dialogs/PageKeys.h"

namespace tessera::page_keys_test {
namespace {

constexpr unsigned Tab = 9;
constexpr unsigned PageUp = 33;
constexpr unsigned PageDown = 34;

PageKey Ctrl(unsigned code) { return {.Code = code, .CtrlHeld = true}; }

PageKey CtrlShift(unsigned code) { return {.Code = code, .CtrlHeld = true, .ShiftHeld = true}; }

TEST(PageKeys, GoOnAndBackAndRound) {
  for (const PageKey& on : {Ctrl(Tab), Ctrl(PageDown)}) {
    EXPECT_EQ(PageAfterKey(on, 0, 4), 1);
    EXPECT_EQ(PageAfterKey(on, 2, 4), 3);
    EXPECT_EQ(PageAfterKey(on, 3, 4), 0);
  }
  for (const PageKey& back : {CtrlShift(Tab), Ctrl(PageUp)}) {
    EXPECT_EQ(PageAfterKey(back, 3, 4), 2);
    EXPECT_EQ(PageAfterKey(back, 0, 4), 3);
  }
}

TEST(PageKeys, OtherKeysTurnNothing) {
  EXPECT_EQ(PageAfterKey({.Code = Tab}, 0, 4), std::nullopt);
  EXPECT_EQ(PageAfterKey({.Code = PageDown}, 0, 4), std::nullopt);
  EXPECT_EQ(PageAfterKey({.Code = Tab, .ShiftHeld = true}, 0, 4), std::nullopt);
  EXPECT_EQ(PageAfterKey({.Code = Tab, .CtrlHeld = true, .AltHeld = true}, 0, 4), std::nullopt);
  EXPECT_EQ(PageAfterKey(CtrlShift(PageDown), 0, 4), std::nullopt);
  EXPECT_EQ(PageAfterKey(CtrlShift(PageUp), 0, 4), std::nullopt);
  EXPECT_EQ(PageAfterKey(Ctrl('A'), 0, 4), std::nullopt);
}

TEST(PageKeys, DialogWithoutTabsHasNothingToTurn) {
  EXPECT_EQ(PageAfterKey(Ctrl(Tab), 0, 0), std::nullopt);
}

}  // namespace
}  // namespace tessera::page_keys_test
