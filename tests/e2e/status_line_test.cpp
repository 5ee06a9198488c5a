// The line that tells who has a key, and the button that leads there, worked by the keyboard.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/StartResolution.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::status_line_test {
namespace {

bool Contains(std::wstring_view text, std::wstring_view part) {
  return text.find(part) != std::wstring_view::npos;
}

class StatusLineTest : public EndToEndTest {
 protected:
  /// `language` is the name of a shipped language file; empty for the built-in texts.
  void StartWith(const std::wstring& language, DWORD dpi) {
    resolution_.emplace(dpi);
    if (!language.empty()) folder_.UseLanguageFile(folder_.ShippedLanguage(language));
    StartAndLoad();
  }

  [[nodiscard]] std::wstring Line() const { return window_->ControlText(IDC_lblStatus); }

  void WaitForLine(std::wstring_view begin, std::wstring_view part) const {
    WaitFor("a line with " + Utf8(begin) + " and " + Utf8(part), [&] {
      const std::wstring line = Line();
      return line.starts_with(begin) && Contains(line, part);
    });
  }

  /// Ctrl and F1, the default key of cm_SrcShort.
  void ComposeByKeyboard() const {
    Press(VK_CONTROL);
    WaitFor("the box and the focus",
            [&] { return window_->BoxChecked(IDC_chkCtrlAlt0) && window_->HasFocus(IDC_Combo1); });
    Press(VK_DOWN);
    WaitFor("the key", [&] { return window_->ChosenKey() == L"F1"; });
  }

  void GoToShow() const {
    Press(VK_TAB);
    WaitFor("the panel's toolbar", [&] { return window_->HasFocus(IDC_Toolbar2); });
    Press(VK_TAB);
    WaitFor("the button", [&] { return window_->HasFocus(IDC_cmdShow); });
  }

  /// Composes a key, goes to its holder and back, and clears the panel.
  void UseLineAndButton();

  std::optional<StartResolution> resolution_;
};

void StatusLineTest::UseLineAndButton() {
  EXPECT_TRUE(Contains(Line(), L"Wincmd.ini")) << Utf8(Line());
  Select(L"cm_SrcTree");
  const int row = window_->FindCommand(L"cm_SrcTree");
  const std::wstring description = window_->Row(row)[0];
  WaitForLine(description, L"");
  EXPECT_FALSE(window_->Enabled(IDC_cmdShow));

  ComposeByKeyboard();
  WaitForLine(L"Ctrl + F1", L"cm_SrcShort");
  EXPECT_TRUE(window_->Enabled(IDC_cmdShow));
  GoToShow();
  const int holder = window_->FindCommand(L"cm_SrcShort");
  Press(VK_SPACE);
  WaitFor("the row of the holder", [&] { return window_->SelectedRow() == holder; });
  EXPECT_FALSE(Contains(Line(), L"cm_SrcShort")) << "it is the selected command now";
  EXPECT_EQ(window_->ChosenKey(), L"F1");
  EXPECT_TRUE(window_->HasFocus(IDC_cmdShow));
  Press(VK_SPACE);
  WaitFor("the row before", [&] { return window_->SelectedRow() == row; });
  WaitForLine(L"Ctrl + F1", L"cm_SrcShort");

  Press(VK_ESCAPE);
  WaitForLine(description, L"");
  EXPECT_FALSE(window_->Enabled(IDC_cmdShow));
  WaitFor("the list to have the focus", [&] { return window_->HasFocus(IDC_ListView1); });
}

TEST_F(StatusLineTest, TellsWhoHasAKeyAndShowLeadsThereAndBack) {
  StartWith(L"", 96);
  UseLineAndButton();
}

TEST_F(StatusLineTest, WorksInGermanAtTwiceTheResolution) {
  StartWith(L"German.lng", 192);
  UseLineAndButton();
}

TEST_F(StatusLineTest, WorksFromRightToLeftAtTwiceTheResolution) {
  StartWith(L"Arabic.lng", 192);
  UseLineAndButton();
}

TEST_F(StatusLineTest, AHeadingDoesNotTakeTheFocusFromShow) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  window_->ChooseKey(L"F1");
  WaitFor("a holder", [&] { return window_->Enabled(IDC_cmdShow); });
  const int row = window_->SelectedRow();
  window_->ClickControl(IDC_cmdShow);
  WaitFor("the holder's row", [&] { return window_->SelectedRow() != row; });
  WaitFor("the focus", [&] { return window_->HasFocus(IDC_cmdShow); });
  window_->SelectByAutomation(0);
  WaitFor("the panel to be disabled", [&] { return !window_->Enabled(IDC_Combo1); });
  EXPECT_TRUE(window_->HasFocus(IDC_cmdShow));
  Press(VK_SPACE);
  WaitFor("the panel to be enabled", [&] { return window_->Enabled(IDC_Combo1); });
  EXPECT_TRUE(window_->HasFocus(IDC_cmdShow));
}

TEST_F(StatusLineTest, StandsBelowThePanelsControlsOverItsWholeWidth) {
  StartAndLoad();
  const RECT panel = RectangleOf(window_->Control(IDC_Frame1));
  const RECT line = RectangleOf(window_->Control(IDC_lblStatus));
  const RECT show = RectangleOf(window_->Control(IDC_cmdShow));
  const RECT undo = RectangleOf(window_->Control(IDC_cmdUndo));
  EXPECT_GE(line.top, RectangleOf(window_->Control(IDC_Toolbar2)).bottom);
  EXPECT_GE(line.top, RectangleOf(window_->Control(IDC_Combo1)).bottom);
  EXPECT_LE(line.right, show.left);
  EXPECT_LE(show.right, undo.left);
  EXPECT_EQ(undo.right, panel.right);
  EXPECT_LE(undo.bottom, panel.bottom);
  SetWindowPos(window_->Handle(), nullptr, 0, 0, 900, 600, SWP_NOMOVE | SWP_NOZORDER);
  WaitFor("the buttons at the end", [&] {
    const RECT now = RectangleOf(window_->Control(IDC_Frame1));
    return now.right != panel.right &&
           RectangleOf(window_->Control(IDC_cmdUndo)).right == now.right;
  });
}

TEST_F(StatusLineTest, ShowsAllOfItInATipWhereItIsCut) {
  const std::string description = "Does this & that" + std::string(180, 'x') + " and more";
  WriteBytes(folder_.TotalcmdInc(), ReadBytes(folder_.TotalcmdInc()) +
                                        "\r\n[Long]\r\ncm_Long=9999;" + description + "\r\n");
  StartAndLoad();
  Select(L"cm_Long");
  WaitForLine(L"Does this & that", L"and more");
  const auto pointAtTheLine = [&] {
    MoveTo(CenterOf(RectangleOf(window_->Control(IDC_lblStatus))));
    WaitFor("the tip", [&] { return window_->TipIn(IDC_Frame1) == Line(); });
  };
  pointAtTheLine();
  const HWND tip = VisibleWindows(program_->Id(), TOOLTIPS_CLASSW).front();
  EXPECT_EQ(Send(tip, TTM_GETMAXTIPWIDTH), GetSystemMetrics(SM_CXSCREEN) / 2) << "then it breaks";
  EXPECT_EQ(Send(tip, TTM_GETDELAYTIME, TTDT_AUTOPOP), 30000) << "time to read it";
  const auto waitForNoTip = [&] {
    WaitFor("the tip to go", [&] { return window_->TipIn(IDC_Frame1).empty(); });
  };
  SetWindowPos(window_->Handle(), nullptr, 0, 0, 760, 520, SWP_NOMOVE | SWP_NOZORDER);
  waitForNoTip();
  pointAtTheLine();
  MoveTo(CenterOf(RectangleOf(window_->Control(IDC_lblHotkey))));
  waitForNoTip();
}

/// The windows whose change of name the program tells to screen readers, while this object lives.
class ToldChanges {
 public:
  explicit ToldChanges(DWORD process)
      : hook_(SetWinEventHook(EVENT_OBJECT_NAMECHANGE, EVENT_OBJECT_NAMECHANGE, nullptr, Take,
                              process, 0, WINEVENT_OUTOFCONTEXT)) {
    told_.clear();
  }
  ~ToldChanges() { UnhookWinEvent(hook_); }
  ToldChanges(const ToldChanges&) = delete;
  ToldChanges& operator=(const ToldChanges&) = delete;

  [[nodiscard]] static bool Has(HWND window) {
    // They come as messages of this thread.
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
    return std::ranges::find(told_, window) != told_.end();
  }

 private:
  static void CALLBACK Take(HWINEVENTHOOK /*hook*/, DWORD /*event*/, HWND window, LONG /*object*/,
                            LONG /*child*/, DWORD /*thread*/, DWORD /*time*/) {
    told_.push_back(window);
  }

  static inline std::vector<HWND> told_;
  HWINEVENTHOOK hook_;
};

TEST_F(StatusLineTest, ScreenReadersAreToldOnceTheKeysAreReleased) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  const HWND line = window_->Control(IDC_lblStatus);
  const ToldChanges changes(program_->Id());
  {
    const HeldKey control(VK_CONTROL);
    const HeldKey key(VK_F1);
    WaitForLine(L"Ctrl + F1", L"cm_SrcShort");
    const bool told = ToldChanges::Has(line);
    // What the display reports of its keyboard may have released it meanwhile.
    if (GetAsyncKeyState(VK_CONTROL) < 0) {
      EXPECT_FALSE(told);
    }
  }
  WaitFor("the line to be told", [&] { return ToldChanges::Has(line); });
  // The line waits for the panel's timer after it.
  const ToldChanges later(program_->Id());
  const std::wstring former = Line();
  Press(VK_MENU);
  WaitFor("another line", [&] { return Line() != former; });
  WaitFor("the line to be told again", [&] { return ToldChanges::Has(line); });
}

}  // namespace
}  // namespace tessera::e2e::status_line_test
