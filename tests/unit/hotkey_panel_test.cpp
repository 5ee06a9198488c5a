#include <gtest/gtest.h>

#include "editing/HotkeyPanel.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::hotkey_panel_test {
namespace {

using namespace sample;
using Focus = Reaction::Focus;

constexpr KeyEvent CtrlPressed{.Code = KeyCode::Ctrl, .CtrlHeld = true};
constexpr KeyEvent CtrlReleased{.Code = KeyCode::Ctrl};
constexpr KeyEvent AltPressed{.Code = KeyCode::Alt, .AltHeld = true};
constexpr KeyEvent AltReleased{.Code = KeyCode::Alt};
constexpr KeyEvent ShiftPressed{.Code = KeyCode::Shift, .ShiftHeld = true};
constexpr KeyEvent ShiftReleased{.Code = KeyCode::Shift};
constexpr KeyEvent ContextMenu{.Code = KeyCode::ContextMenu};

class HotkeyPanelTest : public testing::Test {
 protected:
  HotkeyPanelTest() {
    list_.ShowRowDetails(Pack);
    panel_.ResetPanel();
  }

  const CommandEntry& Row(RowKey key) const { return catalogue_.ListView1.Row(key); }

  static int IndexOf(std::wstring_view key) {
    const auto keys = KeyVocabulary();
    return static_cast<int>(std::find(keys.begin(), keys.end(), key) - keys.begin());
  }

  Settings settings_;
  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
  CommandList list_{catalogue_, settings_};
  MemoryFiles files_;
  Texts texts_{files_};
  FakeMessageBoxes messageBoxes_;
  HotkeyAssignment assignment_{catalogue_, notation_, texts_, messageBoxes_};
  HotkeyPanel panel_{catalogue_, list_, assignment_, notation_, settings_, messageBoxes_};
};

TEST_F(HotkeyPanelTest, ComposesModifiersInFixedOrderBeforeTheKey) {
  panel_.ChooseKey(IndexOf(L"F5"));
  EXPECT_EQ(panel_.ComposeKey(), L"F5");
  panel_.SetBox(Modifier::Shift, true);
  panel_.SetBox(Modifier::Ctrl, true);
  panel_.SetBox(Modifier::Alt, true);
  EXPECT_EQ(panel_.ComposeKey(), L"Ctrl + Alt + Shift + F5");
  notation_.ReverseOrderHotkey = true;
  EXPECT_EQ(panel_.ComposeKey(), L"F5 + Ctrl + Alt + Shift");
}

TEST_F(HotkeyPanelTest, ComposesKeypadOperatorsWithNum) {
  for (const wchar_t* key : {L"+", L"-", L"*", L"/"}) {
    panel_.ChooseKey(IndexOf(key));
    EXPECT_EQ(panel_.ComposeKey(), std::wstring(L"Num ") + key);
  }
}

TEST_F(HotkeyPanelTest, ComposesTheUndefinedMarkerFromNothing) {
  EXPECT_EQ(panel_.ComposeKey(), L"---");
}

TEST_F(HotkeyPanelTest, AnIndexOutsideTheVocabularyChoosesNoKey) {
  for (const int index : {-1, -2, 67, 1000}) {
    panel_.ChooseKey(0);
    panel_.ChooseKey(index);
    EXPECT_EQ(panel_.ChosenKey(), NoKeyChosen) << index;
  }
}

TEST_F(HotkeyPanelTest, IsDisabledForAHeadingRowAndForNoRow) {
  panel_.ChooseKey(0);
  for (const RowKey row : {Heading, RowKey{0}}) {
    list_.ShowRowDetails(row);
    EXPECT_FALSE(panel_.InputsEnabled());
    EXPECT_FALSE(panel_.AssignEnabled());
    EXPECT_FALSE(panel_.DeleteEnabled());
    EXPECT_FALSE(panel_.AddEnabled());
  }
  list_.ShowRowDetails(Pack);
  EXPECT_TRUE(panel_.InputsEnabled());
  EXPECT_TRUE(panel_.AssignEnabled());
  EXPECT_TRUE(panel_.DeleteEnabled());
}

TEST_F(HotkeyPanelTest, AssignNeedsAChosenKey) {
  EXPECT_FALSE(panel_.AssignEnabled());
  EXPECT_FALSE(panel_.Assign().Changed);
  EXPECT_EQ(messageBoxes_.BeepCount, 1);
  EXPECT_EQ(Row(Pack).CurrentKeys, L"---");
  panel_.ChooseKey(IndexOf(L"X"));
  EXPECT_TRUE(panel_.Assign().Changed);
  EXPECT_EQ(Row(Pack).CurrentKeys, L"X");
}

TEST_F(HotkeyPanelTest, AssigningTheSameKeyAgainBeeps) {
  panel_.ChooseKey(IndexOf(L"F6"));
  list_.ShowRowDetails(View);
  EXPECT_FALSE(panel_.Assign().Changed);
  EXPECT_EQ(messageBoxes_.BeepCount, 1);
}

TEST_F(HotkeyPanelTest, AddNeedsAFirstKeyAndAChosenOne) {
  panel_.ChooseKey(IndexOf(L"X"));
  EXPECT_FALSE(panel_.AddEnabled());
  EXPECT_FALSE(panel_.Add().Changed);
  EXPECT_EQ(Row(Pack).CurrentKeys, L"---");
  list_.ShowRowDetails(View);
  EXPECT_TRUE(panel_.AddEnabled());
  EXPECT_TRUE(panel_.Add().Changed);
  EXPECT_EQ(Row(View).CurrentKeys, L"F6 = X");
  panel_.ChooseKey(NoKeyChosen);
  EXPECT_FALSE(panel_.Add().Changed);
  EXPECT_EQ(messageBoxes_.BeepCount, 2);
}

TEST_F(HotkeyPanelTest, DeleteOnAHeadingRowBeeps) {
  list_.ShowRowDetails(Heading);
  EXPECT_FALSE(panel_.Delete().Changed);
  EXPECT_EQ(messageBoxes_.BeepCount, 1);
}

TEST_F(HotkeyPanelTest, DeleteAllKeepsTheSelectedRow) {
  list_.ShowRowDetails(View);
  messageBoxes_.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(panel_.DeleteAll().Changed);
  EXPECT_EQ(list_.SelectedRow(), View);
}

TEST_F(HotkeyPanelTest, EachPressOfCtrlOrShiftTogglesItsBox) {
  const struct {
    KeyEvent Pressed, Released;
    Modifier Box;
  } cases[] = {{CtrlPressed, CtrlReleased, Modifier::Ctrl},
               {ShiftPressed, ShiftReleased, Modifier::Shift}};
  for (const auto& [pressed, released, box] : cases) {
    for (const bool checked : {true, false, true}) {
      EXPECT_EQ(panel_.KeyDown(pressed).FocusTo, Focus::Chooser);
      EXPECT_EQ(panel_.BoxChecked(box), checked);
      panel_.KeyDown(pressed);  // a key that is held repeats
      EXPECT_EQ(panel_.BoxChecked(box), checked);
      panel_.KeyUp(released);
      EXPECT_EQ(panel_.BoxChecked(box), checked);
    }
  }
}

TEST_F(HotkeyPanelTest, AltTogglesItsBoxAfterTheTimerOfItsRelease) {
  for (const bool checked : {true, false, true}) {
    panel_.KeyDown(AltPressed);
    EXPECT_EQ(panel_.BoxChecked(Modifier::Alt), !checked);
    EXPECT_TRUE(panel_.KeyUp(AltReleased).StartTimer);
    EXPECT_EQ(panel_.BoxChecked(Modifier::Alt), !checked);
    EXPECT_EQ(panel_.TimerTick().FocusTo, Focus::Chooser);
    EXPECT_EQ(panel_.BoxChecked(Modifier::Alt), checked);
  }
}

TEST_F(HotkeyPanelTest, TheContextMenuKeyDoesNothingUnlessItReplacesAlt) {
  EXPECT_EQ(panel_.KeyDown(ContextMenu).FocusTo, Focus::Unchanged);
  panel_.KeyUp(ContextMenu);
  EXPECT_FALSE(panel_.BoxChecked(Modifier::Alt));
}

TEST_F(HotkeyPanelTest, WithTheOptionTheContextMenuKeyTogglesTheAltBoxAndAltDoesNot) {
  settings_.UseContextMenuKey = 1;
  panel_.ResetPanel();
  EXPECT_EQ(panel_.KeyDown(AltPressed).FocusTo, Focus::Unchanged);
  EXPECT_FALSE(panel_.KeyUp(AltReleased).StartTimer);
  EXPECT_FALSE(panel_.BoxChecked(Modifier::Alt));
  EXPECT_EQ(static_cast<int>(ContextMenu.Code), 93) << "the system's code of that key";
  for (const bool checked : {true, false, true}) {
    EXPECT_EQ(panel_.KeyDown(ContextMenu).FocusTo, Focus::Chooser);
    EXPECT_EQ(panel_.BoxChecked(Modifier::Alt), checked);
    panel_.KeyUp(ContextMenu);
  }
}

TEST_F(HotkeyPanelTest, TheContextMenuKeyIsAltForCommandsAndWithTheOptionOnly) {
  EXPECT_FALSE(panel_.ContextMenuKeyIsAlt());
  settings_.UseContextMenuKey = 1;
  EXPECT_TRUE(panel_.ContextMenuKeyIsAlt());
  list_.ShowRowDetails(Heading);
  EXPECT_FALSE(panel_.ContextMenuKeyIsAlt());
}

TEST_F(HotkeyPanelTest, WithoutTheOptionTheContextMenuKeyIsLeftToTheControlAndToNoToggle) {
  EXPECT_FALSE(panel_.KeyDown(ContextMenu).Handled);
  EXPECT_FALSE(panel_.KeyUp(ContextMenu).Handled);
  panel_.KeyDown(AltPressed);
  panel_.KeyUp(AltReleased);
  panel_.TimerTick();
  EXPECT_TRUE(panel_.BoxChecked(Modifier::Alt));
}

TEST_F(HotkeyPanelTest, KeysThatThePanelUsesDoNotReachTheControl) {
  EXPECT_TRUE(panel_.KeyDown({.Code = KeyCode::Delete, .AltHeld = true}).Handled);
  EXPECT_FALSE(panel_.KeyDown(AltPressed).Handled);
  settings_.UseContextMenuKey = 1;
  EXPECT_TRUE(panel_.KeyDown(ContextMenu).Handled);
  EXPECT_TRUE(panel_.KeyUp(ContextMenu).Handled);
}

TEST_F(HotkeyPanelTest, EnterAssignsTheChosenKeyAndResetsThePanel) {
  panel_.KeyDown(CtrlPressed);
  panel_.KeyUp(CtrlReleased);
  panel_.ChooseKey(IndexOf(L"X"));
  const Reaction reaction = panel_.KeyDown({.Code = KeyCode::Enter});
  EXPECT_TRUE(reaction.Changed);
  EXPECT_TRUE(reaction.Handled);
  EXPECT_EQ(reaction.FocusTo, Focus::CommandList);
  EXPECT_EQ(Row(Pack).CurrentKeys, L"Ctrl + X");
  EXPECT_FALSE(panel_.BoxChecked(Modifier::Ctrl));
  EXPECT_EQ(panel_.ChosenKey(), NoKeyChosen);
}

TEST_F(HotkeyPanelTest, EnterWithoutAChosenKeyDoesNothing) {
  const Reaction reaction = panel_.KeyDown({.Code = KeyCode::Enter});
  EXPECT_FALSE(reaction.Handled);
  EXPECT_EQ(messageBoxes_.BeepCount, 0);
}

TEST_F(HotkeyPanelTest, BackspaceAndEscapeResetThePanel) {
  for (const KeyCode code : {KeyCode::Backspace, KeyCode::Escape}) {
    panel_.KeyDown(ShiftPressed);
    panel_.ChooseKey(3);
    EXPECT_EQ(panel_.KeyDown({.Code = code}).FocusTo, Focus::CommandList);
    EXPECT_FALSE(panel_.BoxChecked(Modifier::Shift));
    EXPECT_EQ(panel_.ChosenKey(), NoKeyChosen);
    panel_.KeyDown(ShiftPressed);
    EXPECT_TRUE(panel_.BoxChecked(Modifier::Shift)) << "the toggles start anew";
    panel_.ResetPanel();
  }
}

TEST_F(HotkeyPanelTest, DeleteTakesTheKeysAway) {
  list_.ShowRowDetails(View);
  const Reaction reaction = panel_.KeyDown({.Code = KeyCode::Delete});
  EXPECT_TRUE(reaction.Changed);
  EXPECT_EQ(Row(View).CurrentKeys, L"---");
  EXPECT_FALSE(panel_.KeyDown({.Code = KeyCode::Delete}).Changed);
}

TEST_F(HotkeyPanelTest, NoKeyDoesAnythingOnAHeadingRow) {
  list_.ShowRowDetails(Heading);
  panel_.ChooseKey(3);
  for (const KeyEvent& event :
       {CtrlPressed, AltPressed, ShiftPressed, KeyEvent{.Code = KeyCode::Enter},
        KeyEvent{.Code = KeyCode::Delete}, KeyEvent{.Code = KeyCode::Escape}}) {
    const Reaction reaction = panel_.KeyDown(event);
    EXPECT_FALSE(reaction.Handled);
    EXPECT_FALSE(reaction.Changed);
    EXPECT_EQ(reaction.FocusTo, Focus::Unchanged);
  }
  EXPECT_FALSE(panel_.KeyUp(AltReleased).StartTimer);
  EXPECT_FALSE(panel_.BoxChecked(Modifier::Ctrl) || panel_.BoxChecked(Modifier::Alt) ||
               panel_.BoxChecked(Modifier::Shift));
  EXPECT_EQ(panel_.ChosenKey(), 3);
  EXPECT_EQ(messageBoxes_.BeepCount, 0);
}

TEST_F(HotkeyPanelTest, NoKeyDoesAnythingWhereASearchFoundNothing) {
  panel_.ChooseKey(3);
  list_.Search(L"is nowhere");
  EXPECT_FALSE(panel_.InputsEnabled() || panel_.AssignEnabled() || panel_.AddEnabled() ||
               panel_.DeleteEnabled());
  for (const KeyEvent& event :
       {CtrlPressed, KeyEvent{.Code = KeyCode::Enter}, KeyEvent{.Code = KeyCode::Delete}}) {
    const Reaction reaction = panel_.KeyDown(event);
    EXPECT_FALSE(reaction.Handled || reaction.Changed);
  }
  for (const Reaction& reaction : {panel_.Assign(), panel_.Add(), panel_.Delete()}) {
    EXPECT_FALSE(reaction.Changed);
  }
}

}  // namespace
}  // namespace tessera::hotkey_panel_test
