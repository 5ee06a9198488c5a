// Closing with unsaved changes, and what the next start finds.
#include <array>
#include <filesystem>
#include <future>
#include <stdexcept>
#include <utility>

#include "platform/win32/Guarded.h"
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
    PressTogether(std::array<WORD, 2>{VK_MENU, VK_F4});
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

  [[nodiscard]] std::wstring Unsaved() const { return folder_.WincmdIni() + L".unsaved"; }

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
  EXPECT_EQ(SectionValue(ReadBytes(Unsaved()), "Shortcuts", "CA+K"), "cm_SrcShort")
      << "for an end over the question";
  Answer(box, IDCANCEL);
  EXPECT_FALSE(mayEnd.get());
  EXPECT_TRUE(Modified());
  EXPECT_FALSE(std::filesystem::exists(Unsaved()));

  mayEnd = AskToLogOff();
  Answer(NextBox(), IDYES);
  EXPECT_TRUE(mayEnd.get());
  EXPECT_EQ(SectionValue(ReadBytes(folder_.WincmdIni()), "Shortcuts", "CA+K"), "cm_SrcShort");
  EXPECT_FALSE(std::filesystem::exists(Unsaved()));
  EXPECT_TRUE(program_->Running()) << "another program may still refuse";
  PostMessageW(window_->Handle(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(program_->WaitForEnd(), 0U);
}

TEST_F(CloseTest, LogOffThatComesAllTheSameKeepsTheChanges) {
  enum class Over { Question, CancelledQuestion, NoQuestion };
  for (const Over over : {Over::Question, Over::CancelledQuestion, Over::NoQuestion}) {
    if (!program_->Running()) StartAndLoad();
    MakeAChange();
    if (over == Over::Question) {
      std::future<bool> mayEnd = AskToLogOff();
      Answer(NextBox(), IDNO);
      EXPECT_TRUE(mayEnd.get()) << "an answer that the next question makes void";
      static_cast<void>(AskToClose());
      EXPECT_FALSE(AskToLogOff().get());
    } else if (over == Over::CancelledQuestion) {
      std::future<bool> mayEnd = AskToLogOff();
      Answer(NextBox(), IDCANCEL);
      EXPECT_FALSE(mayEnd.get());
      EXPECT_FALSE(std::filesystem::exists(Unsaved()));
    }
    PostMessageW(window_->Handle(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(program_->WaitForEnd(), 0U);
    EXPECT_EQ(SectionValue(ReadBytes(Unsaved()), "Shortcuts", "CA+K"), "cm_SrcShort");
    EXPECT_EQ(ReadBytes(folder_.WincmdIni()), original_);
    std::filesystem::remove(Unsaved());
  }
}

TEST_F(CloseTest, LogOffAfterNoKeepsNothing) {
  MakeAChange();
  std::future<bool> mayEnd = AskToLogOff();
  Answer(NextBox(), IDNO);
  EXPECT_TRUE(mayEnd.get());
  PostMessageW(window_->Handle(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(program_->WaitForEnd(), 0U);
  EXPECT_FALSE(std::filesystem::exists(Unsaved()));
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), original_);
}

TEST_F(CloseTest, FailureOverTheQuestionKeepsTheChanges) {
  MakeAChange();
  static_cast<void>(AskToClose());
  PostMessageW(window_->Handle(), FailureMessage, 0, 0);
  AnswerByKey(NextBox().Window, VK_RETURN);
  EXPECT_EQ(program_->WaitForEnd(), 1U);
  EXPECT_EQ(SectionValue(ReadBytes(Unsaved()), "Shortcuts", "CA+K"), "cm_SrcShort");
}

TEST_F(CloseTest, LogOffOverAnOpenDialogIsRefusedAndKeepsTheChangesMeanwhile) {
  MakeAChange();
  window_->Command(IDM_mnuViewOptions);
  Dialog dialog = NextDialog(L"frmOptions");
  EXPECT_FALSE(AskToLogOff().get());
  EXPECT_TRUE(std::filesystem::exists(Unsaved()));
  PostMessageW(window_->Handle(), WM_ENDSESSION, FALSE, 0);
  WaitFor("the kept changes to go", [&] { return !std::filesystem::exists(Unsaved()); });
  dialog.CloseByKey(VK_ESCAPE);
  EXPECT_TRUE(Modified());
}

// The same message comes after an exception in a window procedure.
TEST_F(CloseTest, FailureIsToldOnceAndTheChangesAreKept) {
  MakeAChange();
  PostMessageW(window_->Handle(), FailureMessage, 0, 0);
  const Box box = NextBox();
  PostMessageW(window_->Handle(), FailureMessage, 0, 0);
  EXPECT_EQ(box.Title, L"Tessera");
  EXPECT_EQ(box.Buttons, std::vector<int>{IDOK});
  EXPECT_EQ(Utf8(box.Text),
            "Tessera must end because of an error. Unsaved changes are in Wincmd.ini.unsaved.");
  EXPECT_EQ(SectionValue(ReadBytes(Unsaved()), "Shortcuts", "CA+K"), "cm_SrcShort");
  Answer(box, IDOK);
  EXPECT_EQ(program_->WaitForEnd(), 1U);
  EXPECT_TRUE(std::filesystem::exists(Unsaved()));
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), original_);
  EXPECT_NE(Setting("MainWindowWidth"), "") << "the settings are stored";
}

TEST_F(CloseTest, LogOffWithoutChangesIsAllowedAtOnce) {
  EXPECT_TRUE(AskToLogOff().get());
  EXPECT_TRUE(NoBoxOpen());
}

TEST_F(CloseTest, LogOffWithoutChangesIsAllowedAndEndsTheProgramWhileADialogIsOpen) {
  for (const auto& [command, dialog] :
       {std::pair(IDM_mnuViewOptions, L"frmOptions"),
        std::pair(IDM_mnuFileExportToClipboard, L"frmExportToClipboard")}) {
    if (!program_->Running()) StartAndLoad();
    SetWindowPos(window_->Handle(), nullptr, 120, 96, 720, 600, SWP_NOZORDER | SWP_NOACTIVATE);
    std::filesystem::remove(folder_.SettingsFile());
    window_->Command(command);
    static_cast<void>(NextDialog(dialog));
    EXPECT_TRUE(AskToLogOff().get());
    EXPECT_TRUE(program_->Running()) << "another program may still refuse";
    PostMessageW(window_->Handle(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(program_->WaitForEnd(), 0U);
    EXPECT_EQ(Setting("MainWindowLeft"), "1800") << "the settings are stored";
  }
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
