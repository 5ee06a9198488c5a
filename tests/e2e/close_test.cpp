// Closing with unsaved changes, and what the next start finds.
#include <future>
#include <stdexcept>

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

  /// Asks whether the session may end, as the system does at a log-off; the answer comes after the
  /// user's.
  [[nodiscard]] std::future<bool> AskToLogOff() const {
    return std::async(std::launch::async, [window = window_->Handle()] {
      constexpr UINT Limit = 30000;  // milliseconds
      DWORD_PTR answer = 0;
      if (SendMessageTimeoutW(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, Limit, &answer) == 0) {
        throw std::runtime_error("The window does not tell whether the session may end");
      }
      return answer != FALSE;
    });
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

TEST_F(CloseTest, LogOffAsksTooAndIsRefusedByCancel) {
  MakeAChange();
  std::future<bool> mayEnd = AskToLogOff();
  const Box box = NextBox();
  EXPECT_EQ(Utf8(box.Text), "Save changes to  " + Utf8(folder_.WincmdIni()) + "\n");
  Answer(box, IDCANCEL);
  EXPECT_FALSE(mayEnd.get());
  EXPECT_TRUE(Modified());

  mayEnd = AskToLogOff();
  Answer(NextBox(), IDYES);
  EXPECT_TRUE(mayEnd.get());
  EXPECT_EQ(SectionValue(ReadBytes(folder_.WincmdIni()), "Shortcuts", "CA+K"), "cm_SrcShort");
  EXPECT_TRUE(program_->Running()) << "another program may still refuse";
  PostMessageW(window_->Handle(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(program_->WaitForEnd(), 0U);
}

TEST_F(CloseTest, LogOffWithoutChangesIsAllowedAtOnce) {
  EXPECT_TRUE(AskToLogOff().get());
  EXPECT_TRUE(NoBoxOpen());
}

TEST_F(CloseTest, NothingIsAskedASecondTimeWhileTheQuestionIsOpen) {
  MakeAChange();
  const Box box = AskToClose();
  PostMessageW(window_->Handle(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(AskToLogOff().get());
  Answer(box, IDCANCEL);  // a click comes after what was posted
  EXPECT_TRUE(NoBoxOpen()) << DescribeOpenBoxes(program_->Id());
  EXPECT_TRUE(program_->Running());
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
