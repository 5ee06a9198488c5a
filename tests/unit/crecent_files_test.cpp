#include <gtest/gtest.h>

#include "recent/cRecentFiles.h"
#include "settings/ini/MissingMarker.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/FakeMessageBoxes.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::crecent_files_test {
namespace {

const std::wstring SettingsName = L"C:\\Tessera\\vantor.ini";
constexpr std::wstring_view Section = L"Tessera";
constexpr std::wstring_view Prefix = L"RecentFiles";

class RecentFilesTest : public testing::Test {
 protected:
  RecentFilesTest() {
    recent_.Setup(4);
    recent_.ChangeLanguage();
  }

  void Add(const std::vector<std::wstring>& paths) {
    for (const std::wstring& path : paths) recent_.AddFile(path);
  }

  void Read() { recent_.ReadList(settingsFile_.Read(), Section, Prefix); }
  void Save() { recent_.SaveList(settingsFile_, Section, Prefix); }

  std::vector<std::wstring> Paths() const {
    std::vector<std::wstring> paths;
    for (int index = 1; !IsMissing(recent_.ListItems(index)); ++index) {
      paths.push_back(recent_.ListItems(index));
    }
    return paths;
  }

  using List = std::vector<std::wstring>;

  MemoryFiles files_;
  FakeClock clock_;
  FakeEnvironment environment_;
  SettingsFile settingsFile_{files_, clock_, environment_};
  FakeMessageBoxes messageBoxes_;
  Texts texts_{files_};
  cRecentFiles recent_{texts_, messageBoxes_};
};

// -- The list

TEST_F(RecentFilesTest, ANewListHasEmptySlotsOnly) {
  EXPECT_EQ(recent_.Max(), 4);
  for (const int index : {-1, 0, 1, 4, 5}) {
    EXPECT_EQ(recent_.ListItems(index), MissingMarker) << index;
  }
}

TEST_F(RecentFilesTest, TheNewestFileIsOnTop) {
  Add({L"a", L"b", L"c"});
  EXPECT_EQ(Paths(), (List{L"c", L"b", L"a"}));
}

TEST_F(RecentFilesTest, AddingAKnownFileMovesItToTheTopInTheNewLetterCase) {
  Add({L"C:\\One.ini", L"C:\\Two.ini", L"C:\\Three.ini"});
  recent_.AddFile(L"c:\\ONE.ini");
  EXPECT_EQ(Paths(), (List{L"c:\\ONE.ini", L"C:\\Three.ini", L"C:\\Two.ini"}));
}

TEST_F(RecentFilesTest, TheTopFileTakesTheNewLetterCaseAndNothingMoves) {
  Add({L"a", L"b"});
  recent_.AddFile(L"B");
  EXPECT_EQ(Paths(), (List{L"B", L"a"}));
}

TEST_F(RecentFilesTest, AFullListLosesItsOldestFile) {
  recent_.Setup(10);
  for (int file = 1; file <= 11; ++file) recent_.AddFile(L"file" + std::to_wstring(file));
  EXPECT_EQ(Paths().size(), 10U);
  EXPECT_EQ(Paths().front(), L"file11");
  EXPECT_EQ(Paths().back(), L"file2");
}

TEST_F(RecentFilesTest, AKnownFilePushesNoneOutOfAFullList) {
  Add({L"a", L"b", L"c", L"d", L"A"});
  EXPECT_EQ(Paths(), (List{L"A", L"d", L"c", L"b"}));
}

TEST_F(RecentFilesTest, NoPathIsNotAdded) {
  Add({L"a", L"", std::wstring(MissingMarker)});
  EXPECT_EQ(Paths(), (List{L"a"}));
}

TEST_F(RecentFilesTest, PutAsFirstItemMovesAnEntryToTheTop) {
  Add({L"a", L"b", L"c"});
  recent_.PutAsFirstItem(3);
  EXPECT_EQ(Paths(), (List{L"a", L"c", L"b"}));
  recent_.PutAsFirstItem(1);
  EXPECT_EQ(Paths(), (List{L"a", L"c", L"b"}));
}

TEST_F(RecentFilesTest, RemovingAFileClosesTheGap) {
  Add({L"a", L"b", L"c"});
  recent_.RemoveFile(2);
  EXPECT_EQ(Paths(), (List{L"c", L"a"}));
}

TEST_F(RecentFilesTest, AnIndexWithoutAFileChangesNothing) {
  Add({L"a", L"b"});
  for (const int index : {-1, 0, 3, 100}) {
    recent_.RemoveFile(index);
    recent_.PutAsFirstItem(index);
    EXPECT_EQ(Paths(), (List{L"b", L"a"})) << index;
  }
}

TEST_F(RecentFilesTest, SetupEmptiesTheList) {
  Add({L"a"});
  recent_.Setup(2);
  EXPECT_EQ(recent_.Max(), 2);
  EXPECT_EQ(Paths(), List{});
}

// -- Clearing

TEST_F(RecentFilesTest, ClearingAsksFirstWithNoAsDefault) {
  Add({L"a"});
  messageBoxes_.Answers = {BoxAnswer::Yes};
  EXPECT_TRUE(recent_.Clear());
  EXPECT_EQ(Paths(), List{});
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text, L"Are you sure?");
  EXPECT_EQ(messageBoxes_.Shown[0].Buttons, BoxButtons::YesNo);
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Question);
  EXPECT_EQ(messageBoxes_.Shown[0].Default, BoxDefault::Second);
}

TEST_F(RecentFilesTest, NoLeavesTheListAndTheSettingsFile) {
  Add({L"a", L"b"});
  Save();
  const std::string before = files_.Contents[SettingsName];
  const int writes = files_.Writes;
  messageBoxes_.Answers = {BoxAnswer::No};
  EXPECT_FALSE(recent_.Clear());
  EXPECT_EQ(Paths(), (List{L"b", L"a"}));
  EXPECT_EQ(files_.Contents[SettingsName], before);
  EXPECT_EQ(files_.Writes, writes);
}

// -- The menus

TEST_F(RecentFilesTest, AnEmptyListShowsOneDisabledEntryThatSaysSo) {
  const auto entries = recent_.MenuEntries();
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].Caption, L"No Recent Files");
  EXPECT_FALSE(entries[0].Enabled);
}

TEST_F(RecentFilesTest, EachFileIsAnEntryWithItsNumberAsMnemonic) {
  Add({L"C:\\a\\Wincmd.ini", L"C:\\b\\Wincmd.ini"});
  const auto entries = recent_.MenuEntries();
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[0].Caption, L"&1 C:\\b\\Wincmd.ini");
  EXPECT_EQ(entries[1].Caption, L"&2 C:\\a\\Wincmd.ini");
  EXPECT_TRUE(entries[0].Enabled);
  EXPECT_TRUE(entries[1].Enabled);
}

TEST_F(RecentFilesTest, EntriesFromTheTenthOnHaveBothDigits) {
  recent_.Setup(16);
  for (int file = 1; file <= 16; ++file) recent_.AddFile(L"f" + std::to_wstring(file));
  const auto entries = recent_.MenuEntries();
  ASSERT_EQ(entries.size(), 16U);
  EXPECT_EQ(entries[8].Caption, L"&9 f8");
  EXPECT_EQ(entries[9].Caption, L"&10 f7");
  EXPECT_EQ(entries[15].Caption, L"&16 f1");
}

TEST_F(RecentFilesTest, AnAmpersandOfAPathIsDoubledAfterTheShortening) {
  Add({L"C:\\R&D\\a folder name that is long\\another one\\Wincmd.ini", L"C:\\R&&D\\x.ini"});
  const auto entries = recent_.MenuEntries();
  EXPECT_EQ(entries[0].Caption, L"&1 C:\\R&&&&D\\x.ini");
  EXPECT_EQ(entries[1].Caption, L"&2 C:\\R&&D\\...\\Wincmd.ini");
}

TEST_F(RecentFilesTest, ClearListIsEnabledWhileThereIsAFile) {
  EXPECT_EQ(recent_.ClearEntry().Caption, L"Clear List");
  EXPECT_FALSE(recent_.ClearEntry().Enabled);
  Add({L"a"});
  EXPECT_TRUE(recent_.ClearEntry().Enabled);
}

TEST_F(RecentFilesTest, ChangeLanguageFetchesTheFixedTextsAgain) {
  files_.Contents[L"C:\\x.lng"] =
      "[UserLanguage]\r\n108=Keine Dateien\r\n109=Leeren\r\n3009=Sicher?\r\n";
  ASSERT_TRUE(texts_.UseLanguageFile(L"C:\\x.lng"));
  EXPECT_EQ(recent_.ClearEntry().Caption, L"Clear List");
  recent_.ChangeLanguage();
  EXPECT_EQ(recent_.ClearEntry().Caption, L"Leeren");
  EXPECT_EQ(recent_.MenuEntries().front().Caption, L"Keine Dateien");
  messageBoxes_.Answers = {BoxAnswer::No};
  recent_.Clear();
  EXPECT_EQ(messageBoxes_.Shown.front().Text, L"Sicher?");
}

// -- Shortened paths

TEST(ShortenPath, APathOf48CharactersIsShownWholeAndOneOf49IsNot) {
  const std::wstring folder = L"C:\\" + std::wstring(16, L'a') + L'\\';
  const std::wstring whole = folder + std::wstring(28, L'b');
  ASSERT_EQ(whole.size(), 48U);
  EXPECT_EQ(ShortenPath(whole), whole);
  EXPECT_EQ(ShortenPath(whole + L'c'), folder + L"...\\" + std::wstring(15, L'b') + L'c');
}

TEST(ShortenPath, IsCutInTheMiddleByItsNumberOfBackslashes) {
  struct Case {
    const wchar_t* Path;
    const wchar_t* Shown;
  };
  const Case cases[]{
      {L"C:\\abcdefghijklmnopqrstuvwxyz-and-the-middle-abcdefghijklmnop.ini",
       L"C:\\abcdefghijklmnop......efghijklmnop.ini"},
      {L"C:\\a folder name of many letters\\a file name of many letters.ini",
       L"C:\\a folder name of\\...\\many letters.ini"},
      {L"C:\\short\\a file name of many many many many letters.ini",
       L"C:\\short\\...\\many letters.ini"},
      {L"C:\\a folder name of many many many many letters\\x.ini",
       L"C:\\a folder name of\\...\\x.ini"},
      {L"C:\\Program Files\\A very long folder name\\Wincmd.ini",
       L"C:\\Program Files\\...\\Wincmd.ini"},
      {L"C:\\Program Files\\Very Long Folder Name\\Sub\\Wincmd.ini",
       L"C:\\Program Files\\...\\Wincmd.ini"},
      {L"C:\\Program Files\\Very Long Folder\\Sub\\Name\\Wincmd.ini",
       L"C:\\Program Files\\...\\Name\\Wincmd.ini"},
      {L"C:\\Users\\Somebody\\AppData\\Roaming\\GHISLER\\Settings\\Wincmd.ini",
       L"C:\\Users\\...\\Settings\\Wincmd.ini"},
      {L"\\\\server\\share with a long name\\folder\\sub\\Wincmd.ini", L"\\\\...\\sub\\Wincmd.ini"},
  };
  for (const Case& example : cases) {
    ASSERT_GT(std::wstring_view(example.Path).size(), 48U) << example.Path;
    EXPECT_EQ(ShortenPath(example.Path), example.Shown);
  }
}

TEST(ShortenPath, TheResultMayStillBeLong) {
  const std::wstring folder(60, L'a');
  EXPECT_EQ(ShortenPath(L"C:\\" + folder + L"\\b\\c.ini"), L"C:\\" + folder + L"\\...\\c.ini");
}

TEST(ShortenPath, ALongPathWithoutABackslashIsShownWhole) {
  const std::wstring path(60, L'a');
  EXPECT_EQ(ShortenPath(path), path);
}

// -- Storage

TEST_F(RecentFilesTest, ASavedListIsReadBack) {
  Add({L"C:\\a b\\Wincmd.ini", L"C:\\c\\Wincmd.ini"});
  Save();
  EXPECT_EQ(files_.Contents[SettingsName],
            "[Tessera]\r\nRecentFiles1=C:\\c\\Wincmd.ini\r\nRecentFiles2=C:\\a b\\Wincmd.ini\r\n");
  recent_.Setup(4);
  Read();
  EXPECT_EQ(Paths(), (List{L"C:\\c\\Wincmd.ini", L"C:\\a b\\Wincmd.ini"}));
}

TEST_F(RecentFilesTest, EverySlotOfAFullListIsSaved) {
  Add({L"a", L"b", L"c", L"d"});
  Save();
  recent_.Setup(4);
  Read();
  EXPECT_EQ(Paths(), (List{L"d", L"c", L"b", L"a"}));
}

TEST_F(RecentFilesTest, AListWithoutAFileToReadIsSaved) {
  Read();
  Add({L"a"});
  Save();
  EXPECT_EQ(files_.Contents[SettingsName], "[Tessera]\r\nRecentFiles1=a\r\n");
}

TEST_F(RecentFilesTest, SavingDeletesTheKeysOfEmptySlotsAndTouchesNoOthers) {
  files_.Contents[SettingsName] =
      "[Common]\r\nRecentFiles1=c\r\n[Tessera]\r\nRecentFiles1=a\r\nSortOrder=1\r\n"
      "RecentFiles2=b\r\nRecentFiles3=c\r\n";
  Read();
  recent_.RemoveFile(1);
  Save();
  EXPECT_EQ(files_.Contents[SettingsName],
            "[Common]\r\nRecentFiles1=c\r\n[Tessera]\r\nRecentFiles1=b\r\nSortOrder=1\r\n"
            "RecentFiles2=c\r\n");
}

TEST_F(RecentFilesTest, SavingAClearedListLeavesNoKey) {
  files_.Contents[SettingsName] = "[Tessera]\r\nRecentFiles1=a\r\nRecentFiles2=b\r\n";
  Read();
  messageBoxes_.Answers = {BoxAnswer::Yes};
  recent_.Clear();
  Save();
  EXPECT_EQ(files_.Contents[SettingsName], "[Tessera]\r\n");
}

TEST_F(RecentFilesTest, ReadingClosesGaps) {
  files_.Contents[SettingsName] =
      "[Tessera]\r\nRecentFiles2=b\r\nRecentFiles3=\r\nRecentFiles4=d\r\n";
  Read();
  EXPECT_EQ(Paths(), (List{L"b", L"d"}));
}

TEST_F(RecentFilesTest, KeysBesideTheSlotsAreNeitherReadNorTouched) {
  const std::string stored =
      "[Tessera]\r\nRecentFiles0=z\r\nRecentFiles1=a\r\nRecentFiles2=b\r\nRecentFiles3=c\r\n";
  files_.Contents[SettingsName] = stored;
  recent_.Setup(2);
  Read();
  EXPECT_EQ(Paths(), (List{L"a", L"b"}));
  Save();
  EXPECT_EQ(files_.Contents[SettingsName], stored);
}

TEST_F(RecentFilesTest, ReadingReplacesWhatTheListHeld) {
  Add({L"a", L"b"});
  Read();
  EXPECT_EQ(Paths(), List{});
}

}  // namespace
}  // namespace tessera::crecent_files_test
