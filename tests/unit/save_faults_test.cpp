// Saving while every single file operation fails in every way: the old content or the new one is in
// place, the other one beside it where that was promised, and what is not saved stays unsaved.
#include <algorithm>
#include <optional>

#include "tests/unit/save_scenarios.h"

namespace tessera::save_faults_test {
namespace {

using namespace saves;

using Lasts = FaultyFiles::FaultLasts;

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

}  // namespace
}  // namespace tessera::save_faults_test
