// Finding the row that a value names: as a search of all rows from the first would.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "shortcuts/CommandFinder.h"
#include "tests/support/Kept.h"
#include "text/Text.h"

namespace tessera::command_finder_test {
namespace {

CommandEntry Command(const std::wstring& name, const std::wstring& code,
                     const std::wstring& defaults = L"---", const std::wstring& current = L"---") {
  CommandEntry row;
  row.Description = L"text";
  row.CommandName = Kept(name);
  row.CommandCode = Kept(code);
  row.DefaultKeys = defaults;
  row.CurrentKeys = current;
  row.Tag = row.CommandCode;
  return row;
}

/// Lines with each of `values`, all of which a finder can then look up.
std::vector<std::pair<std::wstring, std::wstring>> LinesOf(
    const std::vector<std::wstring>& values) {
  std::vector<std::pair<std::wstring, std::wstring>> lines;
  for (const std::wstring& value : values) lines.emplace_back(L"F1", value);
  return lines;
}

TEST(CommandFinder, FindsNameCodeAndKeysWithoutRegardToLetterCase) {
  const std::vector<CommandEntry> rows{Command(L"cm_A", L"1", L"F1", L"---"),
                                       Command(L"cm_B", L"2", L"---", L"Ctrl + F2 = F3")};
  const auto lines = LinesOf({L"CM_b", L"1", L"f1", L"ctrl + f2 = f3", L"---"});
  const CommandFinder finder(rows, lines);
  EXPECT_EQ(finder.Find(L"CM_b"), 1u);
  EXPECT_EQ(finder.Find(L"1"), 0u);
  EXPECT_EQ(finder.Find(L"f1"), 0u);
  EXPECT_EQ(finder.Find(L"ctrl + f2 = f3"), 1u);
  EXPECT_EQ(finder.Find(L"---"), 0u);
}

TEST(CommandFinder, MatchesNothingButWholeTexts) {
  const std::vector<CommandEntry> rows{Command(L"cm_A", L"12")};
  for (const wchar_t* value : {L"cm_", L"cm_AB", L"1", L"text", L"cm_A ", L"cm_A 1"}) {
    const auto lines = LinesOf({value});
    EXPECT_EQ(CommandFinder(rows, lines).Find(value), std::nullopt) << value;
  }
}

TEST(CommandFinder, AnEmptyValueNamesNoRow) {
  CommandEntry heading;
  heading.Description = L"[File]";
  heading.Tag = CommentBlockTag;
  const std::vector<CommandEntry> rows{heading, Command(L"cm_A", L"")};
  const auto lines = LinesOf({L"", L"[File]"});
  const CommandFinder finder(rows, lines);
  EXPECT_EQ(finder.Find(L""), std::nullopt);
  EXPECT_EQ(finder.Find(L"[File]"), std::nullopt);
}

TEST(CommandFinder, TheFirstOfSeveralRowsWins) {
  const std::vector<CommandEntry> rows{Command(L"cm_A", L"7"), Command(L"7", L"cm_a"),
                                       Command(L"cm_A", L"7")};
  const auto lines = LinesOf({L"7", L"cm_a"});
  const CommandFinder finder(rows, lines);
  EXPECT_EQ(finder.Find(L"7"), 0u);
  EXPECT_EQ(finder.Find(L"cm_a"), 0u);
}

std::optional<std::size_t> SearchFromFront(const std::vector<CommandEntry>& rows,
                                           const std::wstring& value) {
  if (value.empty()) return std::nullopt;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (const std::wstring_view text :
         {rows[row].CommandName, rows[row].CommandCode, std::wstring_view(rows[row].DefaultKeys),
          std::wstring_view(rows[row].CurrentKeys)}) {
      if (EqualIgnoringCase(text, value)) return row;
    }
  }
  return std::nullopt;
}

TEST(CommandFinder, FollowsEveryChangeOfCurrentKeys) {
  std::mt19937 random(3);
  const std::vector<std::wstring> texts{L"",  L"---", L"F1", L"f1", L"F2", L"cm_A",
                                        L"é", L"É",   L"1",  L"2",  L"F3", L"F4"};
  const auto text = [&] { return texts[random() % texts.size()]; };
  std::vector<CommandEntry> rows;
  for (int row = 0; row < 12; ++row) rows.push_back(Command(text(), text(), text(), text()));
  const auto lines = LinesOf(texts);
  CommandFinder finder(rows, lines);
  for (int change = 0; change < 2000; ++change) {
    const std::size_t row = random() % rows.size();
    finder.RemoveCurrentKeys(row, rows[row].CurrentKeys);
    rows[row].CurrentKeys = text();
    finder.AddCurrentKeys(row, rows[row].CurrentKeys);
    const std::wstring value = text();
    ASSERT_EQ(finder.Find(value), SearchFromFront(rows, value)) << change;
  }
}

}  // namespace
}  // namespace tessera::command_finder_test
