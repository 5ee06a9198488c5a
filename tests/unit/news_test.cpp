// What the program knows of the last edit, save or open.
#include "editing/News.h"

#include "tests/unit/editor_fixture.h"

namespace tessera::news_test {
namespace {

using namespace installation;

class NewsTest : public EditorTest {
 protected:
  NewsTest() {
    MessageBoxes.AnswerToAll = BoxAnswer::Yes;
    Start();
  }

  [[nodiscard]] const News& Latest() const { return Editor.LatestNews(); }
  [[nodiscard]] RowKey RowAt(std::size_t position) const {
    return Editor.Document().Rows().At(position).Key;
  }
};

TEST_F(NewsTest, AnOpenTellsOfTheFileAndOfTheCommandsThatHaveKeys) {
  EXPECT_EQ(Latest().Kind, NewsKind::Opened);
  EXPECT_EQ(Latest().File, IniFile);
  EXPECT_EQ(Latest().Rows, 2U);
}

TEST_F(NewsTest, AnotherRowEndsTheNews) {
  Editor.Work(&CommandList::SelectRow, 0);
  EXPECT_EQ(Latest().Kind, NewsKind::Opened) << "the row that is selected already";
  Editor.Work(&CommandList::SelectRow, Copy);
  EXPECT_EQ(Latest().Kind, NewsKind::None);
  Editor.Work(&CommandList::SelectRow, 0);
  EXPECT_EQ(Latest().Kind, NewsKind::None);
}

TEST_F(NewsTest, AnAssignmentTellsTheRowTheKeyAndWhomItWasTakenFrom) {
  Assign(Pack, L"F9");
  EXPECT_EQ(Latest().Kind, NewsKind::Assigned);
  EXPECT_EQ(Latest().Row, RowAt(Pack));
  EXPECT_EQ(Latest().Keys, L"F9");
  EXPECT_EQ(Latest().From, 0U);
  Assign(Copy, L"F9");
  EXPECT_EQ(Latest().Row, RowAt(Copy));
  EXPECT_EQ(Latest().From, RowAt(Pack));
}

TEST_F(NewsTest, AKeyOfTheRowsOwnIsTakenFromNobody) {
  Assign(Pack, L"F9");
  Choose(L"F8");
  Editor.Work(&HotkeyPanel::Add);
  Choose(L"F9");  // goes last
  Editor.Work(&HotkeyPanel::Add);
  EXPECT_EQ(Latest().Keys, L"F9");
  EXPECT_EQ(Latest().From, 0U);
}

TEST_F(NewsTest, AFurtherKeyIsToldAsAdded) {
  Assign(Pack, L"F9");
  Choose(L"F8");
  Editor.Work(&HotkeyPanel::Add);
  EXPECT_EQ(Latest().Kind, NewsKind::Added);
  EXPECT_EQ(Latest().Keys, L"F8");
}

TEST_F(NewsTest, ADeletionTellsTheKeysThatAreGone) {
  Assign(Pack, L"F9");
  Editor.Work(&HotkeyPanel::Delete);
  EXPECT_EQ(Latest().Kind, NewsKind::Deleted);
  EXPECT_EQ(Latest().Keys, L"F9");
  Editor.Work(&CommandList::SelectRow, Copy);
  Editor.Work(&HotkeyPanel::DeleteAll);
  EXPECT_EQ(Latest().Kind, NewsKind::DeletedAll);
  EXPECT_EQ(Latest().Rows, 2U);
  Assign(Pack, L"F9");
  Editor.Work(&HotkeyPanel::DeleteAll);
  EXPECT_EQ(Latest().Rows, 1U);
  Editor.Work(&HotkeyPanel::DeleteAll);
  EXPECT_EQ(Latest().Rows, 1U) << "nothing is left to delete";
}

TEST_F(NewsTest, AnEditThatIsRefusedIsNone) {
  Assign(Pack, L"F9");
  MessageBoxes.AnswerToAll = BoxAnswer::No;
  Choose(L"F3");  // taken
  Editor.Work(&HotkeyPanel::Assign);
  EXPECT_EQ(Latest().Keys, L"F9");
}

TEST_F(NewsTest, ASaveThatSucceedsIsTold) {
  Assign(Pack, L"F9");
  Editor.FileSave();
  EXPECT_EQ(Latest().Kind, NewsKind::Saved);
  EXPECT_EQ(Latest().File, IniFile);
}

TEST_F(NewsTest, AFailedSaveSaysWhyAndWhereTheKeysAreUntilTheNextOne) {
  Assign(Pack, L"F9");
  EXPECT_FALSE(Editor.Document().Failure());
  Files.ReplaceErrors = {FileError::DiskFull};
  Editor.FileSave();
  ASSERT_TRUE(Editor.Document().Failure());
  EXPECT_EQ(Editor.Document().Failure()->Error, FileError::DiskFull);
  EXPECT_EQ(Editor.Document().Failure()->KeptIn, std::vector{IniFile + L".unsaved"});
  Editor.Work(&CommandList::SelectRow, Copy);
  EXPECT_TRUE(Editor.Document().Failure());
  Editor.FileSave();
  EXPECT_FALSE(Editor.Document().Failure());
}

TEST_F(NewsTest, AFailedSaveNamesNoFileThatAnEarlierOneLeft) {
  Assign(Pack, L"F9");
  Files.ReplaceErrors = {FileError::DiskFull};
  Editor.FileSave();
  Assign(Pack, L"F8");
  Files.WriteErrors = {FileError::DiskFull};
  Editor.FileSave();
  ASSERT_TRUE(Editor.Document().Failure());
  EXPECT_EQ(Editor.Document().Failure()->KeptIn, std::vector<std::wstring>{});
}

TEST_F(NewsTest, AFileThatWasKeptAndPutBackIsNeitherNamedNorWrittenByASave) {
  const std::wstring unsaved = IniFile + L".unsaved";
  Files.Contents[unsaved] = "of an earlier run";
  Assign(Pack, L"F9");
  Editor.KeepUnsaved();
  Editor.DropUnsaved();
  Files.WriteErrors = {FileError::DiskFull};
  Editor.FileSave();
  ASSERT_TRUE(Editor.Document().Failure());
  EXPECT_EQ(Editor.Document().Failure()->KeptIn, std::vector<std::wstring>{});
  Files.Contents.erase(unsaved);  // by the user
  Editor.FileSave();
  EXPECT_FALSE(Files.Contents.contains(unsaved));
}

TEST_F(NewsTest, AnOpenEndsTheFailure) {
  Assign(Pack, L"F9");
  Files.ReplaceErrors = {FileError::DiskFull};
  Editor.FileSave();
  ASSERT_TRUE(Editor.Document().Failure());
  MessageBoxes.AnswerToAll = BoxAnswer::No;
  Editor.OpenShortcutFile(false, IniFile, false);
  EXPECT_FALSE(Editor.Document().Failure());
}

TEST(News, OfAFileThatCouldNotBeReadIsThatItIsNotSaved) {
  SampleProgram<> program;
  program.Files.Contents[IniFile] = IniContent;
  program.Editor.Load();
  program.Files.ReadErrors = {FileError::Other};
  program.MessageBoxes.Answers = {BoxAnswer::Cancel};
  program.Editor.Activate();
  EXPECT_EQ(program.Editor.LatestNews().Kind, NewsKind::None);
  program.Assign(Pack, L"F9");
  program.Editor.FileSave();
  ASSERT_TRUE(program.Editor.Document().Failure());
  EXPECT_TRUE(program.Editor.Document().Failure()->Unread);
}

}  // namespace
}  // namespace tessera::news_test
