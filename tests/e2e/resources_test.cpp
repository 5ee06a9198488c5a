// The program gives back what it takes of the system: fonts, bitmaps, menus, windows and the like.
#include <array>
#include <iostream>
#include <string>

#include "resources/resource.h"
#include "tests/e2e/DroppedFile.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/LongRun.h"
#include "tests/e2e/SystemObjects.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::resources_test {
namespace {

class ResourcesTest : public EndToEndTest {
 protected:
  void SetUp() override { StartAndLoad(); }

  /// The first times take what stays for good, and the system keeps device contexts with their
  /// bitmaps for the next window, a few more now and then: that makes some rounds grow. What is
  /// lost each time makes every round grow.
  template <typename Action>
  void ExpectNoGrowth(int times, Action action) {
    constexpr int Rounds = 5;
    const auto repeat = [&](int count) {
      for (int time = 0; time < count; ++time) action();
      return CountSystemObjects(program_->Process());
    };
    constexpr int WarmUp = 8;
    SystemObjects before = repeat(WarmUp);
    ASSERT_GT(before.Graphics, 0);
    ASSERT_GT(before.User, 0);
    for (int round = 0; round < Rounds; ++round) {
      const SystemObjects after = repeat(times);
      std::cout << times << " times: graphics objects " << before.Graphics << " to "
                << after.Graphics << ", user objects " << before.User << " to " << after.User
                << "\n";
      if (after.Graphics - before.Graphics < times / 2 && after.User - before.User < times / 2) {
        return;
      }
      before = after;
    }
    FAIL() << "Objects were lost in each of " << Rounds << " rounds";
  }

  static int Dialogs() { return LongRun() ? 100 : 10; }

  void OpenAndEscape(int command, const std::wstring& className) {
    window_->Command(command);
    NextDialog(className).CloseByKey(VK_ESCAPE);
    WaitFor("the window to be enabled",
            [&] { return IsWindowEnabled(window_->Handle()) != FALSE; });
  }
};

TEST_F(ResourcesTest, CountsSeeAnObjectMoreAndLess) {
  const HANDLE self = GetCurrentProcess();
  const SystemObjects before = CountSystemObjects(self);
  const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
  const HMENU menu = CreateMenu();
  const SystemObjects during = CountSystemObjects(self);
  EXPECT_EQ(during.Graphics, before.Graphics + 1);
  EXPECT_EQ(during.User, before.User + 1);
  DeleteObject(brush);
  DestroyMenu(menu);
  const SystemObjects after = CountSystemObjects(self);
  EXPECT_EQ(after.Graphics, before.Graphics);
  EXPECT_EQ(after.User, before.User);
}

TEST_F(ResourcesTest, EditsKeepNone) {
  Select(L"cm_SrcTree");
  ExpectNoGrowth((LongRun() ? 1000 : 50) / 2, [&] {
    for (const WORD key : {WORD{VK_CONTROL}, WORD{VK_SHIFT}, WORD{'J'}, WORD{VK_RETURN}}) {
      Press(key);
    }
    WaitForKeys(L"cm_SrcTree", L"Ctrl + Shift + J");
    Press(VK_DELETE);
    WaitForKeys(L"cm_SrcTree", L"---");
  });
}

TEST_F(ResourcesTest, OpensKeepNone) {
  // Two files by turns, without keys, since those of every file that is opened add up.
  const std::array paths{folder_.Root() + L"one.ini", folder_.Root() + L"two.ini"};
  for (const std::wstring& path : paths) WriteBytes(path, "[Shortcuts]\r\n");
  std::size_t next = 0;
  ExpectNoGrowth(LongRun() ? 200 : 10, [&] {
    DropFile(window_->Handle(), program_->Process(), paths.at(next));
    WaitFor("the file", [&] { return window_->Caption() == paths.at(next) + L" - Tessera"; });
    WaitFor("the first row to be selected", [&] { return window_->SelectedRow() == 0; });
    next = 1 - next;
  });
}

TEST_F(ResourcesTest, OptionsKeepNone) {
  ExpectNoGrowth(Dialogs(), [&] { OpenAndEscape(IDM_mnuViewOptions, L"frmOptions"); });
}

TEST_F(ResourcesTest, ExportKeepsNone) {
  ExpectNoGrowth(Dialogs(),
                 [&] { OpenAndEscape(IDM_mnuFileExportToClipboard, L"frmExportToClipboard"); });
}

TEST_F(ResourcesTest, KeysListKeepsNone) {
  Select(L"cm_SrcTree");
  ExpectNoGrowth(Dialogs(), [&] {
    window_->ClickControl(IDC_cmdAllList);
    NextDialog(L"frmKeysList").CloseByKey(VK_ESCAPE);
  });
}

}  // namespace
}  // namespace tessera::e2e::resources_test
