// Where one replace is not to be had, or is done by half, a save leaves the old content or the new
// one, at every moment.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "tests/unit/replaced_file.h"

namespace tessera::replace_content_steps_test {
namespace {

using namespace replaced_file;

TEST_F(ReplaceContentTest, WhereNoReplaceIsSupportedBothFilesAreRenamed) {
  files_.Contents = {{Path, "old"}, {Backup, "older"}};
  files_.ReplaceErrors = {FileError::NotSupported};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "old"}}));
  EXPECT_EQ(clock_.SleepCount, 0);

  files_.ReplaceErrors = {FileError::NotSupported};
  EXPECT_EQ(Save(KeepCopies::No), FileError::None);
  EXPECT_FALSE(files_.Contents.contains(Former));
}

TEST_F(ReplaceContentTest, WhereNoReplaceIsSupportedAMissingFileIsCreated) {
  files_.ReplaceErrors = {FileError::NotSupported};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}}));
}

TEST_F(ReplaceContentTest, WhereNoReplaceIsSupportedAReadOnlyFileStays) {
  files_.Contents = {{Path, "old"}, {Backup, "older"}};
  files_.ReadOnly = {Path};
  files_.ReplaceErrors.assign(100, FileError::NotSupported);
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::AccessDenied);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}, {Backup, "older"}, {Unsaved, "new"}}));
  EXPECT_EQ(std::ranges::count(files_.Calls, L"Move " + Path + L" " + Former), 0);
}

TEST_F(ReplaceContentTest, RenamedFileReturnsWhenTheNewOneCannotTakeItsName) {
  files_.Contents = {{Path, "old"}, {Backup, "older"}};
  files_.ReplaceErrors = {FileError::NotSupported};
  files_.MoveErrors = {FileError::None, FileError::Other};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::Other);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}, {Backup, "older"}, {Unsaved, "new"}}));
}

TEST_F(ReplaceContentTest, RenamedFileThatCannotReturnIsWholeUnderItsOtherName) {
  files_.Contents = {{Path, "old"}};
  files_.ReplaceErrors = {FileError::NotSupported};
  files_.MoveErrors = {FileError::None, FileError::Other, FileError::Other};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::Other);
  EXPECT_EQ(files_.Contents, (FileTable{{Former, "old"}, {Unsaved, "new"}}));
  ClearLeftOvers(files_, Path, KeepCopies::Yes);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}, {Unsaved, "new"}}));
}

TEST_F(ReplaceContentTest, RenamedFileHeldForAMomentIsTriedAgain) {
  files_.Contents = {{Path, "old"}};
  files_.ReplaceErrors = {FileError::NotSupported, FileError::NotSupported};
  files_.MoveErrors = {FileError::SharingViolation};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "old"}}));
  EXPECT_GT(clock_.SleepCount, 0);
}

TEST_F(ReplaceContentTest, HalfDoneReplaceIsUndoneAndTriedAgain) {
  files_.Contents = {{Path, "old"}, {Backup, "older"}};
  files_.ReplaceErrors = {FileError::UnableToMoveReplacement2};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "old"}}));
}

TEST_F(ReplaceContentTest, ReplaceThatStaysHalfDoneKeepsTheOldContentAndTheOlderBackup) {
  files_.Contents = {{Path, "old"}, {Backup, "older"}};
  files_.ReplaceErrors.assign(100, FileError::UnableToMoveReplacement2);
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::UnableToMoveReplacement2);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}, {Backup, "older"}, {Unsaved, "new"}}));
}

TEST_F(ReplaceContentTest, HalfDoneReplaceThatCannotBeUndoneIsCompleted) {
  files_.Contents = {{Path, "old"}};
  files_.ReplaceErrors = {FileError::UnableToMoveReplacement2};
  files_.MoveErrors = {FileError::AccessDenied};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "old"}}));
}

TEST_F(ReplaceContentTest, FormerContentIsNeverRemovedWhileItIsTheOnlyOne) {
  files_.Contents = {{Path, "old"}};
  files_.ReplaceErrors = {FileError::UnableToMoveReplacement2, FileError::Other};
  files_.MoveErrors.assign(100, FileError::Other);
  EXPECT_NE(Save(KeepCopies::No), FileError::None);
  EXPECT_EQ(files_.Contents[Former], "old");

  files_.MoveErrors.clear();
  ClearLeftOvers(files_, Path, KeepCopies::No);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}}));
}

/// Saves over "old" and ends the program after so many elementary changes. Nothing when the save
/// needs no more changes than that.
std::optional<FaultyFiles> KilledAfter(int steps, KeepCopies copies, FileError firstReplaceError) {
  FaultyFiles files;
  FakeClock clock;
  files.Contents = {{Path, "old"}, {Backup, "older"}};
  files.ReplaceErrors = {firstReplaceError};
  files.StepsUntilKilled = steps;
  try {
    EXPECT_EQ(ReplaceContent(files, clock, Path, "new", copies), FileError::None);
    return std::nullopt;
  } catch (const Killed&) {
    files.StepsUntilKilled = -1;
    return files;
  }
}

TEST(ReplaceContent, KillAtAnyMomentLeavesTheOldFileOrTheNewOne) {
  for (const KeepCopies copies : {KeepCopies::No, KeepCopies::Yes}) {
    for (const FileError error :
         {FileError::None, FileError::UnableToMoveReplacement2, FileError::NotSupported}) {
      int steps = 0;
      while (auto files = KilledAfter(steps, copies, error)) {
        ClearLeftOvers(*files, Path, copies);
        const std::string& content = files->Contents[Path];
        EXPECT_TRUE(content == "old" || content == "new") << "after " << steps << ": " << content;
        EXPECT_TRUE(files->Contents.contains(Backup));
        EXPECT_FALSE(files->Contents.contains(Prepared));
        EXPECT_FALSE(files->Contents.contains(Former));
        ++steps;
      }
      EXPECT_GE(steps, 4);
    }
  }
}

}  // namespace
}  // namespace tessera::replace_content_steps_test
