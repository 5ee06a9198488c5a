// Closing and starting Total Commander around a save, with a stand-in that notes what it is asked.
#include <filesystem>

#include "platform/win32/Handle.h"
#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/MenuPicture.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::restart_test {
namespace {

/// What its thread shows; the system would tell the pointer of whoever is in front.
HCURSOR PointerOf(HWND window) {
  const DWORD thread = GetWindowThreadProcessId(window, nullptr);
  AttachThreadInput(GetCurrentThreadId(), thread, TRUE);
  const HCURSOR shown = GetCursor();
  AttachThreadInput(GetCurrentThreadId(), thread, FALSE);
  return shown;
}

class RestartTest : public EndToEndTest {
 protected:
  /// Leaves an unsaved change, whose save waits for a stand-in that closes when LetItClose is
  /// called.
  void SaveWhileItClosesSlowly() {
    WriteBytes(slow_, "");
    StartStandIn();
    StartAndLoad();
    MakeAChange();
    usualPointer_ = PointerOf(window_->Handle());
    window_->Command(IDM_restarttc);
    WaitFor("the close request", [&] { return Log().ends_with("close\n"); });
  }

  void LetItClose() const { DeleteFileW(slow_.c_str()); }

  void SetUp() override {
    ASSERT_EQ(StandInWindow(), nullptr) << "A Total Commander is running already";
    original_ = ReadBytes(folder_.WincmdIni());
    std::filesystem::copy_file(OwnFolder() + L"totalcmd_stand_in.exe", StandInPath());
  }

  void TearDown() override {
    LetItClose();
    EndToEndTest::TearDown();
    if (const HWND window = StandInWindow(); window != nullptr) EndStandIn(window);
    standIn_.reset();
  }

  [[nodiscard]] virtual std::wstring StandInPath() const {
    return folder_.Commander() + L"Totalcmd.exe";
  }

  static HWND StandInWindow() { return FindWindowW(L"TTOTAL_CMD", nullptr); }

  static HWND WaitForStandIn() {
    return WaitFor("the stand-in's window", [] { return StandInWindow(); });
  }

  static void EndStandIn(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const UniqueHandle process = Own(OpenProcess(SYNCHRONIZE, FALSE, id));
    PostMessageW(window, WM_CLOSE, 0, 0);
    constexpr DWORD Limit = 10000;  // milliseconds
    WaitForSingleObject(process.get(), Limit);
  }

  void StartStandIn() {
    standIn_ = std::make_unique<Program>(StandInPath(), commanderPath_);
    static_cast<void>(WaitForStandIn());
  }

  [[nodiscard]] std::string Log() const { return ReadBytes(folder_.Commander() + L"stand-in.log"); }

  [[nodiscard]] std::string CommandLineAfterRestart() const {
    return '"' + Utf8(StandInPath()) + "\" /i=\"" + Utf8(folder_.WincmdIni()) + '"';
  }

  void AlwaysRestart() { WriteBytes(folder_.SettingsFile(), "[Tessera]\r\nAlwaysRestartTC=1\r\n"); }

  const std::wstring slow_ = folder_.Commander() + L"slow";
  std::string original_;
  std::unique_ptr<Program> standIn_;
  HCURSOR usualPointer_ = nullptr;
};

TEST_F(RestartTest, SaveAndRestartClosesItBeforeTheSaveAndStartsItAfterwards) {
  StartStandIn();
  StartAndLoad();
  MakeAChange();
  window_->ChooseFromButtonMenu(IDC_Toolbar1, IDM_mnuFileSave, 1);
  WaitFor("the save to end", [&] { return !Modified(); });
  standIn_->WaitForEnd();
  static_cast<void>(WaitForStandIn());
  const std::string saved = ReadBytes(folder_.WincmdIni());
  EXPECT_EQ(saved, WithShortcuts(original_, ExpectedShortcuts(window_->Rows())));
  EXPECT_EQ(ReadBytes(folder_.Commander() + L"at-close.ini"), original_);
  EXPECT_EQ(ReadBytes(folder_.Commander() + L"at-start.ini"), saved);
  EXPECT_EQ(Log(), "start \"" + Utf8(StandInPath()) + "\"\nclose\nstart " +
                       CommandLineAfterRestart() + "\n");
}

TEST_F(RestartTest, WindowStaysAliveUnderThePointerOfWaitingWhileItCloses) {
  SaveWhileItClosesSlowly();
  const HWND list = window_->Control(IDC_ListView1);
  MoveTo(CenterOf(RectangleOf(list)));
  WaitFor("the pointer of waiting", [&] { return PointerOf(list) != usualPointer_; });
  InvalidateRect(list, nullptr, TRUE);
  WaitFor("the list to be painted", [&] { return GetUpdateRect(list, nullptr, FALSE) == FALSE; });
  EXPECT_FALSE(window_->Enabled(IDC_txtFind));
  EXPECT_NE(StandInWindow(), nullptr) << "it was painted too late to tell anything";
  EXPECT_TRUE(Modified()) << "the save comes after the close";
  LetItClose();
  WaitFor("the save to end", [&] { return !Modified(); });
  WaitFor("the find box to be enabled", [&] { return window_->Enabled(IDC_txtFind); });
  MoveTo(CenterOf(RectangleOf(window_->Control(IDC_lblStatus))));
  WaitFor("the usual pointer", [&] { return PointerOf(list) == usualPointer_; });
  standIn_->WaitForEnd();
  static_cast<void>(WaitForStandIn());
  EXPECT_TRUE(Log().ends_with("close\nstart " + CommandLineAfterRestart() + "\n")) << Log();
}

TEST_F(RestartTest, ChangesLieBesideTheFileWhenALogOffComesWhileItCloses) {
  const std::wstring unsaved = folder_.WincmdIni() + L".unsaved";
  SaveWhileItClosesSlowly();
  EXPECT_EQ(Send(window_->Handle(), WM_QUERYENDSESSION), FALSE);
  EXPECT_NE(StandInWindow(), nullptr) << "it was asked too late to tell anything";
  EXPECT_NE(ReadBytes(unsaved).find("cm_SrcShort"), std::string::npos);
  LetItClose();
  WaitFor("the save to end", [&] { return !Modified(); });
  EXPECT_FALSE(Exists(unsaved));
  standIn_->WaitForEnd();
  static_cast<void>(WaitForStandIn());
}

TEST_F(RestartTest, ItemsAreEnabledWhileItRunsAndThereAreChanges) {
  const std::wstring caption = L"Save and Restart Bainioka";
  const auto closeMenu = [&] {
    Press(VK_ESCAPE);
    WaitFor("one menu less", [&] { return window_->OpenMenus().empty(); });
    if (window_->InMenu()) Press(VK_ESCAPE);
    WaitFor("the menu bar to lose the focus", [&] { return !window_->InMenu(); });
  };
  StartStandIn();
  StartAndLoad();
  EXPECT_FALSE(WaitForMenuEntry(window_->OpenMenu('F'), caption).Enabled) << "no changes yet";
  closeMenu();
  MakeAChange();
  EXPECT_TRUE(WaitForMenuEntry(window_->OpenMenu('F'), caption).Enabled);
  closeMenu();
  const HWND buttonMenu = window_->OpenButtonMenu(IDC_Toolbar1, IDM_mnuFileSave);
  EXPECT_TRUE(WaitForMenuEntry(buttonMenu, caption).Enabled);
}

TEST_F(RestartTest, MenuItemRestartsItToo) {
  StartStandIn();
  StartAndLoad();
  MakeAChange();
  window_->OpenMenu('F');
  // Open is selected first; Save and Restart is the second item after it.
  Press(VK_DOWN);
  Press(VK_DOWN);
  Press(VK_RETURN);
  standIn_->WaitForEnd();
  static_cast<void>(WaitForStandIn());
  EXPECT_EQ(SectionValue(ReadBytes(folder_.WincmdIni()), "Shortcuts", "CA+K"), "cm_SrcShort");
}

TEST_F(RestartTest, MenuItemSavesAndStartsItWhenItEndsWhileTheMenuIsOpen) {
  StartStandIn();
  StartAndLoad();
  MakeAChange();
  const HWND menu = window_->OpenMenu('F');
  EXPECT_TRUE(WaitForMenuEntry(menu, L"Save and Restart Bainioka").Enabled);
  EndStandIn(WaitForStandIn());
  standIn_->WaitForEnd();
  Press(VK_DOWN);
  Press(VK_DOWN);
  Press(VK_RETURN);
  static_cast<void>(WaitForStandIn());
  WaitFor("the save to end", [&] { return !Modified(); });
  EXPECT_EQ(SectionValue(ReadBytes(folder_.WincmdIni()), "Shortcuts", "CA+K"), "cm_SrcShort");
}

TEST_F(RestartTest, SaveLeavesItAlone) {
  StartStandIn();
  StartAndLoad();
  MakeAChange();
  Save();
  EXPECT_EQ(Log(), "start \"" + Utf8(StandInPath()) + "\"\n");
  EXPECT_TRUE(standIn_->Running());
}

TEST_F(RestartTest, EverySaveRestartsItWhenTheSettingSaysSo) {
  AlwaysRestart();
  StartStandIn();
  StartAndLoad();
  MakeAChange();
  Save();
  standIn_->WaitForEnd();
  static_cast<void>(WaitForStandIn());
  EXPECT_TRUE(Log().ends_with("close\nstart " + CommandLineAfterRestart() + "\n")) << Log();
}

TEST_F(RestartTest, SaveStartsOneThatWasNotRunningWhenTheSettingSaysSo) {
  AlwaysRestart();
  StartAndLoad();
  MakeAChange();
  Save();
  static_cast<void>(WaitForStandIn());
  EXPECT_EQ(Log(), "start " + CommandLineAfterRestart() + "\n");
}

TEST_F(RestartTest, ClosingWithYesRestartsItWhenTheSettingSaysSo) {
  AlwaysRestart();
  StartStandIn();
  StartAndLoad();
  MakeAChange();
  PostMessageW(window_->Handle(), WM_CLOSE, 0, 0);
  Answer(NextBox(), IDYES);
  EXPECT_EQ(program_->WaitForEnd(), 0U);
  static_cast<void>(WaitForStandIn());
  EXPECT_TRUE(Log().ends_with("close\nstart " + CommandLineAfterRestart() + "\n")) << Log();
}

class RestartOf64BitTest : public RestartTest {
 protected:
  [[nodiscard]] std::wstring StandInPath() const override {
    return folder_.Commander() + L"Totalcmd64.exe";
  }
};

TEST_F(RestartOf64BitTest, TheOnlyExecutableThereIsStarted) {
  AlwaysRestart();
  StartAndLoad();
  MakeAChange();
  Save();
  static_cast<void>(WaitForStandIn());
  EXPECT_EQ(Log(), "start " + CommandLineAfterRestart() + "\n");
}

class RestartElsewhereTest : public RestartTest {
 protected:
  [[nodiscard]] std::wstring StandInPath() const override {
    return folder_.Program() + L"TOTALCMD64.EXE";
  }
};

TEST_F(RestartElsewhereTest, OneThatIsNotFoundAgainIsStartedByTheButtonBesideTheLine) {
  StartStandIn();
  StartAndLoad();
  EXPECT_EQ(window_->ControlText(IDC_cmdShow), L"Show");
  const RECT show = RectangleOf(window_->Control(IDC_cmdShow));
  MakeAChange();
  window_->ChooseFromButtonMenu(IDC_Toolbar1, IDM_mnuFileSave, 1);
  WaitFor("the save to end", [&] { return !Modified(); });
  standIn_->WaitForEnd();
  BringToFront(window_->Handle());
  Press(VK_ESCAPE);  // the composed key
  WaitFor("the button", [&] { return window_->ControlText(IDC_cmdShow) == L"Start It"; });
  EXPECT_EQ(window_->ControlText(IDC_lblStatus),
            L"Wincmd.ini is saved. Total Commander is closed and was not found again.");
  const RECT start = RectangleOf(window_->Control(IDC_cmdShow));
  EXPECT_LT(start.left, show.left) << "as the longer text needs";
  EXPECT_EQ(start.top, show.top);
  window_->ClickControl(IDC_cmdShow);
  static_cast<void>(WaitForStandIn());
  EXPECT_TRUE(ReadBytes(folder_.Program() + L"stand-in.log")
                  .ends_with("close\nstart " + CommandLineAfterRestart() + "\n"));
  WaitFor("the button again", [&] { return window_->ControlText(IDC_cmdShow) == L"Show"; });
}

}  // namespace
}  // namespace tessera::e2e::restart_test
