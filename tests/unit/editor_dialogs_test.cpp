#include "tests/unit/editor_fixture.h"

namespace tessera::editor_dialogs_test {
namespace {

using namespace installation;

// -- Recent files

TEST_F(EditorTest, AnOpenedFileIsTheNewestRecentFile) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  Start();
  Editor.OpenShortcutFile(false, OtherIniFile, true);
  EXPECT_EQ(Editor.RecentFiles().ListItems(1), OtherIniFile);
  EXPECT_EQ(Editor.RecentFiles().ListItems(2), IniFile);
  EXPECT_NE(StoredSettings().find("RecentFiles1=C:\\TC\\Other.ini\r\n"), std::string::npos);
  EXPECT_NE(StoredSettings().find("RecentFiles2=C:\\TC\\Wincmd.ini\r\n"), std::string::npos);
}

TEST_F(EditorTest, ARecentFileIsOpenedAgain) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  StoredSettings() = "[Tessera]\r\nRecentFiles1=C:\\TC\\Other.ini\r\n";
  Start();
  ASSERT_EQ(Editor.RecentFiles().ListItems(2), OtherIniFile);
  Editor.mnuFileRecentFiles_Click(2);
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Alt + V");
  EXPECT_EQ(Editor.RecentFiles().ListItems(1), OtherIniFile);
  Editor.mnuFileRecentFiles_Click(9);
  EXPECT_EQ(Editor.Document().Caption(), L"C:\\TC\\Other.ini - Tessera");
}

TEST_F(EditorTest, ARecentFileThatHasGoneIsReportedAndRemoved) {
  StoredSettings() = "[Tessera]\r\nRecentFiles1=C:\\gone.ini\r\n";
  Start();
  Editor.mnuFileRecentFiles_Click(2);
  ASSERT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(MessageBoxes.Shown[0].Text,
            L"Cannot find this file C:\\gone.ini\n\n"
            L"Please verify that the correct path and file name are given.");
  EXPECT_EQ(MessageBoxes.Shown[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(Editor.RecentFiles().MenuEntries().size(), 1U);
  EXPECT_EQ(StoredSettings().find("gone.ini"), std::string::npos);
}

TEST_F(EditorTest, NoKeepsTheRecentFilesAndYesClearsThem) {
  Start();
  const std::string before = StoredSettings();
  MessageBoxes.Answers = {BoxAnswer::No};
  Editor.ClearRecentFiles();
  EXPECT_EQ(StoredSettings(), before);
  EXPECT_EQ(Editor.RecentFiles().ListItems(1), IniFile);
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Editor.ClearRecentFiles();
  EXPECT_EQ(StoredSettings().find("RecentFiles1"), std::string::npos);
  EXPECT_FALSE(Editor.RecentFiles().MenuEntries()[0].Enabled);
}

TEST_F(EditorTest, AFileNamedAtTheStartIsOpenedInPlaceOfTheOneFound) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Editor.Load(OtherIniFile);
  Editor.Activate();
  EXPECT_EQ(Editor.Document().Caption(), L"C:\\TC\\Other.ini - Tessera");
}

TEST_F(EditorTest, AFileNamedAtTheStartThatDoesNotExistIsPassedOver) {
  Editor.Load(L"C:\\nothing.ini");
  Editor.Activate();
  EXPECT_EQ(Editor.Document().Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
}

TEST_F(EditorTest, ARedirectedSectionIsFoundByTheFolderOfTotalCommander) {
  Environment.Variables.clear();
  StoredSettings() = "[Common]\r\nTCInstallDir=C:\\TC\r\n";
  Ini() = "[Shortcuts]\r\nRedirectSection=%COMMANDER_PATH%\\keys.ini\r\n";
  Files.Contents[L"C:\\TC\\keys.ini"] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Start();
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Alt + V");
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Files.Contents[L"C:\\TC\\keys.ini"], "[Shortcuts]\r\nX=cm_Pack\r\n");
}

// The folder that was found counts for files alone, deliberately.
TEST_F(EditorTest, ARestartLooksWhereTheEnvironmentVariablePoints) {
  Environment.Variables.clear();
  StoredSettings() = "[Common]\r\nTCInstallDir=C:\\TC\r\n";
  Start();
  Assign(Pack, L"X");
  Editor.FileSaveAndRestart();
  EXPECT_EQ(Calls, Log{L"Start \\Totalcmd.exe /i=\"C:\\TC\\Wincmd.ini\""});
}

// -- Help

TEST_F(EditorTest, AMissingHelpFileIsReportedAndNothingElseHappens) {
  Editor.ShowHelpTopics();
  ASSERT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(MessageBoxes.Shown[0].Text, L"File not found.");
  EXPECT_EQ(MessageBoxes.Shown[0].Icon, BoxIcon::Critical);
  EXPECT_TRUE(Calls.empty());
}

// A browser marks what it downloads, and the help's viewer then shows empty pages.
TEST_F(EditorTest, TheMarkOfADownloadIsTakenOffTheHelpFileBeforeItIsOpened) {
  Files.Contents[L"C:\\Tessera\\Readme.chm"] = "help";
  Files.Contents[L"C:\\Tessera\\Readme.chm:Zone.Identifier"] = "[ZoneTransfer]\r\nZoneId=3\r\n";
  bool wasMarked = true;
  Programs.OnOpen = [&] {
    wasMarked = Files.Contents.contains(L"C:\\Tessera\\Readme.chm:Zone.Identifier");
  };
  Editor.ShowHelpTopics();
  EXPECT_FALSE(wasMarked);
  EXPECT_TRUE(Files.Contents.contains(L"C:\\Tessera\\Readme.chm"));
}

TEST_F(EditorTest, TheHelpFileIsOpened) {
  Files.Contents[L"C:\\Tessera\\Readme.chm"] = "help";
  Editor.ShowHelpTopics();
  EXPECT_EQ(Calls, (Log{L"OpenDocument C:\\Tessera\\Readme.chm"}));
  EXPECT_TRUE(MessageBoxes.Shown.empty());
}

TEST_F(EditorTest, TheHelpFileIsOpenedFromAShareToo) {
  Environment.Directory = L"\\\\server\\tessera";
  Files.Contents[L"\\\\server\\tessera\\Readme.chm"] = "help";
  Editor.ShowHelpTopics();
  EXPECT_EQ(Calls, (Log{L"OpenDocument \\\\server\\tessera\\Readme.chm"}));
}

// -- Dialogs

TEST_F(EditorTest, AnExportThatTheClipboardDoesNotTakeBeeps) {
  Start();
  Editor.EndExport();
  EXPECT_EQ(MessageBoxes.BeepCount, 0) << "there is nothing to copy";
  Clipboard.IsHeld = true;
  Editor.BeginExport().Ok();
  Editor.EndExport();
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
  Clipboard.IsHeld = false;
  Editor.EndExport();
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
  EXPECT_EQ(Clipboard.Texts.size(), 1U);
}

TEST_F(EditorTest, TheExportFollowsTheListAndWarnsOfUnsavedChanges) {
  Start();
  Assign(Pack, L"X");
  Editor.BeginExport().Ok();
  Editor.EndExport();
  ASSERT_EQ(Clipboard.Texts.size(), 1U);
  EXPECT_NE(Clipboard.Texts[0].find(L"cm_Pack\t--- \tX        \t\r\n"), std::wstring::npos)
      << "the cells are padded to their columns";
  EXPECT_NE(Clipboard.Texts[0].find(L"Paint\tCtrl + Alt + F1"), std::wstring::npos);
  EXPECT_NE(Clipboard.Texts[0].find(L"=   Important   ="), std::wstring::npos);
  Editor.FileSave();
  Editor.BeginExport().Ok();
  Editor.EndExport();
  EXPECT_EQ(Clipboard.Texts.back().find(L"Important"), std::wstring::npos);
}

TEST_F(EditorTest, TheKeysListHidesBeforeADialogWithoutAChoice) {
  Start();
  Editor.Work(&CommandList::SelectRow, View);
  Choose(L"F5");
  const int chosen = Editor.Panel().ChosenKey();
  Editor.Work(&KeysList::ToggleKeysList);
  Editor.Work(&KeysList::KeyDown, KeyCode{40});
  Editor.Work(&KeysList::Select, chosen + 1);
  ASSERT_TRUE(Editor.AllKeys().Visible());
  Editor.HideKeysList();
  EXPECT_FALSE(Editor.AllKeys().Visible());
  EXPECT_TRUE(Editor.AllKeys().PanelToolbarEnabled());
  EXPECT_EQ(Editor.Panel().ChosenKey(), chosen);
}

TEST_F(EditorTest, OptionsResetThePanelAndAreStoredAtOnce) {
  Start();
  Editor.Work(&CommandList::SelectRow, Pack);
  Editor.Work(&HotkeyPanel::SetBox, Modifier::Ctrl, true);
  Choose(L"X");
  OptionsSelection& options = Editor.BeginOptions();
  options.Click(OptionBox::ShowGridLines);
  options.Apply();
  EXPECT_TRUE(Editor.EndOptions().LanguageChanged)
      << "the path of the language file was missing and is empty now";
  EXPECT_EQ(Editor.Options().CommandListShowLines, 1);
  EXPECT_NE(StoredSettings().find("CommandListShowLines=1\r\n"), std::string::npos);
  EXPECT_FALSE(Editor.Panel().BoxChecked(Modifier::Ctrl));
  EXPECT_EQ(Editor.Panel().ChosenKey(), NoKeyChosen);
}

TEST_F(EditorTest, AfterTheOptionsTheCommandListHasTheFocus) {
  Start();
  Editor.BeginOptions();
  EXPECT_EQ(Editor.EndOptions().Panel.FocusTo, Reaction::Focus::CommandList);
}

TEST_F(EditorTest, ARecentFileOfAKilledSaveIsThereAgain) {
  Files.Contents[OtherIniFile + L".tessera-old"] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  StoredSettings() = "[Tessera]\r\nRecentFiles1=C:\\TC\\Other.ini\r\n";
  Start();
  Editor.mnuFileRecentFiles_Click(2);
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Alt + V");
  EXPECT_EQ(Editor.RecentFiles().ListItems(1), OtherIniFile);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
}

TEST_F(EditorTest, AFileNamedAtTheStartIsThereAgainAfterAKilledSave) {
  Files.Contents[OtherIniFile + L".tessera-old"] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Editor.Load(OtherIniFile);
  Editor.Activate();
  EXPECT_EQ(Editor.Document().Caption(), L"C:\\TC\\Other.ini - Tessera");
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Alt + V");
}

TEST_F(EditorTest, TheStoredFolderOfTotalCommanderMayHoldVariables) {
  Environment.Variables = {{L"tools", L"C:\\TC"}};
  StoredSettings() = "[Common]\r\nTCInstallDir=%tools%\r\n";
  Ini() = "[Shortcuts]\r\nRedirectSection=%COMMANDER_PATH%\\keys.ini\r\n";
  Files.Contents[L"C:\\TC\\keys.ini"] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Start();
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Alt + V");
  Editor.FileOpen();
  ASSERT_EQ(Dialogs.OpenRequests.size(), 1U);
  EXPECT_EQ(Dialogs.OpenRequests[0].Folder, L"C:\\TC\\");
}

TEST_F(EditorTest, TheExportStartsWithTheStoredColumns) {
  StoredSettings() = "[Tessera]\r\nClipOptions=1,0,0,1\r\n";
  Start();
  EXPECT_EQ(Editor.BeginExport().Selection().ClipOptions(), L"1,0,0,1");
}

}  // namespace
}  // namespace tessera::editor_dialogs_test
