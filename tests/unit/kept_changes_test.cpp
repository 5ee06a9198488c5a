// What is kept beside the file for an end without an answer, as a log-off may bring it.
#include <stdexcept>

#include "tests/support/FaultyFiles.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::kept_changes_test {
namespace {

using namespace installation;

const std::wstring UnsavedFile = IniFile + L".unsaved";

TEST_F(EditorTest, WhatASaveWouldWriteIsKeptBesideTheFileUntilTheAnswer) {
  Start();
  Assign(Pack, L"X");
  for (const BoxAnswer answer : {BoxAnswer::Cancel, BoxAnswer::No}) {
    Editor.KeepUnsaved();
    EXPECT_EQ(Ini(), IniContent);
    EXPECT_NE(Files.Contents[UnsavedFile].find("X=cm_Pack"), std::string::npos);
    MessageBoxes.Answers = {answer};
    static_cast<void>(Editor.QueryUnload());
    EXPECT_FALSE(Files.Contents.contains(UnsavedFile));
    EXPECT_EQ(Ini(), IniContent);
  }
}

TEST_F(EditorTest, WhatIsLeftForAnEndStaysOverTheQuestionThatEndsWithIt) {
  Start();
  Assign(Pack, L"X");
  MessageBoxes.OnShow = [this] {
    Editor.KeepUnsaved();  // the session is to end,
    Assign(Pack, L"Y");
    EXPECT_TRUE(Editor.LeaveUnsaved());  // and ends
  };
  MessageBoxes.Answers = {BoxAnswer::Cancel};
  EXPECT_FALSE(Editor.QueryUnload());
  EXPECT_NE(Files.Contents[UnsavedFile].find("Y=cm_Pack"), std::string::npos);
  Editor.DropUnsaved();
  EXPECT_TRUE(Files.Contents.contains(UnsavedFile));
}

TEST_F(EditorTest, WhatIsKeptGoesWithASaveAndStaysWithOneThatFails) {
  Start();
  Assign(Pack, L"X");
  Files.Contents[UnsavedFile] = "of an earlier failure";
  Editor.KeepUnsaved();
  MessageBoxes.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};
  Files.ReplaceErrors.assign(100, FileError::Other);
  EXPECT_FALSE(Editor.QueryUnload());
  EXPECT_NE(Files.Contents[UnsavedFile].find("X=cm_Pack"), std::string::npos);
  Files.ReplaceErrors.clear();
  EXPECT_TRUE(Editor.QueryUnload());
  EXPECT_EQ(Files.Contents[UnsavedFile], "of an earlier failure");
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
}

TEST_F(EditorTest, KeepingTellsWhetherTheChangesLieThere) {
  Start();
  EXPECT_FALSE(Editor.KeepUnsaved()) << "no changes";
  Assign(Pack, L"X");
  Files.WriteErrors.assign(100, FileError::DiskFull);
  EXPECT_FALSE(Editor.KeepUnsaved());
  Files.WriteErrors.clear();
  Files.MoveErrors.assign(100, FileError::AccessDenied);
  EXPECT_FALSE(Editor.KeepUnsaved());
  Files.MoveErrors.clear();
  EXPECT_TRUE(Editor.KeepUnsaved());
  EXPECT_NE(Files.Contents[UnsavedFile].find("X=cm_Pack"), std::string::npos);

  Assign(Pack, L"Y");
  Files.WriteErrors.assign(100, FileError::DiskFull);
  EXPECT_FALSE(Editor.KeepUnsaved()) << "only former changes";
  Files.WriteErrors.clear();
  Files.ReadErrors.assign(100, FileError::SharingViolation);
  EXPECT_TRUE(Editor.KeepUnsaved()) << "made from what was read before";
  EXPECT_NE(Files.Contents[UnsavedFile].find("Y=cm_Pack"), std::string::npos);
}

TEST_F(EditorTest, WhatOneRunHasKeptStaysOverTheSavesOfTheNext) {
  Start();
  Assign(Pack, L"X");
  Editor.KeepUnsaved();
  const std::string kept = Files.Contents[UnsavedFile];
  EXPECT_NE(kept.find("X=cm_Pack"), std::string::npos);

  tessera::Editor next(Seams, [](const LoadProgress&) {});
  next.Load();
  next.Activate();
  next.Work(&CommandList::SelectRow, Copy);
  next.Work(&HotkeyPanel::Delete);
  next.FileSave();
  EXPECT_NE(Ini(), IniContent);
  EXPECT_EQ(Files.Contents[UnsavedFile], kept);
}

TEST_F(EditorTest, WhatAFailedSaveLeftStaysWithoutAnAnswerAndGoesWithASave) {
  Start();
  Assign(Pack, L"X");
  Files.ReplaceErrors.assign(100, FileError::Other);
  Editor.FileSave();
  const std::string left = Files.Contents[UnsavedFile];
  Assign(Pack, L"Y");
  Editor.KeepUnsaved();
  EXPECT_NE(Files.Contents[UnsavedFile], left);
  Editor.DropUnsaved();
  EXPECT_EQ(Files.Contents[UnsavedFile], left);
  Files.ReplaceErrors.clear();
  Editor.FileSave();
  EXPECT_FALSE(Files.Contents.contains(UnsavedFile));
}

TEST_F(EditorTest, WhatLayThereBeforeIsPutBack) {
  Start();
  Assign(Pack, L"X");
  Files.Contents[UnsavedFile] = "of an earlier failure";
  Editor.KeepUnsaved();
  Assign(Pack, L"Y");
  Editor.KeepUnsaved();
  EXPECT_NE(Files.Contents[UnsavedFile].find("Y=cm_Pack"), std::string::npos);
  Editor.DropUnsaved();
  EXPECT_EQ(Files.Contents[UnsavedFile], "of an earlier failure");
  Editor.DropUnsaved();
  EXPECT_EQ(Files.Contents[UnsavedFile], "of an earlier failure");
}

TEST_F(EditorTest, KeepingLeavesTheKeysThatTheNextSaveTakesFromTheStartMenu) {
  Start();
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Assign(Pack, 3, L"F1");  // of the Start Menu
  Editor.KeepUnsaved();
  EXPECT_EQ(Files.Contents[UnsavedFile].find("key1"), std::string::npos);
  Editor.FileSave();
  EXPECT_EQ(Ini().find("key1"), std::string::npos);
}

TEST_F(EditorTest, NothingIsKeptWithoutChangesOrAfterASave) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  EXPECT_FALSE(Editor.KeepUnsaved());
  EXPECT_FALSE(Files.Contents.contains(UnsavedFile));
  Assign(Pack, L"X");
  Clock.OnDoEvents = [this] { Editor.KeepUnsaved(); };
  Editor.FileSaveAndRestart();
  EXPECT_FALSE(Files.Contents.contains(UnsavedFile));
}

TEST_F(EditorTest, NothingIsKeptDuringALoad) {
  int steps = 0;
  tessera::Editor* changed = nullptr;
  tessera::Editor editor(Seams, [&](const LoadProgress&) {
    if (changed == nullptr) return;
    ++steps;
    EXPECT_FALSE(changed->KeepUnsaved());
  });
  Clock.StepPerReading = 1;  // a long load
  editor.Load();
  editor.Activate();
  editor.Work(&CommandList::SelectRow, Copy);
  editor.Work(&HotkeyPanel::Delete);
  ASSERT_TRUE(editor.Document().Modified());
  changed = &editor;
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  MessageBoxes.Answers = {BoxAnswer::No};
  editor.OpenShortcutFile(false, OtherIniFile, true);
  EXPECT_GT(steps, 0);
  EXPECT_FALSE(Files.Contents.contains(UnsavedFile));
  EXPECT_FALSE(Files.Contents.contains(OtherIniFile + L".unsaved"));
}

TEST_F(EditorTest, NothingIsKeptOfALoadThatEndedHalfDone) {
  const tessera::Document* document = nullptr;
  tessera::Editor editor(Seams, [&](const LoadProgress&) {
    const bool isUnderWay = document != nullptr && document->Path() == OtherIniFile;
    if (isUnderWay) throw std::runtime_error("in the middle");
  });
  Clock.StepPerReading = 1;  // a long load
  editor.Load();
  editor.Activate();
  editor.Work(&CommandList::SelectRow, Copy);
  editor.Work(&HotkeyPanel::Delete);
  document = &editor.Document();
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  MessageBoxes.Answers = {BoxAnswer::No};
  EXPECT_THROW(editor.OpenShortcutFile(false, OtherIniFile, true), std::runtime_error);
  EXPECT_FALSE(editor.LeaveUnsaved());
  EXPECT_FALSE(Files.Contents.contains(OtherIniFile + L".unsaved"));
}

TEST_F(EditorTest, ChangesAreKeptWhileASaveWaitsForTotalCommander) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Programs.PollsBeforeAnswer = 3;
  Files.Contents[UnsavedFile] = "of an earlier failure";
  Start();
  Assign(Pack, L"X");
  std::vector<std::string> left;
  Clock.OnDoEvents = [&] {
    Editor.KeepUnsaved();
    left.push_back(Files.Contents[UnsavedFile]);
  };
  Editor.FileSaveAndRestart();
  ASSERT_FALSE(left.empty());
  EXPECT_NE(left.front().find("X=cm_Pack"), std::string::npos);
  EXPECT_EQ(left.back(), "of an earlier failure");
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
}

TEST_F(EditorTest, NothingIsKeptOfAFileThatCouldNotBeRead) {
  Editor.Load();
  Files.ReadErrors = {FileError::Other};
  MessageBoxes.Answers = {BoxAnswer::Cancel};
  Editor.Activate();
  Assign(Pack, L"X");
  ASSERT_TRUE(Editor.Document().Modified());
  EXPECT_FALSE(Editor.KeepUnsaved());
  EXPECT_FALSE(Files.Contents.contains(UnsavedFile));
}

}  // namespace
}  // namespace tessera::kept_changes_test
