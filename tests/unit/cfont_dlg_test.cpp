// The font description, to the system's record and back.
#include <gtest/gtest.h>

#include "dialogs/cFontDlg.h"
#include "tests/support/FakeDialogs.h"

namespace tessera::cfont_dlg_test {
namespace {

class cFontDlgTest : public testing::Test {
 protected:
  /// Shows the dialog and answers with that record.
  void Choose(const FontRecord& record) {
    dialogs_.FontAnswers = {record};
    EXPECT_TRUE(dialog_.ShowFont());
  }

  FakeDialogs dialogs_;
  cFontDlg dialog_{dialogs_};
};

TEST_F(cFontDlgTest, RecordIsBuiltFromTheDescription) {
  dialog_.FaceName = L"Courier New";
  dialog_.Size = 12;
  dialog_.FontStyle = cFontDlg::Bold | cFontDlg::StrikeOut;
  dialog_.Script = 238;
  EXPECT_FALSE(dialog_.ShowFont());
  const FontRecord& record = dialogs_.FontRequests.at(0);
  EXPECT_EQ(record.FaceName, L"Courier New");
  EXPECT_EQ(record.Weight, 700);
  EXPECT_FALSE(record.Italic);
  EXPECT_TRUE(record.StrikeOut);
  EXPECT_FALSE(record.Underline);
  EXPECT_EQ(record.CharSet, 238);
  EXPECT_EQ(record.PitchAndFamily, 16);
  EXPECT_EQ(record.PointSizeInTenths, 120);
}

TEST_F(cFontDlgTest, ScriptIsAByteOfTheRecord) {
  const std::pair<int, int> cases[] = {{-1, 0}, {0, 0}, {254, 254}, {255, 255}, {256, 255}};
  for (const auto& [script, charSet] : cases) {
    dialog_.Script = script;
    EXPECT_FALSE(dialog_.ShowFont());
    EXPECT_EQ(dialogs_.FontRequests.back().CharSet, charSet) << script;
  }
}

TEST_F(cFontDlgTest, PlainDescriptionHasNormalWeight) {
  dialog_.FontStyle = cFontDlg::Italic | cFontDlg::Underline;
  EXPECT_FALSE(dialog_.ShowFont());
  EXPECT_EQ(dialogs_.FontRequests.at(0).Weight, 400);
  EXPECT_TRUE(dialogs_.FontRequests.at(0).Italic);
  EXPECT_TRUE(dialogs_.FontRequests.at(0).Underline);
}

TEST_F(cFontDlgTest, EachStyleIsOneFieldOfTheRecord) {
  constexpr int Styles[] = {0, cFontDlg::Bold, cFontDlg::Italic, cFontDlg::StrikeOut,
                            cFontDlg::Underline};
  for (const int style : Styles) {
    dialog_.FontStyle = style;
    EXPECT_FALSE(dialog_.ShowFont());
    const FontRecord record = dialogs_.FontRequests.back();
    EXPECT_EQ(record.Weight == 700, style == cFontDlg::Bold) << style;
    EXPECT_EQ(record.Italic, style == cFontDlg::Italic) << style;
    EXPECT_EQ(record.StrikeOut, style == cFontDlg::StrikeOut) << style;
    EXPECT_EQ(record.Underline, style == cFontDlg::Underline) << style;
    dialog_.FontStyle = -1;
    Choose(record);
    EXPECT_EQ(dialog_.FontStyle, style);
  }
}

TEST_F(cFontDlgTest, LongFaceNameIsCutTo31Characters) {
  dialog_.FaceName = std::wstring(40, L'x');
  EXPECT_FALSE(dialog_.ShowFont());
  EXPECT_EQ(dialogs_.FontRequests.at(0).FaceName, std::wstring(31, L'x'));
}

TEST_F(cFontDlgTest, CancelLeavesTheDescriptionAsItWas) {
  dialog_.FaceName = std::wstring(40, L'x');
  dialog_.Size = 11;
  EXPECT_FALSE(dialog_.ShowFont());
  EXPECT_EQ(dialog_.FaceName, std::wstring(40, L'x'));
  EXPECT_EQ(dialog_.Size, 11);
}

TEST_F(cFontDlgTest, ChoiceBecomesTheDescription) {
  FontRecord record;
  record.FaceName = std::wstring(L"Arial\0rest", 10);
  record.Weight = 700;
  record.Italic = record.StrikeOut = record.Underline = true;
  record.CharSet = 204;
  record.PointSizeInTenths = 90;
  Choose(record);
  EXPECT_EQ(dialog_.FaceName, L"Arial");
  EXPECT_EQ(dialog_.FontStyle, 1 + 2 + 4 + 8);
  EXPECT_EQ(dialog_.Script, 204);
  EXPECT_EQ(dialog_.Size, 9);
}

TEST_F(cFontDlgTest, SizeIsRoundedHalfToEven) {
  const std::pair<int, int> cases[] = {{105, 10}, {115, 12}, {104, 10}, {106, 11}, {100, 10}};
  for (const auto& [tenths, points] : cases) {
    FontRecord record;
    record.PointSizeInTenths = tenths;
    Choose(record);
    EXPECT_EQ(dialog_.Size, points) << tenths;
  }
}

TEST_F(cFontDlgTest, OnlyWeight700IsBold) {
  const std::pair<int, int> cases[] = {{400, 0}, {600, 0}, {700, 1}, {800, 0}};
  for (const auto& [weight, style] : cases) {
    FontRecord record;
    record.Weight = weight;
    Choose(record);
    EXPECT_EQ(dialog_.FontStyle, style) << weight;
  }
}

}  // namespace
}  // namespace tessera::cfont_dlg_test
