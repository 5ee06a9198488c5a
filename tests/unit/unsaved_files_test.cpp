// Saves that put their content beside the file.
#include <gtest/gtest.h>

#include "settings/ini/ReplaceContent.h"
#include "settings/ini/UnsavedFiles.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FaultyFiles.h"

namespace tessera::unsaved_files_test {
namespace {

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

TEST_F(UnsavedFilesTest, NothingIsSaidToLieThereWhenItIsNotAll) {
  files_.Contents = {{Path, "old"}};
  EXPECT_EQ(Save("new"), FileError::None);
  EXPECT_EQ(unsaved_.Left(), std::vector{Unsaved});
  files_.WriteErrors = {FileError::DiskFull};
  EXPECT_EQ(ReplaceContent(unsaved_, clock_, L"C:\\b.ini", "new", KeepCopies::Yes),
            FileError::DiskFull);
  EXPECT_EQ(unsaved_.Left(), std::vector<std::wstring>{});
}

TEST_F(UnsavedFilesTest, FilesThatAreInPlaceAreNotLeft) {
  UnsavedFiles files(files_, UnsavedFiles::Targets::Replaced);
  files_.Contents = {{L"C:\\b.ini", "old"}, {Path, "old"}};
  files_.ReplaceErrors = {FileError::None, FileError::Other};
  EXPECT_EQ(ReplaceContent(files, clock_, L"C:\\b.ini", "new", KeepCopies::Yes), FileError::None);
  EXPECT_EQ(ReplaceContent(files, clock_, Path, "new", KeepCopies::Yes), FileError::Other);
  EXPECT_EQ(files.Left(), std::vector{Unsaved});
}

TEST_F(UnsavedFilesTest, EachSaveIsToldOfByItself) {
  files_.Contents = {{Path, "old"}, {L"C:\\b.ini", "old"}};
  files_.WriteErrors = {FileError::DiskFull};
  EXPECT_EQ(ReplaceContent(unsaved_, clock_, L"C:\\b.ini", "new", KeepCopies::Yes),
            FileError::DiskFull);
  unsaved_.Begin();
  EXPECT_EQ(Save("new"), FileError::None);
  EXPECT_EQ(unsaved_.Left(), std::vector{Unsaved});
  unsaved_.Begin();
  EXPECT_EQ(unsaved_.Left(), std::vector<std::wstring>{});
}

TEST_F(UnsavedFilesTest, WhatIsTakenAwayIsNoLongerLeft) {
  files_.Contents = {{Path, "old"}};
  EXPECT_EQ(Save("new"), FileError::None);
  unsaved_.TakeAway();
  EXPECT_EQ(unsaved_.Left(), std::vector<std::wstring>{});
}

TEST_F(UnsavedFilesTest, ReadOnlyFileIsNotReplacedWhereFilesAreOnlyMoved) {
  UnsavedFiles files(files_, UnsavedFiles::Targets::Replaced);
  files_.Contents = {{Path, "old"}};
  files_.ReadOnly = {Path};
  files_.ReplaceErrors.assign(100, FileError::NotSupported);
  EXPECT_EQ(ReplaceContent(files, clock_, Path, "new", KeepCopies::Yes), FileError::AccessDenied);
  EXPECT_EQ(files_.Contents, (FileTable{{Path, "old"}, {Unsaved, "new"}}));
}

TEST_F(UnsavedFilesTest, NoOtherWayIsTriedToTheTarget) {
  const FileTable before{{Path, "old"}};
  for (const FileError error : {FileError::NotFound, FileError::NotSupported}) {
    files_.Contents = before;
    files_.MoveErrors = {error};
    EXPECT_EQ(Save("new"), FileError::Other);
    EXPECT_EQ(files_.Contents[Path], "old");
  }
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

}  // namespace
}  // namespace tessera::unsaved_files_test
