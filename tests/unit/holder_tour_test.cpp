// The way to the holder of a key and back.
#include "editing/HolderTour.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::holder_tour_test {
namespace {

using namespace installation;

class HolderTourTest : public EditorTest {
 protected:
  HolderTourTest() {
    MessageBoxes.AnswerToAll = BoxAnswer::Yes;
    Start();
    Select(Pack);
  }

  void Select(std::size_t position) { Editor.Work(&CommandList::SelectRow, position); }
  void Show() { Editor.Work(&HolderTour::Show); }
  [[nodiscard]] bool Enabled() const { return Editor.ShowEnabled(); }
  [[nodiscard]] std::optional<std::size_t> Selected() const {
    return Editor.Document().Rows().PositionOf(Editor.List().SelectedRow());
  }
};

TEST_F(HolderTourTest, NeedsAComposedKeyThatAnotherCommandHas) {
  EXPECT_FALSE(Enabled());
  Editor.Work(&HotkeyPanel::SetBox, Modifier::Ctrl, true);
  EXPECT_FALSE(Enabled());
  Choose(L"F3");
  EXPECT_TRUE(Enabled());
  Choose(L"F12");
  EXPECT_FALSE(Enabled());
  Show();
  EXPECT_EQ(Selected(), Pack);
}

TEST_F(HolderTourTest, IsNotToTheSelectedCommandItself) {
  Select(View);
  Compose(1, L"F3");
  EXPECT_FALSE(Enabled());
}

TEST_F(HolderTourTest, LeadsToTheCurrentHolderBeforeTheDefaultOneAndBack) {
  Choose(L"F3");  // current key of Copy, default key of View
  Show();
  EXPECT_EQ(Selected(), Copy);
  EXPECT_EQ(Editor.Panel().ComposeKey(), L"F3");
  EXPECT_TRUE(Enabled());
  Show();
  EXPECT_EQ(Selected(), Pack);
  Show();
  EXPECT_EQ(Selected(), Copy);
}

TEST_F(HolderTourTest, LeadsToTheDefaultHolderWhereNobodyElseHasTheKey) {
  Choose(L"F5");
  Show();
  EXPECT_EQ(Selected(), Copy);
  EXPECT_TRUE(Enabled()) << "the way back";
  Show();
  EXPECT_EQ(Selected(), Pack);
}

TEST_F(HolderTourTest, FromTheCurrentHolderLeadsToTheDefaultOne) {
  Select(Copy);
  Choose(L"F3");
  Show();
  EXPECT_EQ(Selected(), View);
}

TEST_F(HolderTourTest, AnotherRowOrKeyEndsTheWayBack) {
  Choose(L"F5");
  Show();
  Select(View);
  Select(Copy);
  EXPECT_FALSE(Enabled());
  Select(Pack);
  Show();
  EXPECT_EQ(Selected(), Copy);
  Choose(L"F3");
  Show();
  EXPECT_EQ(Selected(), View) << "another key has another holder";
}

TEST_F(HolderTourTest, WorksOnAHeadingToo) {
  Select(0);
  Choose(L"F5");
  EXPECT_TRUE(Enabled());
  Show();
  EXPECT_EQ(Selected(), Copy);
  Show();
  EXPECT_EQ(Selected(), 0U);
}

TEST_F(HolderTourTest, HasNoWayBackToAHeadingThatIsLeftOut) {
  Select(0);
  Choose(L"F5");
  Show();
  Editor.Work(&CommandList::ToggleSortedList);
  Editor.Work(&CommandList::SelectRow,
              *Editor.Document().Rows().PositionOf(2));  // Copy
  EXPECT_FALSE(Enabled());
}

TEST_F(HolderTourTest, HidesTheKeysListAsAnySelectionDoes) {
  Choose(L"F5");
  Editor.Work(&KeysList::ToggleKeysList);
  Show();
  EXPECT_FALSE(Editor.AllKeys().Visible());
}

TEST_F(HolderTourTest, EndsASearchThatHidesTheHolder) {
  Choose(L"F5");
  Editor.Work(&CommandList::Search, L"pack");
  Show();
  EXPECT_FALSE(Editor.List().Shown().Searching());
  EXPECT_EQ(Selected(), Copy);
  Show();
  EXPECT_EQ(Selected(), Pack);
}

TEST_F(HolderTourTest, KeepsASearchThatShowsTheHolder) {
  Choose(L"F5");
  Editor.Work(&CommandList::Search, L"files");
  Show();
  EXPECT_TRUE(Editor.List().Shown().Searching());
  EXPECT_EQ(Selected(), Copy);
  Show();
  EXPECT_EQ(Selected(), Pack);
}

}  // namespace
}  // namespace tessera::holder_tour_test
