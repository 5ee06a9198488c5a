#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "editing/KeysList.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::keys_list_test {
namespace {

using Focus = Reaction::Focus;

constexpr KeyCode Down{40};

class KeysListTest : public testing::Test {
 protected:
  KeysListTest() { list_.ShowRowDetails(sample::Pack); }

  /// An arrow key moves the selection before its own change is told.
  Reaction MoveTo(int index) {
    keys_.KeyDown(Down);
    return keys_.Select(index);
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
  KeysList keys_{panel_};
};

TEST_F(KeysListTest, KnowsWhichKeysAreTakenWithTheModifiersThatAreChecked) {
  const auto taken = [this] {
    const std::vector<bool> flags = keys_.TakenKeys();
    EXPECT_EQ(flags.size(), KeyVocabulary().size());
    std::vector<std::wstring_view> names;
    for (std::size_t key = 0; key < flags.size(); ++key) {
      if (flags[key]) names.push_back(KeyVocabulary()[key]);
    }
    return names;
  };
  using Keys = std::vector<std::wstring_view>;
  EXPECT_EQ(taken(), (Keys{L"F2", L"F5", L"F6", L"F7", L"F8", L"F9"}));
  panel_.SetBox(Modifier::Ctrl, true);
  EXPECT_EQ(taken(), Keys{L"R"});
  panel_.SetBox(Modifier::Alt, true);
  catalogue_.StartMenuKeys[2].Key = L"Ctrl + Alt + F3";
  EXPECT_EQ(taken(), Keys{L"F3"});
  catalogue_.StartMenuKeys[2].Key += OverriddenMark;
  EXPECT_EQ(taken(), Keys{});
}

TEST_F(KeysListTest, ADefaultKeyThatNobodyHasAnyMoreIsNotTaken) {
  catalogue_.ListView1.Edit(sample::Sync).CurrentKeys = notation_.UndefinedHotkey;
  EXPECT_FALSE(panel_.IsTaken(8)) << "F9 is marked, and nobody has it";
}

TEST_F(KeysListTest, IsClosedAtFirst) {
  EXPECT_FALSE(keys_.Visible());
  EXPECT_TRUE(keys_.PanelToolbarEnabled());
  EXPECT_EQ(keys_.Selection(), NoKeyChosen);
}

TEST_F(KeysListTest, OpensWithTheChoosersSelection) {
  panel_.ChooseKey(5);
  keys_.ToggleKeysList();
  EXPECT_TRUE(keys_.Visible());
  EXPECT_EQ(keys_.Selection(), 5);
  EXPECT_EQ(panel_.ChosenKey(), 5);
}

TEST_F(KeysListTest, OpensWithoutASelectionWhileNoKeyIsChosen) {
  keys_.FollowChooser();
  keys_.ToggleKeysList();
  EXPECT_TRUE(keys_.Visible());
  EXPECT_EQ(keys_.Selection(), NoKeyChosen);
}

TEST_F(KeysListTest, ASecondClickOnTheAllKeysButtonClosesItAndFocusesTheChooser) {
  EXPECT_EQ(keys_.ToggleKeysList().FocusTo, Focus::Unchanged);
  EXPECT_EQ(keys_.ToggleKeysList().FocusTo, Focus::Chooser);
  EXPECT_FALSE(keys_.Visible());
}

TEST_F(KeysListTest, DisablesThePanelToolbarWhileItIsOpen) {
  const std::vector<std::function<void()>> waysToClose{
      [this] { keys_.ToggleKeysList(); },
      [this] { keys_.CloseKeysList(); },
      [this] { keys_.Hide(); },
      [this] { keys_.KeyDown(KeyCode::Escape); },
      [this] { keys_.KeyDown(KeyCode::Enter); },
      [this] {
        keys_.ReleaseMouse();
        keys_.Select(3);
      },
  };
  for (std::size_t way = 0; way < waysToClose.size(); ++way) {
    keys_.ToggleKeysList();
    EXPECT_FALSE(keys_.PanelToolbarEnabled()) << way;
    waysToClose[way]();
    EXPECT_FALSE(keys_.Visible()) << way;
    EXPECT_TRUE(keys_.PanelToolbarEnabled()) << way;
  }
}

TEST_F(KeysListTest, AnArrowKeyChangesNothingInThePanelUntilEnterOrSpace) {
  for (const KeyCode key : {KeyCode::Enter, KeyCode::Space}) {
    panel_.ChooseKey(2);
    keys_.ToggleKeysList();
    EXPECT_EQ(MoveTo(3).FocusTo, Focus::Unchanged);
    MoveTo(4);
    EXPECT_EQ(keys_.Selection(), 4);
    EXPECT_EQ(panel_.ChosenKey(), 2);
    EXPECT_TRUE(keys_.Visible());
    const Reaction reaction = keys_.KeyDown(key);
    EXPECT_EQ(panel_.ChosenKey(), 4);
    EXPECT_FALSE(keys_.Visible());
    EXPECT_EQ(reaction.FocusTo, Focus::Chooser);
    EXPECT_TRUE(reaction.Handled);
  }
}

TEST_F(KeysListTest, EscClosesItAndLeavesTheChoosersSelection) {
  panel_.ChooseKey(2);
  keys_.ToggleKeysList();
  MoveTo(3);
  const Reaction reaction = keys_.KeyDown(KeyCode::Escape);
  EXPECT_FALSE(keys_.Visible());
  EXPECT_EQ(panel_.ChosenKey(), 2);
  EXPECT_EQ(reaction.FocusTo, Focus::Chooser);
  EXPECT_TRUE(reaction.Handled);
}

TEST_F(KeysListTest, ASelectionByMouseChooses) {
  keys_.ToggleKeysList();
  const Reaction reaction = keys_.Select(7);
  EXPECT_EQ(panel_.ChosenKey(), 7);
  EXPECT_EQ(reaction.FocusTo, Focus::Chooser);
  EXPECT_FALSE(keys_.Visible());
}

TEST_F(KeysListTest, AReleasedMouseButtonMakesTheNextSelectionAChoiceAgain) {
  keys_.ToggleKeysList();
  MoveTo(3);
  keys_.Select(4);
  EXPECT_EQ(panel_.ChosenKey(), NoKeyChosen);
  keys_.ReleaseMouse();
  keys_.Select(7);
  EXPECT_EQ(panel_.ChosenKey(), 7);
  EXPECT_EQ(keys_.Selection(), 7);
}

TEST_F(KeysListTest, EscLeavesTheMouseChoosing) {
  keys_.ToggleKeysList();
  keys_.KeyDown(KeyCode::Escape);
  keys_.ToggleKeysList();
  keys_.Select(7);
  EXPECT_EQ(panel_.ChosenKey(), 7);
}

TEST_F(KeysListTest, FollowsTheChooserWithoutAChoice) {
  keys_.ToggleKeysList();
  panel_.ChooseKey(9);
  keys_.FollowChooser();
  EXPECT_EQ(keys_.Selection(), 9);
  EXPECT_TRUE(keys_.Visible());
  keys_.Select(10);
  EXPECT_EQ(panel_.ChosenKey(), 10);
}

TEST_F(KeysListTest, EnterWithoutASelectionChoosesNoKey) {
  panel_.ChooseKey(2);
  keys_.ToggleKeysList();
  MoveTo(NoKeyChosen);
  keys_.KeyDown(KeyCode::Enter);
  EXPECT_EQ(panel_.ChosenKey(), NoKeyChosen);
  EXPECT_EQ(keys_.Selection(), NoKeyChosen);
}

TEST_F(KeysListTest, TheChoosersOwnListEnablesThePanelToolbarAndLeavesThisOneOpen) {
  keys_.ToggleKeysList();
  keys_.ChooserDropsDown();
  EXPECT_TRUE(keys_.PanelToolbarEnabled());
  EXPECT_TRUE(keys_.Visible());
}

}  // namespace
}  // namespace tessera::keys_list_test
