// Reading section "Shortcuts", and the files that the two sections live in.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shortcuts/WincmdIni.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/Kept.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::wincmd_ini_test {
namespace {

constexpr const wchar_t* Path = L"C:\\tc\\wincmd.ini";

std::vector<CommandEntry> SampleRows() {
  CommandEntry heading;
  heading.Key = 1;
  heading.Description = L"[File]";
  heading.Tag = CommentBlockTag;
  std::vector<CommandEntry> rows{heading};
  for (const auto& [name, code] :
       {std::pair(L"cm_X", L"123"), std::pair(L"cm_Y", L"124"), std::pair(L"cm_Twin", L"123")}) {
    CommandEntry row;
    row.Key = rows.size() + 1;
    row.CommandName = name;
    row.CommandCode = code;
    row.DefaultKeys = L"---";
    row.CurrentKeys = L"---";
    row.Tag = code;
    rows.push_back(row);
  }
  rows[2].DefaultKeys = L"F11";
  return rows;
}

ProfileFile FileWith(const std::string& content) {
  MemoryFiles files;
  files.Contents[Path] = content;
  return ProfileFile(files, Path);
}

using Texts = std::vector<std::wstring>;

Texts CurrentKeys(const std::vector<CommandEntry>& rows) {
  Texts keys;
  for (const CommandEntry& row : rows) keys.push_back(row.CurrentKeys);
  return keys;
}

Texts KeysAfterReading(const std::string& lines, const HotkeyNotation& notation = {}) {
  std::vector<CommandEntry> rows = SampleRows();
  ReadShortcuts(rows, FileWith("[Shortcuts]\r\n" + lines), notation, [] {});
  return CurrentKeys(rows);
}

const Texts NoKeys{L"", L"---", L"---", L"---"};

TEST(WincmdIni, ANameAndACodeBothFindTheCommand) {
  EXPECT_EQ(KeysAfterReading("CA+F1=cm_X\r\nS+F2=123\r\n"),
            (Texts{L"", L"Ctrl + Alt + F1 = Shift + F2", L"---", L"---"}));
  const Texts sameKey{L"", L"Ctrl + Alt + F1", L"---", L"---"};
  EXPECT_EQ(KeysAfterReading("CA+F1=cm_X\r\n"), sameKey);
  EXPECT_EQ(KeysAfterReading("CA+F1=123\r\n"), sameKey);
}

TEST(WincmdIni, CommandsAreFoundWithoutRegardToLetterCase) {
  EXPECT_EQ(KeysAfterReading("F2=CM_tWIN\r\n"), (Texts{L"", L"---", L"---", L"F2"}));
}

TEST(WincmdIni, SeveralKeysStandInFileOrder) {
  EXPECT_EQ(KeysAfterReading("F9=cm_Y\r\nF2=cm_X\r\nA+F1=cm_Y\r\nA++=cm_Y\r\n"),
            (Texts{L"", L"F2", L"F9 = Alt + F1 = Alt + Num +", L"---"}));
}

TEST(WincmdIni, UnknownCommandsArePassedOver) {
  EXPECT_EQ(KeysAfterReading("F1=em_own\r\nF2=cm_exit 1\r\nF3=cm_\r\nF4=[File]\r\n"), NoKeys);
}

TEST(WincmdIni, AnEmptyValueMatchesNothing) {
  EXPECT_EQ(KeysAfterReading("F1=\r\nF2=\"\"\r\nF3\r\n=cm_X\r\n"), NoKeys);
}

TEST(WincmdIni, TheRedirectingLineIsNoKey) {
  EXPECT_EQ(KeysAfterReading("redirectSECTION=cm_X\r\n"), NoKeys);
}

TEST(WincmdIni, BlanksAndQuotesAroundAValueDoNotCount) {
  EXPECT_EQ(KeysAfterReading("  S+A  =  cm_X \r\nS+B=\"cm_Y\"\r\n"),
            (Texts{L"", L"Shift + A", L"Shift + B", L"---"}));
}

TEST(WincmdIni, ThePlusAloneIsTheKeypadPlus) {
  EXPECT_EQ(KeysAfterReading("+=cm_X\r\n"), (Texts{L"", L"Num +", L"---", L"---"}));
}

TEST(WincmdIni, AKeyTextAsValueFindsTheRowThatShowsIt) {
  EXPECT_EQ(KeysAfterReading("F1=f11\r\n"), (Texts{L"", L"---", L"F1", L"---"}));
  // The row that has taken F1 is the one that F1 then names.
  EXPECT_EQ(KeysAfterReading("F1=cm_Twin\r\nF2=f1\r\n"), (Texts{L"", L"---", L"---", L"F1 = F2"}));
}

TEST(WincmdIni, TheMarkerAsValueFindsARowWithoutAKey) {
  std::vector<CommandEntry> rows = SampleRows();
  rows[1].DefaultKeys = L"F10";
  rows[3].DefaultKeys = L"F12";
  ReadShortcuts(rows, FileWith("[Shortcuts]\r\nF1=cm_X\r\nF2=---\r\nF3=---\r\n"), HotkeyNotation{},
                [] {});
  EXPECT_EQ(CurrentKeys(rows), (Texts{L"", L"F1", L"F2", L"F3"}));
}

TEST(WincmdIni, ANameThatStandsTwiceCountsTwiceWithItsFirstValue) {
  EXPECT_EQ(KeysAfterReading("F1=cm_X\r\nf1=cm_Y\r\n"), (Texts{L"", L"F1 = f1", L"---", L"---"}));
}

TEST(WincmdIni, KeysOfASecondFileFollowThoseOfTheFirst) {
  std::vector<CommandEntry> rows = SampleRows();
  ReadShortcuts(rows, FileWith("[Shortcuts]\r\nF1=cm_X\r\n"), HotkeyNotation{}, [] {});
  ReadShortcuts(rows, FileWith("[Shortcuts]\r\nF2=cm_X\r\n"), HotkeyNotation{}, [] {});
  EXPECT_EQ(rows[1].CurrentKeys, L"F1 = F2");
}

TEST(WincmdIni, TheSeparatorAndMarkerInForceAreUsed) {
  HotkeyNotation notation;
  notation.MultiHotkeySeparator = L" | ";
  EXPECT_EQ(KeysAfterReading("F1=cm_X\r\nF2=cm_X\r\n", notation)[1], L"F1 | F2");
  notation.UndefinedHotkey = L"none";
  EXPECT_EQ(KeysAfterReading("F1=cm_X\r\n", notation)[1], L"--- | F1");
}

TEST(WincmdIni, EveryLineIsAStep) {
  std::vector<CommandEntry> rows = SampleRows();
  int steps = 0;
  ReadShortcuts(rows, FileWith("[Shortcuts]\r\nF1=cm_X\r\n;c\r\nF2=none\r\n"), HotkeyNotation{},
                [&steps] { ++steps; });
  EXPECT_EQ(steps, 2);
}

TEST(WincmdIni, AMissingSectionOrFileHasNoKeys) {
  std::vector<CommandEntry> rows = SampleRows();
  ReadShortcuts(rows, FileWith("[Other]\r\nF1=cm_X\r\n"), HotkeyNotation{}, [] {});
  ReadShortcuts(rows, ProfileFile(MemoryFiles{}, L"none.ini"), HotkeyNotation{}, [] {});
  EXPECT_EQ(CurrentKeys(rows), NoKeys);
}

TEST(WincmdIni, ASectionOverFourThousandCharactersIsReadWhole) {
  std::string lines;
  for (int line = 0; line < 1000; ++line) lines += "C+X" + std::to_string(line) + "=none\r\n";
  EXPECT_EQ(KeysAfterReading(lines + "F5=cm_X\r\n")[1], L"F5");
}

TEST(WincmdIni, AValueIsCutAtTheBuffersLength) {
  std::vector<CommandEntry> rows = SampleRows();
  rows[1].CommandName = Kept(L"cm_" + std::wstring(4092, L'x'));
  rows[2].CommandName = Kept(L"cm_" + std::wstring(4093, L'x'));
  ReadShortcuts(rows,
                FileWith("[Shortcuts]\r\nF1=cm_" + std::string(4092, 'x') + "\r\nF2=cm_" +
                         std::string(4093, 'x') + "\r\n"),
                HotkeyNotation{}, [] {});
  EXPECT_EQ(rows[1].CurrentKeys, L"F1 = F2");
  EXPECT_EQ(rows[2].CurrentKeys, L"---");
}

TEST(WincmdIni, ManyCommandsAndManyKeysAreRead) {
  std::vector<CommandEntry> rows;
  std::string content = "[Shortcuts]\r\n";
  for (int command = 0; command < 20'000; ++command) {
    CommandEntry row;
    row.CommandName = Kept(L"cm_" + std::to_wstring(command));
    row.CommandCode = Kept(std::to_wstring(command));
    row.DefaultKeys = row.CurrentKeys = L"---";
    rows.push_back(row);
    content += "K" + std::to_string(command) + "=CM_" + std::to_string(command) + "\r\n";
    content += "L" + std::to_string(command) + "=cm_7\r\n";
  }
  ReadShortcuts(rows, FileWith(content), HotkeyNotation{}, [] {});
  EXPECT_EQ(rows.front().CurrentKeys, L"K0");
  EXPECT_EQ(rows.back().CurrentKeys, L"K19999");
  EXPECT_EQ(HotkeyNotation{}.KeysOf(rows[7].CurrentKeys).size(), 20'001u);
}

// -- The files

class WincmdIniFiles : public testing::Test {
 protected:
  WincmdIni Open() { return WincmdIni(Files, Clock, Environment, Path); }

  MemoryFiles Files;
  FakeEnvironment Environment;
  FakeClock Clock;
};

TEST_F(WincmdIniFiles, BothSectionsLiveInTheFileItself) {
  Files.Contents[Path] = "[Shortcuts]\r\nF5=cm_X\r\n[user]\r\nmenu1=a\r\n";
  WincmdIni ini = Open();
  EXPECT_EQ(Files.Reads, 1);
  EXPECT_EQ(&ini.Shortcuts(), &ini.StartMenu());
  EXPECT_EQ(ini.Shortcuts().Path(), Path);
}

TEST_F(WincmdIniFiles, ARedirectedSectionIsReadFromItsFile) {
  Files.Contents[Path] =
      "[Shortcuts]\r\nRedirectSection=s.ini\r\nF5=cm_X\r\n[user]\r\nmenu1=here\r\n";
  Files.Contents[L"C:\\tc\\s.ini"] = "[Shortcuts]\r\nF6=cm_Y\r\n[user]\r\nmenu1=there\r\n";
  const WincmdIni ini = Open();
  EXPECT_EQ(Files.Reads, 2);
  std::vector<CommandEntry> rows = SampleRows();
  ReadShortcuts(rows, ini.Shortcuts(), HotkeyNotation{}, [] {});
  EXPECT_EQ(CurrentKeys(rows), (Texts{L"", L"---", L"F6", L"---"}));
  EXPECT_EQ(ini.StartMenu().ReadString(L"user", L"menu1", L""), L"here");
}

TEST_F(WincmdIniFiles, ARedirectedFileThatIsMissingIsEmpty) {
  Files.Contents[Path] = "[Shortcuts]\r\nRedirectSection=s.ini\r\nF5=cm_X\r\n";
  const WincmdIni ini = Open();
  EXPECT_EQ(ini.Shortcuts().Path(), L"C:\\tc\\s.ini");
  EXPECT_TRUE(ini.Shortcuts().Entries(L"Shortcuts").empty());
  EXPECT_EQ(ini.Unread(), nullptr);
}

TEST_F(WincmdIniFiles, ARedirectingLineIsNotFollowedTwice) {
  Files.Contents[Path] = "[Shortcuts]\r\nRedirectSection=s.ini\r\n";
  Files.Contents[L"C:\\tc\\s.ini"] = "[Shortcuts]\r\nRedirectSection=t.ini\r\n";
  EXPECT_EQ(Open().Shortcuts().Path(), L"C:\\tc\\s.ini");
}

TEST_F(WincmdIniFiles, OneFileIsHeldOnceHoweverItIsNamed) {
  Files.Contents[Path] =
      "[Shortcuts]\r\nRedirectSection=sub\\..\\S.INI\r\n[user]\r\nRedirectSection=s.ini\r\n";
  WincmdIni two = Open();
  EXPECT_EQ(&two.Shortcuts(), &two.StartMenu());

  Files.Contents[Path] = "[Shortcuts]\r\nRedirectSection=.\\Wincmd.ini\r\n";
  WincmdIni itself = Open();
  EXPECT_EQ(&itself.Shortcuts(), &itself.StartMenu());

  Files.Contents[Path] = "[Shortcuts]\r\nRedirectSection=link.ini\r\n";
  Files.Links[L"C:\\tc\\link.ini"] = Path;
  WincmdIni link = Open();
  EXPECT_EQ(&link.Shortcuts(), &link.StartMenu());
}

TEST_F(WincmdIniFiles, SavingWritesNothingButTheFilesThatChanged) {
  Files.Contents[Path] = "[user]\r\nRedirectSection=u.ini\r\n[Shortcuts]\r\nF5=cm_X\r\n";
  Files.Contents[L"C:\\tc\\u.ini"] = "[user]\r\nmenu1=a\r\nkey1=1\r\n";
  WincmdIni ini = Open();
  EXPECT_EQ(ini.Save(Files, Clock), FileError::None);
  EXPECT_EQ(Files.Writes, 0);
  ini.StartMenu().DeleteValue(L"user", L"key1");
  EXPECT_EQ(ini.Save(Files, Clock), FileError::None);
  EXPECT_EQ(Files.Contents[L"C:\\tc\\u.ini"], "[user]\r\nmenu1=a\r\n");
  EXPECT_EQ(Files.Contents[L"C:\\tc\\u.ini.bak"], "[user]\r\nmenu1=a\r\nkey1=1\r\n");
  EXPECT_FALSE(Files.Contents.contains(std::wstring(Path) + L".bak"));
}

}  // namespace
}  // namespace tessera::wincmd_ini_test
