// Taking edits back by the button beside the line and by the menu of the list.
#include <array>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/MenuPicture.h"
#include "tests/e2e/StartResolution.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::undo_test {
namespace {

class UndoTest : public EndToEndTest {
 protected:
  void Assign(const std::wstring& command, const std::wstring& key) {
    Select(command);
    if (!window_->ChosenKey().empty()) Press(VK_ESCAPE);  // else the chooser begins there
    WaitFor("no key", [&] { return window_->ChosenKey().empty(); });
    window_->ChooseKey(key);
    window_->Command(IDM_assign);
    WaitForKeys(command, key);
  }

  void ClickUndo() const { window_->ClickControl(IDC_cmdUndo); }

  void WaitForTip(const std::wstring& text) const {
    MoveTo(CenterOf(RectangleOf(window_->Control(IDC_cmdUndo))));
    WaitFor("the tip " + Utf8(text), [&] { return window_->TipOfButton(IDC_cmdUndo) == text; });
  }

  void WaitForLine(const std::wstring& line) const {
    WaitFor("the line " + Utf8(line), [&] { return window_->ControlText(IDC_lblStatus) == line; });
  }
};

TEST_F(UndoTest, TheButtonTakesOneEditAfterTheOtherBack) {
  StartAndLoad();
  EXPECT_FALSE(window_->Enabled(IDC_cmdUndo));
  const std::wstring former = RowOf(L"cm_SrcTree")[3];
  Assign(L"cm_SrcTree", L"K");
  Assign(L"cm_SrcComments", L"J");
  window_->Command(IDM_undo);
  WaitFor("one step less", [&] { return RowOf(L"cm_SrcComments")[3] != L"J"; });
  EXPECT_TRUE(Modified());
  Select(L"cm_SrcShort");
  ClickUndo();
  WaitFor("the row to be selected",
          [&] { return window_->SelectedRow() == window_->FindCommand(L"cm_SrcTree"); });
  EXPECT_EQ(RowOf(L"cm_SrcTree")[3], former);
  WaitFor("nothing to save", [&] { return !Modified(); });
  WaitFor("the button to be disabled", [&] { return !window_->Enabled(IDC_cmdUndo); });
  WaitFor("the focus to leave it", [&] { return window_->HasFocus(IDC_ListView1); });
}

TEST_F(UndoTest, EnterPressesTheButtonWhileNoKeyIsChosen) {
  StartAndLoad();
  Assign(L"cm_SrcTree", L"K");
  Press(VK_ESCAPE);
  WaitFor("no key", [&] { return window_->ChosenKey().empty(); });
  WaitFor("the button to be enabled", [&] { return window_->Enabled(IDC_cmdUndo); });
  // Round twice: of all keys Enter alone presses the button.
  for (const int control :
       {IDC_chkCtrlAlt0, IDC_chkCtrlAlt1, IDC_chkCtrlAlt2, IDC_Combo1, IDC_Toolbar2, IDC_cmdUndo,
        IDC_Toolbar1, IDC_txtFind, IDC_ListView1, IDC_chkCtrlAlt0, IDC_chkCtrlAlt1, IDC_chkCtrlAlt2,
        IDC_Combo1, IDC_Toolbar2, IDC_cmdUndo}) {
    Press(VK_TAB);
    WaitFor("the next control", [&] { return window_->HasFocus(control); });
    if (control == IDC_chkCtrlAlt2) Press(VK_RETURN);
  }
  const auto beginsAGroup = [&](int control) {
    return (GetWindowLongPtrW(window_->Control(control), GWL_STYLE) & WS_GROUP) != 0;
  };
  // Arrow keys stay among the boxes, and so on.
  EXPECT_TRUE(beginsAGroup(IDC_chkCtrlAlt0) && !beginsAGroup(IDC_chkCtrlAlt1));
  EXPECT_TRUE(beginsAGroup(IDC_lblHotkey) && beginsAGroup(IDC_lblStatus));
  EXPECT_FALSE(window_->BoxChecked(IDC_chkCtrlAlt2)) << "Enter is for buttons";
  Press(VK_RETURN);
  WaitForLine(L"Taken back: K to cm_SrcTree.");
}

TEST_F(UndoTest, TheTipTheLineAndTheMenuNameTheStep) {
  StartAndLoad();
  Assign(L"cm_SrcComments", L"J");
  WaitForTip(L"Undo: J to cm_SrcComments");
  Assign(L"cm_SrcTree", L"K");
  WaitForTip(L"Undo: K to cm_SrcTree");
  Press(VK_ESCAPE);
  ClickUndo();
  WaitForLine(L"Taken back: K to cm_SrcTree.");
  RightClick(CenterOf(window_->CellRectangle(window_->SelectedRow(), 1)));
  WaitFor("the menu", [&] { return !window_->OpenMenus().empty(); });
  const HWND menu = window_->OpenMenus().front();
  EXPECT_TRUE(WaitForMenuEntry(menu, L"Redo: K to cm_SrcTree").Enabled);
  EXPECT_TRUE(WaitForMenuEntry(menu, L"Undo: J to cm_SrcComments").Enabled);
  window_->CloseMenus();
  window_->Command(IDM_redo);
  WaitForLine(L"Made again: K to cm_SrcTree.");
  EXPECT_EQ(RowOf(L"cm_SrcTree")[3], L"K");
}

TEST_F(UndoTest, AfterDeleteAllAndUndoTheFileIsSavedAsItWas) {
  StartAndLoad();
  Assign(L"cm_SrcTree", L"K");
  Save();
  const std::string saved = ReadBytes(folder_.WincmdIni());
  const std::vector<RowTexts> rows = window_->Rows();
  PostMessageW(window_->Handle(), WM_COMMAND, IDM_delall, 0);
  Answer(NextBox(), IDYES);
  WaitForKeys(L"cm_SrcTree", L"---");
  ClickUndo();
  WaitForKeys(L"cm_SrcTree", L"K");
  EXPECT_EQ(window_->Rows(), rows);
  EXPECT_FALSE(Modified());
  Assign(L"cm_SrcTree", L"J");
  Assign(L"cm_SrcTree", L"K");
  Save();
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), saved);
}

TEST_F(UndoTest, StandsBesideShowAtTwiceTheResolutionFromRightToLeft) {
  const StartResolution resolution(192);
  folder_.UseLanguageFile(folder_.ShippedLanguage(L"Arabic.lng"));
  StartAndLoad();
  Select(L"cm_SrcTree");
  PressTogether(std::array<WORD, 3>{VK_CONTROL, VK_MENU, 'K'});
  Press(VK_RETURN);
  WaitFor("a step", [&] { return window_->Enabled(IDC_cmdUndo); });
  const RECT undo = RectangleOf(window_->Control(IDC_cmdUndo));
  const RECT show = RectangleOf(window_->Control(IDC_cmdShow));
  EXPECT_EQ(undo.right + 2 * 6, show.left);
  EXPECT_EQ(undo.top, show.top);
  ClickUndo();
  WaitFor("the button to be disabled", [&] { return !window_->Enabled(IDC_cmdUndo); });
}

}  // namespace
}  // namespace tessera::e2e::undo_test
