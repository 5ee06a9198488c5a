// What a killed save left beside a file is put right before the next one.
#include <gtest/gtest.h>

#include "tests/unit/replaced_file.h"

namespace tessera::replace_content_left_overs_test {
namespace {

using namespace replaced_file;

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

}  // namespace
}  // namespace tessera::replace_content_left_overs_test
