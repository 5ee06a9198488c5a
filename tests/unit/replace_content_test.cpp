// Saving keeps the old content or the new one at every moment, and leaves beside the file what it
// promises.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "settings/ini/ReplaceContent.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FaultyFiles.h"

namespace tessera::replace_content_test {
namespace {

const std::wstring Path = L"C:\\TC\\Wincmd.ini";
const std::wstring Prepared = Path + L".tessera-new";
const std::wstring Former = Path + L".tessera-old";
const std::wstring Backup = Path + L".bak";
const std::wstring Unsaved = Path + L".unsaved";

using FileTable = std::map<std::wstring, std::string>;

class ReplaceContentTest : public testing::Test {
 protected:
  FileError Save(KeepCopies copies) { return ReplaceContent(files_, clock_, Path, "new", copies); }

  FaultyFiles files_;
  FakeClock clock_;
};

TEST_F(ReplaceContentTest, NewContentStandsAloneWithoutCopies) {
  files_.Contents = {{Path, "old"}};
  EXPECT_EQ(Save(KeepCopies::No), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}}));
}

TEST_F(ReplaceContentTest, FormerContentStaysAsBackupWithCopies) {
  files_.Contents = {{Path, "old"}};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "old"}}));
  EXPECT_EQ(clock_.SleepCount, 0);
}

TEST_F(ReplaceContentTest, BackupHoldsTheContentBeforeTheLastSave) {
  files_.Contents = {{Path, "old"}, {Backup, "older"}};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "old"}}));
}

TEST_F(ReplaceContentTest, MissingFileIsCreatedWithoutBackup) {
  for (const KeepCopies copies : {KeepCopies::No, KeepCopies::Yes}) {
    files_.Contents.clear();
    EXPECT_EQ(Save(copies), FileError::None);
    EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}}));
  }
}

TEST_F(ReplaceContentTest, LinkIsFollowedAndStays) {
  const std::wstring real = L"D:\\Settings\\Wincmd.ini";
  files_.Links = {{Path, real}};
  files_.Contents = {{real, "old"}};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{real, "new"}, {real + L".bak", "old"}}));
}

TEST_F(ReplaceContentTest, NameKeepsTheLetterCaseThatItHasOnTheDisk) {
  files_.Contents = {{Path, "old"}};
  EXPECT_EQ(ReplaceContent(files_, clock_, L"c:\\tc\\wincmd.INI", "new", KeepCopies::Yes),
            FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "old"}}));
}

TEST_F(ReplaceContentTest, SuccessRemovesUnsavedContentOfAnEarlierFailure) {
  files_.Contents = {{Path, "old"}, {Unsaved, "lost edits"}};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_FALSE(files_.Contents.contains(Unsaved));
}

TEST_F(ReplaceContentTest, FileHeldForAMomentIsTriedAgain) {
  for (const FileError error :
       {FileError::SharingViolation, FileError::LockViolation, FileError::AccessDenied,
        FileError::UnableToRemoveReplaced, FileError::UnableToMoveReplacement}) {
    files_.Contents = {{Path, "old"}};
    files_.ReplaceErrors = {error, error, error};
    clock_ = FakeClock();
    EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
    EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "old"}}));
    EXPECT_EQ(clock_.SleptMilliseconds, 20 + 40 + 80);
  }
}

TEST_F(ReplaceContentTest, BackupHeldForAMomentIsMadeAllTheSame) {
  files_.Contents = {{Path, "old"}, {Backup, "older"}};
  files_.MoveErrors = {FileError::SharingViolation, FileError::SharingViolation};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "old"}}));
  EXPECT_EQ(clock_.SleptMilliseconds, 20 + 40);
}

TEST_F(ReplaceContentTest, FileHeldForGoodIsGivenUpAfterTwoSeconds) {
  files_.Contents = {{Path, "old"}, {Backup, "older"}};
  files_.ReplaceErrors.assign(100, FileError::SharingViolation);
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::SharingViolation);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}, {Backup, "older"}, {Unsaved, "new"}}));
  EXPECT_EQ(clock_.SleptMilliseconds, 2000);
}

TEST_F(ReplaceContentTest, DeniedAccessIsGivenUpSoon) {
  files_.Contents = {{Path, "old"}};
  files_.ReplaceErrors.assign(100, FileError::AccessDenied);
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::AccessDenied);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}, {Unsaved, "new"}}));
  EXPECT_EQ(clock_.SleptMilliseconds, 300);
}

TEST_F(ReplaceContentTest, OtherErrorsAreNotTriedAgain) {
  files_.Contents = {{Path, "old"}};
  files_.ReplaceErrors = {FileError::Other};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::Other);
  EXPECT_EQ(clock_.SleepCount, 0);
}

TEST_F(ReplaceContentTest, FailureWithoutCopiesLeavesNothingBeside) {
  files_.Contents = {{Path, "old"}};
  files_.ReplaceErrors.assign(100, FileError::LockViolation);
  EXPECT_EQ(Save(KeepCopies::No), FileError::LockViolation);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}}));
}

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

TEST_F(ReplaceContentTest, FullDiskLeavesTheOldContentAndNoPart) {
  files_.Contents = {{Path, "old"}, {Backup, "older"}};
  files_.WriteErrors = {FileError::DiskFull};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::DiskFull);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}, {Backup, "older"}}));
}

TEST_F(ReplaceContentTest, PreparedContentThatCannotBeKeptDoesNotDangle) {
  files_.Contents = {{Path, "old"}};
  files_.ReplaceErrors = {FileError::Other};
  files_.MoveErrors = {FileError::AccessDenied};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::Other);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}}));
}

TEST_F(ReplaceContentTest, BackupThatCannotBeRenewedDoesNotFailTheSave) {
  files_.Contents = {{Path, "old"}, {Backup, "older"}};
  files_.MoveErrors.assign(100, FileError::AccessDenied);
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Former, "old"}, {Backup, "older"}}));
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

TEST(ClearLeftOvers, TemporaryFilesGoAndTheOthersStay) {
  FaultyFiles files;
  files.Contents = {{Path, "c"}, {Prepared, "p"}, {Former, "f"}, {Backup, "b"}, {Unsaved, "u"}};
  ClearLeftOvers(files, Path, KeepCopies::No);
  EXPECT_EQ(files.Contents, (FileTable{{Path, "c"}, {Backup, "b"}, {Unsaved, "u"}}));
}

TEST(ClearLeftOvers, FormerContentReturnsWhenTheFileIsGone) {
  FaultyFiles files;
  files.Contents = {{Prepared, "new"}, {Former, "old"}};
  ClearLeftOvers(files, Path, KeepCopies::No);
  EXPECT_EQ(files.Contents, (FileTable{{Path, "old"}}));
}

TEST(ClearLeftOvers, PreparedContentOfAFileThatNeverWasGoes) {
  FaultyFiles files;
  files.Contents = {{Prepared, "part"}};
  ClearLeftOvers(files, Path, KeepCopies::Yes);
  EXPECT_EQ(files.Contents, FileTable{});
}

TEST(ClearLeftOvers, WholePreparedContentIsPutInPlaceWhenItIsAllThereIs) {
  for (const KeepCopies copies : {KeepCopies::No, KeepCopies::Yes}) {
    FaultyFiles files;
    files.Contents = {{Prepared, "[s]\r\na=1\r\n"}};
    ClearLeftOvers(files, Path, copies);
    EXPECT_EQ(files.Contents, (FileTable{{Path, "[s]\r\na=1\r\n"}}));
  }
}

TEST(ClearLeftOvers, PreparedContentThatCannotBeReadOrPutInPlaceStays) {
  FaultyFiles files;
  files.Contents = {{Prepared, "a=1\r\n"}};
  files.ReadErrors = {FileError::None, FileError::AccessDenied};
  ClearLeftOvers(files, Path, KeepCopies::Yes);
  EXPECT_EQ(files.Contents, (FileTable{{Prepared, "a=1\r\n"}}));
  files.MoveErrors = {FileError::AccessDenied};
  ClearLeftOvers(files, Path, KeepCopies::Yes);
  EXPECT_EQ(files.Contents, (FileTable{{Prepared, "a=1\r\n"}}));
}

TEST(ClearLeftOvers, EmptyFormerContentIsNoBackup) {
  FaultyFiles files;
  files.Contents = {{Path, "new"}, {Former, ""}, {Backup, "older"}};
  ClearLeftOvers(files, Path, KeepCopies::Yes);
  EXPECT_EQ(files.Contents, (FileTable{{Path, "new"}, {Backup, "older"}}));
}

TEST_F(ReplaceContentTest, EmptyFormerContentDoesNotReplaceABackup) {
  files_.Contents = {{Path, ""}, {Backup, "older"}};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "older"}}));
}

TEST(ClearLeftOvers, NothingGoesWhileTheFileCannotBeRead) {
  FaultyFiles files;
  files.Contents = {{Prepared, "new"}, {Former, "old"}};
  files.ReadErrors = {FileError::AccessDenied};
  ClearLeftOvers(files, Path, KeepCopies::No);
  EXPECT_EQ(files.Contents, (FileTable{{Prepared, "new"}, {Former, "old"}}));
}

TEST(ClearLeftOvers, FormerContentBecomesTheBackupWhereThereIsOne) {
  FaultyFiles files;
  files.Contents = {{Path, "new"}, {Former, "old"}, {Backup, "older"}, {Prepared, "part"}};
  ClearLeftOvers(files, Path, KeepCopies::Yes);
  EXPECT_EQ(files.Contents, (FileTable{{Path, "new"}, {Backup, "old"}}));
}

TEST(ClearLeftOvers, FormerContentThatIsStillInPlaceIsNoBackup) {
  FaultyFiles files;
  files.Contents = {{Path, "old"}, {Former, "old"}, {Backup, "older"}, {Prepared, "new"}};
  ClearLeftOvers(files, Path, KeepCopies::Yes);
  EXPECT_EQ(files.Contents, (FileTable{{Path, "old"}, {Backup, "older"}}));
}

TEST(ClearLeftOvers, FormerContentReturnsBesideTheTargetOfALink) {
  const std::wstring real = L"D:\\Settings\\Wincmd.ini";
  FaultyFiles files;
  files.Links = {{Path, real}};
  files.Contents = {{real + L".tessera-old", "old"}, {real + L".tessera-new", "new"}};
  ClearLeftOvers(files, Path, KeepCopies::Yes);
  EXPECT_EQ(files.Contents, (FileTable{{real, "old"}}));
}

TEST(ClearLeftOvers, NothingGoesWhileTheFormerContentCannotReturn) {
  FaultyFiles files;
  files.Contents = {{Prepared, "new"}, {Former, "old"}};
  files.MoveErrors = {FileError::AccessDenied};
  ClearLeftOvers(files, Path, KeepCopies::Yes);
  EXPECT_EQ(files.Contents, (FileTable{{Prepared, "new"}, {Former, "old"}}));
}

TEST(ClearLeftOvers, NothingIsReadWhenNothingIsLeft) {
  FaultyFiles files;
  files.Contents = {{Path, "c"}};
  files.ReadErrors = {FileError::Other};
  ClearLeftOvers(files, Path, KeepCopies::Yes);
  EXPECT_EQ(files.ReadErrors.size(), 1U);
  EXPECT_TRUE(files.Calls.empty());
}

TEST(ExistsOrReturns, FileOfAKilledSaveIsThereAgain) {
  FaultyFiles files;
  EXPECT_FALSE(ExistsOrReturns(files, Path));
  files.Contents = {{Former, "old"}};
  EXPECT_TRUE(ExistsOrReturns(files, Path));
  EXPECT_EQ(files.Contents, (FileTable{{Path, "old"}}));
}

TEST_F(ReplaceContentTest, ContentThatChangedDuringAWaitIsNotReplaced) {
  files_.Contents = {{Path, "old"}};
  const FormerContent former{std::make_shared<const std::string>("old"), files_.Stamp(Path)};
  files_.Contents = {{Path, "odd"}};  // with a stamp that does not tell
  files_.ReplaceErrors = {FileError::SharingViolation};
  EXPECT_EQ(ReplaceContent(files_, clock_, Path, "new", KeepCopies::Yes, &former),
            FileError::ChangedMeanwhile);
  EXPECT_EQ(files_.Contents[Path], "odd");
}

TEST_F(ReplaceContentTest, ContentWithAnotherStampIsNotReplaced) {
  files_.Contents = {{Path, "old"}};
  const FormerContent former{std::make_shared<const std::string>("old"), files_.Stamp(Path)};
  files_.Contents = {{Path, "by another program"}};
  EXPECT_EQ(ReplaceContent(files_, clock_, Path, "new", KeepCopies::Yes, &former),
            FileError::ChangedMeanwhile);
  EXPECT_EQ(files_.Contents[Path], "by another program");
  EXPECT_EQ(clock_.SleepCount, 0);
}

TEST_F(ReplaceContentTest, SameContentWithAnotherStampIsReplaced) {
  files_.Contents = {{Path, "old"}};
  const FormerContent former{std::make_shared<const std::string>("old"), {}};
  EXPECT_EQ(ReplaceContent(files_, clock_, Path, "new", KeepCopies::Yes, &former), FileError::None);
  EXPECT_EQ(files_.Contents[Path], "new");
}

TEST_F(ReplaceContentTest, ContentThatIsBeingWrittenIsWaitedFor) {
  files_.Contents = {{Path, "old"}};
  const FormerContent former{std::make_shared<const std::string>("old"), files_.Stamp(Path)};
  files_.Contents = {{Path, "by another program"}};
  files_.ReadErrors = {FileError::SharingViolation};
  EXPECT_EQ(ReplaceContent(files_, clock_, Path, "new", KeepCopies::Yes, &former),
            FileError::ChangedMeanwhile);
  EXPECT_EQ(files_.Contents[Path], "by another program");
  EXPECT_EQ(clock_.SleepCount, 1);
}

TEST(SaveFromTheStart, IsTriedThreeTimesWhileTheFileChanges) {
  int saves = 0;
  EXPECT_EQ(SaveFromTheStart([&] {
              ++saves;
              return FileError::ChangedMeanwhile;
            }),
            FileError::ChangedMeanwhile);
  EXPECT_EQ(saves, 3);
  EXPECT_EQ(SaveFromTheStart([&] {
              ++saves;
              return saves < 5 ? FileError::ChangedMeanwhile : FileError::None;
            }),
            FileError::None);
  EXPECT_EQ(saves, 5);
}

TEST(ReadWhenFree, WaitsForAHeldFileAndNotForAMissingOne) {
  FaultyFiles files;
  FakeClock clock;
  std::string bytes;
  EXPECT_EQ(ReadWhenFree(files, clock, Path, bytes), FileError::NotFound);
  EXPECT_EQ(clock.SleepCount, 0);
  files.Contents = {{Path, "c"}};
  files.ReadErrors = {FileError::SharingViolation, FileError::LockViolation};
  EXPECT_EQ(ReadWhenFree(files, clock, Path, bytes), FileError::None);
  EXPECT_EQ(bytes, "c");
  EXPECT_EQ(clock.SleptMilliseconds, 60);
}

}  // namespace
}  // namespace tessera::replace_content_test
