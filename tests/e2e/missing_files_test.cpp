// Total Commander's files missing, unreadable or broken: what is said, and that the program works.
#include <random>

#include "platform/win32/Handle.h"
#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::missing_files_test {
namespace {

constexpr char NoCommandList[] = "Cannot find your Totalcmd.inc file !";
constexpr char NoSettings[] = "Cannot find Total Commander settings file [Wincmd.ini]";
constexpr std::chrono::seconds LargeFileLimit{60};

class MissingFilesTest : public EndToEndTest {
 protected:
  void SetUp() override { rows_ = ExpectedRows(folder_); }

  /// Expects a message box with that text, and cancels the file dialog after it.
  void ExpectBoxAndCancelDialog(const std::string& text) {
    const Box box = NextBox();
    EXPECT_EQ(Utf8(box.Text), text);
    EXPECT_EQ(box.Buttons, std::vector<int>{IDOK});
    WaitFor("the list behind the box", [&] { return window_->Visible(IDC_ListView1); });
    Answer(box, IDOK);
    AnswerByKey(WaitForFileDialog(program_->Id()), VK_ESCAPE);
  }

  [[nodiscard]] std::wstring CaptionOfOpenFile() const {
    return folder_.WincmdIni() + L" - Tessera";
  }

  /// Waits until the program has loaded what there is to load, with that caption at the end.
  void WaitUntilLoaded(const std::wstring& caption) {
    WaitFor("the caption " + Utf8(caption), [&] { return window_->Caption() == caption; });
    WaitFor(
        "the end of the load",
        [&] {
          return IsWindowEnabled(window_->Handle()) != FALSE && !window_->Visible(IDC_ProgressBar1);
        },
        LargeFileLimit);
  }

  /// Expects the list to get that many rows, and the program to follow commands and to end.
  void ExpectWorkingProgram(std::size_t rows) {
    WaitFor(
        std::to_string(rows) + " rows",
        [&] { return window_->RowCount() == static_cast<int>(rows); }, LargeFileLimit);
    window_->Command(IDM_mnuViewToolbar);
    WaitFor(
        "the toolbar to be hidden", [&] { return !window_->Visible(IDC_Toolbar1); },
        LargeFileLimit);
    EXPECT_TRUE(NoBoxOpen()) << DescribeOpenBoxes(program_->Id());
    PostMessageW(window_->Handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(program_->WaitForEnd(), 0U);
  }

  static std::string RandomBytes(std::size_t size) {
    std::mt19937 generator(20260101);
    std::string bytes(size, '\0');
    for (char& byte : bytes) byte = static_cast<char>(generator() & 0xFF);
    return bytes;
  }

  static UniqueHandle Hold(const std::wstring& path) {
    return Own(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  }

  static void MakeDirectory(const std::wstring& path) {
    Delete(path);
    ASSERT_NE(CreateDirectoryW(path.c_str(), nullptr), FALSE);
  }

  /// The rows as they are without any current key.
  [[nodiscard]] std::vector<RowTexts> RowsWithoutCurrentKeys() {
    WriteBytes(folder_.WincmdIni(), "");
    return ExpectedRows(folder_);
  }

  std::vector<RowTexts> rows_;
};

TEST_F(MissingFilesTest, MissingSettingsAreAskedFor) {
  Delete(folder_.WincmdIni());
  Start();
  ExpectBoxAndCancelDialog(NoSettings);
  WaitUntilLoaded(L"Tessera");
  ExpectWorkingProgram(0);
  EXPECT_FALSE(Exists(folder_.WincmdIni()));
}

TEST_F(MissingFilesTest, MissingCommandListIsAskedFor) {
  Delete(folder_.TotalcmdInc());
  Start();
  ExpectBoxAndCancelDialog(NoCommandList);
  WaitUntilLoaded(CaptionOfOpenFile());
  ExpectWorkingProgram(0);
}

TEST_F(MissingFilesTest, CommandListIsAskedForBeforeTheSettings) {
  Delete(folder_.TotalcmdInc());
  Delete(folder_.WincmdIni());
  Start();
  ExpectBoxAndCancelDialog(NoCommandList);
  ExpectBoxAndCancelDialog(NoSettings);
  WaitUntilLoaded(L"Tessera");
  ExpectWorkingProgram(0);
}

TEST_F(MissingFilesTest, DirectoriesInTheirPlaceCountAsMissing) {
  MakeDirectory(folder_.TotalcmdInc());
  MakeDirectory(folder_.WincmdIni());
  Start();
  ExpectBoxAndCancelDialog(NoCommandList);
  ExpectBoxAndCancelDialog(NoSettings);
  WaitUntilLoaded(L"Tessera");
  ExpectWorkingProgram(0);
}

TEST_F(MissingFilesTest, MissingDefaultKeysAreAskedFor) {
  Delete(folder_.DefaultKeysFile());
  Start();
  ExpectBoxAndCancelDialog("Cannot find data file! Please open one to continue");
  ExpectWorkingProgram(rows_.size());
}

TEST_F(MissingFilesTest, CommandListHeldByAnotherProgramGivesNoRows) {
  const UniqueHandle held = Hold(folder_.TotalcmdInc());
  ASSERT_TRUE(held);
  Start();
  WaitUntilLoaded(CaptionOfOpenFile());
  ExpectWorkingProgram(0);
}

TEST_F(MissingFilesTest, SettingsHeldByAnotherProgramAreReadAtARetry) {
  UniqueHandle held = Hold(folder_.WincmdIni());
  ASSERT_TRUE(held);
  Start();
  const Box box = NextBox();
  EXPECT_EQ(box.Text, L"Cannot read this file " + folder_.WincmdIni());
  EXPECT_EQ(box.Buttons, (std::vector<int>{IDRETRY, IDCANCEL}));
  EXPECT_EQ(box.DefaultButton, IDRETRY);
  Answer(box, IDRETRY);
  const Box again = NextBox();
  held.reset();
  Answer(again, IDRETRY);
  WaitUntilLoaded(CaptionOfOpenFile());
  EXPECT_TRUE(SameRows(window_->Rows(), rows_));
  ExpectWorkingProgram(rows_.size());
}

TEST_F(MissingFilesTest, SettingsHeldByAnotherProgramGiveNoCurrentKeysAndAreNotOverwritten) {
  const std::string original = ReadBytes(folder_.WincmdIni());
  UniqueHandle held = Hold(folder_.WincmdIni());
  ASSERT_TRUE(held);
  Start();
  Answer(NextBox(), IDCANCEL);
  WaitFor("the rows", [&] { return window_->RowCount() == static_cast<int>(rows_.size()); });
  for (const RowTexts& row : WithoutHeadings(window_->Rows())) {
    EXPECT_EQ(row[3], L"---") << Utf8(row[1]);
  }
  MakeAChange();
  window_->ClickButton(IDC_Toolbar1, IDM_mnuFileSave);
  Select(L"cm_SrcTree");  // answered after the click on the button
  EXPECT_TRUE(Modified());
  held.reset();
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), original);
}

TEST_F(MissingFilesTest, EmptyCommandListGivesNoRows) {
  WriteBytes(folder_.TotalcmdInc(), "");
  Start();
  WaitUntilLoaded(CaptionOfOpenFile());
  ExpectWorkingProgram(0);
}

TEST_F(MissingFilesTest, EmptySettingsAreFilled) {
  const std::vector<RowTexts> expected = RowsWithoutCurrentKeys();
  StartAndLoad();
  EXPECT_TRUE(SameRows(window_->Rows(), expected));
  MakeAChange();
  Save();
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), "[Shortcuts]\r\nCA+K=cm_SrcShort\r\n");
  ExpectWorkingProgram(rows_.size());
}

TEST_F(MissingFilesTest, RandomSettingsKeepEveryByte) {
  const std::vector<RowTexts> expected = RowsWithoutCurrentKeys();
  const std::string bytes = RandomBytes(10 << 20) + "\r\n";
  WriteBytes(folder_.WincmdIni(), bytes);
  Start();
  WaitFor(
      "the rows", [&] { return window_->RowCount() == static_cast<int>(expected.size()); },
      LargeFileLimit);
  EXPECT_TRUE(SameRows(window_->Rows(), expected));
  MakeAChange();
  window_->ClickButton(IDC_Toolbar1, IDM_mnuFileSave);
  // Made after the swap; a message to a program that still writes may go unanswered too long.
  WaitFor(
      "the backup", [&] { return Exists(folder_.WincmdIni() + L".bak"); }, LargeFileLimit);
  WaitFor("the save to end", [&] { return !Modified(); });
  // Compared without the matcher, which would print both.
  EXPECT_TRUE(ReadBytes(folder_.WincmdIni()) == bytes + "[Shortcuts]\r\nCA+K=cm_SrcShort\r\n");
  ExpectWorkingProgram(rows_.size());
}

TEST_F(MissingFilesTest, RandomCommandListIsShownAsItIs) {
  WriteBytes(folder_.TotalcmdInc(), RandomBytes(10 << 20));
  Start();
  WaitFor(
      "some rows", [&] { return window_->RowCount() > 1000; }, LargeFileLimit);
  ExpectWorkingProgram(static_cast<std::size_t>(window_->RowCount()));
}

}  // namespace
}  // namespace tessera::e2e::missing_files_test
