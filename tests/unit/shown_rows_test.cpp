// What is shown of the displayed table, also against the plainest way to search it.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "editing/ShownRows.h"
#include "tests/unit/rounds.h"
#include "tests/unit/sample_catalogue.h"
#include "text/Text.h"

namespace tessera::shown_rows_test {
namespace {

using namespace sample;
using Rows = std::vector<RowKey>;

Rows KeysOf(const ShownRows& shown) {
  Rows keys;
  for (std::size_t position = 0; position < shown.Count(); ++position) {
    keys.push_back(shown.At(position).Key);
  }
  return keys;
}

class ShownRowsTest : public testing::Test {
 protected:
  Catalogue catalogue_ = SampleCatalogue();
  ShownRows shown_{catalogue_.ListView1};
};

TEST_F(ShownRowsTest, WithoutASearchAllRowsAreShown) {
  EXPECT_EQ(KeysOf(shown_), Rows({1, 2, 3, 4, 5, 6, 7}));
  EXPECT_FALSE(shown_.Searching());
  EXPECT_EQ(shown_.FoundCount(), 0U);
  EXPECT_EQ(shown_.PositionOf(Pack), 3U);
}

TEST_F(ShownRowsTest, ASearchShowsWhatItFoundBelowItsHeading) {
  shown_.Search(L"f9");
  EXPECT_EQ(KeysOf(shown_), Rows({Heading, Search, Sync}));
  EXPECT_EQ(shown_.FoundCount(), 2U);
  EXPECT_TRUE(shown_.Searching());
  EXPECT_EQ(shown_.SearchText(), L"f9");
}

TEST_F(ShownRowsTest, PositionsAreThoseOfWhatIsShown) {
  shown_.Search(L"f9");
  EXPECT_EQ(shown_.PositionOf(Heading), 0U);
  EXPECT_EQ(shown_.PositionOf(Sync), 2U);
  EXPECT_EQ(shown_.PositionOf(Pack), std::nullopt);
  EXPECT_EQ(shown_.PositionOf(0), std::nullopt);
  EXPECT_EQ(shown_.PositionOf(8), std::nullopt);
}

TEST_F(ShownRowsTest, WhatIsFoundNowhereShowsNothing) {
  shown_.Search(L"f9 f8");
  EXPECT_EQ(shown_.Count(), 0U);
  EXPECT_EQ(shown_.FoundCount(), 0U);
  EXPECT_TRUE(shown_.Searching());
}

TEST_F(ShownRowsTest, BlanksAndAnEmptyTextShowAll) {
  shown_.Search(L"f9");
  shown_.Search(L"  ");
  EXPECT_EQ(shown_.Count(), 7U);
  EXPECT_EQ(shown_.SearchText(), L"  ");
  shown_.Search(L"f9");
  shown_.Search(L"");
  EXPECT_EQ(shown_.Count(), 7U);
  EXPECT_EQ(shown_.FoundCount(), 0U);
}

TEST_F(ShownRowsTest, AnEditHidesNoRowBeforeTheNextSearch) {
  shown_.Search(L"f6");
  ASSERT_EQ(KeysOf(shown_), Rows({Heading, View}));
  catalogue_.ListView1.Edit(View).CurrentKeys = L"---";
  EXPECT_EQ(KeysOf(shown_), Rows({Heading, View}));
  shown_.Refresh();
  EXPECT_EQ(shown_.Count(), 0U);
}

TEST_F(ShownRowsTest, FollowsTheOrderOfTheTable) {
  shown_.Search(L"f9");
  catalogue_.ListView1.RemoveHeadings();
  catalogue_.ListView1.Sort(Column::Command, SortDirection::Descending);
  shown_.Refresh();
  EXPECT_EQ(KeysOf(shown_), Rows({Sync, Search}));
}

/// The rule in its plainest words.
bool Matches(const CommandEntry& row, const std::wstring& text) {
  const auto joined = [](std::wstring_view from) {
    std::wstring to = ToUpper(from);
    for (const wchar_t* const blank : {L" +", L"+ "}) {
      for (auto at = to.find(blank); at != to.npos; at = to.find(blank)) to.replace(at, 2, L"+");
    }
    return to;
  };
  std::vector<std::wstring> words;
  std::wstring word;
  for (const wchar_t character : joined(text) + L" ") {
    if (character != L' ') {
      word += character;
    } else if (!word.empty()) {
      words.push_back(std::exchange(word, {}));
    }
  }
  const std::wstring texts[] = {joined(row.Description), joined(row.CommandName), joined(row.Tag),
                                joined(row.DefaultKeys), joined(row.CurrentKeys)};
  return !row.IsHeading() && std::ranges::all_of(words, [&](const std::wstring& each) {
    return std::ranges::any_of(
        texts, [&](const std::wstring& cell) { return cell.find(each) != cell.npos; });
  });
}

class RandomTexts {
 public:
  explicit RandomTexts(unsigned seed) : engine_(seed) {}

  std::size_t Below(std::size_t limit) { return engine_() % limit; }

  /// Few different characters, so that texts meet; some of them odd.
  std::wstring Text(std::size_t longest) {
    static const std::wstring Characters = L"abAB++  \u00E4\u00C4\u0130\u05D0\u200F\xD800&\t\x1";
    std::wstring text;
    for (std::size_t length = Below(longest + 1); length > 0; --length) {
      text += Characters[Below(Below(3) == 0 ? Characters.size() : 8)];
    }
    return text;
  }

 private:
  std::mt19937 engine_;
};

TEST(ShownRowsModel, ShowsWhatAPlainSearchFinds) {
  for (int seed = 0; seed < Rounds(100); ++seed) {
    RandomTexts texts(static_cast<unsigned>(seed));
    std::vector<CommandEntry> rows;
    for (std::size_t count = texts.Below(30); rows.size() < count;) {
      const RowKey key = rows.size() + 1;
      CommandEntry row = SampleCommand(key, texts.Text(4), texts.Text(8), texts.Text(8));
      row.Description = Kept(texts.Text(12));
      if (texts.Below(5) == 0) row.Tag = CommentBlockTag;
      rows.push_back(row);
    }
    DisplayTable table;
    table.Fill(rows);
    ShownRows shown(table);
    for (int search = 0; search < 20; ++search) {
      if (texts.Below(4) == 0 && !rows.empty()) {
        table.Edit(1 + texts.Below(rows.size())).CurrentKeys = texts.Text(8);
      }
      if (texts.Below(8) == 0) table.RemoveHeadings();
      if (texts.Below(8) == 0) table.RestoreFileOrder();
      if (texts.Below(8) == 0) table.Sort(Column::Description, SortDirection::Ascending);
      const std::wstring text = texts.Text(texts.Below(3) == 0 ? 5 : 2);
      shown.Search(text);
      Rows expected;
      const bool all = text.find_first_not_of(L' ') == text.npos;
      for (std::size_t position = 0; position < table.Count(); ++position) {
        const CommandEntry& row = table.At(position);
        bool isShown = all || Matches(row, text);
        for (std::size_t next = position + 1;
             row.IsHeading() && next < table.Count() && !table.At(next).IsHeading(); ++next) {
          isShown |= Matches(table.At(next), text);
        }
        if (isShown) expected.push_back(row.Key);
      }
      ASSERT_EQ(KeysOf(shown), expected) << "seed " << seed << ", search " << search;
    }
  }
}

}  // namespace
}  // namespace tessera::shown_rows_test
