// Single reads and writes, and the three lists.
#include "settings/cProfile.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "settings/ini/MissingMarker.h"
#include "tests/support/FakeClock.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::cprofile_test {
namespace {

const std::wstring path = L"C:\\some.ini";

class cProfileTest : public testing::Test {
 protected:
  MemoryFiles Files;
  FakeClock Clock;
  cProfile Profile{Files, Clock};
};

TEST_F(cProfileTest, AbsentKeyGivesExactlyTheMarker) {
  EXPECT_EQ(Profile.ReadStringValue(L"s", L"k", MissingMarker, path), MissingMarker);
}

TEST_F(cProfileTest, IntegerIsTheLeadingNumber) {
  Files.Contents[path] = "[s]\na=12abc\nb=abc\nc=2.5\nd=\"-3\"\ne=\n";
  const std::pair<std::wstring_view, double> cases[] = {{L"a", 12}, {L"b", 0}, {L"c", 2.5},
                                                        {L"d", -3}, {L"e", 0}, {L"absent", 7}};
  for (const auto& [key, number] : cases) {
    EXPECT_EQ(Profile.ReadIntegerValue(L"s", key, L"7", path), number);
  }
}

TEST_F(cProfileTest, WritingTheMarkerIsNoWrite) {
  Profile.WriteStringValue(L"s", L"k", MissingMarker, path);
  EXPECT_FALSE(Files.Exists(path));
  Files.Contents[path] = "[s]\nk=v\n";
  Profile.WriteStringValue(L"s", L"k", L"  " + std::wstring(MissingMarker) + L" ", path);
  Profile.WriteStringValue(L"s", L"k", MissingMarker, path, true);
  EXPECT_EQ(Files.Contents[path], "[s]\nk=v\n");
}

TEST_F(cProfileTest, WritesAreOnDiskWhenTheCallReturns) {
  Profile.WriteStringValue(L"s", L"k", L" x ", path);
  EXPECT_EQ(Files.Contents[path], "[s]\r\nk=x\r\n");
  Profile.WriteStringValue(L"s", L"q", L"x", path, true);
  Profile.WriteIntegerValue(L"t", L"n", -5, path);
  EXPECT_EQ(Files.Contents[path], "[s]\r\nk=x\r\nq=\"x\"\r\n[t]\r\nn=-5\r\n");
  Profile.DeleteValue(L"s", L"k", path);
  Profile.DeleteSection(L"t", path);
  EXPECT_EQ(Files.Contents[path], "[s]\r\nq=\"x\"\r\n");
}

TEST_F(cProfileTest, ListsAreWalkedFromZeroToTheUpperIndex) {
  Files.Contents[path] = "[s]\nb=1\n;c\nA=\"2\"\na=3\n[]\n[t]\n";
  Profile.ReadFileSectionsName(path, 4096);
  ASSERT_EQ(Profile.FileSectionsNameUpperIndex(), 1);
  EXPECT_EQ(Profile.FileSectionsNameList(0), L"s");
  EXPECT_EQ(Profile.FileSectionsNameList(1), L"t");

  Profile.ReadSectionKeysNameAndValue(L"s", path, 4096);
  ASSERT_EQ(Profile.SectionKeysNameAndValueUpperIndex(), 2);
  EXPECT_EQ(Profile.SectionKeysNameAndValueList(1), L"A=\"2\"");

  Profile.ReadSectionKeysNameOnly(L"s", path, 4096);
  ASSERT_EQ(Profile.SectionKeysNameOnlyUpperIndex(), 2);
  EXPECT_EQ(Profile.SectionKeysNameOnlyList(0), L"b");
}

TEST_F(cProfileTest, KeyNamesAreSortedByCharacterCode) {
  Files.Contents[path] = "[s]\nb=1\nA=2\na=3\n1=4\n";
  Profile.ReadSectionKeysNameOnly(L"s", path, 4096);
  Profile.SortKeysNameOnlyList();
  std::wstring all;
  for (int i = 0; i <= Profile.SectionKeysNameOnlyUpperIndex(); ++i) {
    all += Profile.SectionKeysNameOnlyList(i);
  }
  EXPECT_EQ(all, L"1Aab");
}

TEST_F(cProfileTest, EmptyListHasUpperIndexMinusOne) {
  EXPECT_EQ(Profile.SectionKeysNameOnlyUpperIndex(), -1);
  Files.Contents[path] = "[t]\na=1\n[s]\n;only a comment\n";
  Profile.ReadSectionKeysNameOnly(L"t", path, 4096);
  ASSERT_EQ(Profile.SectionKeysNameOnlyUpperIndex(), 0);
  Profile.ReadSectionKeysNameOnly(L"s", path, 4096);
  EXPECT_EQ(Profile.SectionKeysNameOnlyUpperIndex(), -1);
  Profile.SortKeysNameOnlyList();
  Profile.ReadSectionKeysNameAndValue(L"t", path, 4096);
  ASSERT_EQ(Profile.SectionKeysNameAndValueUpperIndex(), 0);
  Profile.ReadSectionKeysNameAndValue(L"none", path, 4096);
  EXPECT_EQ(Profile.SectionKeysNameAndValueUpperIndex(), -1);
}

TEST_F(cProfileTest, IndexOutsideAListThrows) {
  Files.Contents[path] = "[s]\nk=v\n";
  Profile.ReadSectionKeysNameOnly(L"s", path, 4096);
  EXPECT_THROW(static_cast<void>(Profile.SectionKeysNameOnlyList(-1)), std::out_of_range);
  EXPECT_THROW(static_cast<void>(Profile.SectionKeysNameOnlyList(2)), std::out_of_range);
  EXPECT_THROW(static_cast<void>(Profile.FileSectionsNameList(0)), std::out_of_range);
}

TEST_F(cProfileTest, ListThatDoesNotFitIsCutInItsLastText) {
  Files.Contents[path] = "[first]\n[second]\n";  // 14 characters with all NULs
  const std::pair<std::size_t, std::wstring_view> cases[] = {
      {15, L"second"}, {14, L"second"}, {13, L"secon"}, {9, L"s"}, {8, L""}};
  for (const auto& [length, last] : cases) {
    Profile.ReadFileSectionsName(path, length);
    const int expectedUpper = last.empty() ? 0 : 1;
    EXPECT_EQ(Profile.FileSectionsNameUpperIndex(), expectedUpper) << length;
    EXPECT_EQ(Profile.FileSectionsNameList(1), last) << length;
  }
  for (const std::size_t length : {0U, 1U, 2U}) {
    Profile.ReadFileSectionsName(path, length);
    EXPECT_EQ(Profile.FileSectionsNameUpperIndex(), -1);
  }
}

}  // namespace
}  // namespace tessera::cprofile_test
