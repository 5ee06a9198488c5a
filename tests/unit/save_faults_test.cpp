// Saving while every single file operation fails in every way: the old content or the new one is in
// place, the other one beside it where that was promised, and what is not saved stays unsaved.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>

#include "tests/support/FaultyFiles.h"
#include "tests/support/MemoryFiles.h"
#include "tests/support/SampleProgram.h"

namespace tessera::save_faults_test {
namespace {

using namespace installation;

using World = SampleProgram<FaultyFiles>;
using Lasts = FaultyFiles::FaultLasts;
using FileTable = std::map<std::wstring, std::string>;

constexpr FileError Faults[] = {FileError::AccessDenied,
                                FileError::SharingViolation,
                                FileError::LockViolation,
                                FileError::DiskFull,
                                FileError::NotSupported,
                                FileError::Other,  // of a write: only a part was written
                                FileError::UnableToRemoveReplaced,
                                FileError::UnableToMoveReplacement,
                                FileError::UnableToMoveReplacement2};

const std::wstring OtherFile = L"C:\\TC\\keys.ini";

/// One way of saving: the files that it writes, and how.
struct Scenario {
  const char* Name;
  std::vector<std::wstring> Written;
  bool KeepsCopies;
  std::function<void(World&)> Prepare;  ///< from the start of the program to the save
  std::function<void(World&)> Save;
};

constexpr const char* Content =
    "[Configuration]\nkey = value ; kept\r\n\n[Shortcuts]\r\nC+F3=cm_View\r\nF3=cm_Copy\r\n"
    "[user]\r\nmenu1=Paint\r\nkey1=1\r\n;end";

constexpr const char* OwnCommand = "A+F5=em_Mine\r\n";
constexpr const char* Earlier = "; of an earlier save\r\n";

/// What a save drops is never written over, and stands whole behind what was there.
void CheckDropped(const FaultyFiles& files, const std::wstring& path, const std::string& before,
                  bool isNew) {
  const auto found = files.Contents.find(path + L".dropped");
  const std::string dropped = found == files.Contents.end() ? "" : found->second;
  if (before.find(OwnCommand) == std::string::npos) {
    ASSERT_EQ(dropped, "");
    return;
  }
  ASSERT_TRUE(dropped.starts_with(Earlier));
  const bool isWhole = dropped.find(std::string("\r\n") + OwnCommand) != std::string::npos;
  ASSERT_TRUE(isWhole || !isNew || files.LastAppend != FileError::None) << dropped;
}

void TakeKeys(World& world) {
  world.Start();
  world.MessageBoxes.Answers = {BoxAnswer::Yes};
  world.Assign(Pack, 3, L"F1");  // of the Start Menu
}

std::vector<Scenario> Scenarios() {
  const auto save = [](World& world) { world.Editor.FileSave(); };
  return {
      {"Wincmd.ini",
       {IniFile},
       true,
       [](World& world) {
         world.Files.Contents[IniFile] = Content;
         TakeKeys(world);
       },
       save},
      {"both sections in two files",
       {IniFile, OtherFile},
       true,
       [](World& world) {
         world.Files.Contents[IniFile] =
             "[Shortcuts]\r\nRedirectSection=keys.ini\r\n[user]\r\nmenu1=Paint\r\nkey1=1\r\n";
         world.Files.Contents[OtherFile] = "[a]\nb\n[Shortcuts]\nF3=cm_Copy\nF8=cm_View\n[c]\nd=e";
         TakeKeys(world);
       },
       save},
      {"lines that are dropped",
       {IniFile},
       true,
       [](World& world) {
         world.Files.Contents[IniFile] = std::string("[Shortcuts]\n") + OwnCommand + "F8=cm_View\n";
         world.Files.Contents[IniFile + L".dropped"] = Earlier;
         TakeKeys(world);
       },
       save},
      {"vantor.ini",
       {VantorFile},
       false,
       [](World& world) {
         world.Files.Contents[IniFile] = Content;
         world.Files.Contents[VantorFile] =
             "[Other]\nx=1\n[Tessera]\r\nFontSize=12\r\nMainWindowLeft=7";
         world.Start();
       },
       [](World& world) { world.Editor.Unload({.Left = 100, .Width = 9000}, {}); }},
  };
}

/// A program that is about to save, with a backup from an earlier save.
std::unique_ptr<World> Prepared(const Scenario& scenario) {
  auto world = std::make_unique<World>();
  scenario.Prepare(*world);
  if (scenario.KeepsCopies) {
    for (const std::wstring& path : scenario.Written) {
      world->Files.Contents[path + L".bak"] = "older";
    }
  }
  world->Files.Calls.clear();
  world->Files.CallCount = 0;
  return world;
}

/// The files before and after an undisturbed save.
struct Contents {
  FileTable Old, New;
};

Contents ContentsOf(const Scenario& scenario) {
  Contents contents;
  const auto world = Prepared(scenario);
  contents.Old = world->Files.Contents;
  scenario.Save(*world);
  contents.New = world->Files.Contents;
  for (const std::wstring& path : scenario.Written) {
    EXPECT_NE(contents.Old.at(path), contents.New.at(path));
  }
  return contents;
}

/// A save that failed may leave its dropped lines twice.
FileTable WithoutDropped(FileTable files) {
  std::erase_if(files, [](const auto& file) { return file.first.ends_with(L".dropped"); });
  return files;
}

bool Holds(const FaultyFiles& files, const std::wstring& path, const std::string& content) {
  const auto found = files.Contents.find(path);
  return found != files.Contents.end() && found->second == content;
}

/// What must be true of one written file as long as the program runs.
void CheckFile(const Scenario& scenario, const Contents& contents, const FaultyFiles& files,
               const std::wstring& path, bool modified) {
  const std::string& before = contents.Old.at(path);
  const std::string& after = contents.New.at(path);
  const bool isNew = Holds(files, path, after);
  // Only where nothing can be renamed any more does the old content stay under another name.
  const bool isAside = !files.Contents.contains(path) && files.FaultStays != Lasts::Once &&
                       Holds(files, path + L".tessera-old", before);
  ASSERT_TRUE(isNew || isAside || Holds(files, path, before)) << files.Contents.contains(path);
  if (!scenario.KeepsCopies) {
    ASSERT_FALSE(files.Contents.contains(path + L".bak"));
    ASSERT_FALSE(files.Contents.contains(path + L".unsaved"));
    return;
  }
  CheckDropped(files, path, before, isNew);
  const bool isPrepared = std::ranges::count(files.Calls, L"Replace " + path) > 0;
  const bool isUnsaved = Holds(files, path + L".unsaved", after);
  ASSERT_TRUE(isUnsaved || !files.Contents.contains(path + L".unsaved")) << "a part of the content";
  if (isNew) {
    ASSERT_TRUE(Holds(files, path + L".bak", before) ||
                Holds(files, path + L".tessera-old", before))
        << "which the next start makes the backup";
    ASSERT_FALSE(isUnsaved);
  } else {
    ASSERT_TRUE(modified) << "an error was dropped";
    ASSERT_TRUE(Holds(files, path + L".bak", "older"));
    ASSERT_TRUE(isUnsaved || !isPrepared || files.FaultStays != Lasts::Once);
  }
}

/// The files' state once the program has been started anew.
void CheckRestart(const Scenario& scenario, const Contents& contents, const FaultyFiles& files) {
  World next;
  next.Files.Contents = files.Contents;
  next.Start();
  for (const std::wstring& path : scenario.Written) {
    const std::string& before = contents.Old.at(path);
    const bool isNew = Holds(next.Files, path, contents.New.at(path));
    ASSERT_TRUE(isNew || Holds(next.Files, path, before));
    if (scenario.KeepsCopies) {
      CheckDropped(next.Files, path, before, isNew && files.LastAppend == FileError::None);
      ASSERT_TRUE(Holds(next.Files, path + L".bak", isNew ? before : "older"));
    }
    ASSERT_FALSE(next.Files.Contents.contains(path + L".tessera-new"));
    ASSERT_FALSE(next.Files.Contents.contains(path + L".tessera-old"));
  }
}

/// Saves with one fault. False when the save made too few calls to meet it.
bool SaveWithFault(const Scenario& scenario, const Contents& contents, int call, FileError fault,
                   Lasts lasts) {
  const auto world = Prepared(scenario);
  FaultyFiles& files = world->Files;
  files.FaultAtCall = call;
  files.Fault = fault;
  files.FaultStays = lasts;
  scenario.Save(*world);
  if (files.CallCount <= call) return false;
  const bool modified = world->Editor.Document().Modified();
  for (const std::wstring& path : scenario.Written) {
    CheckFile(scenario, contents, files, path, modified);
  }
  // Each written file may be waited for, and one that takes dropped lines.
  EXPECT_LE(world->Clock.SleptMilliseconds, 2000 * static_cast<int>(scenario.Written.size() + 1));
  CheckRestart(scenario, contents, files);

  // With the fault gone, the same program can still save.
  files.FaultAtCall = -1;
  scenario.Save(*world);
  for (const std::wstring& path : scenario.Written) {
    EXPECT_TRUE(Holds(files, path, contents.New.at(path)));
    EXPECT_FALSE(modified && files.Contents.contains(path + L".tessera-old"));
  }
  EXPECT_FALSE(world->Editor.Document().Modified());
  return true;
}

TEST(SaveFaults, AnyFailingCallLeavesTheOldContentOrTheNewOne) {
  for (const Scenario& scenario : Scenarios()) {
    const Contents contents = ContentsOf(scenario);
    for (const FileError fault : Faults) {
      for (const Lasts lasts : {Lasts::Once, Lasts::ForItsOperation, Lasts::ForGood}) {
        int call = 0;
        for (;; ++call) {
          SCOPED_TRACE(testing::Message()
                       << scenario.Name << ", fault " << static_cast<int>(fault) << " lasting "
                       << static_cast<int>(lasts) << " at call " << call);
          if (!SaveWithFault(scenario, contents, call, fault, lasts)) break;
          if (testing::Test::HasFailure()) return;
        }
        EXPECT_GE(call, 6) << scenario.Name;
      }
    }
  }
}

/// Ends the program after so many elementary changes of a save; `fault` is met at call `call`.
std::optional<FaultyFiles> Killed(const Scenario& scenario, int steps, int call, FileError fault) {
  const auto world = Prepared(scenario);
  world->Files.StepsUntilKilled = steps;
  world->Files.FaultAtCall = call;
  world->Files.Fault = fault;
  try {
    scenario.Save(*world);
    return std::nullopt;
  } catch (const tessera::Killed&) {
    world->Files.StepsUntilKilled = -1;
    world->Files.FaultAtCall = -1;
    return world->Files;
  }
}

TEST(SaveFaults, AnEndAtAnyMomentLeavesTheOldContentOrTheNewOne) {
  for (const Scenario& scenario : Scenarios()) {
    const Contents contents = ContentsOf(scenario);
    for (const FileError fault :
         {FileError::SharingViolation, FileError::UnableToMoveReplacement2}) {
      for (int call = -1; call < 10; ++call) {
        for (int steps = 0;; ++steps) {
          SCOPED_TRACE(testing::Message() << scenario.Name << ", after " << steps
                                          << " steps, with a fault at call " << call);
          const auto files = Killed(scenario, steps, call, fault);
          if (!files) break;
          CheckRestart(scenario, contents, *files);
          if (testing::Test::HasFailure()) return;
        }
      }
    }
  }
}

TEST(SaveFaults, AReplaceThatFailsLeavesThePreparedContentAsUnsaved) {
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

TEST(SaveFaults, AFileThatCannotBeReadAtTheSaveLeavesWhatItShouldHoldAsUnsaved) {
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

TEST(SaveFaults, TheUnsavedContentIsMadeFromTheLastSaveWhenTheFileCannotBeRead) {
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

TEST(SaveFaults, AFileBehindOneThatFailedLeavesItsUnsavedContentToo) {
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

/// Files of which Wincmd.ini alone cannot be read while there is a fault.
class UnreadableIni final : public MemoryFiles {
 public:
  FileError Fault = FileError::None;

  [[nodiscard]] FileError Read(const std::wstring& path, std::string& bytes) const override {
    const bool isUnread = path == IniFile && Fault != FileError::None;
    return isUnread ? Fault : MemoryFiles::Read(path, bytes);
  }
};

TEST(SaveFaults, AFileThatCouldNotBeReadAtTheOpenIsNotSaved) {
  for (const FileError fault : Faults) {
    SCOPED_TRACE(static_cast<int>(fault));
    SampleProgram<UnreadableIni> program;
    program.Files.Contents[IniFile] = Content;
    program.Files.Fault = fault;
    program.MessageBoxes.Answers = {BoxAnswer::Cancel};
    program.Start();
    program.Files.Fault = FileError::None;
    ASSERT_EQ(program.Editor.Document().Rows().Count(), 5U);
    program.Assign(Pack, 0, L"X");
    EXPECT_TRUE(program.Editor.Document().Modified());
    program.Editor.FileSave();
    EXPECT_EQ(program.Files.Contents[IniFile], Content);
    EXPECT_TRUE(program.Editor.Document().Modified());
    EXPECT_EQ(program.MessageBoxes.BeepCount, 1);

    program.MessageBoxes.Answers = {BoxAnswer::No};
    program.Editor.OpenShortcutFile(false, IniFile, false);
    program.Assign(Pack, 0, L"X");
    program.Editor.FileSave();
    EXPECT_FALSE(program.Editor.Document().Modified());
    EXPECT_NE(program.Files.Contents[IniFile].find("C+F3=cm_View\r\n"), std::string::npos);
  }
}

TEST(SaveFaults, AFileThatIsHeldForAMomentIsReadAllTheSame) {
  World world;
  world.Files.Contents[IniFile] = Content;
  world.Editor.Load();
  world.Files.ReadErrors.assign(3, FileError::SharingViolation);
  world.Editor.Activate();
  EXPECT_EQ(world.Editor.Document().Rows().At(1).CurrentKeys, L"F3");
  world.Assign(Pack, 0, L"X");
  world.Files.ReadErrors.assign(3, FileError::LockViolation);
  world.Editor.FileSave();
  EXPECT_FALSE(world.Editor.Document().Modified());
}

TEST(SaveFaults, SettingsThatCouldNotBeReadAreNotReplacedByDefaults) {
  World world;
  const std::string stored = "[Tessera]\r\nFontSize=20\r\n";
  for (const FileError fault : Faults) {
    world.Files.Contents[VantorFile] = stored;
    world.Files.ReadErrors.assign(100, fault);
    world.Editor.Load();
    world.Files.ReadErrors.clear();
    world.Editor.Unload({}, {});
    EXPECT_EQ(world.Files.Contents[VantorFile], stored);
  }
}

}  // namespace
}  // namespace tessera::save_faults_test
