// The export of the list: its dialog, and the text that is then on the clipboard.
#include <algorithm>
#include <array>
#include <string>

#include "resources/resource.h"
#include "tests/e2e/Clipboard.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::export_test {
namespace {

using Columns = std::array<bool, 4>;

constexpr Columns StartColumns{false, true, true, true};
constexpr std::array Boxes{IDC_chkColumn0, IDC_chkColumn1, IDC_chkColumn2, IDC_chkColumn3};
const RowTexts Headings{L"Description", L"Command", L"Default Hotkey", L"Current Hotkey"};

/// What the demonstration folder's Start Menu has, read by eye from its file.
const std::wstring StartMenu =
    L"\r\n\r\nTotal Commander Start Menu shortcuts:\r\n" + std::wstring(37, L'=') +
    L"\r\n&Notepad\tCtrl + Alt + F3"
    L"\r\n&Calculator\tCtrl + Alt + F4"
    L"\r\n\u00DCbersetzer\tCtrl + Alt + F12"
    L"\r\n\u0397\u03BC\u03B5\u03C1\u03BF\u03BB\u03CC\u03B3\u03B9\u03BF\tCtrl + Alt + Shift + F1"
    L"\r\nBackup to drive E\tCtrl + Alt + Shift + F5"
    L"\r\nCommand prompt\tCtrl + Alt + Shift + F8";

const std::wstring Unsaved =
    L"\r\n\r\n\r\n\r\n=================\r\n=   Important   =\r\n=================\r\n"
    L"Hotkeys in this list has not saved yet to your Total Commander configuration file.\r\n";

std::wstring Padded(std::wstring text, std::size_t width) {
  text.resize(width, L' ');
  return text + L'\t';
}

std::wstring Table(const std::vector<RowTexts>& allRows, const Columns& columns) {
  const std::vector<RowTexts> rows = WithoutHeadings(allRows);
  std::array<std::size_t, 4> widths{};
  for (const RowTexts& row : rows) {
    for (std::size_t column = 0; column < 4; ++column) {
      widths.at(column) = std::max(widths.at(column), row.at(column).size());
    }
  }
  std::wstring text;
  for (std::size_t column = 0; column < 4; ++column) {
    if (columns.at(column)) {
      text += column == 3 ? Headings[3] + L'\t' : Padded(Headings.at(column), widths.at(column));
    }
  }
  text += L"\r\n" + std::wstring(text.size() + 4, L'=') + L"\r\n";
  for (const RowTexts& row : rows) {
    if (!(columns[2] && row[2] != L"---") && !(columns[3] && row[3] != L"---")) continue;
    for (std::size_t column = 0; column < 4; ++column) {
      if (columns.at(column)) text += Padded(row.at(column), widths.at(column));
    }
    text += L"\r\n";
  }
  return text;
}

testing::AssertionResult ClipboardHolds(const std::wstring& expected) {
  const std::wstring text = ClipboardText();
  if (text == expected) return testing::AssertionSuccess();
  const auto at =
      static_cast<std::size_t>(std::ranges::mismatch(text, expected).in1 - text.begin());
  const std::size_t from = at < 60 ? 0 : at - 60;
  return testing::AssertionFailure()
         << text.size() << " characters instead of " << expected.size() << ", differing at " << at
         << "\nclipboard: " << Utf8(text.substr(std::min(from, text.size()), 120))
         << "\nexpected:  " << Utf8(expected.substr(std::min(from, expected.size()), 120));
}

class ExportTest : public EndToEndTest {
 protected:
  void SetUp() override { SetClipboardText(Before); }

  Dialog OpenDialog() {
    window_->ChooseFromMenu('F', 'E');
    return NextDialog(L"frmExportToClipboard");
  }

  /// What the four boxes show.
  static Columns Checked(const Dialog& dialog) {
    Columns checked{};
    std::ranges::transform(Boxes, checked.begin(), [&](int box) { return dialog.BoxChecked(box); });
    return checked;
  }

  void CheckClipboard(const std::wstring& expected) const {
    WaitFor("the clipboard to change", [] { return ClipboardText() != Before; });
    EXPECT_TRUE(ClipboardHolds(expected));
  }

  static constexpr wchar_t Before[] = L"what was there before";
};

TEST_F(ExportTest, OkCopiesTheTableAndStoresTheColumns) {
  StartAndLoad();
  Dialog dialog = OpenDialog();
  EXPECT_EQ(dialog.Caption(), L"Select Columns to Export");
  EXPECT_EQ(Checked(dialog), StartColumns);
  for (std::size_t box = 0; box < Boxes.size(); ++box) {
    EXPECT_EQ(dialog.ControlText(Boxes.at(box)), Headings.at(box));
  }
  dialog.CloseBy(IDC_cmdOK);
  CheckClipboard(Table(ExpectedRows(folder_), StartColumns) + StartMenu + L"\r\n");
  EXPECT_EQ(Setting("ClipOptions"), "0,1,1,1");
  WaitFor("the window to be enabled", [&] { return IsWindowEnabled(window_->Handle()) != FALSE; });
}

TEST_F(ExportTest, DialogStandsInTheMiddleOfTheScreenAndDisablesTheWindow) {
  StartAndLoad();
  const Dialog dialog = OpenDialog();
  EXPECT_EQ(IsWindowEnabled(window_->Handle()), FALSE);
  RECT room{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0);
  const POINT middle = CenterOf(RectangleOf(dialog.Handle()));
  EXPECT_NEAR(middle.x, CenterOf(room).x, 1);
  EXPECT_NEAR(middle.y, CenterOf(room).y, 1);
  EXPECT_TRUE(dialog.HasFocus(IDC_chkColumn0));
}

TEST_F(ExportTest, OneBoxOfEachPairStaysChecked) {
  StartAndLoad();
  Dialog dialog = OpenDialog();
  const auto click = [&](std::size_t box, const Columns& expected) {
    dialog.ClickControl(Boxes.at(box));
    WaitFor("the boxes to follow a click on box " + std::to_string(box),
            [&] { return Checked(dialog) == expected; });
  };
  click(1, {true, false, true, true});
  click(0, {false, true, true, true});
  click(0, {true, true, true, true});
  click(2, {true, true, false, true});
  click(3, {true, true, true, false});
  click(2, {true, true, false, true});
  dialog.CloseByKey(VK_RETURN);
  CheckClipboard(Table(ExpectedRows(folder_), {true, true, false, true}) + StartMenu + L"\r\n");
  EXPECT_EQ(Setting("ClipOptions"), "1,1,0,1");

  dialog = OpenDialog();
  EXPECT_EQ(Checked(dialog), (Columns{true, true, false, true}));
}

TEST_F(ExportTest, StoredColumnsAreFoundAtTheNextStart) {
  WriteBytes(folder_.SettingsFile(), "[Tessera]\r\nClipOptions=1,0,1,0\r\n");
  StartAndLoad();
  Dialog dialog = OpenDialog();
  EXPECT_EQ(Checked(dialog), (Columns{true, false, true, false}));
  dialog.CloseBy(IDC_cmdOK);
  CheckClipboard(Table(ExpectedRows(folder_), {true, false, true, false}) + StartMenu + L"\r\n");
}

TEST_F(ExportTest, SortedListIsCopiedInItsOrder) {
  StartAndLoad();
  window_->ClickButton(IDC_Toolbar1, IDM_mnuViewSortList);
  WaitFor("the sorted view", [&] { return window_->Header(2).HasIcon; });
  window_->ClickHeader(1);
  WaitFor("the order by command", [&] { return window_->Header(1).HasIcon; });
  const std::vector<RowTexts> rows = window_->Rows();
  ASSERT_TRUE(Sorted(rows, 1, false));
  OpenDialog().CloseBy(IDC_cmdOK);
  CheckClipboard(Table(rows, StartColumns) + StartMenu + L"\r\n");
}

TEST_F(ExportTest, UnsavedChangesAreWarnedOfUntilTheyAreSaved) {
  StartAndLoad();
  MakeAChange();
  const std::wstring table = Table(window_->Rows(), StartColumns) + StartMenu + L"\r\n";
  OpenDialog().CloseBy(IDC_cmdOK);
  CheckClipboard(table + Unsaved);
  Save();
  SetClipboardText(Before);
  OpenDialog().CloseBy(IDC_cmdOK);
  CheckClipboard(table);
}

TEST_F(ExportTest, EmptyListGivesTheHeadingOfTheLastColumnAlone) {
  WriteBytes(folder_.TotalcmdInc(), "");
  Start();
  WaitFor("the file to be open",
          [&] { return window_->Caption() == folder_.WincmdIni() + L" - Tessera"; });
  OpenDialog().CloseBy(IDC_cmdOK);
  CheckClipboard(L"\t\tCurrent Hotkey\t\r\n" + std::wstring(21, L'=') + L"\r\n" + StartMenu +
                 L"\r\n");
}

TEST_F(ExportTest, CancelAndEscapeLeaveTheClipboardAndTheSettingAlone) {
  StartAndLoad();
  Dialog dialog = OpenDialog();
  dialog.ClickControl(IDC_chkColumn0);
  dialog.CloseBy(IDC_cmdCancel);
  OpenDialog().CloseByKey(VK_ESCAPE);
  Select(L"cm_SrcTree");  // answered after what follows the dialog
  EXPECT_EQ(ClipboardText(), Before);
  EXPECT_EQ(Setting("ClipOptions"), "");
}

TEST_F(ExportTest, CloseButtonCopiesTheTableOfTheLastOkAgain) {
  StartAndLoad();
  OpenDialog().CloseByCaption();
  Select(L"cm_SrcTree");
  EXPECT_EQ(ClipboardText(), Before) << "there was no OK yet";

  const std::wstring older = Table(window_->Rows(), StartColumns) + StartMenu + L"\r\n";
  OpenDialog().CloseBy(IDC_cmdOK);
  CheckClipboard(older);
  MakeAChange();
  SetClipboardText(Before);
  OpenDialog().CloseByCaption();
  CheckClipboard(older + Unsaved);

  SetClipboardText(Before);
  OpenDialog().CloseBy(IDC_cmdCancel);
  OpenDialog().CloseByCaption();
  Select(L"cm_SrcTree");
  EXPECT_EQ(ClipboardText(), Before) << "Cancel has forgotten it";
}

}  // namespace
}  // namespace tessera::e2e::export_test
