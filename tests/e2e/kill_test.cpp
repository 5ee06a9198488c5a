// The program killed while it saves: the file is the old one or the new one, whole, and a line that
// the new one lacks stands beside it.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/LongRun.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::kill_test {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* DroppedLine = "A+F9=em_Mine\r\n";

class KillTest : public EndToEndTest {
 protected:
  struct Change {
    int Row = 0;
    std::string Saved;  ///< the file that a save is to write
  };

  /// Puts a line into the file that the next save is to drop.
  void AddDroppedLine() const {
    const std::string header = "[Shortcuts]\r\n";
    std::string content = ReadBytes(folder_.WincmdIni());
    content.insert(content.find(header) + header.size(), DroppedLine);
    WriteBytes(folder_.WincmdIni(), content);
  }

  /// How often that line stands, whole, beside the file.
  [[nodiscard]] int DroppedLines() const {
    const std::wstring path = folder_.WincmdIni() + L".dropped";
    const std::string dropped = Exists(path) ? ReadBytes(path) : "";
    const std::string line = std::string("\r\n") + DroppedLine;
    int count = 0;
    for (std::size_t at = dropped.find(line); at != std::string::npos;
         at = dropped.find(line, at + 1)) {
      ++count;
    }
    return count;
  }

  /// The first command that has keys of the user's loses them.
  Change TakeKeysAway() {
    // Computed from the files, since reading the whole list each time would take long.
    std::vector<RowTexts> rows = ExpectedRows(folder_);
    const auto row = std::ranges::find_if(
        rows, [](const RowTexts& texts) { return !texts[1].empty() && texts[3] != L"---"; });
    if (row == rows.end()) throw std::runtime_error("No command has a key any more");
    const auto position = static_cast<int>(row - rows.begin());
    window_->SelectByAutomation(position);
    window_->Command(IDM_delete);
    WaitFor("the change", [&] { return Modified(); });
    EXPECT_EQ(window_->Row(position)[1], (*row)[1]);
    (*row)[3] = L"---";
    return {position, WithShortcuts(ReadBytes(folder_.WincmdIni()), ExpectedShortcuts(rows))};
  }

  /// How long a whole save takes, from the command to the end.
  Clock::duration TimeOfASave() {
    AddDroppedLine();
    const std::string wanted = TakeKeysAway().Saved;
    const Clock::time_point start = Clock::now();
    window_->Command(IDM_mnuFileSave);
    while (Modified()) Sleep(0);
    const Clock::duration time = Clock::now() - start;
    EXPECT_EQ(ReadBytes(folder_.WincmdIni()), wanted);
    return time;
  }

  /// Kills the program that long after it was told to save.
  void SaveAndKill(Clock::duration delay) {
    const Clock::time_point end = Clock::now() + delay;
    window_->Command(IDM_mnuFileSave);
    // A sleep would be too coarse for this.
    while (Clock::now() < end) YieldProcessor();
    window_.reset();
    program_.reset();
  }

  void Restart() {
    Start();
    WaitFor("the list", [&] { return window_->SelectedRow() == 0; });
  }

  /// As a reader finds the file. Where the system needs two steps to put a file in another's place
  /// there is none between them; then the old one stands beside, whole.
  [[nodiscard]] bool OldOrNew(const std::string& old, const std::string& changed) const {
    const std::wstring beside = folder_.WincmdIni() + L".tessera-old";
    if (!Exists(folder_.WincmdIni())) return Exists(beside) && ReadBytes(beside) == old;
    const std::string found = ReadBytes(folder_.WincmdIni());
    return found == old || found == changed;
  }

  [[nodiscard]] bool LeftOvers() const {
    return Exists(folder_.WincmdIni() + L".tessera-new") ||
           Exists(folder_.WincmdIni() + L".tessera-old");
  }
};

/// Chooses the moments of the kills; TESSERA_KILL_SEED repeats those of an earlier run.
unsigned Seed() {
  const char* const given = std::getenv("TESSERA_KILL_SEED");
  return given == nullptr ? std::random_device()() : static_cast<unsigned>(std::stoul(given));
}

TEST_F(KillTest, FileIsOldOrNewWheneverTheProgramIsKilled) {
  constexpr std::size_t KeysToSpare = 5;
  const int kills = LongRun() ? 200 : 20;
  const std::string original = ReadBytes(folder_.WincmdIni());
  const unsigned seed = Seed();
  std::cout << "The seed of the kills is " << seed << ".\n";
  std::mt19937 random(seed);
  StartAndLoad();
  const auto longest = std::chrono::duration_cast<std::chrono::microseconds>(TimeOfASave());
  std::uniform_int_distribution<long long> delays(0, longest.count() * 3 / 2);

  int news = 0;
  int leftOvers = 0;
  for (int kill = 0; kill < kills; ++kill) {
    AddDroppedLine();
    const int dropped = DroppedLines();
    const std::string old = ReadBytes(folder_.WincmdIni());
    const auto [row, changed] = TakeKeysAway();
    const std::chrono::microseconds delay(delays(random));
    SaveAndKill(delay);
    const std::string moment =
        "kill " + std::to_string(kill) + " after " + std::to_string(delay.count()) + " us";
    ASSERT_TRUE(OldOrNew(old, changed)) << moment;
    leftOvers += LeftOvers() ? 1 : 0;

    Restart();
    ASSERT_TRUE(NoBoxOpen()) << moment << "\n" << DescribeOpenBoxes(program_->Id());
    ASSERT_FALSE(LeftOvers()) << moment;
    const std::string found = ReadBytes(folder_.WincmdIni());
    ASSERT_TRUE(found == old || found == changed) << moment << ": " << found.size() << " bytes";
    const std::vector<RowTexts> expected = ExpectedRows(folder_);
    ASSERT_EQ(window_->RowCount(), static_cast<int>(expected.size())) << moment;
    ASSERT_EQ(window_->Row(row), expected.at(static_cast<std::size_t>(row))) << moment;
    ASSERT_TRUE(found == old || DroppedLines() > dropped) << moment << ": a line is lost";
    news += found == changed ? 1 : 0;
    if (SectionLines(found, "Shortcuts").size() < KeysToSpare) {
      WriteBytes(folder_.WincmdIni(), original);
      Restart();
    }
  }
  std::cout << kills << " kills within " << longest.count() << " us of a save: the new file "
            << news << " times, left-overs " << leftOvers << " times\n";
}

}  // namespace
}  // namespace tessera::e2e::kill_test
