// How the buttons of the toolbars look.
#include "resources/icons.h"
#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::toolbar_test {
namespace {

struct Button {
  int Toolbar;
  int Command;
  int Icon;
  int DisabledIcon;
};

constexpr Button Buttons[] = {
    {IDC_Toolbar1, IDM_mnuFileOpen, IDI_OPEN, IDI_OPEN_DISABLED},
    {IDC_Toolbar1, IDM_mnuFileSave, IDI_SAVE, IDI_SAVE_DISABLED},
    {IDC_Toolbar1, IDM_mnuViewSortList, IDI_SORT, IDI_SORT_DISABLED},
    {IDC_Toolbar1, IDM_mnuViewOptions, IDI_OPTIONS, IDI_OPTIONS_DISABLED},
    {IDC_Toolbar2, IDM_assign, IDI_ASSIGN, IDI_ASSIGN_DISABLED},
    {IDC_Toolbar2, IDM_delete, IDI_DELETE, IDI_DELETE_DISABLED},
};

class ToolbarTest : public EndToEndTest {
 protected:
  /// Waits until a button has the icon of its state, drawn as the program's file has it.
  void WaitForIcon(const Button& button) const {
    const bool enabled = window_->ButtonEnabled(button.Toolbar, button.Command);
    const Picture icon =
        DrawProgramIcon(folder_.Executable(), enabled ? button.Icon : button.DisabledIcon, 16,
                        GetSysColor(COLOR_BTNFACE));
    const RECT place = window_->ButtonRectangle(button.Toolbar, button.Command);
    WaitFor("the icon of button " + std::to_string(button.Command),
            [&] { return TakePicture(place).HoldsSomewhere(icon); });
  }
};

TEST_F(ToolbarTest, ButtonsHaveTheirIconsAndOthersWhileTheyAreDisabled) {
  MoveTo({1, 1});  // a button beneath the pointer looks otherwise
  StartAndLoad();
  EXPECT_FALSE(window_->ButtonEnabled(IDC_Toolbar1, IDM_mnuFileSave));
  for (const Button& button : Buttons) WaitForIcon(button);
  MakeAChange();
  MoveTo({1, 1});
  for (const Button& button : Buttons) {
    EXPECT_TRUE(window_->ButtonEnabled(button.Toolbar, button.Command)) << button.Command;
    WaitForIcon(button);
  }
  EXPECT_NE(Send(window_->Control(IDC_cmdAllList), BM_GETIMAGE, IMAGE_ICON), 0);
}

TEST_F(ToolbarTest, ButtonsShowNothingButTheirIconsAndNoneIsPressedWithoutACause) {
  StartAndLoad();
  for (const Button& button : Buttons) {
    EXPECT_FALSE(window_->ButtonPressed(button.Toolbar, button.Command)) << button.Command;
  }
  const RECT sort = window_->ButtonRectangle(IDC_Toolbar1, IDM_mnuViewSortList);
  const RECT options = window_->ButtonRectangle(IDC_Toolbar1, IDM_mnuViewOptions);
  EXPECT_EQ(sort.right - sort.left, 16 + 8) << "the icon and what is around it";
  EXPECT_EQ(options.left - sort.right, 8) << "a separator";
}

}  // namespace
}  // namespace tessera::e2e::toolbar_test
