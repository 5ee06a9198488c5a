// What the line under the panel says.
#include "app/StatusLine.h"
#include "app/StepNames.h"
#include "tests/unit/editor_fixture.h"
#include "text/Utf8.h"

namespace tessera::status_line_test {
namespace {

using namespace installation;

constexpr unsigned Ctrl = 1;
constexpr unsigned CtrlAlt = 3;
constexpr std::size_t FirstHeading = 0;

class StatusLineTest : public EditorTest {
 protected:
  StatusLineTest() {
    MessageBoxes.AnswerToAll = BoxAnswer::Yes;
    Start();
  }

  void Select(std::size_t position) { Editor.Work(&CommandList::SelectRow, position); }
  [[nodiscard]] std::wstring Line() const { return StatusText(Editor); }
};

// -- The selected row, and what happened

TEST_F(StatusLineTest, OfARowIsItsDescription) {
  Select(Copy);
  EXPECT_EQ(Line(), L"Copy files");
  Select(FirstHeading);
  EXPECT_EQ(Line(), L"[___File___]");
}

TEST_F(StatusLineTest, AfterAnOpenNamesTheFileUntilAnotherRowIsSelected) {
  EXPECT_EQ(Line(), L"Wincmd.ini is open. Commands with keys of your own: 2");
  Select(Pack);
  EXPECT_EQ(Line(), L"Pack files");
}

TEST_F(StatusLineTest, AfterAnOpenCountsTheCommandsWithKeysFromTheFirstRowOn) {
  SampleProgram<> program;
  program.Files.Contents[IncFile] = "cm_A=1;a\r\n[Group]=0\r\ncm_B=2;b\r\n";
  program.Files.Contents[IniFile] = "[Shortcuts]\r\nX=cm_A\r\n";
  program.Start();
  EXPECT_TRUE(StatusText(program.Editor).ends_with(L"own: 1"));
}

TEST_F(StatusLineTest, TellsWhatAnEditDid) {
  Assign(Pack, L"F9");
  Editor.Work(&HotkeyPanel::ResetPanel);
  EXPECT_EQ(Line(), L"cm_Pack has the key F9 now.");
  Choose(L"F8");
  Editor.Work(&HotkeyPanel::Add);
  Editor.Work(&HotkeyPanel::ResetPanel);
  EXPECT_EQ(Line(), L"cm_Pack has the further key F8 now.");
  Assign(View, L"F9");
  Editor.Work(&HotkeyPanel::ResetPanel);
  EXPECT_EQ(Line(), L"cm_View has the key F9 now. It was taken from cm_Pack.");
  Editor.Work(&HotkeyPanel::Delete);
  EXPECT_EQ(Line(), L"cm_View has lost F9.");
  Editor.Work(&HotkeyPanel::DeleteAll);
  EXPECT_EQ(Line(), L"All keys are deleted. Commands that have lost theirs: 2");
  Editor.FileSave();
  EXPECT_EQ(Line(), L"Wincmd.ini is saved.");
}

TEST_F(StatusLineTest, NamesTheEntryOfTheStartMenuThatLostItsKey) {
  Assign(Pack, CtrlAlt, L"F1");
  Editor.Work(&HotkeyPanel::ResetPanel);
  EXPECT_EQ(Line(),
            L"cm_Pack has the key Ctrl + Alt + F1 now. It was taken from Paint (Start Menu).");
  Assign(Pack, L"F9");
  Editor.Work(&HotkeyPanel::ResetPanel);
  EXPECT_EQ(Line(), L"cm_Pack has the key F9 now.");
}

TEST_F(StatusLineTest, NamesAllWhoLostAKey) {
  Ini() = "[Shortcuts]\r\nCA+F1=cm_View\r\n[user]\r\nmenu1=Paint\r\nkey1=1\r\n";
  Editor.OpenShortcutFile(false, IniFile, false);
  Assign(Pack, CtrlAlt, L"F1");
  Editor.Work(&HotkeyPanel::ResetPanel);
  EXPECT_EQ(Line(),
            L"cm_Pack has the key Ctrl + Alt + F1 now. It was taken from cm_View, Paint (Start "
            L"Menu).");
}

TEST_F(StatusLineTest, AfterAFurtherOpenSaysThatFormerKeysAreShown) {
  Editor.OpenShortcutFile(false, IniFile, false);
  const std::wstring opened = L"Wincmd.ini is open. Commands with keys of your own: 2";
  EXPECT_EQ(Line(), opened + L". Keys of former files are still shown");
  OptionsSelection& options = Editor.BeginOptions();
  options.Click(OptionBox::ForgetKeysAtOpen);
  options.Apply();
  Editor.EndOptions();
  Editor.OpenShortcutFile(false, IniFile, false);
  EXPECT_EQ(Line(), opened);
}

TEST_F(StatusLineTest, AfterAFurtherOpenWithoutFormerKeysSaysNothingOfThem) {
  Ini() = "[Shortcuts]\r\n";
  tessera::Editor editor(Seams, [](const LoadProgress&) {});
  editor.Load();
  editor.Activate();
  editor.OpenShortcutFile(false, IniFile, false);
  EXPECT_EQ(StatusText(editor), L"Wincmd.ini is open. Commands with keys of your own: 0");
}

TEST_F(StatusLineTest, OfOwnCommandsThatCouldNotBeReadNamesTheFile) {
  OptionsSelection& options = Editor.BeginOptions();
  options.Click(OptionBox::ShowUserCommands);
  options.Click(OptionBox::ForgetKeysAtOpen);
  options.Apply();
  Editor.EndOptions();
  const std::wstring opened = L"Wincmd.ini is open. Commands with keys of your own: 2";
  Editor.OpenShortcutFile(false, IniFile, false);
  EXPECT_EQ(Line(), opened) << "there is none";
  Files.Contents[L"C:\\TC\\usercmd.ini"] = std::string(5 << 20, ' ');
  Editor.OpenShortcutFile(false, IniFile, false);
  EXPECT_EQ(Line(), opened + L". Own commands are missing: usercmd.ini could not be read");
}

TEST_F(StatusLineTest, OfDroppedLinesSaysHowManyAndWhereTheyAre) {
  Ini() += "[Shortcuts]\r\n";
  Ini().insert(Ini().find("C+F3="), "F6=em_a\r\nF7=em_b\r\n");
  Assign(Pack, L"F9");
  Editor.Work(&HotkeyPanel::ResetPanel);
  Editor.FileSave();
  EXPECT_EQ(Line(),
            L"Wincmd.ini is saved. Lines that were left out: 2, added to Wincmd.ini.dropped.");
  Ini().insert(Ini().find("C+F3="), "F6=em_a\r\n");
  Files.AppendErrors.assign(100, FileError::AccessDenied);
  Assign(Pack, L"F8");
  Editor.Work(&HotkeyPanel::ResetPanel);
  Editor.FileSave();
  EXPECT_EQ(
      Line(),
      L"Wincmd.ini is saved. Lines that were left out: 1, to be found only in Wincmd.ini.bak.");
}

TEST_F(StatusLineTest, OfASaveNamesTheOtherFileThatHoldsTheKeys) {
  Ini() = "[Shortcuts]\r\nRedirectSection=Other.ini\r\n";
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nF6=em_a\r\n";
  Assign(Pack, L"F9");
  Editor.Work(&HotkeyPanel::ResetPanel);
  Editor.FileSave();
  EXPECT_EQ(Line(), L"Wincmd.ini is saved. The keys are in " + OtherIniFile +
                        L". Lines that were left out: 1, added to Other.ini.dropped.");
}

TEST_F(StatusLineTest, WhileSearchingCountsTheCommandsAndTellsOfEditsFirst) {
  Editor.Work(&CommandList::Search, L"file");
  EXPECT_EQ(Line(), L"Commands found: 3") << "and no longer that the file is open";
  Select(Copy);
  EXPECT_EQ(Line(), L"Commands found: 3");
  Choose(L"F9");
  EXPECT_EQ(Line(), L"F9: free");
  Editor.Work(&HotkeyPanel::Assign);
  Editor.Work(&HotkeyPanel::ResetPanel);
  EXPECT_EQ(Line(), L"cm_Copy has the key F9 now.");
  Editor.Work(&CommandList::Search, L"files");
  EXPECT_EQ(Line(), L"Commands found: 2");
  Editor.Work(&CommandList::Search, L"nowhere");
  EXPECT_EQ(Line(), L"Commands found: 0");
  Editor.Work(&CommandList::Search, L"  ");
  EXPECT_EQ(Line(), L"Copy files");
}

TEST_F(StatusLineTest, OfAFailedSaveSaysWhyAndWhereTheKeysAre) {
  Assign(Pack, L"F9");
  Editor.Work(&HotkeyPanel::ResetPanel);
  Files.ReplaceErrors = {FileError::DiskFull};
  Editor.FileSave();
  const std::wstring failed =
      L"Not saved: the disk is full. The unsaved keys are in " + IniFile + L".unsaved";
  EXPECT_EQ(Line(), failed);
  Select(Copy);
  EXPECT_EQ(Line(), failed) << "until the next save";
  Choose(L"F12");
  EXPECT_EQ(Line(), L"F12: free") << "a composed key comes first";
  Editor.Work(&HotkeyPanel::ResetPanel);
  Editor.FileSave();
  EXPECT_EQ(Line(), L"Wincmd.ini is saved.");
}

TEST_F(StatusLineTest, OfAnErrorWithoutWordsSaysItsNumber) {
  Assign(Pack, L"F9");
  Editor.Work(&HotkeyPanel::ResetPanel);
  Files.WriteErrors.assign(100, FileError::Other);
  Editor.FileSave();
  EXPECT_EQ(Line(),
            L"Not saved: error " + std::to_wstring(static_cast<int>(FileError::Other)) + L".");
}

TEST_F(StatusLineTest, OfTheFirstRowOfAllTellsAsOfAnyOther) {
  SampleProgram<> program;
  program.Files.Contents[IncFile] = "cm_A=1;a\r\ncm_B=2;b\r\n";
  program.Files.Contents[IniFile] = "[Shortcuts]\r\nX=cm_A\r\n";
  program.MessageBoxes.AnswerToAll = BoxAnswer::Yes;
  program.Start();
  const auto line = [&program] { return StatusText(program.Editor); };
  program.Editor.Work(&CommandList::SelectRow, 1);
  program.Choose(L"X");
  EXPECT_EQ(line(), L"X: cm_A (current)") << "the question names it, too";
  program.Assign(1, L"X");
  program.Editor.Work(&HotkeyPanel::ResetPanel);
  EXPECT_EQ(line(), L"cm_B has the key X now. It was taken from cm_A.");
  program.Assign(0, L"Y");
  program.Editor.Work(&HotkeyPanel::ResetPanel);
  EXPECT_EQ(line(), L"cm_A has the key Y now.");
  EXPECT_NE(UndoCaption(program.Editor).find(L"cm_A"), std::wstring::npos);
  program.Editor.Work(&CommandList::SelectRow, 1);
  program.Editor.Work(&CommandList::SelectRow, 0);
  EXPECT_EQ(line(), L"a");
}

// -- A composed key

TEST_F(StatusLineTest, BoxesAloneAreNoKey) {
  Select(Pack);
  Editor.Work(&HotkeyPanel::SetBox, Modifier::Ctrl, true);
  EXPECT_EQ(Line(), L"Pack files");
}

TEST_F(StatusLineTest, SaysThatAKeyIsFree) {
  Select(Pack);
  Compose(Ctrl, L"F12");
  EXPECT_EQ(Line(), L"Ctrl + F12: free");
}

TEST_F(StatusLineTest, NamesWhoHasTheKey) {
  Select(Pack);
  Compose(Ctrl, L"F3");
  EXPECT_EQ(Line(), L"Ctrl + F3: cm_View (current)");
  Compose(0, L"F5");
  EXPECT_EQ(Line(), L"F5: cm_Copy (default)");
  Compose(CtrlAlt, L"F1");
  EXPECT_EQ(Line(), L"Ctrl + Alt + F1: Paint (Start Menu)");
}

TEST_F(StatusLineTest, CallsTheSelectedCommandThisCommand) {
  Select(View);
  Compose(Ctrl, L"F3");
  EXPECT_EQ(Line(), L"Ctrl + F3: this command (current)");
}

TEST_F(StatusLineTest, NamesWhomTheQuestionWillNameWhereCellsShowOthersToo) {
  Select(Pack);
  Compose(0, L"F3");
  EXPECT_EQ(Line(),
            L"F3: cm_Copy (current), cm_View (default, overridden). You will be asked about "
            L"cm_View.");
}

TEST_F(StatusLineTest, OfAHeadingSpeaksOfNoQuestion) {
  Compose(0, L"F3");
  EXPECT_EQ(Line(), L"F3: cm_Copy (current), cm_View (default, overridden)");
}

/// A key that replaces others is in no index until the next open, so nobody is asked about it.
TEST_F(StatusLineTest, SaysThatNoQuestionWillCome) {
  Assign(Copy, L"F9");
  Select(Pack);
  EXPECT_EQ(Line(), L"F9: cm_Copy (current). You will not be asked.");
  MessageBoxes.AnswerToAll.reset();
  EXPECT_TRUE(Editor.Work(&HotkeyPanel::Assign).Changed) << "a question would throw";
  EXPECT_EQ(Line(), L"F9: cm_Copy (current), this command (current). You will not be asked.");
}

TEST_F(StatusLineTest, WithManyHoldersCountsTheRest) {
  std::string& data = Files.Contents[DataFile];
  std::string& commands = Files.Contents[IncFile];
  SampleProgram<> program;
  for (int command = 0; command < 25; ++command) {
    const std::string number = std::to_string(500 + command);
    commands += "cm_X" + number + "=" + number + ";x\r\n";
    data += number + "=Ctrl+F11\r\n";
  }
  program.Files.Contents = Files.Contents;
  program.Start();
  program.Compose(Ctrl, L"F11");
  const std::wstring line = StatusText(program.Editor);
  EXPECT_TRUE(line.starts_with(L"Ctrl + F11: cm_X500 (default), cm_X501 (default), "));
  EXPECT_TRUE(line.ends_with(L"cm_X519 (default) and 5 more")) << line.size();
}

// -- Odd texts

TEST_F(StatusLineTest, IsOneLineWhateverADescriptionHolds) {
  SampleProgram<> program;
  const std::string marks = "\xE2\x80\x8F\xE2\x80\xAE";  // of right-to-left texts
  program.Files.Contents[IncFile] =
      "\xEF\xBB\xBF"
      "cm_A=1;" +
      std::string(5000, 'x') + "\ty\x01z\x7F" + marks + "\xE2\x80\xA8w\r\ncm_B=2;b\r\n";
  program.Start();
  program.Editor.Work(&CommandList::SelectRow, 1);
  program.Editor.Work(&CommandList::SelectRow, 0);
  EXPECT_EQ(StatusText(program.Editor), std::wstring(5000, L'x') + L" y z \u200F\u202E w");
}

TEST_F(StatusLineTest, ACaptionDoesNotTurnTheSentenceRound) {
  Ini() =
      "[user]\r\nmenu1=\xEF\xBB\xBF"
      "A\xE2\x80\xAE"
      "B & C\r\nkey1=1\r\n";
  Editor.OpenShortcutFile(false, IniFile, false);
  Compose(CtrlAlt, L"F1");
  EXPECT_EQ(Line(), L"Ctrl + Alt + F1: AB & C (Start Menu)");
}

TEST_F(StatusLineTest, NoMarkInACaptionTurnsTheSentenceRound) {
  const auto lineWith = [this](wchar_t mark) {
    std::string caption = "A";
    AppendUtf8(caption, static_cast<char32_t>(mark));
    Ini() = "[user]\r\nmenu1=\xEF\xBB\xBF" + caption + "B\r\nkey1=1\r\n";
    Editor.OpenShortcutFile(false, IniFile, false);
    Compose(CtrlAlt, L"F1");
    return Line();
  };
  for (const wchar_t mark : {L'\x202A', L'\x202E', L'\x2066', L'\x2069'}) {
    EXPECT_EQ(lineWith(mark), L"Ctrl + Alt + F1: AB (Start Menu)");
  }
  for (const wchar_t mark : {L'\x202F', L'\x2065', L'\x206A'}) {
    EXPECT_EQ(lineWith(mark), std::wstring(L"Ctrl + Alt + F1: A") + mark + L"B (Start Menu)");
  }
  for (const wchar_t lineEnd : {L'\x2028', L'\x2029'}) {
    EXPECT_EQ(lineWith(lineEnd), L"Ctrl + Alt + F1: A B (Start Menu)");
  }
}

TEST(StatusLine, OfAnEmptyListIsEmpty) {
  SampleProgram<> program;
  program.Files.Contents.clear();
  program.MessageBoxes.AnswerToAll = BoxAnswer::Cancel;
  program.Start();
  EXPECT_EQ(StatusText(program.Editor), L"");
  program.Choose(L"F5");
  EXPECT_EQ(StatusText(program.Editor), L"F5: free");
}

// -- Screen readers

TEST(StatusTelling, TellsEachTextOnceWhenNothingIsHeld) {
  StatusTelling telling;
  EXPECT_TRUE(telling.TakeIfDue(L"a", false, false));
  EXPECT_FALSE(telling.TakeIfDue(L"a", false, false));
  EXPECT_FALSE(telling.TakeIfDue(L"b", true, false));
  EXPECT_FALSE(telling.TakeIfDue(L"c", false, true));
  EXPECT_TRUE(telling.TakeIfDue(L"c", false, false)) << "what it says when the keys are released";
  EXPECT_FALSE(telling.TakeIfDue(L"c", false, false));
}

}  // namespace
}  // namespace tessera::status_line_test
