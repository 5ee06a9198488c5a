#include <set>

#include "app/PageRun.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::page_run_test {
namespace {

const std::wstring PageFile = L"D:\\keys.html";
const std::wstring UserFile = L"C:\\TC\\usercmd.ini";
const std::wstring LanguageFile = L"C:\\Tessera\\own.lng";

constexpr char WithLanguage[] =
    "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\Tessera\\own.lng\r\n";
constexpr char WithUserCommands[] = "[Tessera]\r\nShowUserCommands=1\r\n";

/// Files that others hold can be seen, and not be read.
class HeldFiles final : public MemoryFiles {
 public:
  std::set<std::wstring> Held;

  [[nodiscard]] FileError Read(const std::wstring& path, std::string& bytes) const override {
    bytes.clear();
    return Held.contains(path) ? FileError::SharingViolation : MemoryFiles::Read(path, bytes);
  }
};

class PageRunTest : public testing::Test, public SampleProgram<HeldFiles> {
 protected:
  PageRunTest() { Files.Contents[IniFile] = IniContent; }

  std::wstring Write(const std::wstring& file = {}, const std::wstring& page = PageFile) {
    return WriteKeysPage(Seams, {file, page});
  }

  /// Expects a run that fails so, and leaves everything as it was.
  void ExpectFailure(const std::wstring& line, const std::wstring& file = {},
                     const std::wstring& page = PageFile) {
    const auto before = Files.Contents;
    EXPECT_EQ(Encode(Write(file, page)), Encode(line));
    EXPECT_EQ(Files.Contents, before);
    ExpectSilence();
  }

  void ExpectSilence() const {
    EXPECT_TRUE(MessageBoxes.Shown.empty());
    EXPECT_EQ(MessageBoxes.BeepCount, 0);
    EXPECT_TRUE(Dialogs.OpenRequests.empty());
    EXPECT_TRUE(Calls.empty());
    EXPECT_TRUE(Clipboard.Texts.empty());
  }

  /// The page of a start with a window.
  std::string PageOfEditor(const std::wstring& file = {}) {
    Editor.Load(file);
    Editor.Activate();
    return Editor.KeysPage();
  }
};

TEST_F(PageRunTest, PageIsThatOfAStartWithAWindow) {
  EXPECT_EQ(Write(), L"");
  EXPECT_NE(Files.Contents.at(PageFile).find("cm_Pack"), std::string::npos);
  EXPECT_EQ(Files.Contents.at(PageFile), PageOfEditor());
}

TEST_F(PageRunTest, GivenFileIsReadInPlaceOfTheOneFound) {
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nCA+K=cm_Pack\r\n";
  EXPECT_EQ(Write(OtherIniFile), L"");
  EXPECT_NE(Files.Contents.at(PageFile).find("\"Ctrl + Alt + K\" data-use=\"user\""),
            std::string::npos);
  EXPECT_EQ(Files.Contents.at(PageFile), PageOfEditor(OtherIniFile));
}

TEST_F(PageRunTest, FormerPageIsReplacedAndNothingElseIsWritten) {
  Files.Contents[PageFile] = "old";
  auto expected = Files.Contents;
  EXPECT_EQ(Write(), L"");
  expected[PageFile] = Files.Contents.at(PageFile);
  EXPECT_NE(expected.at(PageFile), "old");
  EXPECT_EQ(Files.Contents, expected) << "no settings, no recent files, no copy of the page";
  ExpectSilence();
}

TEST_F(PageRunTest, LeftOversOfSavesStay) {
  Files.Contents[VantorFile] = "[Tessera]\r\nSortedList=1\r\n";
  for (const std::wstring& file : {IniFile, VantorFile}) {
    Files.Contents[file + L".tessera-new"] = "new\r\n";
    Files.Contents[file + L".tessera-old"] = "old\r\n";
  }
  auto expected = Files.Contents;
  EXPECT_EQ(Write(), L"");
  expected[PageFile] = Files.Contents.at(PageFile);
  EXPECT_EQ(Files.Contents, expected);
}

TEST_F(PageRunTest, WhatAKilledSaveHasLeftOfAFileIsNotPutBack) {
  Files.Contents[OtherIniFile + L".tessera-old"] = IniContent;
  ExpectFailure(L"Cannot find this file C:\\TC\\Other.ini", OtherIniFile);
}

TEST_F(PageRunTest, MissingGivenFileIsAFailureAndLeavesTheFormerPage) {
  Files.Contents[PageFile] = "old";
  ExpectFailure(L"Cannot find this file C:\\TC\\Other.ini", OtherIniFile);
}

TEST_F(PageRunTest, FilesThatWouldBeAskedForAreMissing) {
  const std::pair<std::wstring, const wchar_t*> cases[] = {
      {IncFile, L"Cannot find your Totalcmd.inc file !"},
      {IniFile, L"Cannot find Total Commander settings file [Wincmd.ini]"},
      {DataFile, L"Cannot find data file! Please open one to continue"}};
  for (const auto& [file, line] : cases) {
    const auto whole = Files.Contents;
    Files.Contents.erase(file);
    ExpectFailure(line);
    Files.Contents = whole;
  }
  Files.Contents[VantorFile] = WithLanguage;
  ExpectFailure(L"Cannot find language file!");
}

TEST_F(PageRunTest, FilesThatCannotBeReadAreAFailure) {
  Files.Contents[UserFile] = "[em_own]\r\n";
  Files.Contents[LanguageFile] = "[UserLanguage]\r\n";
  const std::pair<std::wstring, const char*> cases[] = {{IncFile, ""},
                                                        {IniFile, ""},
                                                        {DataFile, ""},
                                                        {VantorFile, ""},
                                                        {UserFile, WithUserCommands},
                                                        {LanguageFile, WithLanguage}};
  for (const auto& [file, settings] : cases) {
    Files.Contents[VantorFile] = settings;
    Files.Held = {file};
    ExpectFailure(L"Cannot read this file " + file);
  }
}

TEST_F(PageRunTest, TargetThatCannotBeWrittenIsAFailureAndKeepsItsContent) {
  Files.Contents[PageFile] = "old";
  Files.WriteErrors = {FileError::DiskFull};
  ExpectFailure(L"Cannot write this file D:\\keys.html");
  Files.ReplaceErrors = {FileError::Other};
  ExpectFailure(L"Cannot write this file D:\\keys.html");
}

TEST_F(PageRunTest, PageNeverTakesThePlaceOfAFileThatWasRead) {
  for (const std::wstring& file : {IniFile, IncFile, DataFile, VantorFile}) {
    ExpectFailure(L"Cannot write this file " + file, {}, file);
  }
  ExpectFailure(L"Cannot write this file c:\\tc\\WINCMD.INI", IniFile, L"c:\\tc\\WINCMD.INI");
}

TEST_F(PageRunTest, MissingTargetIsTheFirstFailure) {
  Files.Contents.erase(IncFile);
  ExpectFailure(L"The name of a file is missing: /page=FILE", {}, L"");
}

TEST_F(PageRunTest, FailuresAreToldInTheLanguageOfTheSettings) {
  Files.Contents[VantorFile] = WithLanguage;
  Files.Contents[LanguageFile] = "[UserLanguage]\r\n3047=Wo ist\tsie?\r\n3021=Weg:\r\n";
  ExpectFailure(L"Weg: C:\\TC\\Other.ini", OtherIniFile);
  Files.Contents.erase(IncFile);
  ExpectFailure(L"Wo ist sie?");
}

}  // namespace
}  // namespace tessera::page_run_test
