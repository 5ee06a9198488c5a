#include <gtest/gtest.h>

#include <array>

#include "dialogs/cFontDlg.h"
#include "options/OptionsSelection.h"
#include "settings/ini/MissingMarker.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeEnvironment.h"

namespace tessera::options_selection_test {
namespace {

constexpr std::array AllBoxes{
    OptionBox::ShowGridLines,        OptionBox::FixedBorders,      OptionBox::FlatUserInterface,
    OptionBox::AlwaysRestartTC,      OptionBox::UseContextMenuKey, OptionBox::ReverseOrderHotkey,
    OptionBox::KeepUnknownShortcuts, OptionBox::ForgetKeysAtOpen,  OptionBox::ShowUserCommands};

/// Those behind the boxes, in their order.
constexpr std::array<short Settings::*, AllBoxes.size()> AllSettings{
    &Settings::CommandListShowLines, &Settings::FixedBorders,      &Settings::FlatUserInterface,
    &Settings::AlwaysRestartTC,      &Settings::UseContextMenuKey, &Settings::ReverseOrderHotkey,
    &Settings::KeepUnknownShortcuts, &Settings::ForgetKeysAtOpen,  &Settings::ShowUserCommands};

class OptionsSelectionTest : public testing::Test {
 protected:
  /// The settings behind the boxes as digits.
  std::string BoxSettings() const {
    std::string digits;
    for (const auto setting : AllSettings) digits += std::to_string(settings_.*setting);
    return digits;
  }

  Settings settings_;
  FakeDialogs dialogs_;
  FakeEnvironment environment_;
  OptionsSelection options_{settings_, dialogs_, environment_};
};

TEST_F(OptionsSelectionTest, ShowsTheSettings) {
  settings_.ForegroundColor = 255;
  settings_.UseDefaultLanguage = 0;
  settings_.LanguageFile = L"C:\\a.lng";
  options_.Load();
  EXPECT_EQ(options_.Color(OptionColor::Foreground), 255);
  EXPECT_EQ(options_.Color(OptionColor::Background), -2147483643);
  EXPECT_FALSE(options_.UsesDefaultLanguage());
  EXPECT_EQ(options_.LanguageFilePath(), L"C:\\a.lng");
}

TEST_F(OptionsSelectionTest, EveryBoxShowsItsOwnSetting) {
  for (const short value : {short{1}, short{2}, short{-1}}) {
    for (std::size_t set = 0; set < AllSettings.size(); ++set) {
      for (const auto setting : AllSettings) settings_.*setting = 0;
      settings_.*AllSettings[set] = value;
      options_.Load();
      for (std::size_t box = 0; box < AllBoxes.size(); ++box) {
        EXPECT_EQ(options_.Checked(AllBoxes[box]), box == set) << box << ", " << set;
      }
    }
  }
}

TEST_F(OptionsSelectionTest, AMissingLanguageFileShowsNoPath) {
  ASSERT_TRUE(IsMissing(settings_.LanguageFile));
  options_.Load();
  EXPECT_EQ(options_.LanguageFilePath(), L"");
  EXPECT_TRUE(options_.UsesDefaultLanguage());
}

TEST_F(OptionsSelectionTest, OnlyTheValue1MeansTheDefaultLanguage) {
  for (const short value : {short{0}, short{2}, short{-1}}) {
    settings_.UseDefaultLanguage = value;
    options_.Load();
    EXPECT_FALSE(options_.UsesDefaultLanguage()) << value;
  }
}

TEST_F(OptionsSelectionTest, ApplyIsDisabledAfterLoadAndAfterEachApply) {
  options_.Load();
  EXPECT_FALSE(options_.ApplyEnabled());
  for (int round = 0; round < 2; ++round) {
    options_.Click(OptionBox::FixedBorders);
    EXPECT_TRUE(options_.ApplyEnabled());
    options_.Apply();
    EXPECT_FALSE(options_.ApplyEnabled());
  }
  options_.Click(OptionBox::FixedBorders);
  options_.Load();
  EXPECT_FALSE(options_.ApplyEnabled());
}

TEST_F(OptionsSelectionTest, EveryBoxEditsItsOwnSetting) {
  settings_.FixedBorders = 0;
  const std::array expected{"100000000", "010000000", "001000000", "000100000", "000010000",
                            "000001000", "000000100", "000000010", "000000001"};
  for (std::size_t i = 0; i < AllBoxes.size(); ++i) {
    options_.Load();
    options_.Click(AllBoxes[i]);
    EXPECT_TRUE(options_.Checked(AllBoxes[i]));
    EXPECT_TRUE(options_.ApplyEnabled());
    EXPECT_EQ(BoxSettings(), "000000000") << "before Apply";
    options_.Apply();
    EXPECT_EQ(BoxSettings(), expected[i]);
    options_.Click(AllBoxes[i]);
    options_.Apply();
    EXPECT_EQ(BoxSettings(), "000000000");
  }
}

TEST_F(OptionsSelectionTest, WithoutApplyBoxesAndLanguageStayAsTheyWere) {
  options_.Load();
  for (const OptionBox box : AllBoxes) options_.Click(box);
  options_.UseDefaultLanguage(false);
  options_.EditLanguageFilePath(L"C:\\a.lng");
  EXPECT_EQ(BoxSettings(), "010000000");
  EXPECT_EQ(settings_.UseDefaultLanguage, 1);
  EXPECT_TRUE(IsMissing(settings_.LanguageFile));
  options_.Load();
  EXPECT_TRUE(options_.UsesDefaultLanguage());
  EXPECT_EQ(options_.LanguageFilePath(), L"");
}

// -- Colours and font

TEST_F(OptionsSelectionTest, AColorIsInTheSettingsAtOnceAndStaysAfterCancel) {
  options_.Load();
  dialogs_.ColorAnswers = {0x00FF8000U, 0x000000FFU};
  options_.PickColor(OptionColor::Foreground);
  EXPECT_EQ(settings_.ForegroundColor, 0x00FF8000);
  EXPECT_EQ(options_.Color(OptionColor::Foreground), 0x00FF8000);
  EXPECT_TRUE(options_.ApplyEnabled());
  EXPECT_EQ(settings_.BackgroundColor, -2147483643);
  options_.PickColor(OptionColor::Background);
  EXPECT_EQ(settings_.BackgroundColor, 0x000000FF);
  options_.Load();
  EXPECT_EQ(options_.Color(OptionColor::Foreground), 0x00FF8000);
}

TEST_F(OptionsSelectionTest, AFontIsInTheSettingsAtOnce) {
  settings_.FontName = L"Arial";
  settings_.FontSize = 8;
  settings_.FontStyle = cFontDlg::Italic;
  settings_.FontScript = 238;
  options_.Load();
  FontRecord chosen;
  chosen.FaceName = L"Tahoma";
  chosen.PointSizeInTenths = 120;
  chosen.Weight = 700;
  chosen.CharSet = 204;
  dialogs_.FontAnswers = {chosen};
  options_.PickFont();
  ASSERT_EQ(dialogs_.FontRequests.size(), 1U);
  EXPECT_EQ(dialogs_.FontRequests[0].FaceName, L"Arial");
  EXPECT_EQ(dialogs_.FontRequests[0].PointSizeInTenths, 80);
  EXPECT_EQ(dialogs_.FontRequests[0].CharSet, 238);
  EXPECT_TRUE(dialogs_.FontRequests[0].Italic);
  EXPECT_EQ(settings_.FontName, L"Tahoma");
  EXPECT_EQ(settings_.FontSize, 12);
  EXPECT_EQ(settings_.FontStyle, cFontDlg::Bold);
  EXPECT_EQ(settings_.FontScript, 204);
  EXPECT_TRUE(options_.ApplyEnabled());
}

TEST_F(OptionsSelectionTest, ACancelledDialogChangesNothing) {
  settings_.LanguageFile = L"C:\\a.lng";
  options_.Load();
  options_.PickColor(OptionColor::Foreground);
  options_.PickFont();
  options_.BrowseForLanguageFile();
  EXPECT_EQ(settings_.ForegroundColor, -2147483640);
  EXPECT_EQ(settings_.FontName, L"MS Sans Serif");
  EXPECT_EQ(options_.LanguageFilePath(), L"C:\\a.lng");
  EXPECT_FALSE(options_.ApplyEnabled());
}

// -- Language

TEST_F(OptionsSelectionTest, TheLanguageFileIsEnabledForAnotherLanguageOnly) {
  options_.Load();
  EXPECT_FALSE(options_.LanguageFileEnabled());
  options_.UseDefaultLanguage(false);
  EXPECT_TRUE(options_.LanguageFileEnabled());
  EXPECT_TRUE(options_.ApplyEnabled());
  options_.Apply();
  EXPECT_EQ(settings_.UseDefaultLanguage, 0);
  options_.UseDefaultLanguage(true);
  EXPECT_FALSE(options_.LanguageFileEnabled());
  EXPECT_TRUE(options_.ApplyEnabled());
  options_.Apply();
  EXPECT_EQ(settings_.UseDefaultLanguage, 1);
}

TEST_F(OptionsSelectionTest, ALanguageFileIsChosenInTheProgramsFolder) {
  options_.Load();
  dialogs_.OpenAnswers = {L"D:\\b.lng"};
  options_.BrowseForLanguageFile();
  ASSERT_EQ(dialogs_.OpenRequests.size(), 1U);
  EXPECT_EQ(dialogs_.OpenRequests[0].Folder, L"C:\\Tessera\\Languages\\");
  EXPECT_EQ(dialogs_.OpenRequests[0].FileName, L"");
  EXPECT_EQ(dialogs_.OpenRequests[0].Filter, L"Language File (*.lng)|*.lng|All Files (*.*)|*.*");
  EXPECT_EQ(options_.LanguageFilePath(), L"D:\\b.lng");
  EXPECT_TRUE(options_.ApplyEnabled());
}

TEST_F(OptionsSelectionTest, AnEditedPathEnablesApplyAndAFilledBoxDoesNot) {
  settings_.LanguageFile = L"C:\\a.lng";
  options_.Load();
  options_.EditLanguageFilePath(L"C:\\a.lng");
  EXPECT_FALSE(options_.ApplyEnabled());
  options_.EditLanguageFilePath(L"C:\\A.lng");
  EXPECT_TRUE(options_.ApplyEnabled());
}

TEST_F(OptionsSelectionTest, AnAppliedPathIsStoredAsEnteredAndExpandedBesideIt) {
  environment_.Variables[L"Texts"] = L"D:\\Texts";
  options_.Load();
  options_.EditLanguageFilePath(L"%Texts%\\none.lng");
  options_.Apply();
  EXPECT_EQ(settings_.LanguageFile, L"%Texts%\\none.lng");
  EXPECT_EQ(settings_.ExpandedLanguageFile, L"D:\\Texts\\none.lng");
}

TEST_F(OptionsSelectionTest, AnotherLetterCaseOfThePathIsTheSameLanguage) {
  settings_.LanguageFile = L"C:\\a.lng";
  options_.RememberLanguage();
  options_.Load();
  options_.EditLanguageFilePath(L"c:\\A.LNG");
  options_.Apply();
  EXPECT_EQ(settings_.LanguageFile, L"c:\\A.LNG");
  EXPECT_FALSE(options_.LanguageChanged());
}

TEST_F(OptionsSelectionTest, AnotherPathOrAnotherChoiceIsAnotherLanguage) {
  settings_.LanguageFile = L"C:\\a.lng";
  options_.RememberLanguage();
  options_.Load();
  EXPECT_FALSE(options_.LanguageChanged());
  options_.UseDefaultLanguage(false);
  EXPECT_FALSE(options_.LanguageChanged()) << "not applied";
  options_.Apply();
  EXPECT_TRUE(options_.LanguageChanged());
  options_.RememberLanguage();
  options_.Load();
  EXPECT_FALSE(options_.LanguageChanged());
  options_.UseDefaultLanguage(true);
  options_.Apply();
  EXPECT_TRUE(options_.LanguageChanged());
  options_.RememberLanguage();
  options_.Load();
  options_.EditLanguageFilePath(L"C:\\b.lng");
  options_.Apply();
  EXPECT_TRUE(options_.LanguageChanged());
}

}  // namespace
}  // namespace tessera::options_selection_test
