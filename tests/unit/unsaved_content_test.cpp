// Saves that fail leave what they should have written beside the file.
#include "tests/unit/save_scenarios.h"

namespace tessera::unsaved_content_test {
namespace {

using namespace installation;
using namespace saves;

/// A save that failed may leave its dropped lines twice.
FileTable WithoutDropped(FileTable files) {
  std::erase_if(files, [](const auto& file) { return file.first.ends_with(L".dropped"); });
  return files;
}

TEST(UnsavedContent, AReplaceThatFailsLeavesThePreparedContentAsUnsaved) {
  for (const Scenario& scenario : Scenarios()) {
    if (!scenario.KeepsCopies) continue;
    const Contents contents = ContentsOf(scenario);
    for (const FileError fault : Faults) {
      if (fault == FileError::NotSupported) continue;  // there is another way
      const auto world = Prepared(scenario);
      world->Files.ReplaceErrors.assign(100, fault);
      scenario.Save(*world);
      const std::wstring& path = scenario.Written.front();
      EXPECT_TRUE(Holds(world->Files, path, contents.Old.at(path)));
      EXPECT_TRUE(Holds(world->Files, path + L".unsaved", contents.New.at(path)));
      EXPECT_TRUE(world->Editor.Document().Modified());
      world->Files.ReplaceErrors.clear();
      scenario.Save(*world);
      EXPECT_TRUE(WithoutDropped(world->Files.Contents) == WithoutDropped(contents.New));
    }
  }
}

TEST(UnsavedContent, AFileThatCannotBeReadAtTheSaveLeavesWhatItShouldHoldAsUnsaved) {
  for (const Scenario& scenario : Scenarios()) {
    if (!scenario.KeepsCopies) continue;
    SCOPED_TRACE(scenario.Name);
    const Contents contents = ContentsOf(scenario);
    for (const FileError fault : {FileError::SharingViolation, FileError::AccessDenied}) {
      const auto world = Prepared(scenario);
      world->Files.ReadErrors.assign(1000, fault);
      scenario.Save(*world);
      for (const std::wstring& path : scenario.Written) {
        EXPECT_TRUE(Holds(world->Files, path, contents.Old.at(path)));
        EXPECT_TRUE(Holds(world->Files, path + L".unsaved", contents.New.at(path)));
        EXPECT_TRUE(Holds(world->Files, path + L".bak", "older"));
        EXPECT_FALSE(world->Files.Contents.contains(path + L".tessera-new"));
      }
      EXPECT_TRUE(world->Editor.Document().Modified());
      EXPECT_EQ(world->MessageBoxes.BeepCount, 1);
      world->Files.ReadErrors.clear();
      scenario.Save(*world);
      EXPECT_TRUE(world->Files.Contents == contents.New);
    }
  }
}

TEST(UnsavedContent, TheUnsavedContentIsMadeFromTheLastSaveWhenTheFileCannotBeRead) {
  World world;
  world.Files.Contents[IniFile] = Content;
  TakeKeys(world);
  world.Editor.FileSave();
  const std::string saved = world.Files.Contents[IniFile];
  world.Assign(Copy, 7, L"X");
  world.Files.ReadErrors.assign(1000, FileError::SharingViolation);
  world.Editor.FileSave();
  world.Files.ReadErrors.clear();
  const std::string unsaved = world.Files.Contents[IniFile + L".unsaved"];
  EXPECT_NE(unsaved, saved);
  world.Editor.FileSave();
  EXPECT_EQ(world.Files.Contents[IniFile], unsaved);
  EXPECT_FALSE(world.Files.Contents.contains(IniFile + L".unsaved"));
}

TEST(UnsavedContent, AFileBehindOneThatFailedLeavesItsUnsavedContentToo) {
  const Scenario scenario = Scenarios()[1];
  const Contents contents = ContentsOf(scenario);
  const auto world = Prepared(scenario);
  world->Files.ReplaceErrors.assign(100, FileError::Other);
  scenario.Save(*world);
  for (const std::wstring& path : scenario.Written) {
    EXPECT_TRUE(Holds(world->Files, path, contents.Old.at(path)));
    EXPECT_TRUE(Holds(world->Files, path + L".unsaved", contents.New.at(path)));
  }
}

}  // namespace
}  // namespace tessera::unsaved_content_test
