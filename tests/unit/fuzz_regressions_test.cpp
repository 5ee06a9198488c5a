// Replays the fuzzers' seeds, and whatever they have found so far.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/fuzz/Targets.h"
#include "tests/support/Repository.h"

namespace tessera::fuzz_regressions_test {
namespace {

const std::filesystem::path Folder = InRepository("tests/fuzz");

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(FuzzRegressions, EverySeedHolds) {
  for (const fuzz::Target& target : fuzz::Targets()) {
    int seeds = 0;
    for (const auto& entry : std::filesystem::directory_iterator(Folder / "corpus" / target.Name)) {
      EXPECT_NO_THROW(target.Run(BytesOf(entry.path()))) << entry.path();
      ++seeds;
    }
    EXPECT_GT(seeds, 0) << target.Name;
  }
}

TEST(FuzzRegressions, EveryFindHolds) {
  for (const auto& entry : std::filesystem::directory_iterator(Folder / "found")) {
    const std::string name = entry.path().filename().string();
    for (const fuzz::Target& target : fuzz::Targets()) {
      if (!name.starts_with(std::string(target.Name) + "-")) continue;
      EXPECT_NO_THROW(target.Run(BytesOf(entry.path()))) << name;
    }
  }
}

TEST(FuzzRegressions, EveryTargetTakesNothing) {
  for (const fuzz::Target& target : fuzz::Targets()) EXPECT_NO_THROW(target.Run("")) << target.Name;
}

}  // namespace
}  // namespace tessera::fuzz_regressions_test
