// Taking edits back in the whole program, but for its window.
#include "tests/unit/editor_fixture.h"

namespace tessera::edit_history_test {
namespace {

using namespace installation;

class UndoTest : public EditorTest {
 protected:
  const CommandEntry& Row(std::size_t position) { return Editor.Document().Rows().At(position); }
  bool Undo() { return Editor.Work(&CommandList::Undo).Restored; }
  bool Redo() { return Editor.Work(&CommandList::Redo).Restored; }
  void Delete(std::size_t position) {
    Editor.Work(&CommandList::SelectRow, position);
    Editor.Work(&HotkeyPanel::Delete);
  }
  void DeleteAll() {
    MessageBoxes.Answers = {BoxAnswer::Yes};
    Editor.Work(&HotkeyPanel::DeleteAll);
  }
};

constexpr unsigned CtrlAlt = 3;  // with F1 the key of the Start Menu's entry

TEST_F(UndoTest, BringsBackTheFormerKeysAndThenTheNewOnes) {
  Start();
  Assign(View, L"X");
  ASSERT_EQ(Row(View).CurrentKeys, L"X");
  EXPECT_TRUE(Undo());
  EXPECT_EQ(Row(View).CurrentKeys, L"Ctrl + F3");
  EXPECT_TRUE(Redo());
  EXPECT_EQ(Row(View).CurrentKeys, L"X");
}

TEST_F(UndoTest, WithoutAStepNothingHappens) {
  Start();
  EXPECT_FALSE(Undo());
  EXPECT_FALSE(Redo());
  EXPECT_FALSE(Editor.Document().Modified());
  EXPECT_EQ(MessageBoxes.BeepCount, 0);
}

TEST_F(UndoTest, BringsBackWhatAKeyWasTakenFromAndItsMarksWithoutAQuestion) {
  Start();
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Assign(Pack, L"F5");  // the default of the first command
  ASSERT_EQ(Row(Copy).DefaultKeys, L"F5 *");
  const std::size_t questions = MessageBoxes.Shown.size();
  Undo();
  EXPECT_EQ(Row(Copy).DefaultKeys, L"F5");
  EXPECT_FALSE(Row(Copy).DefaultKeysAreRed);
  EXPECT_EQ(Row(Pack).CurrentKeys, L"---");
  EXPECT_EQ(Row(Pack).Icon, RowIcon::None);
  EXPECT_EQ(MessageBoxes.Shown.size(), questions);
  EXPECT_EQ(MessageBoxes.BeepCount, 0);
}

TEST_F(UndoTest, AKeyThatWasTakenBackIsFreeAgain) {
  Start();
  Assign(Pack, L"X");
  Undo();
  Assign(View, L"X");
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_EQ(Row(View).CurrentKeys, L"X");
}

TEST_F(UndoTest, NothingIsModifiedAgainWhereItWasOpened) {
  Start();
  Assign(Pack, L"X");
  Delete(View);
  Undo();
  EXPECT_TRUE(Editor.Document().Modified());
  Undo();
  EXPECT_FALSE(Editor.Document().Modified());
  EXPECT_FALSE(Editor.Document().SaveAndRestartEnabled());
  Redo();
  EXPECT_TRUE(Editor.Document().Modified());
  EXPECT_TRUE(Editor.Document().SaveAndRestartEnabled());
}

TEST_F(UndoTest, NothingIsModifiedWhereItWasSavedAndEverywhereElseItIs) {
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  ASSERT_FALSE(Editor.Document().Modified());
  Undo();
  EXPECT_TRUE(Editor.Document().Modified());
  Redo();
  EXPECT_FALSE(Editor.Document().Modified());
}

TEST_F(UndoTest, WhatWasSavedCanBeReachedNoMoreAfterAnotherEdit) {
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  Undo();
  Assign(Pack, L"Z");
  EXPECT_FALSE(Redo());
  Undo();
  EXPECT_TRUE(Editor.Document().Modified());
}

TEST_F(UndoTest, AFailedSaveIsNoSave) {
  Start();
  Assign(Pack, L"X");
  Files.WriteErrors.assign(100, FileError::AccessDenied);
  Editor.FileSave();
  ASSERT_TRUE(Editor.Document().Modified());
  Undo();
  EXPECT_FALSE(Editor.Document().Modified());
}

TEST_F(UndoTest, SavesTheSameBytesAfterEverythingWasDeletedAndTakenBack) {
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  const std::string saved = Ini();
  DeleteAll();
  Undo();
  EXPECT_EQ(Row(View).CurrentKeys, L"Ctrl + F3");
  EXPECT_FALSE(Editor.Document().Modified());
  Assign(Copy, L"Z");
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Assign(Copy, L"F3");  // as it was, but by edits
  ASSERT_TRUE(Editor.Document().Modified());
  Editor.FileSave();
  EXPECT_FALSE(Editor.Document().Modified());
  EXPECT_EQ(Ini(), saved);
}

TEST_F(UndoTest, AKeyKeepsTheNameItWasReadBy) {
  Ini() = "[Shortcuts]\r\nW+Q=cm_View\r\n";
  Start();
  Delete(View);
  Editor.FileSave();
  ASSERT_EQ(Ini().find("cm_View"), std::string::npos);
  Undo();
  Editor.FileSave();
  EXPECT_NE(Ini().find("W+Q=cm_View"), std::string::npos);
}

TEST_F(UndoTest, TheKeyIsTheirsAgainWhoWereGivenItLast) {
  Ini() = "[Shortcuts]\r\nX=cm_Copy\r\n";
  Start();
  Assign(View, L"Z");
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Assign(View, L"X");  // leaves View without an entry in the index, and takes the key from Copy
  ASSERT_EQ(Row(Copy).CurrentKeys, L"---");
  Delete(View);
  Undo();
  Editor.FileSave();
  EXPECT_NE(Ini().find("X=cm_View"), std::string::npos);
}

TEST_F(UndoTest, SelectsTheRowThatChanges) {
  Start();
  Assign(Pack, L"X");
  Editor.Work(&CommandList::SelectRow, Copy);
  EXPECT_TRUE(Editor.Work(&CommandList::Undo).HideKeysList);
  EXPECT_EQ(Editor.List().SelectedRow(), Row(Pack).Key);
  Editor.Work(&CommandList::SelectRow, Heading);
  Redo();
  EXPECT_EQ(Editor.List().SelectedRow(), Row(Pack).Key);
  EXPECT_FALSE(Editor.Work(&CommandList::Undo).HideKeysList);
}

TEST_F(UndoTest, OfAllKeysLeavesTheSelectedRow) {
  Start();
  DeleteAll();
  Editor.Work(&CommandList::SelectRow, Heading);
  Undo();
  EXPECT_EQ(Editor.List().SelectedRow(), Row(Heading).Key);
}

TEST_F(UndoTest, TheOrderOfTheRowsMakesNoDifference) {
  Start();
  Assign(Pack, L"X");
  Editor.Work(&CommandList::ToggleSortedList);
  Undo();
  const DisplayTable& rows = Editor.Document().Rows();
  EXPECT_EQ(rows.Row(Pack + 1).CurrentKeys, L"---");
  EXPECT_EQ(Editor.List().SelectedRow(), Pack + 1);
  Editor.Work(&CommandList::ToggleSortedList);
  Redo();
  EXPECT_EQ(Row(Pack).CurrentKeys, L"X");
}

TEST_F(UndoTest, MarksThatACancelledQuestionLeavesAreAStepThatModifiesNothing) {
  Ini() = "[Shortcuts]\r\nCA+F1=cm_View\r\n[user]\r\nmenu1=Paint\r\nkey1=1\r\n";
  Start();
  MessageBoxes.Answers = {BoxAnswer::Yes, BoxAnswer::No};
  Assign(Pack, CtrlAlt, L"F1");
  ASSERT_EQ(MessageBoxes.Shown.size(), 2U);
  EXPECT_FALSE(Editor.Document().Modified());
  EXPECT_TRUE(Undo());
  EXPECT_FALSE(Editor.Document().Modified());
  MessageBoxes.Answers = {BoxAnswer::No};
  Assign(Pack, CtrlAlt, L"F1");
  EXPECT_EQ(MessageBoxes.Shown.size(), 3U) << "the entry has its key again";
}

TEST_F(UndoTest, AStartMenuKeyThatASaveHasTakenOutStaysAway) {
  Start();
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Assign(Pack, CtrlAlt, L"F1");
  Editor.FileSave();
  ASSERT_EQ(Ini().find("key1"), std::string::npos);
  Undo();
  EXPECT_EQ(Row(Pack).CurrentKeys, L"---");
  Editor.FileSave();
  EXPECT_EQ(Ini(),
            "[Configuration]\r\nkey=value\r\n"
            "[Shortcuts]\r\nF3=cm_Copy\r\nC+F3=cm_View\r\n"
            "[user]\r\nmenu1=Paint\r\n"
            "[Colors]\r\nred=1\r\n");
  Assign(View, CtrlAlt, L"F1");
  EXPECT_EQ(MessageBoxes.Shown.size(), 1U);
}

TEST_F(UndoTest, AnOpenForgetsAllSteps) {
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  Editor.OpenShortcutFile(false, IniFile, true);
  EXPECT_FALSE(Undo());
  EXPECT_EQ(Row(Pack).CurrentKeys, L"X");
}

TEST_F(UndoTest, AnOpenThatIsGivenUpForgetsNothing) {
  Start();
  Assign(Pack, L"X");
  Files.ReadErrors.assign(100, FileError::Other);
  MessageBoxes.Answers = {BoxAnswer::No, BoxAnswer::Cancel};
  Editor.OpenShortcutFile(false, OtherIniFile, true);
  EXPECT_TRUE(Undo());
  EXPECT_FALSE(Editor.Document().Modified());
}

}  // namespace
}  // namespace tessera::edit_history_test
