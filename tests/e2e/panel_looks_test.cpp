// How the panel's texts and its all-keys button look.
#include <string>

#include "resources/icons.h"
#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::panel_looks_test {
namespace {

class PanelLooksTest : public EndToEndTest {
 protected:
  /// Waits until a control shows its text in the font of messages.
  void WaitForMessageFont(int id) const {
    const RECT place = RectangleOf(window_->Control(id));
    const bool isButton = id == IDC_cmdShow || id == IDC_cmdUndo;
    WaitFor("the text of control " + std::to_string(id), [&] {
      const COLORREF back =
          isButton ? ColorAt({place.right - 5, place.bottom - 5}) : GetSysColor(COLOR_BTNFACE);
      return TakePicture(place).HoldsSomewhere(DrawControlText(window_->ControlText(id), back));
    });
  }
};

TEST_F(PanelLooksTest, TextsHaveTheFontOfMessagesAndTheAllKeysButtonItsIcon) {
  StartAndLoad();
  MakeAChange();
  Select(L"cm_SrcTree");
  Press(VK_ESCAPE);
  window_->ChooseKey(L"F1");
  MoveTo({1, 1});
  for (const int id : {IDC_lblHotkey, IDC_chkCtrlAlt0, IDC_chkCtrlAlt1, IDC_chkCtrlAlt2,
                       IDC_lblStatus, IDC_cmdShow, IDC_cmdUndo}) {
    WaitForMessageFont(id);
  }
  const RECT button = RectangleOf(window_->Control(IDC_cmdAllList));
  WaitFor("its icon", [&] {
    const Picture icon = DrawProgramIcon(folder_.Executable(), IDI_ALLKEYS, 16,
                                         ColorAt({button.left + 2, button.top + 2}));
    const Picture shown = TakePicture(button);
    // Away from the button's edges.
    for (int x = 3; x < 13; ++x) {
      if (shown.At(x, 4) != icon.At(x, 4)) return false;
    }
    return true;
  });
}

}  // namespace
}  // namespace tessera::e2e::panel_looks_test
