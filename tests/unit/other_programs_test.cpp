// Saving while another program holds or changes the very file.
#include <gtest/gtest.h>

#include <optional>
#include <utility>

#include "tests/support/MemoryFiles.h"
#include "tests/support/SampleProgram.h"

namespace tessera::other_programs_test {
namespace {

using namespace installation;

const std::wstring OtherFile = L"C:\\TC\\keys.ini";

/// From the moment in which a save has read it, another program holds one file until the clock has
/// moved on so far, and then may write it; held for no time, it is written at that very moment.
class HeldFiles final : public MemoryFiles {
 public:
  const FakeClock* Clock = nullptr;
  std::wstring Held = IniFile;
  int HeldFor = 0;                     ///< milliseconds of sleep
  std::optional<std::string> Written;  ///< by the other program

  [[nodiscard]] FileError Read(const std::wstring& path, std::string& bytes) const override {
    if (path == Held && IsHeld()) return FileError::SharingViolation;
    const FileError error = MemoryFiles::Read(path, bytes);
    if (Written && isSaving_ && path == Held) bytes = *Written;
    return error;
  }

  [[nodiscard]] FileError Replace(const std::wstring& target, const std::wstring& replacement,
                                  const std::wstring& backup) override {
    if (target == Held && IsHeld()) return FileError::SharingViolation;
    if (Written) Contents[Held] = *std::exchange(Written, {});
    return MemoryFiles::Replace(target, replacement, backup);
  }

  FileError Write(const std::wstring& path, std::string_view bytes) override {
    isSaving_ = isSaving_ || path.starts_with(Held);
    if (HeldFor == 0 && Written) Contents[Held] = *std::exchange(Written, {});
    return MemoryFiles::Write(path, bytes);
  }

 private:
  [[nodiscard]] bool IsHeld() const { return isSaving_ && Clock->SleptMilliseconds < HeldFor; }

  bool isSaving_ = false;
};

using World = SampleProgram<HeldFiles>;

/// Text before section "Shortcuts", its lines, text behind it.
struct Parts {
  std::string Before, Keys, Behind;

  [[nodiscard]] std::string Whole() const { return Before + "[Shortcuts]\r\n" + Keys + Behind; }
};

const Parts Old{"[Configuration]\nkey = value ; kept\r\n\n", "F3=cm_Copy\r\n", ";end\n[c]\nd=e"};
const std::string Unsaved = "F3=cm_Copy\r\nX=cm_Pack\r\n";

/// A program with an unsaved change to the keys in `file`.
void Start(World& world, const std::wstring& file) {
  world.Files.Clock = &world.Clock;
  world.Files.Held = file;
  if (file != IniFile) {
    world.Files.Contents[IniFile] = "[Shortcuts]\r\nRedirectSection=keys.ini\r\n";
  }
  world.Files.Contents[file] = Old.Whole();
  world.Start();
  world.Assign(Pack, 0, L"X");
  ASSERT_TRUE(world.Editor.Document().Modified());
}

TEST(OtherPrograms, AFileHeldForAWhileIsSavedWithinTwoSecondsOrLeftAsItWas) {
  for (const std::wstring& file : {IniFile, OtherFile}) {
    for (int held = 10; held <= 3000; held += 10) {
      World world;
      Start(world, file);
      world.Files.HeldFor = held;
      world.Editor.FileSave();
      const bool gaveUp = held > 2000;
      ASSERT_EQ(world.Editor.Document().Modified(), gaveUp) << held;
      const Parts expected{Old.Before, gaveUp ? Old.Keys : Unsaved, Old.Behind};
      ASSERT_EQ(world.Files.Contents[file], expected.Whole()) << held;
      ASSERT_EQ(world.Files.Contents.contains(file + L".unsaved"), gaveUp) << held;
      ASSERT_LE(world.Clock.SleptMilliseconds, 2000);
    }
  }
}

TEST(OtherPrograms, WhatOneWroteWhileItHeldTheFileStays) {
  for (const std::wstring& file : {IniFile, OtherFile}) {
    World world;
    Start(world, file);
    world.Files.HeldFor = 500;
    world.Files.Written = Old.Whole() + "\n[Last]\nc";
    world.Editor.FileSave();
    EXPECT_FALSE(world.Editor.Document().Modified());
    EXPECT_EQ(world.Files.Contents[file],
              (Parts{Old.Before, Unsaved, Old.Behind + "\n[Last]\nc"}.Whole()));
  }
}

TEST(OtherPrograms, WhatOneWroteWhileTheSaveWasPreparedStays) {
  for (const std::wstring& file : {IniFile, OtherFile}) {
    World world;
    Start(world, file);
    world.Files.Written = Old.Whole() + "\n[Last]\nc";
    world.Editor.FileSave();
    EXPECT_FALSE(world.Editor.Document().Modified());
    EXPECT_EQ(world.Files.Contents[file],
              (Parts{Old.Before, Unsaved, Old.Behind + "\n[Last]\nc"}.Whole()));
  }
}

TEST(OtherPrograms, WhatOneWroteBetweenOpenAndSaveStays) {
  for (const std::wstring& file : {IniFile, OtherFile}) {
    World world;
    Start(world, file);
    world.Files.Contents[file] = Parts{"[New]\na=b\n" + Old.Before, Old.Keys, "[Last]\nc"}.Whole();
    world.Editor.FileSave();
    EXPECT_EQ(world.Files.Contents[file],
              (Parts{"[New]\na=b\n" + Old.Before, Unsaved, "[Last]\nc"}.Whole()));
  }
}

TEST(OtherPrograms, SettingsHeldForAWhileAreSavedOrLeftAsTheyWere) {
  const std::string stored = "[Other]\nx=1\n[Tessera]\r\nMainWindowLeft=7\r\n";
  for (int held = 100; held <= 3000; held += 100) {
    World world;
    world.Files.Clock = &world.Clock;
    world.Files.Held = VantorFile;
    world.Files.Contents[VantorFile] = stored;
    world.Start();
    const std::string before = world.Files.Contents[VantorFile] += "[Meanwhile]\n\xE4 = 1\n";
    world.Files.HeldFor = held;
    world.Editor.Unload({.Left = 100}, {});
    const std::string& after = world.Files.Contents[VantorFile];
    ASSERT_EQ(after == before, held > 2000) << held;
    ASSERT_TRUE(after.starts_with("[Other]\nx=1\n[Tessera]\r\n")) << held;
    ASSERT_TRUE(after.ends_with("[Meanwhile]\n\xE4 = 1\n") ||
                after.find("[Meanwhile]\n\xE4 = 1\n[") != std::string::npos)
        << held;
  }
}

}  // namespace
}  // namespace tessera::other_programs_test
