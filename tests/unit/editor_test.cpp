#include "tests/unit/editor_fixture.h"

namespace tessera::editor_test {
namespace {

using namespace installation;

// -- Opening

TEST_F(EditorTest, TheFirstActivationShowsEveryRowInFileOrder) {
  Start();
  ASSERT_EQ(Editor.Rows().Count(), 5U);
  EXPECT_EQ(Editor.Rows().At(Heading).Description, L"[___File___]");
  EXPECT_EQ(Editor.Rows().At(Copy).CommandName, L"cm_Copy");
  EXPECT_EQ(Editor.Rows().At(Copy).DefaultKeys, L"F5");
  EXPECT_EQ(Editor.Rows().At(Copy).CurrentKeys, L"F3");
  EXPECT_EQ(Editor.Rows().At(View).DefaultKeys, L"F3 *");
  EXPECT_EQ(Editor.Rows().At(Pack).CurrentKeys, L"---");
  EXPECT_EQ(Editor.Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
  EXPECT_EQ(Editor.List().SelectedRow(), 1U);
  EXPECT_FALSE(Editor.Modified());
  EXPECT_TRUE(MessageBoxes.Shown.empty());
}

TEST_F(EditorTest, ASecondActivationDoesNothing) {
  Start();
  const int reads = Files.Reads;
  Files.Contents.erase(IncFile);
  Files.Contents.erase(IniFile);
  Editor.Activate();
  EXPECT_EQ(Files.Reads, reads);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_EQ(Editor.Rows().Count(), 5U);
}

TEST_F(EditorTest, AnOpenReadsEachInputFileOnce) {
  Editor.Load();
  Files.Reads = 0;
  Editor.Activate();
  EXPECT_EQ(Files.Reads, 4) << "Wincmd.ini, Totalcmd.inc, the default keys, and, for the recent "
                               "files, the settings";
}

TEST_F(EditorTest, ASaveReadsAndWritesItsFileOnce) {
  Start();
  Assign(Pack, L"X");
  Files.Reads = Files.Writes = Files.Replaces = 0;
  Editor.FileSave();
  EXPECT_EQ(Files.Reads, 1);
  EXPECT_EQ(Files.Writes, 1);
  EXPECT_EQ(Files.Replaces, 1);
}

TEST_F(EditorTest, TheProgressBarIsShownWhileALoadRuns) {
  Start();
  ASSERT_GE(ProgressShown.size(), 2U);
  EXPECT_TRUE(ProgressShown.front());
  EXPECT_FALSE(ProgressShown.back());
}

TEST_F(EditorTest, ASecondOpenAppendsItsKeysToThoseOfTheFirst) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nA+V=cm_View\r\n";
  Start();
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  EXPECT_EQ(Editor.Rows().At(View).CurrentKeys, L"Ctrl + F3 = Alt + V");
  EXPECT_EQ(Editor.Caption(), L"C:\\TC\\Other.ini - Tessera");
}

TEST_F(EditorTest, ASecondOpenWithUnsavedChangesAsksFirst) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::Cancel};
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  ASSERT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(MessageBoxes.Shown[0].Text, L"Save changes to  C:\\TC\\Wincmd.ini\n");
  EXPECT_EQ(MessageBoxes.Shown[0].Buttons, BoxButtons::YesNoCancel);
  EXPECT_EQ(MessageBoxes.Shown[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(Editor.Rows().At(Pack).CurrentKeys, L"X");
  EXPECT_TRUE(Editor.Modified());

  MessageBoxes.Answers = {BoxAnswer::Cancel};
  Editor.FileOpen();
  EXPECT_TRUE(Dialogs.OpenRequests.empty());

  MessageBoxes.Answers = {BoxAnswer::No};
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  EXPECT_EQ(Editor.Rows().At(Pack).CurrentKeys, L"---");
  EXPECT_FALSE(Editor.Modified());
  EXPECT_EQ(Ini(), IniContent);
}

TEST_F(EditorTest, ASecondOpenForgetsWhichKeysWereEdited) {
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::No};
  Editor.OpenShortcutFile(false, IniFile, false);
  MessageBoxes.Shown.clear();
  Assign(Copy, L"X");
  EXPECT_TRUE(MessageBoxes.Shown.empty()) << "the key is free again";
}

TEST_F(EditorTest, YesSavesBeforeASecondOpen) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Editor.OpenFile(OtherIniFile);
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
  EXPECT_EQ(Editor.Caption(), L"C:\\TC\\Other.ini - Tessera");
}

TEST_F(EditorTest, ItDoesNotOpenOverASaveThatFailed) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Files.ReplaceErrors.assign(100, FileError::AccessDenied);
  Editor.OpenFile(OtherIniFile);
  EXPECT_EQ(Editor.Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
  EXPECT_EQ(Editor.Rows().At(Pack).CurrentKeys, L"X");
  EXPECT_TRUE(Editor.Modified());
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
}

TEST_F(EditorTest, ASecondOpenForgetsTheEditedKeysInTheIndexes) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  MessageBoxes.Answers = {BoxAnswer::No};
  Editor.OpenFile(OtherIniFile);
  MessageBoxes.Shown.clear();
  Assign(Copy, L"X");
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_EQ(Editor.Rows().At(Copy).CurrentKeys, L"X");
}

TEST_F(EditorTest, TheDefaultKeysAreLookedUpAgainAtEveryOpen) {
  Start();
  Files.Contents[DataFile] = "[TC Default Hotkeys]\r\n103=F8\r\n";
  Editor.OpenFile(IniFile);
  EXPECT_EQ(Editor.Rows().At(Copy).DefaultKeys, L"---");
  EXPECT_EQ(Editor.Rows().At(Pack).DefaultKeys, L"F8");
}

TEST_F(EditorTest, FileOpenTakesTheChosenFile) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Start();
  Dialogs.OpenAnswers = {OtherIniFile};
  Editor.FileOpen();
  EXPECT_EQ(Editor.Rows().At(Pack).CurrentKeys, L"Alt + V");
  EXPECT_EQ(Dialogs.OpenRequests[0].Filter, L"Wincmd.ini (*.ini)|*.ini|All Files (*.*)|*.*");
}

TEST_F(EditorTest, ACancelledFileOpenChangesNothing) {
  Start();
  Editor.FileOpen();
  EXPECT_EQ(Editor.Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
  EXPECT_EQ(Editor.Rows().Count(), 5U);
}

// -- What is missing

TEST_F(EditorTest, WithoutTotalcmdIncTheUserIsToldAndAsked) {
  Files.Contents.erase(IncFile);
  Files.Contents[L"D:\\TC\\Totalcmd.inc"] = SmallInstallation().Commands;
  Dialogs.OpenAnswers = {L"D:\\TC\\Totalcmd.inc"};
  Start();
  ASSERT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(MessageBoxes.Shown[0].Text, L"Cannot find your Totalcmd.inc file !");
  EXPECT_EQ(MessageBoxes.Shown[0].Icon, BoxIcon::Information);
  EXPECT_EQ(MessageBoxes.Shown[0].Buttons, BoxButtons::Ok);
  ASSERT_EQ(Dialogs.OpenRequests.size(), 1U);
  EXPECT_EQ(Dialogs.OpenRequests[0].Folder, L"");
  EXPECT_EQ(Dialogs.OpenRequests[0].FileName, L"Totalcmd.inc");
  EXPECT_EQ(Dialogs.OpenRequests[0].Filter, FilterText(FileFilter::InternalCommands));
  EXPECT_EQ(Editor.Rows().Count(), 5U);
}

TEST_F(EditorTest, ACancelledSearchForTotalcmdIncLeavesAnEmptyListAndAWorkingProgram) {
  Files.Contents.erase(IncFile);
  Start();
  EXPECT_EQ(Editor.Rows().Count(), 0U);
  EXPECT_FALSE(Editor.Panel().InputsEnabled());
  Editor.SelectRow(0);
  Editor.ToggleSortedList();
  Editor.ToggleSortedList();
  Editor.ClickColumn(2);
  Choose(L"X");
  Editor.AssignKey();
  Editor.DeleteKeys();
  EXPECT_FALSE(Editor.Modified());
  EXPECT_TRUE(Editor.QueryUnload());
}

TEST_F(EditorTest, TheChosenWincmdIniIsRemembered) {
  Files.Contents.erase(IniFile);
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Dialogs.OpenAnswers = {OtherIniFile};
  Start();
  ASSERT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(MessageBoxes.Shown[0].Text, L"Cannot find Total Commander settings file [Wincmd.ini]");
  EXPECT_EQ(MessageBoxes.Shown[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(MessageBoxes.Shown[0].Buttons, BoxButtons::Ok);
  ASSERT_EQ(Dialogs.OpenRequests.size(), 1U);
  EXPECT_EQ(Dialogs.OpenRequests[0].Folder, L"C:\\TC\\");
  EXPECT_EQ(Dialogs.OpenRequests[0].FileName, L"Wincmd.ini");
  EXPECT_EQ(Dialogs.OpenRequests[0].Filter, FilterText(FileFilter::WincmdIni));
  EXPECT_EQ(Editor.Rows().At(Pack).CurrentKeys, L"Alt + V");
  EXPECT_NE(StoredSettings().find("UserDefinedWincmd=C:\\TC\\Other.ini\r\n"), std::string::npos);

  tessera::Editor next(Seams, [](const LoadProgress&) {});
  next.Load();
  next.Activate();
  EXPECT_EQ(next.Caption(), OtherIniFile + L" - Tessera");
  EXPECT_EQ(MessageBoxes.Shown.size(), 1U) << "it is used without a question";
  EXPECT_EQ(Dialogs.OpenRequests.size(), 1U);
}

TEST_F(EditorTest, ACancelledSearchForWincmdIniLeavesAnEmptyListAndAWorkingProgram) {
  Files.Contents.erase(IniFile);
  Start();
  EXPECT_EQ(Editor.Rows().Count(), 0U);
  EXPECT_EQ(Editor.Caption(), L"Tessera");
  EXPECT_EQ(StoredSettings().find("UserDefinedWincmd"), std::string::npos);
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  EXPECT_EQ(Editor.Rows().At(Pack).CurrentKeys, L"Alt + V");
}

TEST_F(EditorTest, WithoutTheDataFileTheUserIsToldAndTheChosenOneIsStored) {
  Files.Contents.erase(DataFile);
  Files.Contents[L"D:\\keys.hky"] = SmallInstallation().DefaultKeys;
  Dialogs.OpenAnswers = {L"D:\\keys.hky"};
  Start();
  ASSERT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(MessageBoxes.Shown[0].Text, L"Cannot find data file! Please open one to continue");
  EXPECT_EQ(MessageBoxes.Shown[0].Icon, BoxIcon::Critical);
  EXPECT_EQ(MessageBoxes.Shown[0].Buttons, BoxButtons::Ok);
  EXPECT_EQ(Dialogs.OpenRequests[0].FileName, L"tc default hotkeys.hky");
  EXPECT_EQ(Dialogs.OpenRequests[0].Filter, FilterText(FileFilter::DefaultHotkeys));
  EXPECT_EQ(Dialogs.OpenRequests[0].Folder, L"C:\\Tessera\\Data Files");
  EXPECT_EQ(Editor.Rows().At(Copy).DefaultKeys, L"F5");
  EXPECT_NE(StoredSettings().find("DefaultHotKeysDataFile=D:\\keys.hky\r\n"), std::string::npos);
}

TEST_F(EditorTest, WithoutAnyDataFileNoCommandHasDefaultKeys) {
  Files.Contents.erase(DataFile);
  Start();
  EXPECT_EQ(Editor.Rows().At(Copy).DefaultKeys, L"---");
  EXPECT_EQ(Editor.Rows().At(Copy).CurrentKeys, L"F3");
}

TEST_F(EditorTest, AMissingLanguageFileIsReportedAndTheBuiltInTextsAreUsed) {
  StoredSettings() = "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\no.lng\r\n";
  Start();
  ASSERT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(MessageBoxes.Shown[0].Text, L"Cannot find language file!");
  EXPECT_EQ(MessageBoxes.Shown[0].Icon, BoxIcon::Critical);
  EXPECT_EQ(MessageBoxes.Shown[0].Buttons, BoxButtons::Ok);
  EXPECT_EQ(Editor.Language().GetLangText(TextId::FileSave), L"&Save");
  EXPECT_NE(StoredSettings().find("UseDefaultLanguage=0"), std::string::npos);
  Editor.Unload({}, {});
  EXPECT_NE(StoredSettings().find("UseDefaultLanguage=1"), std::string::npos);
}

TEST_F(EditorTest, KeysAreShownWithTheModifierNamesOfTheLanguage) {
  StoredSettings() = "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\de.lng\r\n";
  Files.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n404=Strg\r\n405=\" \"\r\n";
  Start();
  EXPECT_EQ(Editor.Rows().At(View).CurrentKeys, L"Strg + F3");
  Editor.SetBox(Modifier::Alt, true);
  Assign(Pack, L"X");
  EXPECT_EQ(Editor.Rows().At(Pack).CurrentKeys, L"Alt + X") << "a blank name is no name";
  Editor.FileSave();
  EXPECT_NE(Ini().find("[Shortcuts]\r\nF3=cm_Copy\r\nC+F3=cm_View\r\nA+X=cm_Pack\r\n"),
            std::string::npos);
}

TEST_F(EditorTest, AnyNumberButNoughtReversesTheOrderOfKeys) {
  for (const char* value : {"0", "1", "2", "-1"}) {
    StoredSettings() = std::string("[Tessera]\r\nReverseOrderHotkey=") + value + "\r\n";
    tessera::Editor editor(Seams, [](const LoadProgress&) {});
    editor.Load();
    editor.Activate();
    EXPECT_EQ(editor.Rows().At(View).CurrentKeys, *value == '0' ? L"Ctrl + F3" : L"F3 + Ctrl");
  }
}

// -- The end

TEST_F(EditorTest, UnloadStoresWindowColumnsAndSort) {
  Start();
  Editor.ToggleSortedList();
  Editor.Unload({.Left = 100, .Top = 200, .Width = 9000, .Height = 8000},
                {{2, 1, 4, 3}, {100, 200, 300, 400}});
  for (const char* line :
       {"MainWindowLeft=100", "MainWindowTop=200", "MainWindowWidth=9000", "MainWindowHeight=8000",
        "MainWindowMaxmized=0", "ColumnHeadersPosition=2,1,4,3",
        "ColumnHeadersSize=100,200,300,400", "SortedList=1"}) {
    EXPECT_NE(StoredSettings().find(std::string(line) + "\r\n"), std::string::npos) << line;
  }
}

TEST_F(EditorTest, UnloadInFileOrderStoresTheSortThatIsNext) {
  StoredSettings() = "[Tessera]\r\nSortedList=1\r\nSortedColumn=2\r\nSortOrder=0\r\n";
  Start();
  Editor.ToggleSortedList();
  Editor.Unload({}, {});
  for (const char* line : {"SortedList=0", "SortedColumn=3", "SortOrder=1"}) {
    EXPECT_NE(StoredSettings().find(std::string(line) + "\r\n"), std::string::npos) << line;
  }
}

TEST_F(EditorTest, AMinimisedWindowKeepsItsStoredPlace) {
  StoredSettings() = "[Tessera]\r\nMainWindowLeft=77\r\nMainWindowWidth=9000\r\n";
  Start();
  Editor.Unload({.Minimised = true, .Left = -32000, .Width = 10}, {});
  EXPECT_NE(StoredSettings().find("MainWindowLeft=77\r\n"), std::string::npos);
  EXPECT_NE(StoredSettings().find("MainWindowWidth=9000\r\n"), std::string::npos);
}

TEST_F(EditorTest, AMaximisedWindowStoresThatAlone) {
  StoredSettings() = "[Tessera]\r\nMainWindowLeft=77\r\nMainWindowWidth=9000\r\n";
  Start();
  Editor.Unload({.Maximised = true, .Left = -8, .Width = 20000}, {});
  EXPECT_NE(StoredSettings().find("MainWindowLeft=77\r\n"), std::string::npos);
  EXPECT_NE(StoredSettings().find("MainWindowMaxmized=1\r\n"), std::string::npos);
}

}  // namespace
}  // namespace tessera::editor_test
