// File and colour dialogs: what they ask the system for, and what they give back.
#include <gtest/gtest.h>

#include <stdexcept>

#include "dialogs/cCommonDialog.h"
#include "settings/ini/MissingMarker.h"
#include "tests/support/FakeDialogs.h"

namespace tessera::ccommon_dialog_test {
namespace {

TEST(FilterText, EachIndexHasItsPairs) {
  const std::wstring all = L"All Files (*.*)|*.*";
  const std::wstring expected[] = {
      all,
      L"Wincmd.ini (*.ini)|*.ini|" + all,
      L"TC Main Menu File (*.mnu)|*.mnu|" + all,
      L"TC Intenal Command File (*.inc)|*.inc|" + all,
      L"Picture File (*.ico;*.bmp)|*.ico;*.bmp",
      L"Language File (*.lng)|*.lng|" + all,
      all + L"|Programs (*.EXE;*.COM;*.BAT;*.PIF)|*.EXE;*.COM;*.BAT;*.PIF",
      L"TC Configuration Data File(*.cedf)|*.cedf|" + all,
      L"TC Default Hotkeys Data File(*.hky)|*.hky|" + all,
      L"Wcx_ftp.ini (*.ini)|*.ini|" + all,
  };
  for (int i = 0; i < 10; ++i) EXPECT_EQ(FilterText(static_cast<FileFilter>(i)), expected[i]);
}

TEST(FilterText, IndexOutsideTheTableIsAProgrammingError) {
  EXPECT_THROW(static_cast<void>(FilterText(static_cast<FileFilter>(10))), std::out_of_range);
}

class cCommonDialogTest : public testing::Test {
 protected:
  FakeDialogs dialogs_;
  cCommonDialog dialog_{dialogs_};
};

TEST_F(cCommonDialogTest, OpenGivesTheChosenPath) {
  dialogs_.OpenAnswers = {L"C:\\TC\\Wincmd.ini"};
  EXPECT_EQ(dialog_.BrowseForOpen(L"C:\\TC", L"Wincmd.ini", FileFilter::WincmdIni, L"Choose"),
            L"C:\\TC\\Wincmd.ini");
  const FileDialogRequest& request = dialogs_.OpenRequests.at(0);
  EXPECT_EQ(request.Folder, L"C:\\TC");
  EXPECT_EQ(request.FileName, L"Wincmd.ini");
  EXPECT_EQ(request.Filter, FilterText(FileFilter::WincmdIni));
  EXPECT_EQ(request.Title, L"Choose");
}

TEST_F(cCommonDialogTest, OpenFallsBackToTheDefaultFolderAndTitle) {
  dialog_.Setup(L"C:\\Default");
  EXPECT_EQ(dialog_.BrowseForOpen(L"", L"", FileFilter::Language), MissingMarker);
  EXPECT_EQ(dialogs_.OpenRequests.at(0).Folder, L"C:\\Default");
  EXPECT_EQ(dialogs_.OpenRequests.at(0).Title, L"Open");
}

TEST_F(cCommonDialogTest, SaveRemembersTheFolderOfTheChosenFile) {
  dialogs_.SaveAnswers = {L"D:\\Out\\a.txt", std::nullopt};
  EXPECT_EQ(dialog_.BrowseForSave(L"", L"a.txt", FileFilter::AllFiles, L"", true),
            L"D:\\Out\\a.txt");
  EXPECT_EQ(dialog_.BrowseForSave(L"", L"b.txt", FileFilter::AllFiles, L"Keep", false),
            MissingMarker);
  EXPECT_EQ(dialog_.BrowseForSave(L"E:\\", L"", FileFilter::AllFiles, L"", false), MissingMarker);
  EXPECT_EQ(dialogs_.SaveRequests.at(0).Folder, L"");
  EXPECT_EQ(dialogs_.SaveRequests.at(0).FileName, L"a.txt");
  EXPECT_EQ(dialogs_.SaveRequests.at(0).Filter, FilterText(FileFilter::AllFiles));
  EXPECT_EQ(dialogs_.SaveRequests.at(0).Title, L"Save");
  EXPECT_TRUE(dialogs_.SaveRequests.at(0).AskBeforeOverwrite);
  EXPECT_EQ(dialogs_.SaveRequests.at(1).Folder, L"D:\\Out");
  EXPECT_EQ(dialogs_.SaveRequests.at(1).Title, L"Keep");
  EXPECT_FALSE(dialogs_.SaveRequests.at(1).AskBeforeOverwrite);
  EXPECT_EQ(dialogs_.SaveRequests.at(2).Folder, L"E:\\");
}

TEST_F(cCommonDialogTest, ColorIsADecimalNumber) {
  dialogs_.ColorAnswers = {0x00FF8000U, 0U};
  EXPECT_EQ(dialog_.ColorSelect(), L"16744448");
  EXPECT_EQ(dialog_.ColorSelect(), L"0");
}

TEST_F(cCommonDialogTest, CancelledColorIsTheMissingMarker) {
  EXPECT_EQ(dialog_.ColorSelect(), MissingMarker);
}

}  // namespace
}  // namespace tessera::ccommon_dialog_test
