// The words of a search, and the rows in which they stand.
#include <gtest/gtest.h>

#include "editing/RowSearch.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::row_search_test {
namespace {

using namespace sample;
using Words = std::vector<std::wstring>;

TEST(WordsOf, AreDividedByBlanksInOneLetterCase) {
  EXPECT_EQ(WordsOf(L"copy"), Words({L"COPY"}));
  EXPECT_EQ(WordsOf(L"  Copy   fILE "), Words({L"COPY", L"FILE"}));
  EXPECT_EQ(WordsOf(L"größe"), Words({L"GRÖßE"}));
}

TEST(WordsOf, AnEmptyTextAndBlanksHaveNone) {
  EXPECT_EQ(WordsOf(L""), Words());
  EXPECT_EQ(WordsOf(L"   "), Words());
}

TEST(WordsOf, BlanksAroundAPlusJoin) {
  EXPECT_EQ(WordsOf(L"ctrl + f3"), Words({L"CTRL+F3"}));
  EXPECT_EQ(WordsOf(L"ctrl+ f3 x"), Words({L"CTRL+F3", L"X"}));
  EXPECT_EQ(WordsOf(L" + "), Words({L"+"}));
  EXPECT_EQ(WordsOf(L"a + + b"), Words({L"A++B"}));
}

class RowSearchTest : public testing::Test {
 protected:
  std::vector<RowKey> Find(std::wstring_view text) {
    const std::vector<bool> matches = search_.Match(catalogue_.ListView1, WordsOf(text));
    std::vector<RowKey> found;
    for (std::size_t row = 0; row < matches.size(); ++row) {
      if (matches[row]) found.push_back(row + 1);
    }
    return found;
  }

  Catalogue catalogue_ = SampleCatalogue();
  RowSearch search_;
};

using Rows = std::vector<RowKey>;

TEST_F(RowSearchTest, FindsInEveryText) {
  EXPECT_EQ(Find(L"pack desc"), Rows({Pack}));
  EXPECT_EQ(Find(L"CM_VIEW"), Rows({View}));
  EXPECT_EQ(Find(L"105"), Rows({Refresh})) << "by its code";
  EXPECT_EQ(Find(L"ctrl+r"), Rows({Refresh})) << "by a default key";
  EXPECT_EQ(Find(L"f7"), Rows({Refresh})) << "by a current key";
}

TEST_F(RowSearchTest, FindsOverriddenDefaultsToo) { EXPECT_EQ(Find(L"f9"), Rows({Search, Sync})); }

TEST_F(RowSearchTest, EveryWordMustStandSomewhere) {
  EXPECT_EQ(Find(L"f8 refresh 105"), Rows({Refresh}));
  EXPECT_EQ(Find(L"f8 pack"), Rows());
}

TEST_F(RowSearchTest, AWordStandsInOneTextAlone) {
  EXPECT_EQ(Find(L"descriptioncm_"), Rows());
  EXPECT_EQ(Find(L"---f6"), Rows());
}

TEST_F(RowSearchTest, HeadingsDoNotMatch) {
  EXPECT_EQ(Find(L"group"), Rows());
  EXPECT_EQ(Find(L"comment"), Rows());
}

TEST_F(RowSearchTest, SeesWhatWasEditedSinceTheLastQuestion) {
  EXPECT_EQ(Find(L"f12"), Rows());
  catalogue_.ListView1.Edit(Pack).CurrentKeys = L"Shift + F12";
  EXPECT_EQ(Find(L"f12"), Rows({Pack}));
}

TEST_F(RowSearchTest, AnEmptyTableHasNothing) {
  const DisplayTable empty;
  EXPECT_TRUE(RowSearch().Match(empty, {L"X"}).empty());
}

TEST_F(RowSearchTest, TakesTextsOfAnyKind) {
  const std::wstring odd[] = {L"&",
                              L"&&",
                              std::wstring(5000, L'x'),
                              std::wstring(2500, L' ') + std::wstring(2500, L'+'),
                              {wchar_t{0xD83D}},
                              {wchar_t{0xDE00}, L' ', wchar_t{0xD83D}},
                              L"\x01 \x1F\t\x7F",
                              L"\x200F\x202E",
                              {L'\0', L'x'}};
  for (const std::wstring& text : odd) EXPECT_EQ(Find(text), Rows()) << text.size();
  const std::wstring mixed = {L'&', wchar_t{0x200F}, wchar_t{0xD83D}, L'\x01'};
  catalogue_.ListView1.Edit(Pack).CurrentKeys = L"x" + mixed;
  EXPECT_EQ(Find(mixed), Rows({Pack})) << "they are looked for as they stand";
  EXPECT_EQ(Find(std::wstring(5000, L' ') + L"x&"), Rows({Pack}));
}

}  // namespace
}  // namespace tessera::row_search_test
