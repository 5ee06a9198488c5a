// Files that are handed to the program: on its command line, and dropped on its window.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <string>

#include "platform/win32/Handle.h"
#include "resources/resource.h"
#include "tests/e2e/DroppedFile.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::open_test {
namespace {

class OpenTest : public EndToEndTest {
 protected:
  void SetUp() override { WriteBytes(other_, "[Shortcuts]\r\nCA+K=cm_SrcTree\r\n"); }

  void WaitUntilOpen(const std::wstring& path) {
    WaitFor(Utf8(path) + " to be open", [&] { return window_->Caption() == path + L" - Tessera"; });
    WaitFor("the first row to be selected", [&] { return window_->SelectedRow() == 0; });
  }

  void Drop(const std::wstring& path) {
    ASSERT_NE(GetWindowLongPtrW(window_->Handle(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
    DropFile(window_->Handle(), program_->Process(), path);
  }

  void ExpectOtherFile() {
    WaitUntilOpen(other_);
    EXPECT_EQ(RowOf(L"cm_SrcTree")[3], L"Ctrl + Alt + K");
    EXPECT_EQ(Setting("RecentFiles1"), Utf8(other_));
  }

  std::wstring other_ = folder_.Root() + L"other file.ini";
};

TEST_F(OpenTest, FullPathOnTheCommandLine) {
  Start(L'"' + other_ + L'"');
  ExpectOtherFile();
  EXPECT_EQ(RowOf(L"cm_SrcComments")[3], L"---") << "the file that was found is not read";
}

TEST_F(OpenTest, RelativePathOnTheCommandLineStartsFromTheCurrentFolder) {
  Start(L"\"..\\other file.ini\"");
  ExpectOtherFile();
}

TEST_F(OpenTest, SavedFileKeepsTheLetterCaseOfItsName) {
  const std::wstring path = folder_.Root() + L"OTHER File.INI";
  Start(L'"' + path + L'"');
  WaitUntilOpen(path);
  BringToFront(window_->Handle());
  Select(L"cm_SrcTree");
  window_->ClickButton(IDC_Toolbar2, IDM_delete);
  WaitForKeys(L"cm_SrcTree", L"---");
  Save();
  EXPECT_EQ(SectionLines(ReadBytes(other_), "Shortcuts").size(), 0U);
  WIN32_FIND_DATAW found{};
  FindClose(FindFirstFileW(path.c_str(), &found));
  EXPECT_EQ(std::wstring(found.cFileName), L"other file.ini");
}

TEST_F(OpenTest, FileThatCannotBeReadLeavesTheOpenOne) {
  StartAndLoad();
  MakeAChange();
  const std::wstring caption = window_->Caption();
  const std::vector<RowTexts> rows = window_->Rows();
  const UniqueHandle held =
      Own(CreateFileW(other_.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(held);
  Drop(other_);
  Answer(NextBox(), IDNO);  // about the changes
  const Box box = NextBox();
  EXPECT_EQ(box.Text, L"Cannot read this file " + other_);
  Answer(box, IDCANCEL);
  EXPECT_EQ(window_->Caption(), caption);
  EXPECT_TRUE(SameRows(window_->Rows(), rows));
  EXPECT_TRUE(Modified());
  Save();
}

TEST_F(OpenTest, OtherFileIsSavedAndTheOneThatWasFoundIsNot) {
  const std::string found = ReadBytes(folder_.WincmdIni());
  Start(L'"' + other_ + L'"');
  WaitUntilOpen(other_);
  BringToFront(window_->Handle());
  Select(L"cm_SrcTree");
  window_->ClickButton(IDC_Toolbar2, IDM_delete);
  WaitForKeys(L"cm_SrcTree", L"---");
  Save();
  EXPECT_EQ(SectionLines(ReadBytes(other_), "Shortcuts").size(), 0U);
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), found);
}

TEST_F(OpenTest, DroppedFileIsOpenedAndTheWindowComesToTheFront) {
  StartAndLoad();
  const HWND other = CreateWindowW(L"STATIC", L"another program", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9,
                                   nullptr, nullptr, nullptr, nullptr);
  BringToFront(other);
  Drop(other_);
  ExpectOtherFile();
  EXPECT_EQ(GetForegroundWindow(), window_->Handle());
  DestroyWindow(other);
}

TEST_F(OpenTest, DroppedFileShowsItsFirstRow) {
  StartAndLoad();
  const auto top = [&] { return Send(window_->Control(IDC_ListView1), LVM_GETTOPINDEX); };
  window_->ClickRow(window_->RowCount() - 2);
  SelectNext();
  ASSERT_GT(top(), 0);
  Drop(other_);
  WaitUntilOpen(other_);
  WaitFor("the first row to be in sight", [&] { return top() == 0; });
}

TEST_F(OpenTest, DropAsksAboutUnsavedChangesFirst) {
  StartAndLoad();
  MakeAChange();
  Drop(other_);
  const Box question = NextBox();
  Drop(other_);
  Answer(question, IDCANCEL);
  EXPECT_TRUE(NoBoxOpen()) << "a drop does not ask while a question is open";
  EXPECT_TRUE(Modified());
  EXPECT_EQ(window_->Caption(), folder_.WincmdIni() + L" - Tessera");
  Drop(other_);
  Answer(NextBox(), IDNO);
  ExpectOtherFile();
  EXPECT_FALSE(Modified());
}

}  // namespace
}  // namespace tessera::e2e::open_test
