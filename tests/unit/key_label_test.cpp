// Names on drawn keys.
#include <gtest/gtest.h>

#include "export/KeyLabel.h"
#include "text/Utf8.h"

namespace tessera::key_label_test {
namespace {

using Lines = std::vector<std::wstring>;

constexpr LabelRoom Room{520, 3};

TEST(KeyLabel, IsANameWithoutItsPrefix) {
  EXPECT_EQ(LabelLines(L"cm_Copy", Room), Lines{L"Copy"});
  EXPECT_EQ(LabelLines(L"EM_copy", Room), Lines{L"copy"});
  EXPECT_EQ(LabelLines(L"cm_", Room), Lines{L"cm_"});
  EXPECT_EQ(LabelLines(L"Pack", Room), Lines{L"Pack"});
}

TEST(KeyLabel, IsPartedWhereWordsBegin) {
  EXPECT_EQ(LabelLines(L"cm_RenameSingleFile", Room), (Lines{L"Rename", L"SingleFile"}));
  EXPECT_EQ(LabelLines(L"cm_CRCcreate", Room), (Lines{L"CRCcreate"}));
  EXPECT_EQ(LabelLines(L"cm_EditHTMLSource", Room), (Lines{L"EditHTML", L"Source"}));
  EXPECT_EQ(LabelLines(L"cm_SrcActivateTab10", Room), (Lines{L"Src", L"Activate", L"Tab10"}));
  EXPECT_EQ(LabelLines(L"Backup to drive E", Room), (Lines{L"Backup to", L"drive E"}));
}

TEST(KeyLabel, FitsItsRoom) {
  EXPECT_EQ(LabelLines(L"cm_OneTwoThreeFourFiveSixSeven", {300, 2}), (Lines{L"One", L"Tw\x2026"}));
  EXPECT_EQ(LabelLines(L"cm_abcdefghijklmnop", {300, 3}), Lines{L"abc\x2026"});
  EXPECT_EQ(LabelLines(std::wstring(4000, L'x'), Room).size(), 1U);
  EXPECT_EQ(LabelLines(L"cm_Copy", {520, 0}), Lines{});
}

TEST(KeyLabel, HasWordsWhereCapitalsNumbersAndSignsAre) {
  // Each word has a line of its own, and a longer one is cut.
  constexpr LabelRoom OneWord{300, 3};
  const struct {
    const wchar_t* Name;
    Lines Words;
  } cases[] = {{L"abcdAbcd", {L"abcd", L"Abcd"}},
               {L"abcdZbcd", {L"abcd", L"Zbcd"}},
               {L"abcd@bcd", {L"abc\x2026"}},
               {L"abcd[bcd", {L"abc\x2026"}},
               {L"abcd0bcd", {L"abcd", L"0bcd"}},
               {L"abcd9bcd", {L"abcd", L"9bcd"}},
               {L"abcd/bcd", {L"abc\x2026"}},
               {L"abcd:bcd", {L"abc\x2026"}},
               {L"123456", {L"123\x2026"}},
               {L"abcd bcd", {L"abcd", L"bcd"}},
               {L"abcd_bcd", {L"abcd_", L"bcd"}},
               {L"abcd-bcd", {L"abcd-", L"bcd"}},
               {L"abcdABC", {L"abcd", L"ABC"}},
               {L"ABCDE", {L"AB\x2026"}},
               {L"ABCDEfg", {L"ABCD", L"Efg"}},
               {L"ABCDE fg", {L"AB\x2026", L"fg"}},
               {L"abcd\x2E80", {L"abcd", L"\x2E80"}},
               {L"abcd\x2E7F", {L"abc\x2026"}},
               {L"abcd ab cd abcd", {L"abcd", L"ab cd", L"abcd"}}};
  for (const auto& [name, words] : cases) EXPECT_EQ(LabelLines(name, OneWord), words);
}

TEST(KeyLabel, IsWholeWhereItIsAsWideAsItsRoom) {
  const struct {
    std::wstring Name;
    int Width;
  } cases[] = {{L"aaaa", 236},         {L"AAAA", 280},         {L"ZZZZ", 280},
               {L"iiii", 144},         {L"mmmm", 368},         {L"\xE4\xF6", 118},
               {L"\x10FF\x10FF", 118}, {L"\x1100\x1100", 200}, {{0xD83D, 0xDFFF}, 100}};
  for (const auto& [name, width] : cases) {
    EXPECT_EQ(LabelLines(name, {width, 1}), Lines{name});
    EXPECT_NE(LabelLines(name, {width - 1, 1}), Lines{name}) << width;
  }
}

TEST(KeyLabel, IsCutNoFurtherThanThereIsRoomForTheDots) {
  EXPECT_EQ(LabelLines(L"abcdefgh", {277, 1}), Lines{L"abc\x2026"});
  EXPECT_EQ(LabelLines(L"abcdefgh", {276, 1}), Lines{L"ab\x2026"});
  EXPECT_EQ(LabelLines(L"abcdefgh", {50, 1}), Lines{L"\x2026"});
  const std::wstring halfAPair(1, wchar_t{0xDC00});
  EXPECT_EQ(LabelLines(halfAPair + L" abcd", {50, 1}), Lines{L"\x2026"});
}

TEST(KeyLabel, IsNothingForNothing) {
  EXPECT_EQ(LabelLines(L"", Room), Lines{});
  EXPECT_EQ(LabelLines(L"  \t", Room), Lines{});
}

TEST(KeyLabel, PartsWhatIsWrittenWithoutBlanksAnywhere) {
  EXPECT_EQ(LabelLines(L"\x65E5\x672C\x8A9E\x65E5\x672C\x8A9E", {300, 3}),
            (Lines{L"\x65E5\x672C\x8A9E", L"\x65E5\x672C\x8A9E"}));
}

TEST(KeyLabel, CutsNoCharacterInTwo) {
  const std::wstring keys = WideFromUtf8("\xF0\x9F\x94\x91\xF0\x9F\x94\x91\xF0\x9F\x94\x91");
  for (const std::wstring& line : LabelLines(keys, {250, 1})) {
    EXPECT_EQ(line, WideFromUtf8("\xF0\x9F\x94\x91\xE2\x80\xA6"));
  }
}

}  // namespace
}  // namespace tessera::key_label_test
