// The settings: their defaults, the rules of single ones, and what a save writes.
#include "settings/Settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <vector>

#include "settings/ini/MissingMarker.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/FaultyFiles.h"

namespace tessera::settings_test {
namespace {

const std::wstring Path = L"C:\\Tessera\\vantor.ini";

class SettingsTest : public testing::Test {
 protected:
  Settings Load() { return LoadSettings(file_.Read(), file_, environment_); }
  FileError Save(const Settings& settings) { return SaveSettings(settings, file_); }

  /// Loads a file that holds these lines in section "Tessera".
  Settings LoadLines(const std::string& lines) {
    files_.Contents[Path] = "[Tessera]\r\n" + lines;
    return Load();
  }

  /// The file's lines, section names included, without line ends.
  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    std::istringstream stream(files_.Contents[Path]);
    for (std::string line; std::getline(stream, line);) {
      if (line.ends_with('\r')) line.pop_back();
      lines.push_back(line);
    }
    return lines;
  }

  [[nodiscard]] std::string ValueOf(const std::string& key) {
    for (const std::string& line : Lines()) {
      if (line.starts_with(key + '=')) return line.substr(key.size() + 1);
    }
    return "(absent)";
  }

  FaultyFiles files_;
  FakeClock clock_;
  FakeEnvironment environment_;
  SettingsFile file_{files_, clock_, environment_};
};

TEST_F(SettingsTest, MissingFileIsCreatedWithTheDefaults) {
  const Settings settings = Load();
  EXPECT_EQ(settings.MainWindowWidth, 10000);
  EXPECT_EQ(settings.MainWindowHeight, 7000);
  EXPECT_EQ(settings.MainWindowLeft, (28800 - 10000) / 2);
  EXPECT_EQ(settings.MainWindowTop, (16200 - 7000) / 2);
  EXPECT_EQ(settings.MainWindowMaxmized, 0);
  EXPECT_EQ(Lines(), (std::vector<std::string>{
                         "[Tessera]",
                         "FixedBorders=1",
                         "FlatUserInterface=0",
                         "ForegroundColor=-2147483640",
                         "BackgroundColor=-2147483643",
                         "FontName=MS Sans Serif",
                         "FontScript=1",
                         "FontSize=10",
                         "FontStyle=0",
                         "UseDefaultLanguage=1",
                         "MainWindowLeft=9400",
                         "MainWindowTop=4600",
                         "MainWindowWidth=10000",
                         "MainWindowHeight=7000",
                         "MainWindowMaxmized=0",
                         "ToolbarVisible=1",
                         "AlwaysRestartTC=0",
                         "CommandListShowLines=0",
                         "ColumnHeadersPosition=1,2,3,4",
                         "ColumnHeadersSize=3000,2000,2000,2000",
                         "UseContextMenuKey=0",
                         "SortedList=0",
                         "SortOrder=0",
                         "SortedColumn=3",
                         "MultiHotkeySeparator==",
                         "UndefinedHotkey=---",
                         "ReverseOrderHotkey=0",
                         "[Common]",
                         "NumberOfRecentFiles=9",
                     }));
}

TEST_F(SettingsTest, FileWithoutTheKeysGivesTheDefaultsOfTheKeys) {
  const Settings settings = LoadLines("");
  EXPECT_EQ(settings.MainWindowWidth, 8610);
  EXPECT_EQ(settings.MainWindowHeight, 7230);
  EXPECT_EQ(settings.MainWindowLeft, 0);
  EXPECT_EQ(settings.MainWindowTop, 0);
  EXPECT_EQ(settings.FontName, L"MS Sans Serif");
  EXPECT_EQ(settings.ForegroundColor, -2147483640);
  EXPECT_EQ(settings.BackgroundColor, -2147483643);
  EXPECT_EQ(settings.LanguageFile, MissingMarker);
  EXPECT_EQ(settings.UserDefinedWincmd, MissingMarker);
  EXPECT_EQ(settings.NumberOfRecentFiles, 9);
  EXPECT_EQ(settings.SortedColumn, 3);
  EXPECT_EQ(settings.MultiHotkeySeparator, L" = ");
  EXPECT_EQ(settings.UndefinedHotkey, L"---");
  EXPECT_EQ(settings.ShowControlsBackColor, 0);
  EXPECT_EQ(settings.KeepUnknownShortcuts, 0);
  EXPECT_EQ(settings.ForgetKeysAtOpen, 0);
  EXPECT_EQ(settings.ShowUserCommands, 0);
  EXPECT_EQ(files_.Contents[Path], "[Tessera]\r\n");
}

TEST_F(SettingsTest, FolderThatCannotBeWrittenGivesTheFirstRunValues) {
  files_.WriteErrors.assign(100, FileError::AccessDenied);
  EXPECT_EQ(Load().MainWindowWidth, 10000);
  EXPECT_TRUE(files_.Contents.empty());
}

TEST_F(SettingsTest, EveryKeyIsReadFromItsSection) {
  files_.Contents[Path] =
      "[Common]\r\nLanguageFile=%lang%\\de.lng\r\nTCInstallDir=D:\\TC\r\n"
      "UserDefinedWincmd=D:\\w.ini\r\nNumberOfRecentFiles=5\r\nShowControlsBackColor=1\r\n"
      "FontSize=99\r\n[Tessera]\r\nFontSize=12\r\nFontName=Tahoma\r\nForegroundColor=255\r\n"
      "AlwaysRestartTC=1\r\nKeepUnknownShortcuts=1\r\nForgetKeysAtOpen=3\r\n"
      "ShowUserCommands=99999\r\nNumberOfRecentFiles=7\r\n";
  environment_.Variables[L"lang"] = L"C:\\Languages";
  const Settings settings = Load();
  EXPECT_EQ(settings.LanguageFile, L"%lang%\\de.lng");
  EXPECT_EQ(settings.ExpandedLanguageFile, L"C:\\Languages\\de.lng");
  EXPECT_EQ(settings.TCInstallDir, L"D:\\TC\\");
  EXPECT_EQ(settings.UserDefinedWincmd, L"D:\\w.ini");
  EXPECT_EQ(settings.NumberOfRecentFiles, 5);
  EXPECT_EQ(settings.ShowControlsBackColor, 1);
  EXPECT_EQ(settings.FontSize, 12);
  EXPECT_EQ(settings.FontName, L"Tahoma");
  EXPECT_EQ(settings.ForegroundColor, 255);
  EXPECT_EQ(settings.AlwaysRestartTC, 1);
  EXPECT_EQ(settings.KeepUnknownShortcuts, 1);
  EXPECT_EQ(settings.ForgetKeysAtOpen, 3);
  EXPECT_EQ(settings.ShowUserCommands, 32767);
}

TEST_F(SettingsTest, EveryStoredKeyIsWrittenBackAsItWasRead) {
  const std::string content =
      "[Common]\r\nLanguageFile=a.lng\r\nNumberOfRecentFiles=3\r\n"
      "[Tessera]\r\nCommandListShowLines=1\r\nFixedBorders=2\r\nFlatUserInterface=3\r\n"
      "ForegroundColor=4\r\nBackgroundColor=5\r\nFontName=f\r\nFontScript=6\r\nFontSize=7\r\n"
      "FontStyle=8\r\nUseDefaultLanguage=9\r\nMainWindowTop=10\r\nMainWindowLeft=11\r\n"
      "MainWindowHeight=12\r\nMainWindowWidth=13\r\nMainWindowMaxmized=0\r\nToolbarVisible=14\r\n"
      "AlwaysRestartTC=15\r\nColumnHeadersPosition=p\r\nColumnHeadersSize=s\r\n"
      "UseContextMenuKey=16\r\nSortedList=17\r\nSortOrder=18\r\nSortedColumn=19\r\n"
      "ReverseOrderHotkey=20\r\nMultiHotkeySeparator=|\r\nUndefinedHotkey=u\r\n";
  files_.Contents[Path] = content;
  const Settings settings = Load();
  const int numbers[] = {settings.CommandListShowLines,
                         settings.FixedBorders,
                         settings.FlatUserInterface,
                         settings.ForegroundColor,
                         settings.BackgroundColor,
                         settings.FontScript,
                         settings.FontSize,
                         settings.FontStyle,
                         settings.UseDefaultLanguage,
                         settings.MainWindowTop,
                         settings.MainWindowLeft,
                         settings.MainWindowHeight,
                         settings.MainWindowWidth,
                         settings.ToolbarVisible,
                         settings.AlwaysRestartTC,
                         settings.UseContextMenuKey,
                         settings.SortedList,
                         settings.SortOrder,
                         settings.SortedColumn,
                         settings.ReverseOrderHotkey};
  int expected = 0;
  for (const int number : numbers) EXPECT_EQ(number, ++expected);
  EXPECT_EQ(settings.FontName, L"f");
  EXPECT_EQ(settings.ColumnHeadersPosition, L"p");
  EXPECT_EQ(settings.ColumnHeadersSize, L"s");
  EXPECT_EQ(settings.MultiHotkeySeparator, L" | ");
  EXPECT_EQ(settings.UndefinedHotkey, L"u");
  files_.Contents[Path] = "";
  EXPECT_EQ(Save(settings), FileError::None);
  std::vector<std::string> stored = Lines();
  files_.Contents[Path] = content;
  std::vector<std::string> read = Lines();
  std::ranges::sort(stored);
  std::ranges::sort(read);
  EXPECT_EQ(stored, read);
}

TEST_F(SettingsTest, NumberOfRecentFilesIsClamped) {
  const std::pair<const char*, short> cases[] = {{"1", 2},   {"40", 16}, {"2", 2},
                                                 {"16", 16}, {"x", 2},   {"100000", 16}};
  for (const auto& [stored, number] : cases) {
    files_.Contents[Path] = std::string("[Common]\r\nNumberOfRecentFiles=") + stored + "\r\n";
    EXPECT_EQ(Load().NumberOfRecentFiles, number) << stored;
  }
}

TEST_F(SettingsTest, SeparatorIsTrimmedAndPadded) {
  EXPECT_EQ(LoadLines("MultiHotkeySeparator=\"   \"\r\n").MultiHotkeySeparator, L" = ");
  EXPECT_EQ(LoadLines("MultiHotkeySeparator=\r\n").MultiHotkeySeparator, L" = ");
  EXPECT_EQ(LoadLines("MultiHotkeySeparator=\" | \"\r\n").MultiHotkeySeparator, L" | ");
}

TEST_F(SettingsTest, EmptyUndefinedMarkerFallsBack) {
  EXPECT_EQ(LoadLines("UndefinedHotkey=\"  \"\r\n").UndefinedHotkey, L"---");
  EXPECT_EQ(LoadLines("UndefinedHotkey=\" none \"\r\n").UndefinedHotkey, L"none");
}

TEST_F(SettingsTest, IntegersAreRoundedHalfToEvenAndClamped) {
  const Settings settings = LoadLines(
      "FontSize=10.5\r\nFontScript=2.5\r\nFontStyle=3.5\r\n"
      "MainWindowTop=99999\r\nMainWindowLeft=-99999\r\nSortOrder=5\r\n");
  EXPECT_EQ(settings.FontSize, 10);
  EXPECT_EQ(settings.FontScript, 2);
  EXPECT_EQ(settings.FontStyle, 4);
  EXPECT_EQ(settings.MainWindowTop, 32767);
  EXPECT_EQ(settings.MainWindowLeft, -32768);
  EXPECT_EQ(settings.SortOrder, 5) << "repaired only when it is applied";
}

TEST_F(SettingsTest, InstallDirFallsBackToCommanderPathThenToTheWindowsDirectory) {
  environment_.Variables[L"windir"] = L"C:\\Windows";
  EXPECT_EQ(LoadLines("").TCInstallDir, L"C:\\Windows\\");
  environment_.Variables[L"Commander_Path"] = L"C:\\TC";
  EXPECT_EQ(Load().TCInstallDir, L"C:\\TC\\");
  files_.Contents[Path] = "[Common]\r\nTCInstallDir=\r\n";
  EXPECT_EQ(Load().TCInstallDir, L"C:\\Windows\\");
}

TEST_F(SettingsTest, DataFileHasADefaultAndIsExpanded) {
  EXPECT_EQ(LoadLines("").DefaultHotKeysDataFile,
            L"C:\\Tessera\\Data Files\\tc default hotkeys.hky");
  environment_.Variables[L"data"] = L"E:\\Data";
  EXPECT_EQ(LoadLines("DefaultHotKeysDataFile=%data%\\my.hky\r\n").DefaultHotKeysDataFile,
            L"E:\\Data\\my.hky");
}

TEST_F(SettingsTest, SavedSettingsReadBackTheSame) {
  Settings settings = LoadLines("");
  settings.FontName = L"Tahoma";
  settings.MultiHotkeySeparator = L" | ";
  settings.MainWindowLeft = -120;
  settings.BackgroundColor = 0x00FFFFFF;
  settings.LanguageFile = L"C:\\de.lng";
  EXPECT_EQ(Save(settings), FileError::None);
  const Settings read = Load();
  EXPECT_EQ(read.FontName, L"Tahoma");
  EXPECT_EQ(read.MultiHotkeySeparator, L" | ");
  EXPECT_EQ(read.MainWindowLeft, -120);
  EXPECT_EQ(read.BackgroundColor, 0x00FFFFFF);
  EXPECT_EQ(read.LanguageFile, L"C:\\de.lng");
  EXPECT_EQ(ValueOf("MultiHotkeySeparator"), "|");
}

TEST_F(SettingsTest, MaximisedWindowKeepsItsStoredPlacement) {
  Settings settings = LoadLines("MainWindowLeft=11\r\nMainWindowTop=12\r\nMainWindowWidth=13\r\n");
  settings.MainWindowLeft = 99;
  settings.MainWindowTop = 99;
  settings.MainWindowWidth = 99;
  settings.MainWindowMaxmized = 1;
  EXPECT_EQ(Save(settings), FileError::None);
  EXPECT_EQ(ValueOf("MainWindowLeft"), "11");
  EXPECT_EQ(ValueOf("MainWindowTop"), "12");
  EXPECT_EQ(ValueOf("MainWindowWidth"), "13");
  EXPECT_EQ(ValueOf("MainWindowHeight"), "(absent)");
  EXPECT_EQ(ValueOf("MainWindowMaxmized"), "1");
}

TEST_F(SettingsTest, OnlyReadKeysAreNotWritten) {
  environment_.Variables[L"Commander_Path"] = L"C:\\TC";
  Settings settings = LoadLines("");
  settings.UserDefinedWincmd = L"C:\\w.ini";
  EXPECT_EQ(Save(settings), FileError::None);
  for (const char* const key : {"TCInstallDir", "UserDefinedWincmd", "ShowControlsBackColor",
                                "DefaultHotKeysDataFile", "LanguageFile"}) {
    EXPECT_EQ(ValueOf(key), "(absent)") << key;
  }
}

TEST_F(SettingsTest, KeysThatAreStoredOnceTheyWereUsedFollowAllOthers) {
  Settings settings = LoadLines("");
  EXPECT_EQ(Save(settings), FileError::None);
  const std::vector<std::string> unused = Lines();
  EXPECT_EQ(unused[unused.size() - 3], "ReverseOrderHotkey=0");
  settings.ShowUserCommands = 1;
  settings.KeepUnknownShortcuts = 2;
  EXPECT_EQ(Save(settings), FileError::None);
  std::vector<std::string> used = unused;
  const std::vector<std::string> added{"KeepUnknownShortcuts=2", "ShowUserCommands=1"};
  used.insert(used.end() - 2, added.begin(), added.end());
  EXPECT_EQ(Lines(), used);
}

TEST_F(SettingsTest, KeysThatAreThereAreStoredWhateverTheyAre) {
  Settings settings =
      LoadLines("forgetkeysatopen=0\r\nKeepUnknownShortcuts=1\r\nShowUserCommands=x\r\n");
  EXPECT_EQ(Save(settings), FileError::None);
  EXPECT_EQ(ValueOf("forgetkeysatopen"), "0");
  EXPECT_EQ(ValueOf("KeepUnknownShortcuts"), "1");
  EXPECT_EQ(ValueOf("ShowUserCommands"), "0");
  settings.KeepUnknownShortcuts = 0;
  settings.ForgetKeysAtOpen = 1;
  EXPECT_EQ(Save(settings), FileError::None);
  EXPECT_EQ(ValueOf("forgetkeysatopen"), "1");
  EXPECT_EQ(ValueOf("KeepUnknownShortcuts"), "0");
  EXPECT_EQ(ValueOf("ForgetKeysAtOpen"), "(absent)") << "twice";
}

TEST_F(SettingsTest, WhatOtherToolsStoreStays) {
  const std::string foreign = "; mine\r\n[Lattice]\r\nFontSize=1\r\n[Quarry]\r\nx = y\r\n";
  files_.Contents[Path] = foreign;
  EXPECT_EQ(Save(Load()), FileError::None);
  EXPECT_TRUE(files_.Contents[Path].starts_with(foreign));
}

TEST_F(SettingsTest, SaveIsOneWriteAndLeavesNoCopies) {
  Settings settings = LoadLines("");
  files_.Calls.clear();
  EXPECT_EQ(Save(settings), FileError::None);
  EXPECT_EQ(std::ranges::count(files_.Calls, L"Write " + Path + L".tessera-new"), 1);
  EXPECT_EQ(files_.Contents.size(), 1U);
}

TEST_F(SettingsTest, FailedSaveIsReportedAndChangesNothing) {
  Settings settings = LoadLines("FontSize=8\r\n");
  settings.FontSize = 20;
  files_.ReplaceErrors.assign(100, FileError::SharingViolation);
  EXPECT_EQ(Save(settings), FileError::SharingViolation);
  EXPECT_EQ(files_.Contents,
            (std::map<std::wstring, std::string>{{Path, "[Tessera]\r\nFontSize=8\r\n"}}));
}

TEST_F(SettingsTest, FileThatCannotBeReadIsNotReplaced) {
  Settings settings = LoadLines("FontSize=8\r\n");
  files_.ReadErrors.assign(100, FileError::SharingViolation);
  EXPECT_EQ(Save(settings), FileError::SharingViolation);
  EXPECT_EQ(files_.Contents[Path], "[Tessera]\r\nFontSize=8\r\n");
}

TEST_F(SettingsTest, FileThatCouldNotBeReadAndIsGoneIsMadeAnew) {
  files_.Contents[Path] = "[Tessera]\r\nFontSize=8\r\n";
  files_.ReadErrors.assign(100, FileError::SharingViolation);
  Settings settings = Load();
  files_.ReadErrors.clear();
  settings.FontSize = 20;
  EXPECT_EQ(Save(settings), FileError::AccessDenied);
  files_.Contents.clear();
  EXPECT_EQ(Save(settings), FileError::None);
  EXPECT_EQ(ValueOf("FontSize"), "20");
}

TEST_F(SettingsTest, AnyNumberButNoughtStandsForAMaximisedWindow) {
  for (const short maximised : {short{1}, short{2}, short{-1}}) {
    Settings settings = LoadLines("MainWindowLeft=7\r\n");
    settings.MainWindowLeft = 100;
    settings.MainWindowMaxmized = maximised;
    EXPECT_EQ(Save(settings), FileError::None);
    EXPECT_EQ(ValueOf("MainWindowLeft"), "7") << maximised;
  }
}

TEST_F(SettingsTest, LoadRecoversFromASaveThatWasKilled) {
  files_.Contents = {{Path + L".tessera-old", "[Tessera]\r\nFontSize=8\r\n"},
                     {Path + L".tessera-new", "[Tess"}};
  EXPECT_EQ(Load().FontSize, 8);
  EXPECT_EQ(files_.Contents.size(), 1U);
}

}  // namespace
}  // namespace tessera::settings_test
