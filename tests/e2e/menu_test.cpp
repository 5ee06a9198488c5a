// The menus and the main toolbar: what they show, and that each command can be reached both ways.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/MenuPicture.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::menu_test {
namespace {

class MenuTest : public EndToEndTest {
 protected:
  void SetUp() override { StartAndLoad(); }

  static void ExpectEntries(HWND menu, const std::vector<std::wstring>& captions) {
    LONG above = -1;
    for (const std::wstring& caption : captions) {
      const MenuEntry entry = WaitForMenuEntry(menu, caption);
      EXPECT_GT(entry.Top, above) << Utf8(caption);
      above = entry.Top;
    }
  }

  /// Of an entry that is not highlighted.
  [[nodiscard]] static bool HasTick(HWND menu, const std::wstring& caption) {
    const LONG left = RectangleOf(menu).left + 4;
    const LONG top = WaitForMenuEntry(menu, caption).Top;
    constexpr LONG Size = 12;  // pixels: most of what is before the text
    return CountPixels({left, top, left + Size, top + Size}, GetSysColor(COLOR_MENU)) < Size * Size;
  }

  void CloseFileDialog() { AnswerByKey(WaitForFileDialog(program_->Id()), VK_ESCAPE); }

  /// Of the list, in the coordinates of the window's inside.
  [[nodiscard]] RECT ListInWindow() const {
    RECT place = RectangleOf(window_->Control(IDC_ListView1));
    MapWindowPoints(nullptr, window_->Handle(), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }
};

TEST_F(MenuTest, MenusHoldTheirCommandsInOrder) {
  ExpectEntries(window_->OpenMenu('F'), {L"&Open...", L"&Save", L"Save and Restart Bainioka",
                                         L"&Export To Clipboard...", L"&Recent Files", L"E&xit"});
  window_->CloseMenus();
  ExpectEntries(window_->OpenMenu('V'), {L"&Toolbar", L"Sorted &List", L"&Options..."});
  window_->CloseMenus();
  ExpectEntries(window_->OpenMenu('H'), {L"Help &Topics"});
}

TEST_F(MenuTest, ToolbarButtonsTellTheirCommandsWithoutMnemonics) {
  EXPECT_EQ(window_->ButtonText(IDC_Toolbar1, IDM_mnuFileOpen), L"Open...");
  EXPECT_EQ(window_->ButtonText(IDC_Toolbar1, IDM_mnuFileSave), L"Save");
  EXPECT_EQ(window_->ButtonText(IDC_Toolbar1, IDM_mnuViewSortList), L"Sorted List");
  EXPECT_EQ(window_->ButtonText(IDC_Toolbar1, IDM_mnuViewOptions), L"Options...");
}

TEST_F(MenuTest, OpenAsksForAFile) {
  window_->ChooseFromMenu('F', 'O');
  CloseFileDialog();
  window_->ClickButton(IDC_Toolbar1, IDM_mnuFileOpen);
  CloseFileDialog();
  EXPECT_EQ(window_->Caption(), folder_.WincmdIni() + L" - Tessera");
}

TEST_F(MenuTest, ChosenFileIsOpened) {
  const std::wstring other = folder_.Root() + L"other.ini";
  WriteBytes(other, "[Shortcuts]\r\nCA+K=cm_SrcTree\r\n");
  window_->ClickButton(IDC_Toolbar1, IDM_mnuFileOpen);
  const HWND files = WaitForFileDialog(program_->Id());
  BringToFront(files);
  Type(other);
  AnswerByKey(files, VK_RETURN);
  WaitFor("the file to be open", [&] { return window_->Caption() == other + L" - Tessera"; });
  WaitForKeys(L"cm_SrcTree", L"Ctrl + Alt + K");
}

TEST_F(MenuTest, ExitEndsTheProgram) {
  window_->ChooseFromMenu('F', 'X');
  EXPECT_EQ(program_->WaitForEnd(), 0U);
}

TEST_F(MenuTest, SortedListIsSwitchedBothWays) {
  const auto expectSorted = [&](bool sorted) {
    WaitFor(sorted ? "the sorted view" : "the file's order", [&] {
      return window_->Header(2).HasIcon == sorted &&
             window_->ButtonPressed(IDC_Toolbar1, IDM_mnuViewSortList) == sorted;
    });
  };
  expectSorted(false);
  MoveTo({1, 1});  // an entry under the pointer has another colour
  EXPECT_FALSE(HasTick(window_->OpenMenu('V'), L"Sorted &List"));
  Press('L');
  expectSorted(true);
  EXPECT_TRUE(HasTick(window_->OpenMenu('V'), L"Sorted &List"));
  window_->CloseMenus();
  window_->ClickButton(IDC_Toolbar1, IDM_mnuViewSortList);
  expectSorted(false);
  window_->ClickButton(IDC_Toolbar1, IDM_mnuViewSortList);
  expectSorted(true);
  window_->ChooseFromMenu('V', 'L');
  expectSorted(false);
}

TEST_F(MenuTest, OptionsOpenTheirDialog) {
  window_->ChooseFromMenu('V', 'O');
  NextDialog(L"frmOptions").CloseByKey(VK_ESCAPE);
  window_->ClickButton(IDC_Toolbar1, IDM_mnuViewOptions);
  NextDialog(L"frmOptions").CloseByKey(VK_ESCAPE);
}

TEST_F(MenuTest, HelpThatIsMissingIsTold) {
  Delete(folder_.Program() + L"Readme.chm");
  window_->ChooseFromMenu('H', 'T');
  const Box box = NextBox();
  EXPECT_EQ(box.Text, L"File not found.");
  EXPECT_EQ(box.Title, L"Tessera");
  EXPECT_EQ(box.Buttons, std::vector<int>{IDOK});
  Answer(box, IDOK);
  EXPECT_TRUE(NoBoxOpen());
}

TEST_F(MenuTest, HiddenToolbarLeavesTheListOnePixelBelowTheTop) {
  const RECT before = ListInWindow();
  const RECT toolbar = RectangleOf(window_->Control(IDC_Toolbar1));
  const LONG height = toolbar.bottom - toolbar.top;
  ASSERT_EQ(before.top, height + 1);
  window_->ChooseFromMenu('V', 'T');
  WaitFor("the toolbar to be hidden", [&] { return !window_->Visible(IDC_Toolbar1); });
  WaitFor("the list to move", [&] { return ListInWindow().top == 1; });
  EXPECT_EQ(ListInWindow().bottom, before.bottom) << "it grows by what it moved";
  Close();
  EXPECT_EQ(Setting("ToolbarVisible"), "0");

  StartAndLoad();
  EXPECT_FALSE(window_->Visible(IDC_Toolbar1));
  EXPECT_EQ(ListInWindow().top, 1);
  window_->ChooseFromMenu('V', 'T');
  WaitFor("the toolbar to be shown", [&] { return window_->Visible(IDC_Toolbar1); });
  WaitFor("the list to move", [&] { return ListInWindow().top == height + 1; });
}

TEST_F(MenuTest, SaveIsEnabledWhileThereAreUnsavedChanges) {
  const auto enabledInMenu = [&](const std::wstring& caption) {
    const bool enabled = WaitForMenuEntry(window_->OpenMenu('F'), caption).Enabled;
    window_->CloseMenus();
    return enabled;
  };
  EXPECT_FALSE(enabledInMenu(L"&Save"));
  EXPECT_FALSE(Modified());
  MakeAChange();
  EXPECT_TRUE(Modified());
  EXPECT_TRUE(enabledInMenu(L"&Save"));
  EXPECT_FALSE(enabledInMenu(L"Save and Restart Bainioka")) << "nothing is there to restart";
  EXPECT_FALSE(WaitForMenuEntry(window_->OpenButtonMenu(IDC_Toolbar1, IDM_mnuFileSave),
                                L"Save and Restart Bainioka")
                   .Enabled);
  window_->CloseMenus();
  window_->ChooseFromMenu('F', 'S');
  WaitFor("the save to end", [&] { return !Modified(); });
}

}  // namespace
}  // namespace tessera::e2e::menu_test
