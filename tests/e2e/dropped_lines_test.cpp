// Lines of commands that Totalcmd.inc lacks, through saves and opens, with each option on and off.
#include <ctime>
#include <string>

#include "resources/resource.h"
#include "tests/e2e/DroppedFile.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::dropped_lines_test {
namespace {

enum { OperationTab = 2 };

const std::string Line = "A+F9=em_Mine\r\n";

class DroppedLinesTest : public EndToEndTest {
 protected:
  void SetUp() override {
    std::string content = ReadBytes(folder_.WincmdIni());
    const std::string header = "[Shortcuts]\r\n";
    content.insert(content.find(header) + header.size(), Line);
    WriteBytes(folder_.WincmdIni(), content);
    WriteBytes(folder_.Commander() + L"usercmd.ini",
               "[em_Mine]\r\nmenu=My command\r\n[em_Yours]\r\ncmd=yours.exe\r\n");
  }

  /// Ticks or clears a box of the options.
  void Toggle(int box) {
    window_->ChooseFromMenu('V', 'O');
    Dialog dialog = NextDialog(L"frmOptions");
    if (dialog.ChosenTab(IDC_tbsOptions) != OperationTab) {
      dialog.ClickTab(IDC_tbsOptions, OperationTab);
    }
    const bool before = dialog.BoxChecked(box);
    dialog.ClickControl(box);
    WaitFor("the box", [&] { return dialog.BoxChecked(box) != before; });
    dialog.CloseBy(IDC_cmdOK);
  }

  void Open(const std::wstring& path) {
    window_->SelectByAutomation(1);
    DropFile(window_->Handle(), program_->Process(), path);
    WaitFor("the file to be open", [&] { return window_->SelectedRow() == 0; });
  }

  /// Takes the keys of a command away and saves.
  void SaveWithout(const std::wstring& command) {
    window_->SelectByAutomation(window_->FindCommand(command));
    window_->Command(IDM_delete);
    WaitForKeys(command, L"---");
    Save();
  }

  [[nodiscard]] std::string Saved() const { return ReadBytes(folder_.WincmdIni()); }
  [[nodiscard]] std::wstring Dropped() const { return folder_.WincmdIni() + L".dropped"; }
};

TEST_F(DroppedLinesTest, LinesThatASaveDropsAreAddedToTheFileBesideAndAllElseIsAsBefore) {
  const std::string original = Saved();
  StartAndLoad();
  SaveWithout(L"cm_SrcComments");
  EXPECT_EQ(Saved(), WithShortcuts(original, ExpectedShortcuts(window_->Rows())));
  EXPECT_EQ(Saved().find("em_Mine"), std::string::npos);
  const std::string dropped = ReadBytes(Dropped());
  const std::string path = Utf8(folder_.WincmdIni());
  ASSERT_TRUE(dropped.ends_with(" " + path + "\r\n" + Line)) << dropped;
  EXPECT_EQ(dropped.size(), ("; 2026-11-22 10:00:00 " + path + "\r\n" + Line).size());
  EXPECT_EQ(std::stoi(dropped.substr(2)), [] {
    const std::time_t now = std::time(nullptr);
    return std::localtime(&now)->tm_year + 1900;
  }());
  SaveWithout(L"cm_SrcBySize");
  EXPECT_EQ(ReadBytes(Dropped()), dropped) << "a save without such lines leaves it alone";
  WriteBytes(folder_.WincmdIni(), original);
  Open(folder_.WincmdIni());
  SaveWithout(L"cm_SrcComments");
  const std::string twice = ReadBytes(Dropped());
  EXPECT_TRUE(twice.starts_with(dropped)) << twice;
  EXPECT_TRUE(twice.ends_with(path + "\r\n" + Line)) << twice;
  EXPECT_EQ(twice.size(), 2 * dropped.size());
  EXPECT_EQ(SettingsText().find("ShowUserCommands"), std::string::npos);
}

TEST_F(DroppedLinesTest, TheyStayFromTheNextOpenOnWhereTheOptionsKeepThem) {
  StartAndLoad();
  Toggle(IDC_chkKeepUnknownShortcuts);
  Open(folder_.WincmdIni());
  for (const wchar_t* const command : {L"cm_SrcComments", L"cm_SrcBySize"}) {
    SaveWithout(command);
    EXPECT_EQ(SectionValue(Saved(), "Shortcuts", "A+F9"), "em_Mine");
  }
  EXPECT_FALSE(Exists(Dropped()));
  Toggle(IDC_chkKeepUnknownShortcuts);
  Open(folder_.WincmdIni());
  SaveWithout(L"cm_RenameSingleFile");
  EXPECT_EQ(Saved().find("em_Mine"), std::string::npos);
  EXPECT_TRUE(ReadBytes(Dropped()).ends_with("\r\n" + Line));
}

TEST_F(DroppedLinesTest, OwnCommandsAreRowsWhereTheOptionsShowThem) {
  StartAndLoad();
  const int rows = window_->RowCount();
  Toggle(IDC_chkShowUserCommands);
  Open(folder_.WincmdIni());
  WaitFor("the rows", [&] { return window_->RowCount() == rows + 3; });
  EXPECT_EQ(window_->Row(rows)[0], L"Own commands (usercmd.ini)");
  EXPECT_EQ(window_->Row(rows + 1), (RowTexts{L"My command", L"em_Mine", L"---", L"Alt + F9"}));
  EXPECT_EQ(window_->Row(rows + 2), (RowTexts{L"yours.exe", L"em_Yours", L"---", L"---"}));
  for (const wchar_t* const command : {L"cm_SrcComments", L"cm_SrcBySize"}) {
    SaveWithout(command);
    EXPECT_EQ(SectionValue(Saved(), "Shortcuts", "A+F9"), "em_Mine");
  }
  Delete(folder_.Commander() + L"usercmd.ini");
  Open(folder_.WincmdIni());
  WaitFor("the rows to go", [&] { return window_->RowCount() == rows; });
  SaveWithout(L"cm_RenameSingleFile");
  EXPECT_EQ(SectionValue(Saved(), "Shortcuts", "A+F9"), "em_Mine") << "the file is gone";
  EXPECT_FALSE(Exists(Dropped()));
  Toggle(IDC_chkShowUserCommands);
  Open(folder_.WincmdIni());
  SaveWithout(L"cm_MoveOnly");
  EXPECT_EQ(Saved().find("em_Mine"), std::string::npos);
  EXPECT_TRUE(ReadBytes(Dropped()).ends_with("\r\n" + Line));
}

TEST_F(DroppedLinesTest, AFurtherOpenShowsItsKeysAloneWhereTheOptionsForgetFormerOnes) {
  const std::wstring other = folder_.Root() + L"other.ini";
  WriteBytes(other, "[Shortcuts]\r\nCA+K=cm_SrcComments\r\n");
  StartAndLoad();
  Open(other);
  EXPECT_EQ(RowOf(L"cm_SrcComments")[3], L"Ctrl + Alt + F1 = Ctrl + Alt + K");
  Toggle(IDC_chkForgetKeysAtOpen);
  Open(other);
  EXPECT_EQ(RowOf(L"cm_SrcComments")[3], L"Ctrl + Alt + K");
  EXPECT_EQ(RowOf(L"cm_SrcBySize")[3], L"---");
}

}  // namespace
}  // namespace tessera::e2e::dropped_lines_test
