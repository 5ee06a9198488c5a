// The find box: typing, what the list shows then, and what knows nothing of it.
#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/Screen.h"
#include "tests/e2e/StartResolution.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::find_test {
namespace {

std::wstring Lower(std::wstring text) {
  CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
  return text;
}

/// The commands in one of whose cells the word stands, which must be in small letters.
std::vector<RowTexts> Matching(const std::vector<RowTexts>& rows, const std::wstring& word) {
  std::vector<RowTexts> found;
  std::ranges::copy_if(WithoutHeadings(rows), std::back_inserter(found), [&](const RowTexts& row) {
    return std::ranges::any_of(
        row, [&](const std::wstring& cell) { return Lower(cell).find(word) != cell.npos; });
  });
  return found;
}

class FindTest : public EndToEndTest {
 protected:
  /// `language` is the name of a shipped language file; empty for the built-in texts.
  void StartWith(const std::wstring& language, DWORD dpi) {
    resolution_.emplace(dpi);
    if (!language.empty()) folder_.UseLanguageFile(folder_.ShippedLanguage(language));
    StartAndLoad();
    all_ = ExpectedRows(folder_);
  }

  [[nodiscard]] std::wstring Found() const { return window_->ControlText(IDC_txtFind); }

  void GoToBox() const {
    window_->Command(IDM_find);
    WaitFor("the find box", [&] { return window_->HasFocus(IDC_txtFind); });
  }

  /// Types a word in place of what stands in the box, and waits for its commands.
  void Find(const std::wstring& word) const {
    GoToBox();
    Type(word);
    ExpectFound(word, Matching(all_, word));
  }

  void ExpectFound(const std::wstring& word, const std::vector<RowTexts>& expected) const {
    WaitFor("the rows with " + Utf8(word),
            [&] { return Found() == word && WithoutHeadings(window_->Rows()) == expected; });
  }

  void ExpectAllRows() const {
    WaitFor("all rows", [&] {
      return Found().empty() && window_->RowCount() == static_cast<int>(all_.size());
    });
  }

  /// Posts characters as fast as they go, without a keyboard.
  void Post(std::wstring_view text) const {
    for (const wchar_t character : text) {
      PostMessageW(window_->Control(IDC_txtFind), WM_CHAR, character, 1);
      Sleep(1);
    }
  }

  /// Types, goes to the list and back, and empties the box.
  void UseBox();

  /// By the options.
  void ChooseLanguage(const std::wstring& language);

  std::optional<StartResolution> resolution_;
  std::vector<RowTexts> all_;
};

void FindTest::UseBox() {
  const RECT box = RectangleOf(window_->Control(IDC_txtFind));
  const RECT toolbar = RectangleOf(window_->Control(IDC_Toolbar1));
  EXPECT_TRUE(window_->Visible(IDC_txtFind));
  EXPECT_FALSE(window_->Visible(IDC_lblFind));
  EXPECT_GE(box.top, toolbar.top);
  EXPECT_LE(box.bottom, toolbar.bottom);
  RECT overlap{};
  const RECT last = window_->ButtonRectangle(IDC_Toolbar1, IDM_mnuViewOptions);
  EXPECT_FALSE(IntersectRect(&overlap, &box, &last));

  Select(L"cm_SrcShort");
  window_->ClickControl(IDC_txtFind);
  WaitFor("the focus", [&] { return window_->HasFocus(IDC_txtFind); });
  Find(L"tree");
  EXPECT_EQ(window_->Row(window_->SelectedRow())[1], L"cm_SrcTree");
  const std::wstring count = std::to_wstring(Matching(all_, L"tree").size());
  WaitFor("the count",
          [&] { return window_->ControlText(IDC_lblStatus).find(count) != std::wstring::npos; });
  Press(VK_DOWN);
  WaitFor("the list", [&] { return window_->HasFocus(IDC_ListView1); });
  EXPECT_EQ(Found(), L"tree");
  GoToBox();
  Press(VK_ESCAPE);
  ExpectAllRows();
  EXPECT_TRUE(window_->HasFocus(IDC_txtFind));
  EXPECT_EQ(window_->Row(window_->SelectedRow())[1], L"cm_SrcTree");
  Press(VK_ESCAPE);
  WaitFor("the list", [&] { return window_->HasFocus(IDC_ListView1); });
}

void FindTest::ChooseLanguage(const std::wstring& language) {
  window_->Command(IDM_mnuViewOptions);
  Dialog dialog = NextDialog(L"frmOptions");
  dialog.ClickTab(IDC_tbsOptions, 3);
  dialog.ClickControl(IDC_txtLanguageFilePath);
  WaitFor("the focus", [&] { return dialog.HasFocus(IDC_txtLanguageFilePath); });
  SendMessageW(dialog.Control(IDC_txtLanguageFilePath), WM_SETTEXT, 0,
               reinterpret_cast<LPARAM>(folder_.ShippedLanguage(language).c_str()));
  dialog.CloseBy(IDC_cmdOK);
}

TEST_F(FindTest, ShowsWhatIsTypedAndGoesToTheList) {
  StartWith(L"", 96);
  const Picture cue = DrawLine(L"Find a command or a key", SystemMetrics().lfMessageFont,
                               GetSysColor(COLOR_GRAYTEXT), GetSysColor(COLOR_WINDOW), false);
  WaitFor("what to type", [&] {
    return TakePicture(RectangleOf(window_->Control(IDC_txtFind))).HoldsSomewhere(cue);
  });
  EXPECT_EQ(window_->ControlText(IDC_lblFind), L"Find:");
  UseBox();
  EXPECT_EQ(RectangleOf(window_->Control(IDC_txtFind)).right,
            RectangleOf(window_->Control(IDC_ListView1)).right);
  // By Tab, after the toolbar and before the list.
  GoToBox();
  Press(VK_TAB);
  WaitFor("the list", [&] { return window_->HasFocus(IDC_ListView1); });
  GoToBox();
  PressTogether(std::array<WORD, 2>{VK_SHIFT, VK_TAB});
  WaitFor("the toolbar", [&] { return window_->HasFocus(IDC_Toolbar1); });
  EXPECT_FALSE(window_->BoxChecked(IDC_chkCtrlAlt2));
  Press(VK_TAB);
  WaitFor("the box", [&] { return window_->HasFocus(IDC_txtFind); });
}

TEST_F(FindTest, WorksAtTwiceTheResolution) {
  StartWith(L"German.lng", 192);
  UseBox();
}

TEST_F(FindTest, StandsAtTheLeftInALanguageFromRightToLeftAndStaysInAnother) {
  StartWith(L"Arabic.lng", 96);
  UseBox();
  EXPECT_EQ(RectangleOf(window_->Control(IDC_txtFind)).left,
            RectangleOf(window_->Control(IDC_ListView1)).left);
  Find(L"tree");
  ChooseLanguage(L"English.lng");
  WaitFor("the box at the right", [&] {
    return RectangleOf(window_->Control(IDC_txtFind)).right ==
           RectangleOf(window_->Control(IDC_ListView1)).right;
  });
  ExpectFound(L"tree", Matching(all_, L"tree"));
}

TEST_F(FindTest, KeysInTheBoxDoNotReachThePanel) {
  StartWith(L"", 96);
  Select(L"cm_SrcTree");
  window_->ChooseKey(L"Q");
  Find(L"tree");
  const int selected = window_->SelectedRow();
  Press(VK_CONTROL);
  Press(VK_SHIFT);
  for (const WORD letter : {WORD{'C'}, WORD{'S'}, WORD{'A'}, WORD{'J'}}) {
    PressTogether(std::array{WORD{VK_MENU}, letter});
  }
  PressTogether(std::array{WORD{VK_CONTROL}, WORD{'J'}});
  Press(VK_F5);
  Press(VK_DELETE);
  Press(VK_END);
  Press(VK_BACK);
  WaitFor("the end of the word to go", [&] { return Found() == L"tre"; });
  {
    // AltGr, as the system tells it.
    const HeldKey ctrl(VK_CONTROL);
    const HeldKey alt(VK_MENU);
    Post(L"@");
    WaitFor("the character", [&] { return Found() == L"tre@"; });
  }
  Press(VK_BACK);
  WaitFor("the rows", [&] { return window_->SelectedRow() == selected; });
  for (const int box : {IDC_chkCtrlAlt0, IDC_chkCtrlAlt1, IDC_chkCtrlAlt2}) {
    EXPECT_FALSE(window_->BoxChecked(box));
  }
  EXPECT_EQ(window_->ChosenKey(), L"Q");
  EXPECT_TRUE(window_->HasFocus(IDC_txtFind));
  EXPECT_FALSE(window_->InMenu());

  PressTogether(std::array<WORD, 2>{VK_RETURN, VK_RETURN});  // it repeats
  WaitFor("the list", [&] { return window_->HasFocus(IDC_ListView1); });
  Press(VK_DOWN);  // answered after the repeat
  WaitFor("the next row", [&] { return window_->SelectedRow() == selected + 1; });
  Press(VK_UP);
  WaitFor("the row", [&] { return window_->SelectedRow() == selected; });
  EXPECT_EQ(window_->Row(selected)[3], L"---") << "held Enter assigns nothing";
  EXPECT_FALSE(Modified());
  Press(VK_RETURN);
  WaitForKeys(L"cm_SrcTree", L"Q");
}

TEST_F(FindTest, EditsSortsAndSavesAreThoseOfAllRows) {
  StartWith(L"", 96);
  const std::string original = ReadBytes(folder_.WincmdIni());
  Find(L"names only");
  MakeAChange();
  Find(L"panels");
  Save();
  const std::string saved = ReadBytes(folder_.WincmdIni());
  EXPECT_EQ(saved, WithShortcuts(original, ExpectedShortcuts(ExpectedRows(folder_))));
  EXPECT_EQ(SectionValue(saved, "Shortcuts", "CA+K"), "cm_SrcShort");
  EXPECT_EQ(SectionValue(saved, "Shortcuts", "CAS+B"), "cm_SrcBySize") << "a hidden row";

  window_->ClickButton(IDC_Toolbar1, IDM_mnuViewSortList);
  WaitFor("the sorted view", [&] { return window_->Header(2).HasIcon; });
  EXPECT_EQ(Found(), L"panels");
  EXPECT_EQ(window_->RowCount(), static_cast<int>(Matching(all_, L"panels").size()));
  EXPECT_EQ(window_->SelectedRow(), 0);

  window_->Command(IDM_undo);
  WaitFor("all rows", [&] {
    return Found().empty() && window_->RowCount() == static_cast<int>(WithoutHeadings(all_).size());
  });
  EXPECT_EQ(window_->Row(window_->SelectedRow())[1], L"cm_SrcShort");
}

TEST_F(FindTest, AnOpenAndAHiddenToolbarEmptyTheBox) {
  StartWith(L"", 96);
  Find(L"tree");
  window_->Command(IDM_mnuFileRecentFiles1);
  ExpectAllRows();
  WaitFor("the box to have the focus again",
          [&] { return window_->Enabled(IDC_txtFind) && window_->HasFocus(IDC_txtFind); });
  Find(L"names only");
  window_->Command(IDM_mnuViewToolbar);
  ExpectAllRows();
  EXPECT_FALSE(window_->Visible(IDC_txtFind));
  WaitFor("the list", [&] { return window_->HasFocus(IDC_ListView1); });
  window_->Command(IDM_find);
  window_->Command(IDM_mnuViewToolbar);
  WaitFor("the box", [&] { return window_->Visible(IDC_txtFind); });
  EXPECT_FALSE(window_->HasFocus(IDC_txtFind));
}

TEST_F(FindTest, TakesWhateverIsTyped) {
  StartWith(L"", 96);
  GoToBox();
  const std::wstring odd = L"& \x200F\x202E\xD83D x \xDE00&& ";
  Post(odd);
  WaitFor("the odd text", [&] { return Found() == odd; });
  WaitFor("no row", [&] { return window_->RowCount() == 0 && window_->SelectedRow() == -1; });
  Press(VK_ESCAPE);
  ExpectAllRows();
  Post(L"\x01\x02\x1F\x7F   ");
  WaitFor("blanks at the end", [&] { return Found().ends_with(L"   "); });
  Press(VK_ESCAPE);
  ExpectAllRows();
  SendMessageW(window_->Control(IDC_txtFind), WM_SETTEXT, 0,
               reinterpret_cast<LPARAM>(std::wstring(5000, L'x').c_str()));
  WaitFor("no row", [&] { return window_->RowCount() == 0; });
  EXPECT_EQ(Found().size(), 5000U);
  GoToBox();
  Post(std::wstring(60, L' ') + L"tree");
  WaitFor("the rows with tree",
          [&] { return WithoutHeadings(window_->Rows()) == Matching(all_, L"tree"); });
  Send(window_->Handle(), WM_SYSCOMMAND, SC_MINIMIZE);
  Send(window_->Handle(), WM_SYSCOMMAND, SC_RESTORE);
  EXPECT_EQ(Found().size(), 64U) << "a minimised window has room for no box, and keeps the text";
  EXPECT_EQ(WithoutHeadings(window_->Rows()), Matching(all_, L"tree"));
}

}  // namespace
}  // namespace tessera::e2e::find_test
