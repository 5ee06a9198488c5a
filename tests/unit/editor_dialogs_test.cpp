#include <algorithm>

#include "tests/unit/editor_fixture.h"

namespace tessera {
namespace {

// -- Recent files

TEST_F(EditorTest, AnOpenedFileIsTheNewestRecentFile) {
  files_.Contents[otherIniPath] = "[Shortcuts]\r\n";
  Start();
  editor_.OpenFile(otherIniPath);
  EXPECT_EQ(editor_.RecentFiles().ListItems(1), otherIniPath);
  EXPECT_EQ(editor_.RecentFiles().ListItems(2), iniPath);
  EXPECT_NE(SettingsFile().find("RecentFiles1=C:\\TC\\Other.ini\r\n"), std::string::npos);
  EXPECT_NE(SettingsFile().find("RecentFiles2=C:\\TC\\Wincmd.ini\r\n"), std::string::npos);
}

TEST_F(EditorTest, ARecentFileIsOpenedAgain) {
  files_.Contents[otherIniPath] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  SettingsFile() = "[Tessera]\r\nRecentFiles1=C:\\TC\\Other.ini\r\n";
  Start();
  ASSERT_EQ(editor_.RecentFiles().ListItems(2), otherIniPath);
  editor_.OpenRecentFile(2);
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"Alt + V");
  EXPECT_EQ(editor_.RecentFiles().ListItems(1), otherIniPath);
  editor_.OpenRecentFile(9);
  EXPECT_EQ(editor_.Caption(), L"C:\\TC\\Other.ini - Tessera");
}

TEST_F(EditorTest, ARecentFileThatHasGoneIsReportedAndRemoved) {
  SettingsFile() = "[Tessera]\r\nRecentFiles1=C:\\gone.ini\r\n";
  Start();
  editor_.OpenRecentFile(2);
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text,
            L"Cannot find this file C:\\gone.ini\n\n"
            L"Please verify that the correct path and file name are given.");
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(editor_.RecentFiles().MenuEntries().size(), 1U);
  EXPECT_EQ(SettingsFile().find("gone.ini"), std::string::npos);
}

TEST_F(EditorTest, NoKeepsTheRecentFilesAndYesClearsThem) {
  Start();
  const std::string before = SettingsFile();
  messageBoxes_.Answers = {BoxAnswer::No};
  editor_.ClearRecentFiles();
  EXPECT_EQ(SettingsFile(), before);
  EXPECT_EQ(editor_.RecentFiles().ListItems(1), iniPath);
  messageBoxes_.Answers = {BoxAnswer::Yes};
  editor_.ClearRecentFiles();
  EXPECT_EQ(SettingsFile().find("RecentFiles1"), std::string::npos);
  EXPECT_FALSE(editor_.RecentFiles().MenuEntries()[0].Enabled);
}

TEST_F(EditorTest, AFileNamedAtTheStartIsOpenedInPlaceOfTheOneFound) {
  files_.Contents[otherIniPath] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  editor_.Load(otherIniPath);
  editor_.Activate();
  EXPECT_EQ(editor_.Caption(), L"C:\\TC\\Other.ini - Tessera");
}

TEST_F(EditorTest, AFileNamedAtTheStartThatDoesNotExistIsPassedOver) {
  editor_.Load(L"C:\\nothing.ini");
  editor_.Activate();
  EXPECT_EQ(editor_.Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
}

TEST_F(EditorTest, ARedirectedSectionIsFoundByTheFolderOfTotalCommander) {
  environment_.Variables.clear();
  SettingsFile() = "[Common]\r\nTCInstallDir=C:\\TC\r\n";
  Ini() = "[Shortcuts]\r\nRedirectSection=%COMMANDER_PATH%\\keys.ini\r\n";
  files_.Contents[L"C:\\TC\\keys.ini"] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Start();
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"Alt + V");
  Assign(Pack, L"X");
  editor_.FileSave();
  EXPECT_EQ(files_.Contents[L"C:\\TC\\keys.ini"], "[Shortcuts]\r\nX=cm_Pack\r\n");
}

// The folder that was found counts for files alone, deliberately.
TEST_F(EditorTest, ARestartLooksWhereTheEnvironmentVariablePoints) {
  environment_.Variables.clear();
  SettingsFile() = "[Common]\r\nTCInstallDir=C:\\TC\r\n";
  Start();
  Assign(Pack, L"X");
  editor_.FileSaveAndRestart();
  EXPECT_EQ(log_, Log{L"Start \\Totalcmd.exe /i=\"C:\\TC\\Wincmd.ini\""});
}

// -- Help

TEST_F(EditorTest, AMissingHelpFileIsReportedAndNothingElseHappens) {
  editor_.ShowHelpTopics();
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text, L"File not found.");
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Critical);
  EXPECT_TRUE(log_.empty());
}

TEST_F(EditorTest, TheHelpFileIsOpened) {
  files_.Contents[L"C:\\Tessera\\Readme.chm"] = "help";
  editor_.ShowHelpTopics();
  EXPECT_EQ(log_, (Log{L"OpenDocument C:\\Tessera\\Readme.chm"}));
  EXPECT_TRUE(messageBoxes_.Shown.empty());
}

// -- Dialogs

TEST_F(EditorTest, TheExportFollowsTheListAndWarnsOfUnsavedChanges) {
  Start();
  Assign(Pack, L"X");
  editor_.BeginExport().Ok(files_, clock_, settingsPath);
  editor_.EndExport();
  ASSERT_EQ(clipboard_.Texts.size(), 1U);
  EXPECT_NE(clipboard_.Texts[0].find(L"cm_Pack\t--- \tX        \t\r\n"), std::wstring::npos)
      << "the cells are padded to their columns";
  EXPECT_NE(clipboard_.Texts[0].find(L"Paint\tCtrl + Alt + F1"), std::wstring::npos);
  EXPECT_NE(clipboard_.Texts[0].find(L"=   Important   ="), std::wstring::npos);
  editor_.FileSave();
  editor_.BeginExport().Ok(files_, clock_, settingsPath);
  editor_.EndExport();
  EXPECT_EQ(clipboard_.Texts.back().find(L"Important"), std::wstring::npos);
}

TEST_F(EditorTest, OptionsResetThePanelAndAreStoredAtOnce) {
  Start();
  editor_.SelectRow(Pack);
  editor_.SetBox(Modifier::Ctrl, true);
  Choose(L"X");
  OptionsSelection& options = editor_.BeginOptions();
  options.Click(OptionBox::ShowGridLines);
  options.Apply();
  EXPECT_TRUE(editor_.EndOptions().LanguageChanged)
      << "the path of the language file was missing and is empty now";
  EXPECT_EQ(editor_.Options().CommandListShowLines, 1);
  EXPECT_NE(SettingsFile().find("CommandListShowLines=1\r\n"), std::string::npos);
  EXPECT_FALSE(editor_.Panel().BoxChecked(Modifier::Ctrl));
  EXPECT_EQ(editor_.Panel().ChosenKey(), NoKeyChosen);
}

TEST_F(EditorTest, AfterTheOptionsTheCommandListHasTheFocus) {
  Start();
  editor_.BeginOptions();
  EXPECT_EQ(editor_.EndOptions().Panel.FocusTo, PanelReaction::Focus::CommandList);
}

TEST_F(EditorTest, ALanguageFileThatGoesDuringTheRunChangesTheLanguage) {
  SettingsFile() = "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\de.lng\r\n";
  files_.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n104=Speichern\r\n";
  Start();
  files_.Contents.erase(L"C:\\de.lng");
  editor_.BeginOptions();
  EXPECT_TRUE(editor_.EndOptions().LanguageChanged);
  EXPECT_EQ(editor_.Language().GetLangText(TextId::FileSave), L"&Save");
}

TEST_F(EditorTest, AnotherLanguageIsInUseAfterTheOptions) {
  files_.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n104=Speichern\r\n108=Keine\r\n";
  Start();
  OptionsSelection& options = editor_.BeginOptions();
  options.UseDefaultLanguage(false);
  options.EditLanguageFilePath(L"C:\\de.lng");
  options.Apply();
  EXPECT_TRUE(editor_.EndOptions().LanguageChanged);
  EXPECT_EQ(editor_.Language().GetLangText(TextId::FileSave), L"Speichern");
  editor_.BeginOptions().UseDefaultLanguage(true);
  editor_.BeginOptions();
  EXPECT_FALSE(editor_.EndOptions().LanguageChanged) << "nothing was applied";
  OptionsSelection& again = editor_.BeginOptions();
  again.UseDefaultLanguage(true);
  again.Apply();
  EXPECT_TRUE(editor_.EndOptions().LanguageChanged);
  EXPECT_EQ(editor_.Language().GetLangText(TextId::FileSave), L"&Save");
}

TEST_F(EditorTest, TheDefaultLanguageLeavesTheLanguageFileAlone) {
  /// Notes the paths that are looked at.
  class WatchedFiles : public MemoryFiles {
   public:
    mutable std::vector<std::wstring> Paths;
    [[nodiscard]] bool Exists(const std::wstring& path) const override {
      Paths.push_back(path);
      return MemoryFiles::Exists(path);
    }
    [[nodiscard]] FileError Read(const std::wstring& path, std::string& bytes) const override {
      Paths.push_back(path);
      return MemoryFiles::Read(path, bytes);
    }
  };
  const std::wstring language = L"C:\\de.lng";
  WatchedFiles files;
  files.Contents = files_.Contents;
  files.Contents[language] = "[UserLanguage]\r\n104=Speichern\r\nRightToLeftLanguage=1\r\n";
  const auto timesLookedAt = [&](const char* useDefault) {
    files.Contents[settingsPath] = std::string("[Tessera]\r\nUseDefaultLanguage=") + useDefault +
                                   "\r\n[Common]\r\nLanguageFile=C:\\de.lng\r\n";
    files.Paths.clear();
    Editor editor(
        {files, registry_, environment_, messageBoxes_, dialogs_, programs_, clock_, clipboard_},
        [](const LoadProgress&) {});
    editor.Load();
    editor.Activate();
    editor.BeginExport();
    editor.BeginOptions();
    editor.EndOptions();
    EXPECT_EQ(editor.Language().GetLangText(TextId::FileSave),
              *useDefault == '1' ? L"&Save" : L"Speichern");
    return std::ranges::count(files.Paths, language);
  };
  EXPECT_EQ(timesLookedAt("1"), 0);
  EXPECT_GT(timesLookedAt("0"), 0);
}

TEST_F(EditorTest, AnotherLetterCaseOfThePathIsNoOtherLanguage) {
  SettingsFile() = "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\de.lng\r\n";
  files_.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n104=Speichern\r\n";
  files_.Contents[L"C:\\DE.LNG"] = "[UserLanguage]\r\n104=Sichern\r\n";
  Start();
  OptionsSelection& options = editor_.BeginOptions();
  options.EditLanguageFilePath(L"C:\\DE.LNG");
  options.Apply();
  EXPECT_FALSE(editor_.EndOptions().LanguageChanged);
  EXPECT_EQ(editor_.Language().GetLangText(TextId::FileSave), L"Speichern");
}

TEST_F(EditorTest, ALanguageFileThatIsMissingIsReportedOnce) {
  Start();
  OptionsSelection& options = editor_.BeginOptions();
  options.UseDefaultLanguage(false);
  options.EditLanguageFilePath(L"C:\\no.lng");
  options.Apply();
  EXPECT_TRUE(editor_.EndOptions().LanguageChanged);
  editor_.BeginExport();
  editor_.BeginOptions();
  EXPECT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(editor_.Options().UseDefaultLanguage, 1);
}

}  // namespace
}  // namespace tessera
