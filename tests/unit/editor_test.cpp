#include "tests/unit/editor_fixture.h"

namespace tessera {
namespace {

// -- Opening

TEST_F(EditorTest, TheFirstActivationShowsEveryRowInFileOrder) {
  Start();
  ASSERT_EQ(editor_.Rows().Count(), 5U);
  EXPECT_EQ(editor_.Rows().At(Heading).Description, L"[___File___]");
  EXPECT_EQ(editor_.Rows().At(Copy).CommandName, L"cm_Copy");
  EXPECT_EQ(editor_.Rows().At(Copy).DefaultKeys, L"F5");
  EXPECT_EQ(editor_.Rows().At(Copy).CurrentKeys, L"F3");
  EXPECT_EQ(editor_.Rows().At(View).DefaultKeys, L"F3 *");
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"---");
  EXPECT_EQ(editor_.Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
  EXPECT_EQ(editor_.List().SelectedRow(), 1U);
  EXPECT_FALSE(editor_.Modified());
  EXPECT_TRUE(messageBoxes_.Shown.empty());
}

TEST_F(EditorTest, ASecondActivationDoesNothing) {
  Start();
  const int reads = files_.Reads;
  files_.Contents.erase(incPath);
  files_.Contents.erase(iniPath);
  editor_.Activate();
  EXPECT_EQ(files_.Reads, reads);
  EXPECT_TRUE(messageBoxes_.Shown.empty());
  EXPECT_EQ(editor_.Rows().Count(), 5U);
}

TEST_F(EditorTest, AnOpenReadsEachInputFileOnce) {
  editor_.Load();
  files_.Reads = 0;
  editor_.Activate();
  EXPECT_EQ(files_.Reads, 4) << "Wincmd.ini, Totalcmd.inc, the default keys, and, for the recent "
                                "files, the settings";
}

TEST_F(EditorTest, ASaveReadsAndWritesItsFileOnce) {
  Start();
  Assign(Pack, L"X");
  files_.Reads = files_.Writes = files_.Replaces = 0;
  editor_.FileSave();
  EXPECT_EQ(files_.Reads, 1);
  EXPECT_EQ(files_.Writes, 1);
  EXPECT_EQ(files_.Replaces, 1);
}

TEST_F(EditorTest, TheProgressBarIsShownWhileALoadRuns) {
  Start();
  ASSERT_GE(progressShown_.size(), 2U);
  EXPECT_TRUE(progressShown_.front());
  EXPECT_FALSE(progressShown_.back());
}

TEST_F(EditorTest, ASecondOpenAppendsItsKeysToThoseOfTheFirst) {
  files_.Contents[otherIniPath] = "[Shortcuts]\r\nA+V=cm_View\r\n";
  Start();
  editor_.OpenShortcutFile(false, otherIniPath, false);
  EXPECT_EQ(editor_.Rows().At(View).CurrentKeys, L"Ctrl + F3 = Alt + V");
  EXPECT_EQ(editor_.Caption(), L"C:\\TC\\Other.ini - Tessera");
}

TEST_F(EditorTest, ASecondOpenWithUnsavedChangesAsksFirst) {
  files_.Contents[otherIniPath] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  messageBoxes_.Answers = {BoxAnswer::Cancel};
  editor_.OpenShortcutFile(false, otherIniPath, false);
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text, L"Save changes to  C:\\TC\\Wincmd.ini\n");
  EXPECT_EQ(messageBoxes_.Shown[0].Buttons, BoxButtons::YesNoCancel);
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"X");
  EXPECT_TRUE(editor_.Modified());

  messageBoxes_.Answers = {BoxAnswer::Cancel};
  editor_.FileOpen();
  EXPECT_TRUE(dialogs_.OpenRequests.empty());

  messageBoxes_.Answers = {BoxAnswer::No};
  editor_.OpenShortcutFile(false, otherIniPath, false);
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"---");
  EXPECT_FALSE(editor_.Modified());
  EXPECT_EQ(Ini(), iniContent);
}

TEST_F(EditorTest, ASecondOpenForgetsWhichKeysWereEdited) {
  Start();
  Assign(Pack, L"X");
  messageBoxes_.Answers = {BoxAnswer::No};
  editor_.OpenShortcutFile(false, iniPath, false);
  messageBoxes_.Shown.clear();
  Assign(Copy, L"X");
  EXPECT_TRUE(messageBoxes_.Shown.empty()) << "the key is free again";
}

TEST_F(EditorTest, YesSavesBeforeASecondOpen) {
  files_.Contents[otherIniPath] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  messageBoxes_.Answers = {BoxAnswer::Yes};
  editor_.OpenFile(otherIniPath);
  EXPECT_NE(Ini().find("X=cm_Pack"), std::string::npos);
  EXPECT_EQ(editor_.Caption(), L"C:\\TC\\Other.ini - Tessera");
}

TEST_F(EditorTest, ItDoesNotOpenOverASaveThatFailed) {
  files_.Contents[otherIniPath] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  messageBoxes_.Answers = {BoxAnswer::Yes};
  files_.ReplaceErrors.assign(100, FileError::AccessDenied);
  editor_.OpenFile(otherIniPath);
  EXPECT_EQ(editor_.Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"X");
  EXPECT_TRUE(editor_.Modified());
  EXPECT_EQ(messageBoxes_.BeepCount, 1);
}

TEST_F(EditorTest, ASecondOpenForgetsTheEditedKeysInTheIndexes) {
  files_.Contents[otherIniPath] = "[Shortcuts]\r\n";
  Start();
  Assign(Pack, L"X");
  messageBoxes_.Answers = {BoxAnswer::No};
  editor_.OpenFile(otherIniPath);
  messageBoxes_.Shown.clear();
  Assign(Copy, L"X");
  EXPECT_TRUE(messageBoxes_.Shown.empty());
  EXPECT_EQ(editor_.Rows().At(Copy).CurrentKeys, L"X");
}

TEST_F(EditorTest, TheDefaultKeysAreLookedUpAgainAtEveryOpen) {
  Start();
  files_.Contents[dataPath] = "[TC Default Hotkeys]\r\n103=F8\r\n";
  editor_.OpenFile(iniPath);
  EXPECT_EQ(editor_.Rows().At(Copy).DefaultKeys, L"---");
  EXPECT_EQ(editor_.Rows().At(Pack).DefaultKeys, L"F8");
}

TEST_F(EditorTest, FileOpenTakesTheChosenFile) {
  files_.Contents[otherIniPath] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Start();
  dialogs_.OpenAnswers = {otherIniPath};
  editor_.FileOpen();
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"Alt + V");
  EXPECT_EQ(dialogs_.OpenRequests[0].Filter, L"Wincmd.ini (*.ini)|*.ini|All Files (*.*)|*.*");
}

TEST_F(EditorTest, ACancelledFileOpenChangesNothing) {
  Start();
  editor_.FileOpen();
  EXPECT_EQ(editor_.Caption(), L"C:\\TC\\Wincmd.ini - Tessera");
  EXPECT_EQ(editor_.Rows().Count(), 5U);
}

// -- What is missing

TEST_F(EditorTest, WithoutTotalcmdIncTheUserIsToldAndAsked) {
  files_.Contents.erase(incPath);
  files_.Contents[L"D:\\TC\\Totalcmd.inc"] = incContent;
  dialogs_.OpenAnswers = {L"D:\\TC\\Totalcmd.inc"};
  Start();
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text, L"Cannot find your Totalcmd.inc file !");
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Information);
  EXPECT_EQ(messageBoxes_.Shown[0].Buttons, BoxButtons::Ok);
  ASSERT_EQ(dialogs_.OpenRequests.size(), 1U);
  EXPECT_EQ(dialogs_.OpenRequests[0].Folder, L"");
  EXPECT_EQ(dialogs_.OpenRequests[0].FileName, L"Totalcmd.inc");
  EXPECT_EQ(dialogs_.OpenRequests[0].Filter, FilterText(FileFilter::InternalCommands));
  EXPECT_EQ(editor_.Rows().Count(), 5U);
}

TEST_F(EditorTest, ACancelledSearchForTotalcmdIncLeavesAnEmptyListAndAWorkingProgram) {
  files_.Contents.erase(incPath);
  Start();
  EXPECT_EQ(editor_.Rows().Count(), 0U);
  EXPECT_FALSE(editor_.Panel().InputsEnabled());
  editor_.SelectRow(0);
  editor_.ToggleSortedList();
  editor_.ToggleSortedList();
  editor_.ClickColumn(2);
  Choose(L"X");
  editor_.AssignKey();
  editor_.DeleteKeys();
  EXPECT_FALSE(editor_.Modified());
  EXPECT_TRUE(editor_.QueryUnload());
}

TEST_F(EditorTest, TheChosenWincmdIniIsRemembered) {
  files_.Contents.erase(iniPath);
  files_.Contents[otherIniPath] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  dialogs_.OpenAnswers = {otherIniPath};
  Start();
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text, L"Cannot find Total Commander settings file [Wincmd.ini]");
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Exclamation);
  EXPECT_EQ(messageBoxes_.Shown[0].Buttons, BoxButtons::Ok);
  ASSERT_EQ(dialogs_.OpenRequests.size(), 1U);
  EXPECT_EQ(dialogs_.OpenRequests[0].Folder, L"C:\\TC\\");
  EXPECT_EQ(dialogs_.OpenRequests[0].FileName, L"Wincmd.ini");
  EXPECT_EQ(dialogs_.OpenRequests[0].Filter, FilterText(FileFilter::WincmdIni));
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"Alt + V");
  EXPECT_NE(SettingsFile().find("UserDefinedWincmd=C:\\TC\\Other.ini\r\n"), std::string::npos);

  Editor next(system_, [](const LoadProgress&) {});
  next.Load();
  next.Activate();
  EXPECT_EQ(next.Caption(), otherIniPath + L" - Tessera");
  EXPECT_EQ(messageBoxes_.Shown.size(), 1U) << "it is used without a question";
  EXPECT_EQ(dialogs_.OpenRequests.size(), 1U);
}

TEST_F(EditorTest, ACancelledSearchForWincmdIniLeavesAnEmptyListAndAWorkingProgram) {
  files_.Contents.erase(iniPath);
  Start();
  EXPECT_EQ(editor_.Rows().Count(), 0U);
  EXPECT_EQ(editor_.Caption(), L"Tessera");
  EXPECT_EQ(SettingsFile().find("UserDefinedWincmd"), std::string::npos);
  files_.Contents[otherIniPath] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  editor_.OpenShortcutFile(false, otherIniPath, false);
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"Alt + V");
}

TEST_F(EditorTest, WithoutTheDataFileTheUserIsToldAndTheChosenOneIsStored) {
  files_.Contents.erase(dataPath);
  files_.Contents[L"D:\\keys.hky"] = dataContent;
  dialogs_.OpenAnswers = {L"D:\\keys.hky"};
  Start();
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text, L"Cannot find data file! Please open one to continue");
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Critical);
  EXPECT_EQ(messageBoxes_.Shown[0].Buttons, BoxButtons::Ok);
  EXPECT_EQ(dialogs_.OpenRequests[0].FileName, L"tc default hotkeys.hky");
  EXPECT_EQ(dialogs_.OpenRequests[0].Filter, FilterText(FileFilter::DefaultHotkeys));
  EXPECT_EQ(dialogs_.OpenRequests[0].Folder, L"C:\\Tessera\\Data Files");
  EXPECT_EQ(editor_.Rows().At(Copy).DefaultKeys, L"F5");
  EXPECT_NE(SettingsFile().find("DefaultHotKeysDataFile=D:\\keys.hky\r\n"), std::string::npos);
}

TEST_F(EditorTest, WithoutAnyDataFileNoCommandHasDefaultKeys) {
  files_.Contents.erase(dataPath);
  Start();
  EXPECT_EQ(editor_.Rows().At(Copy).DefaultKeys, L"---");
  EXPECT_EQ(editor_.Rows().At(Copy).CurrentKeys, L"F3");
}

TEST_F(EditorTest, AMissingLanguageFileIsReportedAndTheBuiltInTextsAreUsed) {
  SettingsFile() = "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\no.lng\r\n";
  Start();
  ASSERT_EQ(messageBoxes_.Shown.size(), 1U);
  EXPECT_EQ(messageBoxes_.Shown[0].Text, L"Cannot find language file!");
  EXPECT_EQ(messageBoxes_.Shown[0].Icon, BoxIcon::Critical);
  EXPECT_EQ(messageBoxes_.Shown[0].Buttons, BoxButtons::Ok);
  EXPECT_EQ(editor_.Language().GetLangText(TextId::FileSave), L"&Save");
  EXPECT_NE(SettingsFile().find("UseDefaultLanguage=0"), std::string::npos);
  editor_.Unload({}, {});
  EXPECT_NE(SettingsFile().find("UseDefaultLanguage=1"), std::string::npos);
}

TEST_F(EditorTest, KeysAreShownWithTheModifierNamesOfTheLanguage) {
  SettingsFile() = "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\de.lng\r\n";
  files_.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n404=Strg\r\n405=\" \"\r\n";
  Start();
  EXPECT_EQ(editor_.Rows().At(View).CurrentKeys, L"Strg + F3");
  editor_.SetBox(Modifier::Alt, true);
  Assign(Pack, L"X");
  EXPECT_EQ(editor_.Rows().At(Pack).CurrentKeys, L"Alt + X") << "a blank name is no name";
  editor_.FileSave();
  EXPECT_NE(Ini().find("[Shortcuts]\r\nF3=cm_Copy\r\nC+F3=cm_View\r\nA+X=cm_Pack\r\n"),
            std::string::npos);
}

// -- The end

TEST_F(EditorTest, UnloadStoresWindowColumnsAndSort) {
  Start();
  editor_.ToggleSortedList();
  editor_.Unload({.Left = 100, .Top = 200, .Width = 9000, .Height = 8000},
                 {{2, 1, 4, 3}, {100, 200, 300, 400}});
  for (const char* line :
       {"MainWindowLeft=100", "MainWindowTop=200", "MainWindowWidth=9000", "MainWindowHeight=8000",
        "MainWindowMaxmized=0", "ColumnHeadersPosition=2,1,4,3",
        "ColumnHeadersSize=100,200,300,400", "SortedList=1"}) {
    EXPECT_NE(SettingsFile().find(std::string(line) + "\r\n"), std::string::npos) << line;
  }
}

TEST_F(EditorTest, UnloadInFileOrderStoresTheSortThatIsNext) {
  SettingsFile() = "[Tessera]\r\nSortedList=1\r\nSortedColumn=2\r\nSortOrder=0\r\n";
  Start();
  editor_.ToggleSortedList();
  editor_.Unload({}, {});
  for (const char* line : {"SortedList=0", "SortedColumn=3", "SortOrder=1"}) {
    EXPECT_NE(SettingsFile().find(std::string(line) + "\r\n"), std::string::npos) << line;
  }
}

TEST_F(EditorTest, AMinimisedWindowKeepsItsStoredPlace) {
  SettingsFile() = "[Tessera]\r\nMainWindowLeft=77\r\nMainWindowWidth=9000\r\n";
  Start();
  editor_.Unload({.Minimised = true, .Left = -32000, .Width = 10}, {});
  EXPECT_NE(SettingsFile().find("MainWindowLeft=77\r\n"), std::string::npos);
  EXPECT_NE(SettingsFile().find("MainWindowWidth=9000\r\n"), std::string::npos);
}

TEST_F(EditorTest, AMaximisedWindowStoresThatAlone) {
  SettingsFile() = "[Tessera]\r\nMainWindowLeft=77\r\nMainWindowWidth=9000\r\n";
  Start();
  editor_.Unload({.Maximised = true, .Left = -8, .Width = 20000}, {});
  EXPECT_NE(SettingsFile().find("MainWindowLeft=77\r\n"), std::string::npos);
  EXPECT_NE(SettingsFile().find("MainWindowMaxmized=1\r\n"), std::string::npos);
}

}  // namespace
}  // namespace tessera
