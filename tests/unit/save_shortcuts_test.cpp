// What a save leaves in "Wincmd.ini".
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shortcuts/SaveShortcuts.h"
#include "shortcuts/WincmdIni.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/Kept.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::save_shortcuts_test {
namespace {

constexpr const wchar_t* Path = L"C:\\tc\\wincmd.ini";

class SaveShortcutsTest : public testing::Test {
 protected:
  /// Displays commands cm_1, cm_2 and so on below a heading, with these current keys.
  void Show(const std::vector<std::wstring>& currentKeys) {
    CommandEntry heading;
    heading.Key = 1;
    heading.Description = L"[File]";
    heading.Tag = CommentBlockTag;
    Shown.lvwHidden = {heading};
    for (const std::wstring& keys : currentKeys) {
      CommandEntry row;
      row.Key = Shown.lvwHidden.size() + 1;
      row.CommandName = Kept(L"cm_" + std::to_wstring(row.Key - 1));
      row.CommandCode = Kept(std::to_wstring(100 + row.Key));
      row.Description = row.CommandName;
      row.DefaultKeys = L"---";
      row.CurrentKeys = keys;
      row.Tag = row.CommandCode;
      Shown.lvwHidden.push_back(row);
    }
    BuildDisplayTable(Shown, Notation, [] {});
  }

  FileError Save() {
    return SaveShortcuts(Shown, Notation, {Path, KeepUnknown}, Files, Clock, Environment).Error;
  }

  /// The content that a save of these current keys gives an empty file.
  std::string Saved(const std::vector<std::wstring>& currentKeys) {
    Files.Contents[Path] = "";
    Show(currentKeys);
    EXPECT_EQ(Save(), FileError::None);
    return Files.Contents[Path];
  }

  Catalogue Shown;
  HotkeyNotation Notation;
  bool KeepUnknown = false;
  MemoryFiles Files;
  FakeClock Clock;
  FakeEnvironment Environment;
};

TEST_F(SaveShortcutsTest, EveryKeyIsALine) {
  EXPECT_EQ(Saved({L"Ctrl + Alt + F1", L"---", L"F2 = Shift + A"}),
            "[Shortcuts]\r\nCA+F1=cm_1\r\nF2=cm_3\r\nS+A=cm_3\r\n");
}

TEST_F(SaveShortcutsTest, AnEmptyCellAndTheMarkerAreNoKeys) {
  Files.Contents[Path] = "[A]\r\nx=1\r\n[Shortcuts]\r\nF5=cm_1\r\n[B]\r\ny=1\r\n";
  Show({L"---", L""});
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "[A]\r\nx=1\r\n[B]\r\ny=1\r\n");
}

TEST_F(SaveShortcutsTest, KeypadKeysLoseTheFirstNumOnly) {
  EXPECT_EQ(Saved({L"Num +"}), "[Shortcuts]\r\n+=cm_1\r\n");
  EXPECT_EQ(Saved({L"+"}), "[Shortcuts]\r\n+=cm_1\r\n");
  EXPECT_EQ(Saved({L"Alt + Num +"}), "[Shortcuts]\r\nA++=cm_1\r\n");
  EXPECT_EQ(Saved({L"Ctrl + Num *"}), "[Shortcuts]\r\nC+*=cm_1\r\n");
  EXPECT_EQ(Saved({L"Num - = Num *"}), "[Shortcuts]\r\n-=cm_1\r\nNum *=cm_1\r\n");
}

TEST_F(SaveShortcutsTest, AReversedKeyIsWrittenInTotalCommandersOrder) {
  Notation.ReverseOrderHotkey = true;
  EXPECT_EQ(Saved({L"F1 + Ctrl + Alt", L"Num + + Alt", L"F3"}),
            "[Shortcuts]\r\nCA+F1=cm_1\r\nA++=cm_2\r\nF3=cm_3\r\n");
}

TEST_F(SaveShortcutsTest, ACellIsSplitWhenItHoldsThePaddedSeparator) {
  Notation.MultiHotkeySeparator = L" | ";
  EXPECT_EQ(Saved({L"F1 | F2|F3 | "}), "[Shortcuts]\r\nF1=cm_1\r\nF2=cm_1\r\nF3=cm_1\r\n");
  EXPECT_EQ(Saved({L"F1|F2"}), "[Shortcuts]\r\nF1|F2=cm_1\r\n");
}

TEST_F(SaveShortcutsTest, OfEqualKeysTheRowWrittenLastWins) {
  EXPECT_EQ(Saved({L"F1", L"F2", L"f1"}), "[Shortcuts]\r\nF1=cm_3\r\nF2=cm_2\r\n");
}

TEST_F(SaveShortcutsTest, OfEqualKeysTheOneThatAnEditGaveLastWinsInThePlaceOfTheFirst) {
  Shown.Given.Give(3, L"F1");  // cm_2
  EXPECT_EQ(Saved({L"F9", L"F1", L"F2", L"f1"}),
            "[Shortcuts]\r\nF9=cm_1\r\nF1=cm_2\r\nF2=cm_3\r\n");
  Shown.Given.Give(5, L"F1");  // cm_4
  EXPECT_EQ(Saved({L"F9", L"F1", L"F2", L"f1"}),
            "[Shortcuts]\r\nF9=cm_1\r\nf1=cm_4\r\nF2=cm_3\r\n");
  Shown.Given.Give(2, L"F1");  // cm_1
  EXPECT_EQ(Saved({L"F9 = f1", L"F1", L"F2", L"F1"}),
            "[Shortcuts]\r\nF9=cm_1\r\nf1=cm_1\r\nF2=cm_3\r\n");
  EXPECT_EQ(Saved({L"F9", L"F1 = f1", L"f1", L"F1"}), "[Shortcuts]\r\nF9=cm_1\r\nF1=cm_4\r\n");
}

TEST_F(SaveShortcutsTest, KeysThatARowHasTwiceAreWrittenAsBefore) {
  Shown.Given.Give(2, L"F1");
  EXPECT_EQ(Saved({L"F1 = F2 = f1"}), "[Shortcuts]\r\nF1=cm_1\r\nF2=cm_1\r\n");
}

TEST_F(SaveShortcutsTest, LinesFollowTheDisplayedOrder) {
  Files.Contents[Path] = "";
  Show({L"F1", L"F2", L"F3"});
  Shown.ListView1.RemoveHeadings();
  Shown.ListView1.Sort(Column::Description, SortDirection::Descending);
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "[Shortcuts]\r\nF3=cm_3\r\nF2=cm_2\r\nF1=cm_1\r\n");
}

TEST_F(SaveShortcutsTest, WhatWasReadIsWrittenBackAsItWas) {
  const std::string content = "[Shortcuts]\r\nCA+F1=cm_1\r\nS+F2=cm_1\r\nA++=cm_2\r\n+=cm_3\r\n";
  Files.Contents[Path] = content;
  Show({L"---", L"---", L"---"});
  ReadShortcuts(Shown.lvwHidden, WincmdIni(Files, Clock, Environment, Path).Shortcuts(), Notation,
                [] {});
  BuildDisplayTable(Shown, Notation, [] {});
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], content);
  EXPECT_EQ(Files.Writes, 0);
  Files.Contents[Path].clear();
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], content);
}

TEST_F(SaveShortcutsTest, EverythingElseInTheFileStays) {
  Files.Contents[Path] =
      "; mine\r\n[Configuration]\r\nSetEncoding=\xC3\x28\r\n\r\n[Shortcuts]\r\n; "
      "keys\r\nF5=cm_1\r\n"
      "F6=em_own\r\n\r\n[Left]\r\npath=c:\\\r\n";
  Show({L"F7"});
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path],
            "; mine\r\n[Configuration]\r\nSetEncoding=\xC3\x28\r\n\r\n[Shortcuts]\r\n; keys\r\n"
            "F7=cm_1\r\n\r\n[Left]\r\npath=c:\\\r\n");
}

TEST_F(SaveShortcutsTest, ChangesThatOthersMadeMeanwhileStay) {
  Files.Contents[Path] = "[Left]\r\npath=c:\\\r\n[Shortcuts]\r\nF5=cm_1\r\n";
  Show({L"---"});
  ReadShortcuts(Shown.lvwHidden, WincmdIni(Files, Clock, Environment, Path).Shortcuts(), Notation,
                [] {});
  BuildDisplayTable(Shown, Notation, [] {});
  Files.Contents[Path] = "[Left]\r\npath=d:\\new\r\n[Shortcuts]\r\nF5=cm_1\r\n";
  Shown.ListView1.Edit(2).CurrentKeys = L"F6";
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "[Left]\r\npath=d:\\new\r\n[Shortcuts]\r\nF6=cm_1\r\n");
}

TEST_F(SaveShortcutsTest, TheFormerContentIsKeptAsACopy) {
  Files.Contents[Path] = "[Shortcuts]\r\nF5=cm_1\r\n";
  Show({L"F6"});
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[std::wstring(Path) + L".bak"], "[Shortcuts]\r\nF5=cm_1\r\n");
}

TEST_F(SaveShortcutsTest, AMissingFileIsCreated) {
  Show({L"F6"});
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "[Shortcuts]\r\nF6=cm_1\r\n");
}

// -- Start Menu keys

TEST_F(SaveShortcutsTest, AStartMenuKeyThatWasTakenIsDeletedAndItsCaptionStays) {
  Files.Contents[Path] =
      "[user]\r\nmenu1=a\r\nkey1=1\r\nmenu2=b\r\nkey2=13\r\n[Shortcuts]\r\nF5=cm_1\r\n";
  Show({L"F5"});
  Shown.StartMenuKeys[0] = {L"Ctrl + Alt + F1 *", L"a", L"key1"};
  Shown.StartMenuKeys[12] = {L"Ctrl + Alt + Shift + F1", L"b", L"key2"};
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path],
            "[user]\r\nmenu1=a\r\nmenu2=b\r\nkey2=13\r\n[Shortcuts]\r\nF5=cm_1\r\n");
  EXPECT_EQ(Files.Writes, 1);
  EXPECT_EQ(Shown.StartMenuKeys[0].Key, L"");
  EXPECT_EQ(Shown.StartMenuKeys[0].Caption, L"");
  EXPECT_EQ(Shown.StartMenuKeys[0].ValueName, L"");
  EXPECT_EQ(Shown.StartMenuKeys[12].Key, L"Ctrl + Alt + Shift + F1");
}

TEST_F(SaveShortcutsTest, AFailedSaveChangesNeitherFileNorCatalogue) {
  const std::string content = "[user]\r\nmenu1=a\r\nkey1=1\r\n[Shortcuts]\r\nF5=cm_1\r\n";
  Files.Contents[Path] = content;
  Show({L"F6"});
  Shown.StartMenuKeys[0] = {L"Ctrl + Alt + F1 *", L"a", L"key1"};
  Files.WriteErrors = {FileError::DiskFull};
  EXPECT_EQ(Save(), FileError::DiskFull);
  EXPECT_EQ(Files.Contents[Path], content);
  EXPECT_EQ(Shown.StartMenuKeys[0].Key, L"Ctrl + Alt + F1 *");
}

TEST_F(SaveShortcutsTest, AFileThatCannotBeReadIsNotReplaced) {
  Files.Contents[Path] = "[Left]\r\npath=c:\\\r\n";
  Show({L"F6"});
  Files.ReadErrors.assign(100, FileError::SharingViolation);
  EXPECT_EQ(Save(), FileError::SharingViolation);
  EXPECT_EQ(Files.Contents[Path], "[Left]\r\npath=c:\\\r\n");
  EXPECT_EQ(Files.Writes, 0);
}

// -- Redirected sections

TEST_F(SaveShortcutsTest, ARedirectedSectionIsWrittenToItsFileAlone) {
  const std::string content =
      "[Shortcuts]\r\nRedirectSection=%COMMANDER_PATH%\\s.ini\r\nF9=cm_1\r\n[Left]\r\na=b\r\n";
  Environment.Variables[L"COMMANDER_PATH"] = L"D:\\Total";
  Files.Contents[Path] = content;
  Files.Contents[L"D:\\Total\\s.ini"] =
      "[Other]\r\nx=1\r\n[Shortcuts]\r\nredirectsection=t.ini\r\nF5=cm_1\r\n";
  Show({L"F6"});
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], content);
  EXPECT_EQ(Files.Contents[L"D:\\Total\\s.ini"],
            "[Other]\r\nx=1\r\n[Shortcuts]\r\nredirectsection=t.ini\r\nF6=cm_1\r\n");
  EXPECT_TRUE(Files.Contents.contains(L"D:\\Total\\s.ini.bak"));
  EXPECT_EQ(Files.Writes, 1);
}

TEST_F(SaveShortcutsTest, ARedirectedFileThatIsMissingIsCreated) {
  Files.Contents[Path] = "[Shortcuts]\r\nRedirectSection=s.ini\r\n";
  Show({L"F6"});
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[L"C:\\tc\\s.ini"], "[Shortcuts]\r\nF6=cm_1\r\n");
}

TEST_F(SaveShortcutsTest, TheRedirectingLineIsNeverLost) {
  Files.Contents[Path] = "[Shortcuts]\r\nF5=cm_1\r\nRedirectSection=0\r\n";
  Show({L"---"});
  for (const bool keepUnknown : {false, true}) {
    KeepUnknown = keepUnknown;
    EXPECT_EQ(Save(), FileError::None);
    EXPECT_EQ(Files.Contents[Path], "[Shortcuts]\r\nRedirectSection=0\r\n");
  }
}

TEST_F(SaveShortcutsTest, BothSectionsInOneOtherFileAreWrittenOnce) {
  Files.Contents[Path] =
      "[Shortcuts]\r\nRedirectSection=1\r\n[user]\r\nRedirectSection=.\\u.ini\r\n"
      "[Configuration]\r\nAlternateUserIni=u.ini\r\n";
  Files.Contents[L"C:\\tc\\u.ini"] = "[user]\r\nmenu1=a\r\nkey1=1\r\n[Shortcuts]\r\nF5=cm_1\r\n";
  Show({L"F6"});
  Shown.StartMenuKeys[0] = {L"Ctrl + Alt + F1 *", L"a", L"key1"};
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[L"C:\\tc\\u.ini"], "[user]\r\nmenu1=a\r\n[Shortcuts]\r\nF6=cm_1\r\n");
  EXPECT_EQ(Files.Writes, 1);
}

// -- Lines of unknown commands

TEST_F(SaveShortcutsTest, LinesOfUnknownCommandsGoUnlessTheyAreToBeKept) {
  const std::string content = "[Shortcuts]\r\nA+F5=em_own\r\nF5=cm_1\r\nF8=cm_exit 1\r\n";
  Files.Contents[Path] = content;
  Show({L"F6"});
  KeepUnknown = true;
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "[Shortcuts]\r\nF6=cm_1\r\nA+F5=em_own\r\nF8=cm_exit 1\r\n");
  KeepUnknown = false;
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "[Shortcuts]\r\nF6=cm_1\r\n");
}

TEST_F(SaveShortcutsTest, AKeptLineGivesWayToACommandThatHasTakenItsKey) {
  Files.Contents[Path] = "[Shortcuts]\r\na+f5=em_own\r\nF8=em_two\r\n";
  Show({L"Alt + F5"});
  KeepUnknown = true;
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "[Shortcuts]\r\nA+F5=cm_1\r\nF8=em_two\r\n");
}

TEST_F(SaveShortcutsTest, AKeptLineGivesWayHoweverItSpellsItsKey) {
  Files.Contents[Path] =
      "[Shortcuts]\r\nAC+F5=em_a\r\nC + F6=em_b\r\nW+Q=em_c\r\nCtrl+F2=em_d\r\nc+k=em_e\r\n";
  Show({L"Ctrl + Alt + F5", L"Ctrl + F6", L"Q", L"Ctrl + F2", L"K"});
  KeepUnknown = true;
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path],
            "[Shortcuts]\r\nCA+F5=cm_1\r\nC+F6=cm_2\r\nQ=cm_3\r\nC+F2=cm_4\r\nK=cm_5\r\n"
            "W+Q=em_c\r\nCtrl+F2=em_d\r\nc+k=em_e\r\n");
}

TEST_F(SaveShortcutsTest, AKeptLineKeepsItsBytes) {
  Files.Contents[Path] = "[Shortcuts]\n  A+F5 =\t\"em_own\" \nF5=cm_1\nF8 = \xE9\x81";
  Show({L"F6"});
  KeepUnknown = true;
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "[Shortcuts]\nF6=cm_1\r\n  A+F5 =\t\"em_own\" \nF8 = \xE9\x81");
}

TEST_F(SaveShortcutsTest, AKeyIsWrittenWithoutTheControlCharactersAroundItsName) {
  Files.Contents[Path] = "[Shortcuts]\r\nF=em_own\r\n";
  Show({L"\x01\tF\x02", L"\x03"});
  KeepUnknown = true;
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "[Shortcuts]\r\nF=cm_1\r\n");
}

TEST_F(SaveShortcutsTest, LinesOfKnownCommandsAreNotKept) {
  Files.Contents[Path] = "[Shortcuts]\r\nF5=CM_1\r\nF6=102\r\n";
  Show({L"---"});
  KeepUnknown = true;
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "");
}

TEST_F(SaveShortcutsTest, OfLinesWithOneKeyTheFirstIsTheOneInForce) {
  Files.Contents[Path] = "[Shortcuts]\r\nF5=em_a\r\nF5=em_b\r\nF6=cm_1\r\nF6=em_c\r\n";
  Show({L"---"});
  KeepUnknown = true;
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], "[Shortcuts]\r\nF5=em_a\r\n");
}

TEST_F(SaveShortcutsTest, AKeptLineReadsAsBefore) {
  const std::vector<std::string> values{
      "em_own",      "\"\"em x\"\"",         "\" em \"",         "'\"a\" b'", "\"'em'\"", "'em\"",
      "\"a\" \"b\"", "\xEF\xBB\xBF\xD0\xAF", "\xEF\xBB\xBF\tem", "\"em\t\"",  "\xE9",     ""};
  for (const std::string& value : values) {
    Files.Contents[Path] = "[Shortcuts]\r\nF5=" + value + "\r\n";
    const std::wstring before = ProfileFile(Files, Path).ReadString(L"Shortcuts", L"F5", L"none");
    Show({L"F6"});
    KeepUnknown = true;
    EXPECT_EQ(Save(), FileError::None);
    const ProfileFile after(Files, Path);
    EXPECT_EQ(after.ReadString(L"Shortcuts", L"F5", L"none"), before) << value;
    EXPECT_EQ(after.Entries(L"Shortcuts").size(), 2u);
  }
}

TEST_F(SaveShortcutsTest, AKeptLineThatNeedsNoQuotesGetsNone) {
  const std::string content = "[Shortcuts]\r\nF5=em_me\r\nF8='em\"\r\nF9=\"\r\n";
  Files.Contents[Path] = content;
  Show({L"---"});
  KeepUnknown = true;
  EXPECT_EQ(Save(), FileError::None);
  EXPECT_EQ(Files.Contents[Path], content);
}

}  // namespace
}  // namespace tessera::save_shortcuts_test
