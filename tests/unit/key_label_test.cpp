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
