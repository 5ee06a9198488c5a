// A save waits for a file that others hold, and replaces no content that it does not know.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/unit/replaced_file.h"

namespace tessera::replace_content_waits_test {
namespace {

using namespace replaced_file;

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
}  // namespace tessera::replace_content_waits_test
