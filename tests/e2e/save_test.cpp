// What a save writes, and what it leaves alone.
#include "platform/win32/Handle.h"
#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::save_test {
namespace {

class SaveTest : public EndToEndTest {
 protected:
  void SetUp() override { original_ = ReadBytes(folder_.WincmdIni()); }

  std::string original_;
};

TEST_F(SaveTest, OnlySectionShortcutsChanges) {
  StartAndLoad();
  MakeAChange();
  Select(L"cm_SrcBySize");
  window_->ClickButton(IDC_Toolbar2, IDM_delete);
  WaitForKeys(L"cm_SrcBySize", L"---");
  Save();

  std::vector<RowTexts> rows = ExpectedRows(folder_);
  EXPECT_TRUE(SameRows(window_->Rows(), rows)) << "the file and the window differ";
  const std::string saved = ReadBytes(folder_.WincmdIni());
  EXPECT_EQ(saved, WithShortcuts(original_, ExpectedShortcuts(rows)));
  EXPECT_EQ(SectionValue(saved, "Shortcuts", "CA+K"), "cm_SrcShort");
  EXPECT_EQ(SectionValue(saved, "Shortcuts", "CAS+B"), "");
  EXPECT_EQ(ReadBytes(folder_.WincmdIni() + L".bak"), original_);
  EXPECT_FALSE(Exists(folder_.WincmdIni() + L".unsaved"));
}

TEST_F(SaveTest, KeysThatNobodyTouchedStayTheKeysThatTheyWere) {
  WriteBytes(folder_.WincmdIni(),
             "[Shortcuts]\r\nOEM_+=cm_SrcTree\r\nW+Q=cm_SrcComments\r\nc+k=cm_SrcBySize\r\n"
             "AC+F5=cm_SrcBySize\r\n");
  StartAndLoad();
  MakeAChange();
  Save();
  const std::string saved = ReadBytes(folder_.WincmdIni());
  EXPECT_EQ(SectionValue(saved, "Shortcuts", "OEM_+"), "cm_SrcTree") << saved;
  EXPECT_EQ(SectionValue(saved, "Shortcuts", "W+Q"), "cm_SrcComments") << saved;
  EXPECT_EQ(SectionValue(saved, "Shortcuts", "c+k"), "cm_SrcBySize") << saved;
  EXPECT_EQ(SectionValue(saved, "Shortcuts", "CA+F5"), "cm_SrcBySize") << saved;
}

TEST_F(SaveTest, LinesComeInTheOrderOfTheSortedView) {
  StartAndLoad();
  MakeAChange();
  window_->ClickButton(IDC_Toolbar1, IDM_mnuViewSortList);
  WaitFor("the sorted view", [&] { return window_->Header(2).HasIcon; });
  window_->ClickHeader(1);
  WaitFor("the order by command", [&] { return window_->Header(1).HasIcon; });
  const std::vector<RowTexts> rows = window_->Rows();
  ASSERT_TRUE(Sorted(rows, 1, false));
  Save();
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), WithShortcuts(original_, ExpectedShortcuts(rows)));
}

TEST_F(SaveTest, TakenStartMenuKeyIsReleased) {
  StartAndLoad();
  Select(L"cm_SrcTree");
  window_->ClickControl(IDC_chkCtrlAlt0);
  window_->ClickControl(IDC_chkCtrlAlt1);
  window_->ChooseKey(L"F4");
  window_->ClickButton(IDC_Toolbar2, IDM_assign);
  Answer(NextBox(), IDYES);
  WaitForKeys(L"cm_SrcTree", L"Ctrl + Alt + F4");
  Save();

  std::string expected = WithShortcuts(original_, ExpectedShortcuts(window_->Rows()));
  const std::string line = "key2=4\r\n";
  const std::size_t at = expected.find(line, expected.find("[user]"));
  ASSERT_NE(at, std::string::npos);
  expected.erase(at, line.size());
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), expected);
}

TEST_F(SaveTest, MenuSavesByKeyboard) {
  StartAndLoad();
  MakeAChange();
  window_->OpenMenu('F');
  Press('S');
  WaitFor("the save to end", [&] { return !Modified(); });
  EXPECT_EQ(SectionValue(ReadBytes(folder_.WincmdIni()), "Shortcuts", "CA+K"), "cm_SrcShort");
}

TEST_F(SaveTest, NothingIsWrittenWithoutAChange) {
  StartAndLoad();
  window_->Command(IDM_mnuFileSave);
  window_->Command(IDM_mnuFileSavenRestartTC);
  Select(L"cm_SrcTree");  // answered after the commands
  Close();
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), original_);
  EXPECT_FALSE(Exists(folder_.WincmdIni() + L".bak"));
}

TEST_F(SaveTest, FileThatIsHeldOpenKeepsItsContentAndTheChangesStayUnsaved) {
  StartAndLoad();
  MakeAChange();
  {
    const UniqueHandle held = Own(CreateFileW(folder_.WincmdIni().c_str(), GENERIC_READ,
                                              FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held);
    window_->ClickButton(IDC_Toolbar1, IDM_mnuFileSave);
    WaitFor("the content that could not be saved",
            [&] { return Exists(folder_.WincmdIni() + L".unsaved"); });
    WaitFor("the window to answer", [&] { return window_->RowCount() > 0; });
    EXPECT_TRUE(Modified());
  }
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), original_);
  const std::string expected = WithShortcuts(original_, ExpectedShortcuts(window_->Rows()));
  EXPECT_EQ(ReadBytes(folder_.WincmdIni() + L".unsaved"), expected);

  Save();
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), expected);
  EXPECT_FALSE(Exists(folder_.WincmdIni() + L".unsaved"));
}

TEST_F(SaveTest, FileThatNobodyMayReadLeavesTheUnsavedContentBesideIt) {
  StartAndLoad();
  MakeAChange();
  const std::string expected = WithShortcuts(original_, ExpectedShortcuts(window_->Rows()));
  {
    const UniqueHandle held = Own(CreateFileW(folder_.WincmdIni().c_str(), GENERIC_READ, 0, nullptr,
                                              OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held);
    window_->ClickButton(IDC_Toolbar1, IDM_mnuFileSave);
    WaitFor("the content that could not be saved",
            [&] { return Exists(folder_.WincmdIni() + L".unsaved"); });
    WaitFor("the window to answer", [&] { return window_->RowCount() > 0; });
    EXPECT_TRUE(Modified());
  }
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), original_);
  EXPECT_EQ(ReadBytes(folder_.WincmdIni() + L".unsaved"), expected);
  Save();
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), expected);
  EXPECT_FALSE(Exists(folder_.WincmdIni() + L".unsaved"));
}

TEST_F(SaveTest, WhatAnotherProgramWritesBeforeAndDuringASaveStays) {
  StartAndLoad();
  const std::string before = "[Before]\r\na=\xE4 ;kept\r\n\r\n" + original_;
  WriteBytes(folder_.WincmdIni(), before);
  MakeAChange();
  const std::string more = "[During]\r\nb=2";
  {
    const UniqueHandle held = Own(CreateFileW(folder_.WincmdIni().c_str(), GENERIC_WRITE,
                                              FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held);
    window_->ClickButton(IDC_Toolbar1, IDM_mnuFileSave);
    WaitFor("the save to wait for the file",
            [&] { return Exists(folder_.WincmdIni() + L".tessera-new"); });
    SetFilePointer(held.get(), 0, nullptr, FILE_END);
    DWORD written = 0;
    ASSERT_TRUE(
        WriteFile(held.get(), more.data(), static_cast<DWORD>(more.size()), &written, nullptr));
  }
  WaitFor("the save to end", [&] { return !Modified(); });
  const std::string expected = WithShortcuts(before + more, ExpectedShortcuts(window_->Rows()));
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), expected);
  EXPECT_EQ(ReadBytes(folder_.WincmdIni() + L".bak"), before + more);
  EXPECT_FALSE(Exists(folder_.WincmdIni() + L".unsaved"));
}

}  // namespace
}  // namespace tessera::e2e::save_test
