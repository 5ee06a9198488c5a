// Saves that put their content beside the file, alone and in the whole program.
#include "settings/ini/ReplaceContent.h"
#include "settings/ini/UnsavedFiles.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FaultyFiles.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::unsaved_files_test {
namespace {

using namespace installation;

using FileTable = std::map<std::wstring, std::string>;

const std::wstring Path = L"C:\\a.ini";
const std::wstring Unsaved = L"C:\\a.ini.unsaved";

class UnsavedFilesTest : public testing::Test {
 protected:
  FileError Save(std::string_view bytes) {
    return ReplaceContent(unsaved_, clock_, Path, bytes, KeepCopies::Yes);
  }

  FaultyFiles files_;
  FakeClock clock_;
  UnsavedFiles unsaved_{files_, UnsavedFiles::Targets::LeftAlone};
};

TEST_F(UnsavedFilesTest, NewContentLiesBesideTheFileAndGoesAgain) {
  const FileTable before{{Path, "old"}, {Path + L".bak", "older"}};
  files_.Contents = before;
  EXPECT_EQ(Save("new"), FileError::None);
  EXPECT_EQ(files_.Contents,
            (FileTable{{Path, "old"}, {Path + L".bak", "older"}, {Unsaved, "new"}}));
  unsaved_.TakeAway();
  EXPECT_EQ(files_.Contents, before);
}

TEST_F(UnsavedFilesTest, WhatLayThereBeforeTheFirstSaveIsPutBack) {
  const FileTable before{{Path, "old"}, {Unsaved, "of an earlier failure"}};
  files_.Contents = before;
  EXPECT_EQ(Save("new"), FileError::None);
  EXPECT_EQ(Save("newer"), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}, {Unsaved, "newer"}}));
  unsaved_.TakeAway();
  EXPECT_EQ(files_.Contents, before);
  unsaved_.TakeAway();
  EXPECT_EQ(files_.Contents, before);
}

TEST_F(UnsavedFilesTest, ContentOfAFileThatDoesNotExistLiesThereToo) {
  EXPECT_EQ(Save("new"), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Unsaved, "new"}}));
}

TEST_F(UnsavedFilesTest, WhatLayThereBeforeAndCannotBeReadStays) {
  const FileTable before{{Path, "old"}, {Unsaved, "of an earlier failure"}};
  files_.Contents = before;
  files_.ReadErrors.assign(100, FileError::SharingViolation);
  EXPECT_EQ(Save("new"), FileError::SharingViolation);
  EXPECT_EQ(files_.Contents, before);
  unsaved_.TakeAway();
  EXPECT_EQ(files_.Contents, before);
}

TEST_F(UnsavedFilesTest, WhatLayThereBeforeStaysWhenItCannotBeReplaced) {
  const FileTable before{{Path, "old"}, {Unsaved, "of an earlier failure"}};
  files_.Contents = before;
  files_.MoveErrors.assign(100, FileError::Other);
  EXPECT_EQ(Save("new"), FileError::Other);
  files_.Calls.clear();
  unsaved_.TakeAway();
  EXPECT_TRUE(files_.Calls.empty()) << "it is not even written again";
  EXPECT_EQ(files_.Contents, before);
}

TEST_F(UnsavedFilesTest, ContentOfAFileThatCannotBeReadIsTakenAwayToo) {
  const FileTable before{{Path, "old"}, {Unsaved, "of an earlier failure"}};
  files_.Contents = before;
  LeaveUnsaved(unsaved_, Path, "new");
  EXPECT_EQ(files_.Contents[Unsaved], "new");
  unsaved_.TakeAway();
  EXPECT_EQ(files_.Contents, before);
}

TEST_F(UnsavedFilesTest, SaveTakesAwayWhatAnEarlierOneLeftAndPutsBackWhatLayThere) {
  UnsavedFiles files(files_, UnsavedFiles::Targets::Replaced);
  const auto save = [&](std::string_view bytes) {
    return ReplaceContent(files, clock_, Path, bytes, KeepCopies::Yes);
  };
  for (const bool liesThere : {false, true}) {
    files_.Contents = {{Path, "old"}};
    if (liesThere) files_.Contents[Unsaved] = "of an earlier run";
    const FileTable before = files_.Contents;
    files_.ReplaceErrors = {FileError::Other};
    EXPECT_EQ(save("new"), FileError::Other);
    EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}, {Unsaved, "new"}}));
    EXPECT_EQ(save("newer"), FileError::None);
    FileTable after = before;
    after[Path] = "newer";
    after[Path + L".bak"] = "old";
    EXPECT_EQ(files_.Contents, after);
  }
}

TEST_F(UnsavedFilesTest, LinkIsFollowed) {
  files_.Links[Path] = L"D:\\b.ini";
  files_.Contents[L"D:\\b.ini"] = "old";
  EXPECT_EQ(Save("new"), FileError::None);
  EXPECT_EQ(files_.Contents[L"D:\\b.ini.unsaved"], "new");
}

// -- What is kept for an end without an answer, as a log-off may bring it

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
}  // namespace tessera::unsaved_files_test
