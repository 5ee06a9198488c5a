// What the window shows once the program has started.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <string>

#include "resources/icons.h"
#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::start_test {
namespace {

using StartTest = EndToEndTest;

TEST_F(StartTest, ListShowsEveryRowInFileOrderWithItsFourTexts) {
  const std::vector<RowTexts> expected = ExpectedRows(folder_);
  ASSERT_GT(expected.size(), 500U);
  StartAndLoad();
  EXPECT_TRUE(window_->Visible(IDC_ListView1));
  EXPECT_TRUE(SameRows(window_->Rows(), expected));
}

TEST_F(StartTest, FilesAreLoadedOnceTheWindowIsActivated) {
  Start({}, SW_SHOWNOACTIVATE);
  WaitFor("the empty list", [&] { return window_->Visible(IDC_ListView1); });
  EXPECT_EQ(window_->RowCount(), 0);
  EXPECT_FALSE(Modified());
  BringToFront(window_->Handle());
  WaitFor("the rows", [&] { return window_->RowCount() > 0; });
}

TEST_F(StartTest, HeadersNameTheColumnsAndNoneIsSortedBy) {
  StartAndLoad();
  const std::array headers{L"Description", L"Command", L"Default Hotkey", L"Current Hotkey"};
  for (int column = 0; column < 4; ++column) {
    EXPECT_EQ(window_->Header(column).Text, headers.at(static_cast<std::size_t>(column)));
    EXPECT_FALSE(window_->Header(column).HasIcon) << column;
  }
  EXPECT_FALSE(window_->ButtonPressed(IDC_Toolbar1, IDM_mnuViewSortList));
}

TEST_F(StartTest, ALongLoadShowsItsProgressOverTheList) {
  std::string commands;
  for (int code = 10000; code < 300000; ++code) {
    commands += "cm_Own" + std::to_string(code) + "=" + std::to_string(code) + ";Own command\r\n";
  }
  WriteBytes(folder_.TotalcmdInc(), commands);
  Start({}, SW_SHOWNOACTIVATE);
  const HWND bar = window_->Control(IDC_ProgressBar1);
  EXPECT_FALSE(window_->Visible(IDC_ProgressBar1));
  BringToFront(window_->Handle());
  constexpr DWORD BetweenLooks = 1;  // milliseconds
  WaitFor(
      "the bar", [&] { return window_->Visible(IDC_ProgressBar1); }, UsualLimit, BetweenLooks);
  WaitFor(
      "the find box to be disabled", [&] { return !window_->Enabled(IDC_txtFind); }, UsualLimit,
      BetweenLooks);
  WaitFor(
      "the bar to go", [&] { return !window_->Visible(IDC_ProgressBar1); },
      std::chrono::seconds{60});
  EXPECT_EQ(GetTopWindow(window_->Handle()), bar);
  const RECT place = RectangleOf(bar);
  const RECT list = RectangleOf(window_->Control(IDC_ListView1));
  EXPECT_GT(place.left, list.left);
  EXPECT_GT(place.top, list.top);
  EXPECT_LT(place.right, list.right);
  EXPECT_LT(place.bottom, list.bottom);
  EXPECT_EQ(Send(bar, PBM_GETRANGE, TRUE), 0);
  EXPECT_GT(Send(bar, PBM_GETRANGE), 1500) << "it has grown";
  EXPECT_GT(Send(bar, PBM_GETPOS), 1);
}

TEST_F(StartTest, CaptionIsThePathAndTheTitleBesideTheIcon) {
  StartAndLoad();
  EXPECT_EQ(Utf8(window_->Caption()), Utf8(folder_.WincmdIni() + L" - Tessera"));
  BringToFront(window_->Handle());
  const Picture icon =
      DrawProgramIcon(folder_.Executable(), IDI_TESSERA, GetSystemMetrics(SM_CXSMICON),
                      GetSysColor(COLOR_ACTIVECAPTION));
  WaitFor("the icon",
          [&] { return TakePicture(RectangleOf(window_->Handle())).HoldsSomewhere(icon); });
}

TEST_F(StartTest, NothingIsThereToSave) {
  const std::string before = ReadBytes(folder_.WincmdIni());
  StartAndLoad();
  EXPECT_FALSE(Modified());
  Close();
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), before);
  EXPECT_FALSE(Exists(folder_.WincmdIni() + L".bak"));
}

TEST_F(StartTest, FirstRunWritesTheSettings) {
  ASSERT_FALSE(Exists(folder_.SettingsFile()));
  StartAndLoad();
  const std::string settings = ReadBytes(folder_.SettingsFile());
  EXPECT_EQ(SectionValue(settings, "Tessera", "SortedColumn"), "3");
  EXPECT_EQ(SectionValue(settings, "Tessera", "MultiHotkeySeparator"), "=");
}

TEST_F(StartTest, PanelIsDisabledForAHeadingRowAndEnabledForACommand) {
  StartAndLoad();
  const std::array inputs{IDC_chkCtrlAlt0, IDC_chkCtrlAlt1, IDC_chkCtrlAlt2, IDC_Combo1,
                          IDC_cmdAllList};
  window_->ClickRow(0);
  for (const int id : inputs) EXPECT_FALSE(window_->Enabled(id)) << id;
  EXPECT_FALSE(window_->ButtonEnabled(IDC_Toolbar2, IDM_delete));
  window_->ClickRow(1);
  for (const int id : inputs) {
    WaitFor("control " + std::to_string(id) + " to be enabled",
            [&] { return window_->Enabled(id); });
  }
  EXPECT_TRUE(window_->ButtonEnabled(IDC_Toolbar2, IDM_delete));
  EXPECT_FALSE(window_->ButtonEnabled(IDC_Toolbar2, IDM_assign)) << "no key is chosen yet";
}

TEST_F(StartTest, RowsSelectedByAutomationAreSelectedRows) {
  StartAndLoad();
  window_->SelectByAutomation(5);
  WaitFor("row 5 to be selected", [&] { return window_->SelectedRow() == 5; });
  WaitFor("the panel to be enabled", [&] { return window_->Enabled(IDC_Combo1); });
}

// The file's name in it, ".\Wincmd.ini", begins at the folder that it names.
TEST_F(StartTest, RegistryLeadsToTheFilesWithoutTheEnvironmentVariable) {
  const std::vector<RowTexts> expected = ExpectedRows(folder_);
  commanderPath_.reset();
  folder_.InstallDir.Set(folder_.Commander().substr(0, folder_.Commander().size() - 1));
  StartAndLoad();
  EXPECT_EQ(Utf8(window_->Caption()), Utf8(folder_.WincmdIni() + L" - Tessera"));
  EXPECT_TRUE(SameRows(window_->Rows(), expected));
}

TEST_F(StartTest, ToolbarCanBeHiddenAndShownAgain) {
  StartAndLoad();
  const LONG listTop = window_->CellRectangle(0, 0).top;
  ASSERT_TRUE(window_->Visible(IDC_Toolbar1));
  window_->Command(IDM_mnuViewToolbar);
  WaitFor("the toolbar to be hidden", [&] { return !window_->Visible(IDC_Toolbar1); });
  WaitFor("the list to move up", [&] { return window_->CellRectangle(0, 0).top < listTop; });
  window_->Command(IDM_mnuViewToolbar);
  WaitFor("the toolbar to be shown", [&] { return window_->Visible(IDC_Toolbar1); });
  WaitFor("the list to move back", [&] { return window_->CellRectangle(0, 0).top == listTop; });
}

}  // namespace
}  // namespace tessera::e2e::start_test
