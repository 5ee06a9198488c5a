// Steps that several tests share.
#include "tests/e2e/EndToEndTest.h"

#include "resources/resource.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e {

void EndToEndTest::TearDown() {
  if (HasFailure()) {
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string("tessera-") + test.test_suite_name() + "-" + test.name();
    std::cout << "Screen: " << Utf8(SaveScreenshot({name.begin(), name.end()})) << "\n";
    if (program_) std::cout << DescribeOpenBoxes(program_->Id());
  }
  window_.reset();
  program_.reset();
}

void EndToEndTest::Start(const std::wstring& argument, WORD showCommand) {
  window_.reset();
  program_ = std::make_unique<Program>(folder_.Executable(), commanderPath_, argument, showCommand);
  window_ = std::make_unique<MainWindow>(program_->WaitForWindow(), program_->Process());
}

void EndToEndTest::StartAndLoad() {
  const std::vector<RowTexts> expected = ExpectedRows(folder_);
  const auto rows = static_cast<int>(expected.size());
  Start();
  window_->LookFirst(expected);
  WaitFor(std::to_string(rows) + " rows", [&] { return window_->RowCount() == rows; });
  WaitFor("the first row to be selected", [&] { return window_->SelectedRow() == 0; });
  BringToFront(window_->Handle());
  // A window that is still to be put on the screen may then lie over an open menu.
  constexpr int LooksInARow = 7;
  constexpr DWORD BetweenLooks = 50;  // milliseconds; a picture costs more than a look elsewhere
  Picture last;
  int alike = 0;
  const auto isAtRest = [&] {
    Picture now = TakePicture(PartOnScreen(RectangleOf(window_->Handle())));
    alike = now.Pixels == last.Pixels ? alike + 1 : 0;
    last = std::move(now);
    return alike >= LooksInARow &&
           CountPixels(RectangleOf(window_->Control(IDC_Frame1)), GetSysColor(COLOR_BTNFACE)) > 0;
  };
  WaitFor("the window to be painted and to come to rest", isAtRest, UsualLimit, BetweenLooks);
}

void EndToEndTest::Close() {
  PostMessageW(window_->Handle(), WM_CLOSE, 0, 0);
  program_->WaitForEnd();
  window_.reset();
  program_.reset();
}

Dialog EndToEndTest::NextDialog(const std::wstring& className) const {
  return Dialog(WaitForDialog(program_->Id(), className), program_->Process());
}

std::string EndToEndTest::SettingsText() const {
  const auto read = [&]() -> std::optional<std::string> {
    try {
      return ReadBytes(folder_.SettingsFile());
    } catch (const std::runtime_error&) {
      return std::nullopt;
    }
  };
  return *WaitFor("the settings file", read);
}

std::string EndToEndTest::Setting(const std::string& name, const std::string& section) const {
  return SectionValue(SettingsText(), section, name);
}

void EndToEndTest::Select(const std::wstring& command) {
  const int position = window_->FindCommand(command);
  ASSERT_GE(position, 0) << Utf8(command);
  window_->ClickRow(position);
}

void EndToEndTest::SelectNext() {
  const int next = window_->SelectedRow() + 1;
  Press(VK_DOWN);
  WaitFor("row " + std::to_string(next) + " to be selected",
          [&] { return window_->SelectedRow() == next; });
}

RowTexts EndToEndTest::RowOf(const std::wstring& command) const {
  return window_->Row(window_->FindCommand(command));
}

void EndToEndTest::WaitForKeys(const std::wstring& command, const std::wstring& keys) const {
  const int position = window_->FindCommand(command);
  WaitFor(Utf8(command) + " to have " + Utf8(keys),
          [&] { return window_->Row(position)[3] == keys; });
}

void EndToEndTest::MakeAChange() {
  Select(L"cm_SrcShort");
  window_->ClickControl(IDC_chkCtrlAlt0);
  WaitFor("box Ctrl to be checked", [&] { return window_->BoxChecked(IDC_chkCtrlAlt0); });
  window_->ClickControl(IDC_chkCtrlAlt1);
  WaitFor("box Alt to be checked", [&] { return window_->BoxChecked(IDC_chkCtrlAlt1); });
  window_->ChooseKey(L"K");
  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  WaitForKeys(L"cm_SrcShort", L"Ctrl + Alt + K");
}

void EndToEndTest::Save() {
  window_->ClickButton(IDC_Toolbar1, IDM_mnuFileSave);
  WaitFor("the save to end", [&] { return !Modified(); });
}

bool EndToEndTest::Modified() const {
  return window_->ButtonEnabled(IDC_Toolbar1, IDM_mnuFileSave);
}

Box EndToEndTest::NextBox() const { return WaitForBox(program_->Id()); }

bool EndToEndTest::NoBoxOpen() const { return VisibleWindows(program_->Id(), L"#32770").empty(); }

}  // namespace tessera::e2e
