// What a save puts in place of a file, and what it leaves beside it.
#include <gtest/gtest.h>

#include "tests/unit/replaced_file.h"

namespace tessera::replace_content_test {
namespace {

using namespace replaced_file;

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

TEST_F(ReplaceContentTest, FailureWithoutCopiesLeavesNothingBeside) {
  files_.Contents = {{Path, "old"}};
  files_.ReplaceErrors.assign(100, FileError::LockViolation);
  EXPECT_EQ(Save(KeepCopies::No), FileError::LockViolation);
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

TEST_F(ReplaceContentTest, EmptyFormerContentDoesNotReplaceABackup) {
  files_.Contents = {{Path, ""}, {Backup, "older"}};
  EXPECT_EQ(Save(KeepCopies::Yes), FileError::None);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "new"}, {Backup, "older"}}));
}

}  // namespace
}  // namespace tessera::replace_content_test
