#include "tests/unit/editor_fixture.h"

namespace tessera::input_files_test {
namespace {

using namespace installation;

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
  EXPECT_EQ(Dialogs.OpenRequests[0].Folder, L"C:\\TC\\");
  EXPECT_EQ(Dialogs.OpenRequests[0].FileName, L"Totalcmd.inc");
  EXPECT_EQ(Dialogs.OpenRequests[0].Filter, FilterText(FileFilter::InternalCommands));
  EXPECT_EQ(Editor.Document().Rows().Count(), 5U);
}

TEST_F(EditorTest, ACancelledSearchForTotalcmdIncLeavesAnEmptyListAndAWorkingProgram) {
  Files.Contents.erase(IncFile);
  Start();
  EXPECT_EQ(Editor.Document().Rows().Count(), 0U);
  EXPECT_FALSE(Editor.Panel().InputsEnabled());
  Editor.Work(&CommandList::SelectRow, 0);
  Editor.Work(&CommandList::ToggleSortedList);
  Editor.Work(&CommandList::ToggleSortedList);
  Editor.Work(&CommandList::SortByColumn, 2);
  Choose(L"X");
  Editor.Work(&HotkeyPanel::Assign);
  Editor.Work(&HotkeyPanel::Delete);
  EXPECT_FALSE(Editor.Document().Modified());
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
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Alt + V");
  EXPECT_NE(StoredSettings().find("UserDefinedWincmd=C:\\TC\\Other.ini\r\n"), std::string::npos);

  tessera::Editor next(Seams, [](const LoadProgress&) {});
  next.Load();
  next.Activate();
  EXPECT_EQ(next.Document().Caption(), OtherIniFile + L" - Tessera");
  EXPECT_EQ(MessageBoxes.Shown.size(), 1U) << "it is used without a question";
  EXPECT_EQ(Dialogs.OpenRequests.size(), 1U);
}

TEST_F(EditorTest, ACancelledSearchForWincmdIniLeavesAnEmptyListAndAWorkingProgram) {
  Files.Contents.erase(IniFile);
  Start();
  EXPECT_EQ(Editor.Document().Rows().Count(), 0U);
  EXPECT_EQ(Editor.Document().Caption(), L"Tessera");
  EXPECT_EQ(StoredSettings().find("UserDefinedWincmd"), std::string::npos);
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nA+V=cm_Pack\r\n";
  Editor.OpenShortcutFile(false, OtherIniFile, false);
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Alt + V");
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
  EXPECT_EQ(Editor.Document().Rows().At(Copy).DefaultKeys, L"F5");
  EXPECT_NE(StoredSettings().find("DefaultHotKeysDataFile=D:\\keys.hky\r\n"), std::string::npos);
}

TEST_F(EditorTest, WithoutAnyDataFileNoCommandHasDefaultKeys) {
  Files.Contents.erase(DataFile);
  Start();
  EXPECT_EQ(Editor.Document().Rows().At(Copy).DefaultKeys, L"---");
  EXPECT_EQ(Editor.Document().Rows().At(Copy).CurrentKeys, L"F3");
}

TEST_F(EditorTest, ADataFileOnAShareIsReadWithoutAQuestion) {
  Files.Contents.erase(DataFile);
  Files.Contents[L"\\\\server\\keys.hky"] = SmallInstallation().DefaultKeys;
  StoredSettings() = "[Tessera]\r\nDefaultHotKeysDataFile=\\\\server\\keys.hky\r\n";
  Start();
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_EQ(Editor.Document().Rows().At(Copy).DefaultKeys, L"F5");
}

}  // namespace
}  // namespace tessera::input_files_test
