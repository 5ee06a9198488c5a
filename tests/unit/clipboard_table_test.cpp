#include <gtest/gtest.h>

#include "export/ClipboardTable.h"
#include "tests/support/Kept.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::clipboard_table_test {
namespace {

constexpr ExportColumns CommandAndKeys{false, true, true, true};
constexpr ExportColumns AllOfThem{true, true, true, true};

const std::wstring WarningBlock =
    L"\r\n\r\n\r\n\r\n"
    L"=================\r\n"
    L"=   Important   =\r\n"
    L"=================\r\n"
    L"Hotkeys in this list has not saved yet to your Total Commander configuration file.\r\n";

/// The rows of commands with the given texts, keys 1, 2 and so on.
DisplayTable TableOf(const std::vector<std::array<std::wstring, 4>>& texts) {
  std::vector<CommandEntry> rows;
  for (const auto& [description, command, defaults, current] : texts) {
    CommandEntry row;
    row.Key = rows.size() + 1;
    row.Description = Kept(description);
    row.CommandName = Kept(command);
    row.DefaultKeys = defaults;
    row.CurrentKeys = current;
    rows.push_back(row);
  }
  DisplayTable table;
  table.Fill(rows);
  return table;
}

class ClipboardTableTest : public testing::Test {
 protected:
  std::wstring Build(const DisplayTable& rows, const ExportColumns& columns) const {
    return BuildExportText(rows, columns, texts_, L"---");
  }

  MemoryFiles files_;
  Texts texts_{files_};
};

TEST_F(ClipboardTableTest, AWidthIsThatOfTheLongestCommandsCell) {
  const Catalogue catalogue = SampleCatalogue();
  EXPECT_EQ(ColumnMaxLength(catalogue.ListView1, Column::Description), 19U);
  EXPECT_EQ(ColumnMaxLength(catalogue.ListView1, Column::Command), 10U);
  EXPECT_EQ(ColumnMaxLength(catalogue.ListView1, Column::Defaults), 13U);
  EXPECT_EQ(ColumnMaxLength(catalogue.ListView1, Column::Current), 7U);
}

TEST_F(ClipboardTableTest, HeadingRowsHaveNoWidth) {
  CommandEntry heading;
  heading.Key = 1;
  heading.Description = L"[___A long heading___]";
  heading.Tag = CommentBlockTag;
  DisplayTable table;
  table.Fill({heading});
  EXPECT_EQ(ColumnMaxLength(table, Column::Description), 0U);
}

TEST_F(ClipboardTableTest, TheDefaultColumnsAreCommandAndKeys) {
  const std::wstring heading = L"Command   \tDefault Hotke\tCurrent Hotkey\t\r\n";
  EXPECT_EQ(Build(SampleCatalogue().ListView1, CommandAndKeys),
            heading + std::wstring(heading.size() + 2, L'=') +
                L"\r\n"
                L"cm_Copy   \tF5           \t---    \t\r\n"
                L"cm_View   \t---          \tF6     \t\r\n"
                L"cm_Refresh\tF2 = Ctrl + R\tF7 = F8\t\r\n"
                L"cm_Search \tF9 *         \t---    \t\r\n"
                L"cm_Sync   \t---          \tF9     \t\r\n");
}

TEST_F(ClipboardTableTest, TheRuleIsFourLongerThanTheHeadingLine) {
  // Ten letters of the command and a TAB, and the whole heading of the keys and a TAB.
  const std::wstring text =
      Build(TableOf({{L"", L"cm_Command", L"", L"F1"}}), {false, true, false, true});
  EXPECT_EQ(text, L"Command   \tCurrent Hotkey\t\r\n" + std::wstring(30, L'=') +
                      L"\r\ncm_Command\tF1\t\r\n");
}

TEST_F(ClipboardTableTest, OnlyAKeyInAChosenKeyColumnExportsARow) {
  const DisplayTable rows = TableOf({{L"a", L"both", L"F1", L"F2"},
                                     {L"b", L"default", L"F3", L"---"},
                                     {L"c", L"current", L"---", L"F4"},
                                     {L"d", L"neither", L"---", L"---"}});
  const auto exports = [&](const ExportColumns& columns, const wchar_t* command) {
    return Build(rows, columns).find(std::wstring(L"\n") + command) != std::wstring::npos;
  };
  struct Case {
    const wchar_t* Command;
    bool ByDefaults, ByCurrent, ByBoth;
  };
  for (const Case& example :
       {Case{L"both", true, true, true}, Case{L"default", true, false, true},
        Case{L"current", false, true, true}, Case{L"neither", false, false, false}}) {
    EXPECT_EQ(exports({false, true, true, false}, example.Command), example.ByDefaults);
    EXPECT_EQ(exports({false, true, false, true}, example.Command), example.ByCurrent);
    EXPECT_EQ(exports({false, true, true, true}, example.Command), example.ByBoth);
  }
}

TEST_F(ClipboardTableTest, TheUndefinedMarkerIsComparedInItsLetterCase) {
  const DisplayTable rows = TableOf({{L"a", L"cm_A", L"None", L"none"}});
  EXPECT_EQ(BuildExportText(rows, {false, true, false, true}, texts_, L"none"),
            L"Comm\tCurrent Hotkey\t\r\n" + std::wstring(24, L'=') + L"\r\n");
  EXPECT_EQ(BuildExportText(rows, {false, true, true, false}, texts_, L"none"),
            L"Comm\tDefa\t\r\n" + std::wstring(14, L'=') + L"\r\ncm_A\tNone\t\r\n");
}

TEST_F(ClipboardTableTest, WithoutAnyKeyThereAreOnlyTheHeadingAndTheRule) {
  EXPECT_EQ(Build(TableOf({{L"Text", L"cm_Text", L"---", L"---"}}), CommandAndKeys),
            L"Command\tDef\tCurrent Hotkey\t\r\n" + std::wstring(31, L'=') + L"\r\n");
}

TEST_F(ClipboardTableTest, HeadingsAreCutToTheirColumnExceptTheLastOne) {
  EXPECT_EQ(Build(TableOf({{L"Desc", L"cm", L"F1", L"F2"}}), AllOfThem),
            L"Desc\tCo\tDe\tCurrent Hotkey\t\r\n" + std::wstring(30, L'=') +
                L"\r\nDesc\tcm\tF1\tF2\t\r\n");
}

TEST_F(ClipboardTableTest, TheLastHeadingIsNotPaddedToItsColumn) {
  EXPECT_EQ(Build(TableOf({{L"", L"cm_A", L"---", L"Ctrl + Alt + Shift + F12"}}),
                  {false, true, false, true}),
            L"Comm\tCurrent Hotkey\t\r\n" + std::wstring(24, L'=') +
                L"\r\ncm_A\tCtrl + Alt + Shift + F12\t\r\n");
}

TEST_F(ClipboardTableTest, AnEmptyListGivesTabsAndTheWholeLastHeading) {
  EXPECT_EQ(Build({}, AllOfThem), L"\t\t\tCurrent Hotkey\t\r\n" + std::wstring(22, L'=') + L"\r\n");
  EXPECT_EQ(Build({}, {true, true, true, false}), L"\t\t\t\r\n" + std::wstring(7, L'=') + L"\r\n");
}

TEST_F(ClipboardTableTest, HeadingsComeFromTheLanguageInUse) {
  files_.Contents[L"C:\\x.lng"] = "[UserLanguage]\r\n3004=Befehl\r\n3201=Tasten\r\n";
  ASSERT_TRUE(texts_.UseLanguageFile(L"C:\\x.lng"));
  EXPECT_EQ(Build(TableOf({{L"", L"cm", L"", L"F2"}}), {false, true, false, true}),
            L"Be\tTasten\t\r\n" + std::wstring(14, L'=') + L"\r\ncm\tF2\t\r\n");
}

TEST_F(ClipboardTableTest, RowsComeInTheOrderOfTheListAndHeadingRowsNever) {
  Catalogue catalogue = SampleCatalogue();
  catalogue.ListView1.RemoveHeadings();
  catalogue.ListView1.Sort(Column::Command, SortDirection::Descending);
  const std::wstring text = Build(catalogue.ListView1, {false, true, false, true});
  EXPECT_NE(text.find(L"\r\ncm_View   \tF6     \t\r\ncm_Sync   \tF9     \t\r\ncm_Refresh\t"),
            std::wstring::npos);
  EXPECT_EQ(Build(SampleCatalogue().ListView1, AllOfThem).find(L"Group"), std::wstring::npos);
}

// -- What follows the table

TEST_F(ClipboardTableTest, OneLineBreakEndsATableWithNothingBehindIt) {
  EXPECT_EQ(BuildExportEnding({}, false, texts_), L"\r\n");
}

TEST_F(ClipboardTableTest, StartMenuKeysFollowInTheOrderOfTheirSlots) {
  StartMenuKeyTable keys;
  keys[23] = {L"Ctrl + Alt + Shift + F12", L"Last", L"key2"};
  keys[0] = {L"Ctrl + Alt + F1", L"First", L"key1"};
  EXPECT_EQ(BuildExportEnding(keys, false, texts_),
            L"\r\n\r\n"
            L"Total Commander Start Menu shortcuts:\r\n"
            L"=====================================\r\n"
            L"First\tCtrl + Alt + F1\r\n"
            L"Last\tCtrl + Alt + Shift + F12\r\n");
}

TEST_F(ClipboardTableTest, AStartMenuEntryWithoutAKeyIsNotExported) {
  StartMenuKeyTable keys;
  keys[1] = {L"", L"No key", L"key2"};
  EXPECT_EQ(BuildExportEnding(keys, false, texts_), L"\r\n");
  keys[0] = {L"Ctrl + Alt + F1 *", L"Taken away", L"key1"};
  const std::wstring text = BuildExportEnding(keys, false, texts_);
  EXPECT_TRUE(text.ends_with(L"=\r\nTaken away\tCtrl + Alt + F1 *\r\n"));
  EXPECT_EQ(text.find(L"No key"), std::wstring::npos);
}

TEST_F(ClipboardTableTest, UnsavedChangesAddAFramedWarning) {
  EXPECT_EQ(BuildExportEnding({}, true, texts_), L"\r\n" + WarningBlock);
  StartMenuKeyTable keys;
  keys[0] = {L"Ctrl + Alt + F1", L"First", L"key1"};
  EXPECT_TRUE(BuildExportEnding(keys, true, texts_)
                  .ends_with(L"First\tCtrl + Alt + F1\r\n" + WarningBlock));
}

TEST_F(ClipboardTableTest, TheFrameFitsATranslatedWarning) {
  files_.Contents[L"C:\\x.lng"] = "[UserLanguage]\r\n3208=Oh\r\n3209=Save!\r\n";
  ASSERT_TRUE(texts_.UseLanguageFile(L"C:\\x.lng"));
  EXPECT_EQ(BuildExportEnding({}, true, texts_),
            L"\r\n\r\n\r\n\r\n\r\n==========\r\n=   Oh   =\r\n==========\r\nSave!\r\n");
}

}  // namespace
}  // namespace tessera::clipboard_table_test
