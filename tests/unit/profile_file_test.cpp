// One INI file: texts in and out of its bytes, and when it is written.
#include <gtest/gtest.h>

#include <limits>

#include "settings/ini/MissingMarker.h"
#include "settings/ini/ProfileFile.h"
#include "tests/support/FakeClock.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::profile_file_test {
namespace {

using namespace std::string_literals;

const std::wstring path = L"C:\\some.ini";

class ProfileFileTest : public testing::Test {
 protected:
  ProfileFile With(std::string bytes) {
    Files.Contents[path] = std::move(bytes);
    return {Files, path};
  }

  /// The content of the file after a save that must succeed.
  std::string Saved(ProfileFile& file) {
    EXPECT_EQ(file.Save(Files, Clock, KeepCopies::No), FileError::None);
    return Files.Contents[path];
  }

  MemoryFiles Files;
  FakeClock Clock;
};

TEST_F(ProfileFileTest, AbsentKeyGivesTheDefaultWithoutItsTrailingBlanks) {
  const ProfileFile file = With("[s]\nempty=\n");
  EXPECT_EQ(file.ReadString(L"s", L"k", MissingMarker), MissingMarker);
  EXPECT_EQ(file.ReadString(L"s", L"k", L"  a b  "), L"  a b");
  EXPECT_EQ(file.ReadString(L"s", L"k", L"   "), L"");
  EXPECT_EQ(file.ReadString(L"s", L"k", L"\u0416\u0416\u0416", 3), L"\u0416\u0416");
  EXPECT_EQ(file.ReadString(L"s", L"empty", L"default"), L"");
}

TEST_F(ProfileFileTest, ValueIsCutAfterItsQuotesAreGone) {
  const ProfileFile file = With("[s]\nk=\"abcdef\"\n");
  EXPECT_EQ(file.ReadString(L"s", L"k", L"", 7), L"abcdef");
  EXPECT_EQ(file.ReadString(L"s", L"k", L"", 6), L"abcde");
  EXPECT_EQ(file.ReadString(L"s", L"k", L"", 1), L"");
  EXPECT_EQ(file.ReadString(L"s", L"k", L"", 0), L"");
}

TEST_F(ProfileFileTest, UsualBufferHolds4095Bytes) {
  const ProfileFile file = With("[s]\nk=" + std::string(5000, 'x'));
  EXPECT_EQ(file.ReadString(L"s", L"k", L"").size(), 4095u);
  EXPECT_EQ(file.Entries(L"s").at(0).second.size(), 5000u);
}

TEST_F(ProfileFileTest, LengthOfAValueReadAloneWrapsAt16Bits) {
  const ProfileFile file = With("[s]\nk=" + std::string(65537, 'x'));
  EXPECT_EQ(file.ReadString(L"s", L"k", L"", 70000), L"x");
  EXPECT_EQ(file.Entries(L"s").at(0).second.size(), 65537u);
}

TEST_F(ProfileFileTest, ValueWithByteOrderMarkIsUtf8) {
  const ProfileFile file = With("[s]\nk=\xEF\xBB\xBF\xE2\x82\xAC\xE2\x82\xAC\nj=\xE2\x82\xAC\n");
  EXPECT_EQ(file.ReadString(L"s", L"k", L""), L"\u20AC\u20AC");
  EXPECT_EQ(file.ReadString(L"s", L"k", L"", 9), L"\u20AC");
  EXPECT_EQ(file.ReadString(L"s", L"j", L""), Decode("\xE2\x82\xAC"));
  EXPECT_EQ(file.Lines(L"s").at(0), L"k=\u20AC\u20AC");
}

TEST_F(ProfileFileTest, ValueBeyondTheCodePageIsWrittenAsUtf8WithMark) {
  ProfileFile file = With("");
  file.WriteString(L"s", L"k", L"\u0416");
  file.WriteString(L"s", L"q", L"\u0416", true);
  file.WriteString(L"s", L"e", L"\u00E9");
  file.WriteString(L"s", L"m", L"\u00EF\u00BB\u00BFx");  // the mark as three characters
  EXPECT_EQ(Saved(file),
            "[s]\r\nk=\xEF\xBB\xBF\xD0\x96\r\nq=\"\xEF\xBB\xBF\xD0\x96\"\r\ne=\xE9\r\n"
            "m=\xEF\xBB\xBF\xC3\xAF\xC2\xBB\xC2\xBFx\r\n");
  for (const wchar_t* key : {L"k", L"q"}) EXPECT_EQ(file.ReadString(L"s", key, L""), L"\u0416");
  EXPECT_EQ(file.ReadString(L"s", L"m", L""), L"\u00EF\u00BB\u00BFx");
}

TEST_F(ProfileFileTest, NameBeyondTheCodePageGetsQuestionMarks) {
  ProfileFile file = With("");
  file.WriteString(L"s", L"\u0416k", L"v");
  EXPECT_EQ(Saved(file), "[s]\r\n?k=v\r\n");
}

TEST_F(ProfileFileTest, CodePageOfChoiceCountsBothWays) {
  ProfileFile file = With("[s]\nk=\xD0\x96\n");
  EXPECT_EQ(file.ReadString(L"s", L"k", L""), Decode("\xD0\x96"));
  file.UseCodePage(Utf8CodePage);
  EXPECT_EQ(file.ReadString(L"s", L"k", L""), L"\u0416");
  file.WriteString(L"s", L"\u0416", L"\u4E2D");
  EXPECT_EQ(Saved(file), "[s]\nk=\xD0\x96\n\xD0\x96=\xE4\xB8\xAD\r\n");
}

TEST_F(ProfileFileTest, LongValueOfAUtf8FileIsNotCutInsideACharacter) {
  std::string value;
  for (int i = 0; i < 2100; ++i) value += "\xD0\x96";
  ProfileFile file = With("[s]\nk=" + value + "\n");
  file.UseCodePage(Utf8CodePage);
  EXPECT_EQ(file.ReadString(L"s", L"k", L""), std::wstring(2047, L'\u0416'));
  EXPECT_EQ(file.ReadString(L"s", L"k", L"", 4), L"\u0416");
}

TEST_F(ProfileFileTest, Utf16FileHoldsAnyText) {
  ProfileFile file = With("\xFF\xFE[\0s\0]\0\n\0k\0=\0\x16\x04\n\0"s);
  EXPECT_EQ(file.ReadString(L"s", L"k", L""), L"\u0416");
  EXPECT_EQ(file.ReadString(L"s", L"k", L"", 2), L"\u0416");
  file.WriteString(L"s", L"K", L"\u4E2D");
  EXPECT_EQ(Saved(file), "\xFF\xFE[\0s\0]\0\n\0k\0=\0\x2D\x4E\n\0"s);
}

TEST_F(ProfileFileTest, WrittenValueIsTrimmedAndQuotedOnRequest) {
  ProfileFile file = With("");
  file.WriteString(L"s", L"k", L"  x y ");
  file.WriteString(L"s", L"q", L" x ", true);
  file.WriteString(L"s", L"m", MissingMarker);
  EXPECT_EQ(Saved(file), "[s]\r\nk=x y\r\nq=\"x\"\r\n");
  EXPECT_EQ(file.ReadString(L"s", L"q", L""), L"x");
}

TEST_F(ProfileFileTest, NumbersAreWrittenInDecimalDigits) {
  const std::pair<double, std::wstring_view> cases[] = {
      {0, L"0"},
      {-0.0, L"0"},
      {-12, L"-12"},
      {100000, L"100000"},
      {2.5, L"2.5"},
      {1e21, L"1000000000000000000000"},
      {std::numeric_limits<double>::infinity(), L"0"},
  };
  ProfileFile file = With("");
  for (const auto& [number, text] : cases) {
    file.WriteInteger(L"s", L"k", number);
    EXPECT_EQ(file.ReadString(L"s", L"k", L""), text);
  }
}

TEST_F(ProfileFileTest, EntriesAreReplacedAsTexts) {
  ProfileFile file = With("[s]\nRedirectSection=1\na=1\n;c\n");
  file.ReplaceEntries(L"s", {{L"x", L" \u0416 "}, {L"\u00E9", L"2"}},
                      [](const std::wstring& key, const std::wstring&) {
                        return key == L"RedirectSection" ? FormerLine::Stays : FormerLine::Goes;
                      });
  EXPECT_EQ(Saved(file), "[s]\nRedirectSection=1\nx=\xEF\xBB\xBF\xD0\x96\r\n\xE9=2\r\n;c\n");
}

TEST_F(ProfileFileTest, MarkOfAReplacedValueStandsWithinItsQuotes) {
  ProfileFile file = With("");
  file.ReplaceEntries(
      L"s", {{L"a", L"'\u0416'"}, {L"b", L"\"\u0416\""}, {L"c", L"\"\u0416"}, {L"d", L"'x'"}},
      [](const std::wstring&, const std::wstring&) { return FormerLine::Goes; });
  EXPECT_EQ(Saved(file),
            "[s]\r\na='\xEF\xBB\xBF\xD0\x96'\r\nb=\"\xEF\xBB\xBF\xD0\x96\"\r\n"
            "c=\xEF\xBB\xBF\"\xD0\x96\r\nd='x'\r\n");
  for (const wchar_t* key : {L"a", L"b"}) EXPECT_EQ(file.ReadString(L"s", key, L""), L"\u0416");
  EXPECT_EQ(file.ReadString(L"s", L"c", L""), L"\"\u0416");
}

TEST_F(ProfileFileTest, FileIsReadOnceAndWrittenOnce) {
  ProfileFile file = With("[s]\nk=v\n");
  for (int i = 0; i < 10; ++i) file.WriteString(L"s", L"k" + std::to_wstring(i), L"v");
  static_cast<void>(Saved(file));
  EXPECT_EQ(Files.Reads, 1);
  const int writes = Files.Writes;
  EXPECT_GT(writes, 0);
  static_cast<void>(Saved(file));
  EXPECT_EQ(Files.Writes, writes);
}

TEST_F(ProfileFileTest, UnchangedBytesAreNotWritten) {
  ProfileFile file = With("[s]\nk=v\n");
  file.WriteString(L"s", L"k", L"other");
  file.WriteString(L"s", L"k", L"v");
  file.DeleteValue(L"s", L"none");
  file.DeleteSection(L"none");
  EXPECT_EQ(Saved(file), "[s]\nk=v\n");
  EXPECT_EQ(Files.Writes, 0);
}

TEST_F(ProfileFileTest, MissingFileIsCreatedByAnyChangeOnly) {
  ProfileFile file(Files, path);
  EXPECT_EQ(file.ReadError(), FileError::NotFound);
  EXPECT_EQ(file.ReadString(L"s", L"k", L"default"), L"default");
  EXPECT_EQ(file.Save(Files, Clock, KeepCopies::No), FileError::None);
  EXPECT_FALSE(Files.Exists(path));
  file.DeleteSection(L"s");
  EXPECT_EQ(Saved(file), "");
  EXPECT_TRUE(Files.Exists(path));
}

TEST_F(ProfileFileTest, FileThatCouldNotBeReadIsNotOverwritten) {
  Files.ReadErrors = {FileError::SharingViolation};
  ProfileFile file = With("[s]\nprecious=1\n");
  EXPECT_EQ(file.ReadError(), FileError::SharingViolation);
  file.WriteString(L"s", L"k", L"v");
  EXPECT_EQ(file.Save(Files, Clock, KeepCopies::No), FileError::SharingViolation);
  EXPECT_EQ(Files.Contents[path], "[s]\nprecious=1\n");
}

TEST_F(ProfileFileTest, FailedSaveCanBeTriedAgain) {
  ProfileFile file = With("[s]\nk=v\n");
  file.WriteString(L"s", L"k", L"new");
  Files.WriteErrors = {FileError::DiskFull};
  EXPECT_EQ(file.Save(Files, Clock, KeepCopies::No), FileError::DiskFull);
  EXPECT_EQ(Saved(file), "[s]\nk=new\n");
}

TEST_F(ProfileFileTest, FileIsSavedAsOftenAsItChanges) {
  ProfileFile file = With("[s]\nk=v\n");
  for (const wchar_t* value : {L"longer", L"shorter", L"x", L"v"}) {
    file.WriteString(L"s", L"k", value);
    EXPECT_EQ(Saved(file), "[s]\nk=" + Encode(value) + "\n");
  }
}

TEST_F(ProfileFileTest, ValueOfAUtf16FileIsCutInCharactersAndKeepsAMark) {
  const ProfileFile file = With(
      "\xFF\xFE[\0s\0]\0\n\0k\0=\0\x16\x04\x17\x04\x18\x04\n\0"
      "m\0=\0\xFF\xFEx\0"s);
  EXPECT_EQ(file.ReadString(L"s", L"k", L"", 3), L"\u0416\u0417");
  EXPECT_EQ(file.ReadString(L"s", L"m", L""), L"\uFEFFx");
}

}  // namespace
}  // namespace tessera::profile_file_test
