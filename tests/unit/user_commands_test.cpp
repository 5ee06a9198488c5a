// The user's own commands: their file, their rows, and what they share with all other rows.
#include <set>
#include <utility>

#include "app/StatusLine.h"
#include "shortcuts/UserCommands.h"
#include "tests/unit/editor_fixture.h"
#include "text/Utf8.h"

namespace tessera::user_commands_test {
namespace {

using namespace installation;

const std::wstring UserFile = L"C:\\TC\\usercmd.ini";

using Names = std::vector<std::wstring>;

// -- The file

class UserCommandFileTest : public testing::Test {
 protected:
  UserCommandFile Read(const std::string& content) {
    files_.Contents[UserFile] = content;
    return ReadUserCommands(files_, clock_, IniFile);
  }

  Names NamesIn(const std::string& content) {
    Names names;
    for (const UserCommand& command : Read(content).Commands) names.push_back(command.Name);
    return names;
  }

  std::wstring DescriptionIn(const std::string& lines) {
    const UserCommandFile file = Read("[em_a]\r\n" + lines);
    return file.Commands.size() == 1 ? file.Commands[0].Description : L"(none)";
  }

  MemoryFiles files_;
  FakeClock clock_;
};

TEST_F(UserCommandFileTest, EverySectionOfSuchANameIsACommand) {
  EXPECT_EQ(NamesIn("[em_a]\r\ncmd=x\r\n[other]\r\n[EM_B]\r\n[ em_c d ]\n[em_]\n[xem_e]\n"),
            (Names{L"em_a", L"EM_B", L"em_c d"}));
}

TEST_F(UserCommandFileTest, TheMenuTextDescribesACommandElseWhatItRuns) {
  EXPECT_EQ(DescriptionIn("cmd=c:\\x.exe\r\nmenu=Run &x\r\n"), L"Run &x");
  EXPECT_EQ(DescriptionIn("cmd=c:\\x.exe\r\n"), L"c:\\x.exe");
  EXPECT_EQ(DescriptionIn("menu=\r\ncmd=\"c:\\a b.exe\"\r\n"), L"c:\\a b.exe");
  EXPECT_EQ(DescriptionIn("button=x\r\n"), L"");
}

TEST_F(UserCommandFileTest, OfSectionsOfOneNameTheFirstCounts) {
  const UserCommandFile file =
      Read("[em_a]\r\nmenu=first\r\n[EM_A]\r\nmenu=second\r\n[em_a]\r\ncmd=third\r\n");
  ASSERT_EQ(file.Commands.size(), 1U);
  EXPECT_EQ(file.Commands[0].Name, L"em_a");
  EXPECT_EQ(file.Commands[0].Description, L"first");
}

std::string Utf16(std::string_view utf8, bool isBigEndian = false) {
  std::string bytes = Utf16LeFromUtf8("\xEF\xBB\xBF" + std::string(utf8));
  for (std::size_t at = 1; isBigEndian && at < bytes.size(); at += 2) {
    std::swap(bytes[at - 1], bytes[at]);
  }
  return bytes;
}

TEST_F(UserCommandFileTest, ItsEncodingIsTold) {
  const std::string utf8 = "[em_\xD0\x96]\r\nmenu=\xD0\xAF\r\n";
  for (const std::string& content :
       {"\xEF\xBB\xBF" + utf8, Utf16(utf8), Utf16(utf8, true), Utf16(utf8) + "x"}) {
    const UserCommandFile file = Read(content);
    ASSERT_EQ(file.Commands.size(), 1U);
    EXPECT_EQ(file.Commands[0].Name, L"em_\u0416");
    EXPECT_EQ(file.Commands[0].Description, L"\u042F");
  }
  const UserCommandFile ansi = Read("[em_\xE9]\r\nmenu=\xE8\r\n");
  ASSERT_EQ(ansi.Commands.size(), 1U);
  EXPECT_EQ(ansi.Commands[0].Name, L"em_\u00E9");
  EXPECT_EQ(ansi.Commands[0].Description, L"\u00E8");
}

TEST_F(UserCommandFileTest, NamesThatNoLineCouldHoldAreLeftOut) {
  const std::string longName = "em_" + std::string(997, 'x');
  EXPECT_EQ(NamesIn("[em_a\x01z]\n[em_b\tc]\n[em_\x7F]\n[" + longName + "]\n[" + longName + "y]\n"),
            Names{Decode(longName)});
  EXPECT_EQ(NamesIn("\xEF\xBB\xBF[em_\xFF]\n[em_ok]\n"), Names{L"em_ok"});
}

TEST_F(UserCommandFileTest, ControlCharactersOfADescriptionBecomeBlanks) {
  EXPECT_EQ(DescriptionIn("menu=\x01"
                          "a\tb\x7F\r\n"),
            L"a b");
}

TEST_F(UserCommandFileTest, WhateverItHoldsIsRead) {
  for (const std::string& content :
       {std::string(), std::string("em_a=1\r\n"), std::string("\xFF\xFE"), std::string("\xFE\xFF["),
        std::string(3000, '\0'), std::string("[em_"), std::string("[[[[]]]]=\n[]\n")}) {
    EXPECT_EQ(Read(content).Error, FileError::None);
    EXPECT_LE(Read(content).Commands.size(), 1U);
  }
}

TEST_F(UserCommandFileTest, AFileThatIsTooLargeIsNotRead) {
  const std::string beginning = "[em_a]\r\n;";
  const std::size_t limit = 4 << 20;
  EXPECT_EQ(Read(beginning + std::string(limit - beginning.size(), 'x')).Commands.size(), 1U);
  files_.Reads = 0;
  const UserCommandFile file = Read(beginning + std::string(limit, 'x'));
  EXPECT_TRUE(file.Commands.empty());
  EXPECT_EQ(file.Error, FileError::Other);
  EXPECT_EQ(files_.Reads, 0);
}

TEST_F(UserCommandFileTest, OneThatIsMissingOrLockedGivesNoCommands) {
  EXPECT_EQ(ReadUserCommands(files_, clock_, IniFile).Error, FileError::NotFound);
  files_.ReadErrors.assign(100, FileError::SharingViolation);
  const UserCommandFile file = Read("[em_a]\r\n");
  EXPECT_TRUE(file.Commands.empty());
  EXPECT_EQ(file.Error, FileError::SharingViolation);
  EXPECT_LE(clock_.SleptMilliseconds, 2000);
  files_.ReadErrors.assign(2, FileError::SharingViolation);
  EXPECT_EQ(NamesIn("[em_a]\r\n"), Names{L"em_a"}) << "held for a moment";
}

TEST_F(UserCommandFileTest, ItLiesBesideTheFileOfTheKeys) {
  files_.Contents[L"D:\\x\\usercmd.ini"] = "[em_a]\r\n";
  EXPECT_EQ(ReadUserCommands(files_, clock_, L"D:\\x\\my.ini").Commands.size(), 1U);
  files_.Contents[L"usercmd.ini"] = "[em_a]\r\n[em_b]\r\n";
  EXPECT_EQ(ReadUserCommands(files_, clock_, L"wincmd.ini").Commands.size(), 2U);
}

// -- The rows

/// Positions of the first open, behind those of the small installation.
constexpr std::size_t OwnHeading = 5;
constexpr std::size_t Mine = 6;
constexpr std::size_t Yours = 7;

class UserRowsTest : public EditorTest {
 protected:
  UserRowsTest() {
    StoredSettings() = "[Tessera]\r\nShowUserCommands=1\r\n";
    UserCommands() = "[em_Mine]\r\nmenu=My command\r\n[em_Yours]\r\ncmd=yours.exe\r\n";
    Ini() = "[Shortcuts]\r\nF3=cm_Copy\r\nA+F5=em_mine\r\n";
  }

  std::string& UserCommands() { return Files.Contents[UserFile]; }
  [[nodiscard]] const DisplayTable& Rows() const { return Editor.Document().Rows(); }
  [[nodiscard]] std::wstring Keys(std::size_t position) const {
    return Rows().At(position).CurrentKeys;
  }
  void Reopen() { Editor.OpenShortcutFile(false, IniFile, false); }

  void ShowOwn(bool show) {
    OptionsSelection& options = Editor.BeginOptions();
    if (options.Checked(OptionBox::ShowUserCommands) != show) {
      options.Click(OptionBox::ShowUserCommands);
    }
    options.Apply();
    Editor.EndOptions();
  }
};

TEST_F(UserRowsTest, StandBehindTheCatalogueBelowAHeadingOfTheirOwn) {
  Start();
  ASSERT_EQ(Rows().Count(), 8U);
  EXPECT_TRUE(Rows().At(OwnHeading).IsHeading());
  EXPECT_EQ(Rows().At(OwnHeading).Description, L"Own commands (usercmd.ini)");
  EXPECT_EQ(Rows().At(OwnHeading).CommandName, L"");
  EXPECT_EQ(Rows().At(OwnHeading).Icon, RowIcon::CommentBlock);
  const CommandEntry& mine = Rows().At(Mine);
  EXPECT_EQ(mine.CommandName, L"em_Mine");
  EXPECT_EQ(mine.Description, L"My command");
  EXPECT_EQ(mine.CommandCode, L"");
  EXPECT_EQ(mine.Tag, L"");
  EXPECT_EQ(mine.DefaultKeys, L"---");
  EXPECT_EQ(mine.CurrentKeys, L"Alt + F5");
  EXPECT_EQ(mine.Icon, RowIcon::HasKey);
  EXPECT_EQ(Rows().At(Yours).Description, L"yours.exe");
  EXPECT_EQ(Keys(Yours), L"---");
  EXPECT_EQ(Rows().At(Yours).Icon, RowIcon::None);
}

TEST_F(UserRowsTest, AreNotThereWithoutTheSettingOrTheFileOrACommand) {
  ShowOwn(false);
  StoredSettings() = "[Tessera]\r\nShowUserCommands=0\r\n";
  Start();
  EXPECT_EQ(Rows().Count(), 5U);
  ShowOwn(true);
  EXPECT_EQ(Rows().Count(), 5U) << "from the next open";
  UserCommands() = "[other]\r\n";
  Reopen();
  EXPECT_EQ(Rows().Count(), 5U) << "no heading alone";
  Files.Contents.erase(UserFile);
  Reopen();
  EXPECT_EQ(Rows().Count(), 5U);
}

TEST_F(UserRowsTest, AreReadAtEveryOpenAndReplaced) {
  Start();
  UserCommands() = "[em_Third]\r\nmenu=Third\r\n[em_Mine]\r\nmenu=Changed\r\n";
  Reopen();
  ASSERT_EQ(Rows().Count(), 8U);
  EXPECT_EQ(Rows().At(6).CommandName, L"em_Third");
  EXPECT_EQ(Rows().At(7).Description, L"Changed");
  EXPECT_EQ(Keys(7), L"Alt + F5") << "no carry-over";
  EXPECT_EQ(Keys(Copy), L"F3 = F3") << "which other rows have";
  ShowOwn(false);
  Reopen();
  EXPECT_EQ(Rows().Count(), 5U);
}

TEST_F(UserRowsTest, HaveKeysThatNoRowHasHad) {
  Start();
  std::set<RowKey> keys;
  for (std::size_t row = 0; row < Rows().Count(); ++row) keys.insert(Rows().At(row).Key);
  EXPECT_EQ(*keys.begin(), 1U);
  EXPECT_EQ(*keys.rbegin(), 8U);
  Reopen();
  EXPECT_EQ(Rows().At(Pack).Key, 5U);
  EXPECT_EQ(Rows().At(OwnHeading).Key, 9U);
  EXPECT_EQ(Rows().At(Yours).Key, 11U);
  ShowOwn(false);
  Reopen();
  ShowOwn(true);
  Reopen();
  EXPECT_EQ(Rows().At(OwnHeading).Key, 12U);
}

TEST_F(UserRowsTest, HaveKeysOfTheirOwnAlsoWhenTheCommandsAreFoundLater) {
  const std::string commands = std::exchange(Files.Contents[IncFile], "");
  Start();
  ASSERT_EQ(Rows().Count(), 3U);
  Assign(1, L"X");
  Editor.FileSave();
  Files.Contents[IncFile] = commands;
  Reopen();
  ASSERT_EQ(Rows().Count(), 8U);
  EXPECT_EQ(Rows().At(Pack).Key, 5U);
  EXPECT_EQ(Rows().At(OwnHeading).Key, 6U);
  EXPECT_EQ(Keys(Mine), L"X");
}

TEST_F(UserRowsTest, GiveWayToCommandsOfTheCatalogueOfTheSameName) {
  Files.Contents[IncFile] += "em_mine=1;Of the catalogue\r\n";
  Start();
  // A line that does not begin as a command does is a heading.
  EXPECT_EQ(Rows().Count(), 9U);
  Files.Contents[IncFile] = "cm_a=1;a\r\n";
  UserCommands() = "[cm_a]\r\n[em_a]\r\n";
  Reopen();
  EXPECT_EQ(Rows().At(Rows().Count() - 1).CommandName, L"em_a");
}

TEST_F(UserRowsTest, ArePassedOverByTheDefaultKeys) {
  Files.Contents[DataFile] += "=Ctrl+Q\r\n";
  Start();
  EXPECT_EQ(Rows().At(Mine).DefaultKeys, L"---");
  EXPECT_EQ(Rows().At(Copy).DefaultKeys, L"F5");
}

TEST_F(UserRowsTest, TakeKeysAreAskedAboutAndSaved) {
  Start();
  Assign(Yours, L"X");
  MessageBoxes.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};
  Assign(Pack, L"X");
  Assign(View, 2, L"F5");
  ASSERT_EQ(MessageBoxes.Shown.size(), 2U);
  EXPECT_NE(MessageBoxes.Shown[0].Text.find(L"em_Yours"), std::wstring::npos);
  EXPECT_NE(MessageBoxes.Shown[1].Text.find(L"em_Mine"), std::wstring::npos);
  EXPECT_EQ(Keys(Mine), L"---");
  EXPECT_EQ(Keys(Yours), L"---");
  Assign(Yours, 1, L"Y");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nA+F5=cm_View\r\nX=cm_Pack\r\nC+Y=em_Yours\r\n");
  EXPECT_FALSE(Files.Contents.contains(IniFile + L".dropped"));
}

TEST_F(UserRowsTest, AreFoundAsHoldersOfTheirKeysAfterAFurtherOpen) {
  Start();
  Reopen();
  const RowKey mine = Rows().At(Mine).Key;
  const HotkeyNotation notation;
  EXPECT_EQ(Rows().HoldersOf(L"Alt + F5", notation).Currents, std::vector{mine});
  Editor.Work(&CommandList::SelectRow, std::size_t{Mine});
  Editor.Work(&HotkeyPanel::Delete);
  EXPECT_TRUE(Rows().HoldersOf(L"Alt + F5", notation).Currents.empty());
  Assign(Mine, L"X");
  EXPECT_EQ(Rows().HoldersOf(L"X", notation).Currents, std::vector{mine});
  Editor.Work(&CommandList::Undo);
  Editor.Work(&CommandList::Undo);
  EXPECT_EQ(Keys(Mine), L"Alt + F5");
  EXPECT_EQ(Rows().HoldersOf(L"Alt + F5", notation).Currents, std::vector{mine});
}

TEST_F(UserRowsTest, AreSavedAsTheyWereReadWhateverElseChanges) {
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nX=cm_Pack\r\nA+F5=em_Mine\r\n");
  Reopen();
  Assign(View, L"Y");
  Editor.FileSave();
  EXPECT_NE(Ini().find("A+F5=em_Mine\r\n"), std::string::npos);
  EXPECT_FALSE(Files.Contents.contains(IniFile + L".dropped"));
}

TEST_F(UserRowsTest, AreSortedWithTheOthers) {
  Start();
  Editor.Work(&CommandList::ToggleSortedList);
  Editor.Work(&CommandList::SortByColumn, 2);
  ASSERT_EQ(Rows().Count(), 5U);
  Reopen();
  ASSERT_EQ(Rows().Count(), 5U) << "headings are left out";
  std::set<std::wstring> names;
  for (std::size_t row = 0; row < Rows().Count(); ++row) {
    names.emplace(Rows().At(row).CommandName);
    EXPECT_EQ(Rows().PositionOf(Rows().At(row).Key), row);
  }
  EXPECT_TRUE(names.contains(L"em_Mine"));
  EXPECT_FALSE(Rows().PositionOf(OwnHeading + 1)) << "a row of the first open";
  EXPECT_FALSE(Rows().PositionOf(100));
}

TEST_F(UserRowsTest, KeepTheKeyThatAnEditGaveThemAtAFurtherOpen) {
  Start();
  // The default alone is asked about, so that both rows hold the key.
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Assign(Mine, L"F3");
  Editor.FileSave();
  Ini() = "[Shortcuts]\r\nF3=em_Mine\r\n";
  Reopen();
  EXPECT_EQ(Keys(Copy), L"F3");
  EXPECT_EQ(Keys(Mine), L"F3");
  Editor.Work(&CommandList::ToggleSortedList);
  Editor.Work(&CommandList::SelectRow, std::size_t{0});
  Compose(7, L"Z");
  Editor.Work(&HotkeyPanel::Assign);
  Editor.FileSave();
  EXPECT_NE(Ini().find("F3=em_Mine\r\n"), std::string::npos) << Ini();
}

// -- Lines of commands without a row

TEST_F(UserRowsTest, LinesOfOwnCommandsWithoutARowAreKept) {
  const std::string lines = "A+F6=em_gone\r\nF8=EM_other\r\n";
  for (const bool isGone : {true, false}) {
    if (isGone) {
      Files.Contents.erase(UserFile);
    } else {
      UserCommands() = std::string(5 << 20, ' ');
    }
    Ini() = "[Shortcuts]\r\nF3=cm_Copy\r\n" + lines + "F9=cm_Exit 1\r\n";
    tessera::Editor editor(Seams, [](const LoadProgress&) {});
    editor.Load();
    editor.Activate();
    editor.Work(&CommandList::SelectRow, std::size_t{Copy});
    editor.Work(&HotkeyPanel::Delete);
    editor.FileSave();
    EXPECT_FALSE(editor.Document().Modified());
    EXPECT_EQ(Ini(), "[Shortcuts]\r\n" + lines);
    EXPECT_TRUE(Files.Contents[IniFile + L".dropped"].ends_with("\r\nF9=cm_Exit 1\r\n"));
  }
}

TEST_F(UserRowsTest, WithoutTheSettingTheyAreDropped) {
  StoredSettings() = "";
  Start();
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Ini(), "[Shortcuts]\r\nF3=cm_Copy\r\nX=cm_Pack\r\n");
  EXPECT_TRUE(Files.Contents[IniFile + L".dropped"].ends_with("\r\nA+F5=em_mine\r\n"));
}

TEST_F(UserRowsTest, TheirTextsLiveAsLongAsTheyAreShown) {
  Start();
  std::wstring shown;
  Clock.OnDoEvents = [&] {
    for (std::size_t row = 0; row < Rows().Count(); ++row) shown = Rows().At(row).Description;
  };
  UserCommands() = "[em_Next]\r\nmenu=" + std::string(2000, 'n') + "\r\n";
  Reopen();
  EXPECT_EQ(shown.size(), 9U) << "events came while the former rows were shown";
  EXPECT_EQ(Rows().At(Mine).Description.size(), 2000U);
}

TEST_F(UserRowsTest, AreNotToldOfOnceTheyAreGone) {
  std::wstring told;
  bool isLoaded = false;
  tessera::Editor editor(Seams, [&](const LoadProgress&) {
    if (isLoaded) told = StatusText(editor);
  });
  editor.Load();
  editor.Activate();
  editor.Work(&CommandList::SelectRow, std::size_t{Mine});
  editor.Work(&HotkeyPanel::Delete);
  isLoaded = true;
  EXPECT_NE(StatusText(editor).find(L"em_Mine"), std::wstring::npos);
  UserCommands().clear();
  MessageBoxes.Answers = {BoxAnswer::No};
  editor.OpenShortcutFile(false, IniFile, false);
  EXPECT_EQ(told.find(L"em_Mine"), std::wstring::npos);
}

TEST_F(UserRowsTest, ThousandsOfCommandsAreRowsLikeAny) {
  constexpr std::size_t Count = 5000;
  UserCommands().clear();
  for (std::size_t command = 0; command < Count; ++command) {
    UserCommands() += "[em_" + std::to_string(command) + "]\r\nmenu=x\r\n";
  }
  Start();
  Reopen();
  ASSERT_EQ(Rows().Count(), 6 + Count);
  EXPECT_EQ(Rows().PositionOf(Rows().At(5 + Count).Key), 5 + Count);
  Assign(5 + Count, L"X");
  Editor.FileSave();
  EXPECT_NE(Ini().find("X=em_4999\r\n"), std::string::npos);
}

}  // namespace
}  // namespace tessera::user_commands_test
