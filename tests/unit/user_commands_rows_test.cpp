// The rows of the user's own commands are rows like any.
#include <cstddef>
#include <set>
#include <string>
#include <utility>

#include "app/StatusLine.h"
#include "tests/unit/user_rows.h"

namespace tessera::user_commands_rows_test {
namespace {

using namespace installation;
using namespace user_rows;

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
}  // namespace tessera::user_commands_rows_test
