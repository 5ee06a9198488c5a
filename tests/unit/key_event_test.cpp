// Keys as a keyboard sends them, one after the other: what the panel then holds.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "editing/HotkeyPanel.h"
#include "editing/KeyEvent.h"
#include "editing/PressedKey.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::key_event_test {
namespace {

using Focus = Reaction::Focus;
using enum KeyCode;

constexpr KeyCode F7{118};
constexpr KeyCode F8{119};
constexpr KeyCode LetterQ{'Q'};
constexpr std::array Modifiers{Ctrl, Alt, Shift};

class KeyEventTest : public testing::Test {
 protected:
  KeyEventTest() {
    list_.ShowRowDetails(sample::Pack);
    panel_.ResetPanel();
  }

  KeyEvent EventOf(KeyCode code) const {
    return {.Code = code,
            .CtrlHeld = held_.contains(Ctrl),
            .AltHeld = held_.contains(Alt),
            .ShiftHeld = held_.contains(Shift)};
  }

  /// Pressed again while it is held, a key repeats.
  Reaction Down(KeyCode code) {
    const bool wasDown = !held_.insert(code).second;
    KeyEvent event = EventOf(code);
    event.WasDown = wasDown;
    event.Chooses = KeyChosenBy({.Event = event, .Extended = true, .Focus = focus_},
                                settings_.UseContextMenuKey != 0, L"FVHCAS");
    const Reaction reaction = panel_.KeyDown(event);
    if (reaction.FocusTo == Focus::Chooser) focus_ = FocusPlace::Chooser;
    if (reaction.FocusTo == Focus::CommandList) focus_ = FocusPlace::CommandList;
    return reaction;
  }

  Reaction Up(KeyCode code) {
    held_.erase(code);
    const Reaction reaction = panel_.KeyUp(EventOf(code));
    timerRuns_ |= reaction.StartTimer;
    return reaction;
  }

  void Tick() {
    if (std::exchange(timerRuns_, false)) panel_.TimerTick();
  }

  Reaction Tap(KeyCode code) {
    const Reaction reaction = Down(code);
    Up(code);
    return reaction;
  }

  /// Presses the keys in that order, and releases them in the reverse one.
  void Press(std::vector<KeyCode> keys) {
    for (const KeyCode key : keys) Down(key);
    for (const KeyCode key : std::vector(keys.rbegin(), keys.rend())) Up(key);
  }

  std::wstring Composed() const { return panel_.ComposeKey(); }

  Settings settings_;
  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
  CommandList list_{catalogue_, settings_};
  MemoryFiles files_;
  Texts texts_{files_};
  FakeMessageBoxes messageBoxes_;
  HotkeyAssignment assignment_{catalogue_, notation_, texts_, messageBoxes_};
  HotkeyPanel panel_{catalogue_, list_, assignment_, notation_, settings_, messageBoxes_};
  std::set<KeyCode> held_;
  FocusPlace focus_ = FocusPlace::CommandList;
  bool timerRuns_ = false;
};

TEST_F(KeyEventTest, APressedKeyIsChosenAndGoesNoFurther) {
  const Reaction reaction = Tap(F7);
  EXPECT_TRUE(reaction.Handled);
  EXPECT_TRUE(reaction.FollowChooser);
  EXPECT_EQ(reaction.FocusTo, Focus::Unchanged);
  EXPECT_EQ(Composed(), L"F7");
  EXPECT_FALSE(Tap(LetterQ).Handled) << "it is the list's";
  EXPECT_EQ(Composed(), L"F7");
}

TEST_F(KeyEventTest, ThePanelActsBeforeTheKeyIsChosen) {
  held_.insert(Ctrl);  // pressed before the window was there
  EXPECT_EQ(Down(F7).FocusTo, Focus::Chooser);
  EXPECT_EQ(Composed(), L"Ctrl + F7");
}

TEST_F(KeyEventTest, NothingIsChosenOnAHeadingRow) {
  list_.ShowRowDetails(sample::Heading);
  EXPECT_FALSE(Tap(F7).Handled);
  EXPECT_EQ(panel_.ChosenKey(), NoKeyChosen);
}

TEST_F(KeyEventTest, AKeyThatThePanelUsesIsNotChosen) {
  panel_.KeyDown({.Code = Delete, .Chooses = 3});
  EXPECT_EQ(panel_.ChosenKey(), NoKeyChosen);
}

TEST_F(KeyEventTest, CombinationsOneAfterTheOtherAreComposedExactly) {
  Press({Ctrl, F7});
  EXPECT_EQ(Composed(), L"Ctrl + F7");
  Press({Ctrl, F8});
  EXPECT_EQ(Composed(), L"Ctrl + F8");
  Press({Shift, Ctrl, LetterQ});
  EXPECT_EQ(Composed(), L"Ctrl + Shift + Q");
  Press({Ctrl, F7});
  EXPECT_EQ(Composed(), L"Ctrl + F7");
}

TEST_F(KeyEventTest, TheNextModifierLeavesTheChosenKey) {
  Press({Ctrl, F7});
  EXPECT_EQ(Down(Shift).FocusTo, Focus::Chooser);
  EXPECT_EQ(Composed(), L"Shift + F7");
}

TEST_F(KeyEventTest, ModifiersByThemselvesToggleAsBefore) {
  Tap(Ctrl);
  Tap(Shift);
  EXPECT_EQ(Composed(), L"Ctrl + Shift + ");
  Tap(Ctrl);
  EXPECT_EQ(Composed(), L"Shift + ");
  Tap(F7);
  EXPECT_EQ(Composed(), L"Shift + F7");
  Tap(Ctrl);
  EXPECT_EQ(Composed(), L"Ctrl + Shift + F7") << "F7 was pressed without a modifier";
}

TEST_F(KeyEventTest, AfterTheNextPressModifiersToggleAgain) {
  Press({Ctrl, F7});
  Tap(Ctrl);
  EXPECT_EQ(Composed(), L"Ctrl + F7");
  Tap(Ctrl);
  EXPECT_EQ(Composed(), L"F7");
}

TEST_F(KeyEventTest, AKeyWithoutAModifierKeepsTheBoxes) {
  Press({Ctrl, F7});
  Tap(F8);
  EXPECT_EQ(Composed(), L"Ctrl + F8");
  Press({Ctrl, F7});
  EXPECT_EQ(Composed(), L"Ctrl + F7");
}

TEST_F(KeyEventTest, AModifierThatIsAddedWhileAnotherIsHeldDoesNotBeginAnew) {
  Down(Ctrl);
  Tap(F7);
  Down(Shift);
  Tap(F8);
  EXPECT_EQ(Composed(), L"Ctrl + Shift + F8");
}

TEST_F(KeyEventTest, ASecondCtrlKeyWhileTheFirstIsHeldDoesNotBeginAnew) {
  Down(Shift);
  Up(Shift);
  Down(Ctrl);
  Tap(F7);
  panel_.KeyDown({.Code = Ctrl, .CtrlHeld = true, .WasDown = true});
  EXPECT_EQ(Composed(), L"Ctrl + Shift + F7");
}

TEST_F(KeyEventTest, AModifierReleasedElsewhereDoesNoHarm) {
  Down(Ctrl);
  Tap(F7);
  held_.clear();
  Press({Ctrl, F8});
  EXPECT_EQ(Composed(), L"Ctrl + F8");
  Down(Ctrl);
  held_.clear();
  Press({Shift, F8});
  EXPECT_EQ(Composed(), L"Ctrl + Shift + F8") << "by itself, and then another, as before";
}

TEST_F(KeyEventTest, EnterWhileTheModifierIsStillHeldDoesNotSpoilTheNextOne) {
  Down(Ctrl);
  Tap(F7);
  Tap(Enter);
  Up(Ctrl);
  EXPECT_EQ(catalogue_.ListView1.Row(sample::Pack).CurrentKeys, L"Ctrl + F7");
  Press({Ctrl, F8});
  EXPECT_EQ(Composed(), L"Ctrl + F8");
}

TEST_F(KeyEventTest, BoxesThatAreTickedAfterAResetStay) {
  for (const KeyCode reset : {Escape, Backspace, Enter}) {
    Press({Ctrl, F7});
    Tap(reset);
    panel_.SetBox(Modifier::Shift, true);
    Press({Ctrl, F8});
    EXPECT_EQ(Composed(), L"Ctrl + Shift + F8");
    Tap(Escape);
  }
}

TEST_F(KeyEventTest, AKeyThatRepeatsChangesNothing) {
  Down(Ctrl);
  Down(LetterQ);
  EXPECT_TRUE(Down(LetterQ).Handled);
  Up(Ctrl);
  panel_.ChooseKey(0);
  EXPECT_TRUE(Down(LetterQ).Handled) << "without its modifier too";
  EXPECT_EQ(Composed(), L"Ctrl + F1");
  Up(LetterQ);
  EXPECT_FALSE(Down(LetterQ).Handled) << "a new press, which is the chooser's";
}

TEST_F(KeyEventTest, AKeyThatIsHeldSinceItsPressWasNotTakenIsNotChosen) {
  list_.ShowRowDetails(sample::Heading);
  Down(F7);
  list_.ShowRowDetails(sample::Pack);
  EXPECT_FALSE(Down(F7).Handled);
  EXPECT_EQ(panel_.ChosenKey(), NoKeyChosen);
}

TEST_F(KeyEventTest, AltShowsAfterItsTimerAndItsReleaseOpensNoMenu) {
  Down(Alt);
  Tap(F7);
  EXPECT_EQ(Composed(), L"F7");
  const Reaction reaction = Up(Alt);
  EXPECT_TRUE(reaction.StartTimer);
  EXPECT_TRUE(reaction.Handled);
  Tick();
  EXPECT_EQ(Composed(), L"Alt + F7");
}

TEST_F(KeyEventTest, AltByItselfStillReachesTheMenuBar) {
  Press({Alt, F7});
  Down(Alt);
  EXPECT_FALSE(Up(Alt).Handled);
}

TEST_F(KeyEventTest, AltThatWasReleasedElsewhereDoesNotKeepTheNextOneFromTheMenuBar) {
  Down(Alt);
  Tap(F7);
  held_.clear();
  Down(Alt);
  EXPECT_FALSE(Up(Alt).Handled);
}

TEST_F(KeyEventTest, AltThatRepeatsStillOpensNoMenu) {
  Down(Alt);
  Tap(F7);
  Down(Alt);
  EXPECT_TRUE(Up(Alt).Handled);
}

TEST_F(KeyEventTest, ATickThatIsStillToComeDoesNotTouchTheNextCombination) {
  Press({Alt, F7});
  Press({Ctrl, F8});
  Tick();
  EXPECT_EQ(Composed(), L"Ctrl + F8");
  Press({Alt, F7});
  Press({Alt, F8});
  Tick();
  EXPECT_EQ(Composed(), L"Alt + F8");
}

TEST_F(KeyEventTest, EnterBeforeTheTickAssignsWithAlt) {
  Press({Alt, F7});
  Tap(Enter);
  Tick();
  EXPECT_EQ(catalogue_.ListView1.Row(sample::Pack).CurrentKeys, L"Alt + F7");
  EXPECT_EQ(Composed(), L"---");
  Tap(Alt);
  Tick();
  EXPECT_EQ(Composed(), L"Alt + ");
}

TEST_F(KeyEventTest, WithTheOptionTheContextMenuKeyBeginsAnewToo) {
  settings_.UseContextMenuKey = 1;
  panel_.ResetPanel();
  Press({Ctrl, F7});
  Tap(ContextMenu);
  EXPECT_EQ(Composed(), L"Alt + F7");
  Press({Ctrl, F8});
  EXPECT_EQ(Composed(), L"Ctrl + Alt + F8") << "the boxes of keys pressed by themselves stay";
  Tap(Alt);
  EXPECT_EQ(Composed(), L"Ctrl + Alt + F8") << "Alt is not the panel's";
}

TEST_F(KeyEventTest, EveryCombinationTwiceInRandomOrder) {
  struct Combination {
    int Key;
    std::vector<KeyCode> Modifiers;
    KeyCode Code;
  };
  std::vector<Combination> all;
  for (int set = 0; set < 8; ++set) {
    std::vector<KeyCode> modifiers;
    for (int bit = 0; bit < 3; ++bit) {
      if ((set >> bit & 1) != 0) modifiers.push_back(Modifiers.at(static_cast<std::size_t>(bit)));
    }
    for (int code = 0; code < 256; ++code) {
      const KeyEvent event{.Code = KeyCode{code},
                           .CtrlHeld = (set & 1) != 0,
                           .AltHeld = (set & 2) != 0,
                           .ShiftHeld = (set & 4) != 0};
      const int key = KeyChosenBy({.Event = event, .Extended = true, .Focus = FocusPlace::Chooser},
                                  false, L"FVHCAS");
      if (key != NoKeyChosen) all.insert(all.end(), 2, {key, modifiers, KeyCode{code}});
    }
  }
  EXPECT_GT(all.size(), 800U);
  std::mt19937 random(15);
  for (int round = 0; round < 10; ++round) {
    std::shuffle(all.begin(), all.end(), random);
    for (Combination& each : all) {
      if (each.Modifiers.empty()) Tap(Escape);
      focus_ = FocusPlace::Chooser;
      std::shuffle(each.Modifiers.begin(), each.Modifiers.end(), random);
      for (const KeyCode modifier : each.Modifiers) Down(modifier);
      if (random() % 4 == 0 && !each.Modifiers.empty()) Down(each.Modifiers.back());
      EXPECT_TRUE(Down(each.Code).Handled);
      std::vector<KeyCode> releases = each.Modifiers;
      releases.push_back(each.Code);
      std::shuffle(releases.begin(), releases.end(), random);
      for (const KeyCode key : releases) Up(key);
      if (random() % 2 == 0) Tick();  // else it is still to come
      if (timerRuns_) Down(KeyCode{200});
      held_.clear();
      const auto has = [&](KeyCode modifier) {
        return std::ranges::find(each.Modifiers, modifier) != each.Modifiers.end();
      };
      std::wstring expected;
      if (has(Ctrl)) expected += L"Ctrl + ";
      if (has(Alt)) expected += L"Alt + ";
      if (has(Shift)) expected += L"Shift + ";
      expected += WithNum(KeyVocabulary()[static_cast<std::size_t>(each.Key)]);
      ASSERT_EQ(Composed(), expected);
    }
  }
}

}  // namespace
}  // namespace tessera::key_event_test
