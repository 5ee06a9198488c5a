// Closing with unsaved changes, and what the next start finds.
#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::close_test {
namespace {

class CloseTest : public EndToEndTest {
 protected:
  void SetUp() override {
    original_ = ReadBytes(folder_.WincmdIni());
    StartAndLoad();
  }

  void PressAltF4() {
    BringToFront(window_->Handle());
    const HeldKey alt(VK_MENU);
    Press(VK_F4);
  }

  /// Clicks the close button of the caption, and gives the question that comes.
  Box AskToClose() {
    RECT place{};
    GetWindowRect(window_->Handle(), &place);
    const int frame = GetSystemMetrics(SM_CXSIZEFRAME);
    BringToFront(window_->Handle());
    Click({place.right - frame - GetSystemMetrics(SM_CXSIZE) / 2,
           place.top + frame + GetSystemMetrics(SM_CYSIZE) / 2});
    return NextBox();
  }

  std::string original_;
};

TEST_F(CloseTest, QuestionNamesTheFile) {
  MakeAChange();
  const Box box = AskToClose();
  EXPECT_EQ(Utf8(box.Text), "Save changes to  " + Utf8(folder_.WincmdIni()) + "\n");
  EXPECT_EQ(box.Title, L"Tessera");
  EXPECT_EQ(box.Buttons, (std::vector<int>{IDYES, IDNO, IDCANCEL}));
  AnswerByKey(box.Window, VK_ESCAPE);
  EXPECT_TRUE(program_->Running());
}

TEST_F(CloseTest, YesSaves) {
  MakeAChange();
  const std::vector<RowTexts> rows = window_->Rows();
  Answer(AskToClose(), IDYES);
  EXPECT_EQ(program_->WaitForEnd(), 0U);
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), WithShortcuts(original_, ExpectedShortcuts(rows)));
  StartAndLoad();
  EXPECT_TRUE(SameRows(window_->Rows(), rows));
}

TEST_F(CloseTest, NoLeavesTheFileAsItWas) {
  MakeAChange();
  Answer(AskToClose(), IDNO);
  EXPECT_EQ(program_->WaitForEnd(), 0U);
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), original_);
  StartAndLoad();
  EXPECT_TRUE(SameRows(window_->Rows(), ExpectedRows(folder_)));
}

TEST_F(CloseTest, CancelKeepsTheProgramRunningWithItsChanges) {
  MakeAChange();
  Answer(AskToClose(), IDCANCEL);
  EXPECT_TRUE(Modified());
  EXPECT_EQ(RowOf(L"cm_SrcShort")[3], L"Ctrl + Alt + K");
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), original_);
  Save();
  EXPECT_EQ(SectionValue(ReadBytes(folder_.WincmdIni()), "Shortcuts", "CA+K"), "cm_SrcShort");
}

TEST_F(CloseTest, ExitAsksToo) {
  MakeAChange();
  window_->Command(IDM_mnuFileExit);
  Answer(NextBox(), IDNO);
  EXPECT_EQ(program_->WaitForEnd(), 0U);
}

TEST_F(CloseTest, AltF4AsksToo) {
  MakeAChange();
  PressAltF4();
  Answer(NextBox(), IDNO);
  EXPECT_EQ(program_->WaitForEnd(), 0U);
}

TEST_F(CloseTest, NothingIsAskedWithoutChanges) {
  PressAltF4();
  EXPECT_EQ(program_->WaitForEnd(), 0U);
}

TEST_F(CloseTest, SavedKeysAreFoundAtTheNextStart) {
  MakeAChange();
  Save();
  const std::vector<RowTexts> rows = window_->Rows();
  Close();
  StartAndLoad();
  EXPECT_TRUE(SameRows(window_->Rows(), rows));
  EXPECT_FALSE(Modified());
}

}  // namespace
}  // namespace tessera::e2e::close_test
