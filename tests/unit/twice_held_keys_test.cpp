// A key that two rows hold, from the edit to the saves and opens after it.
#include "tests/unit/editor_fixture.h"

namespace tessera::twice_held_keys_test {
namespace {

using namespace installation;

/// F3, a default of View, is Pack's, and then Copy's: the question names the default alone, so both
/// hold it.
class TwiceHeldKeyTest : public EditorTest {
 protected:
  TwiceHeldKeyTest() {
    Ini() = "[Shortcuts]\r\nF3=cm_Pack\r\n";
    Start();
    MessageBoxes.Answers = {BoxAnswer::Yes};
    Assign(Copy, L"F3");
  }

  [[nodiscard]] std::wstring KeysOf(std::size_t position) const {
    return Editor.Document().Rows().At(position).CurrentKeys;
  }
};

TEST_F(TwiceHeldKeyTest, IsSavedForTheRowThatGotItLast) {
  ASSERT_EQ(KeysOf(Copy), L"F3");
  ASSERT_EQ(KeysOf(Pack), L"F3");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\n");
}

TEST_F(TwiceHeldKeyTest, StaysWithThatRowAfterSavesAndOpens) {
  Editor.FileSave();
  Editor.OpenShortcutFile(false, IniFile, false);
  ASSERT_EQ(KeysOf(Copy), L"F3");
  ASSERT_EQ(KeysOf(Pack), L"F3") << "the keys of the first open are carried over";
  Assign(View, L"F9");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nF9=cm_View\r\n");
}

TEST_F(TwiceHeldKeyTest, GoesToTheOtherRowOnceAnEditTakesIt) {
  Assign(Copy, L"F9");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF9=cm_Copy\r\nF3=cm_Pack\r\n");
  Ini() = "[Shortcuts]\r\nF3=cm_Copy\r\n";
  Editor.OpenShortcutFile(false, IniFile, false);
  Assign(View, L"F8");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Pack\r\nF8=cm_View\r\n") << "read only: the last wins";
}

}  // namespace
}  // namespace tessera::twice_held_keys_test
