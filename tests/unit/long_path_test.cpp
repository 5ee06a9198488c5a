// Paths with and without the prefix of long ones.
#include <gtest/gtest.h>

#include "platform/LongPath.h"

namespace tessera::long_path_test {
namespace {

struct PathCase {
  std::wstring Path;
  std::wstring Prefixed;
};

const PathCase Cases[] = {{L"C:\\a\\b.ini", L"\\\\?\\C:\\a\\b.ini"},
                          {L"\\\\server\\share\\b.ini", L"\\\\?\\UNC\\server\\share\\b.ini"}};

TEST(LongPath, PrefixIsPutBeforePathsOfDrivesAndOfShares) {
  for (const PathCase& each : Cases) EXPECT_EQ(WithLongPrefix(each.Path), each.Prefixed);
}

TEST(LongPath, PrefixIsTakenAway) {
  for (const PathCase& each : Cases) {
    EXPECT_EQ(WithoutLongPrefix(each.Prefixed), each.Path);
    EXPECT_EQ(WithoutLongPrefix(each.Path), each.Path) << "there is none";
  }
}

TEST(LongPath, PrefixIsSeen) {
  for (const PathCase& each : Cases) {
    EXPECT_TRUE(HasLongPrefix(each.Prefixed));
    EXPECT_FALSE(HasLongPrefix(each.Path));
  }
}

}  // namespace
}  // namespace tessera::long_path_test
