// The page of keys: from the menu of the list, and by the command line without a window.
#include <array>
#include <filesystem>
#include <map>

#include "platform/win32/Handle.h"
#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::page_test {
namespace {

std::wstring PageInTemporaryFolder() {
  return (std::filesystem::temp_directory_path() / L"Tessera keys.html").wstring();
}

constexpr wchar_t Extension[] = L".html";
constexpr wchar_t OpenCommand[] = L"TesseraTestPage\\shell\\open\\command";

/// Of this prefix, to which alone the tests belong.
void SetClass(const wchar_t* key, const std::wstring& text) {
  RegSetKeyValueW(HKEY_CLASSES_ROOT, key, nullptr, REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

class PageTest : public EndToEndTest {
 protected:
  void SetUp() override { Delete(PageInTemporaryFolder()); }

  void TearDown() override {
    EndToEndTest::TearDown();
    RegDeleteKeyValueW(HKEY_CLASSES_ROOT, Extension, nullptr);
    if (const HWND window = Viewer(); window != nullptr) PostMessageW(window, WM_CLOSE, 0, 0);
    WaitFor("the end of the viewer", [] { return Viewer() == nullptr; });
    Delete(PageInTemporaryFolder());
  }

  /// What opens pages: it notes the command line that it gets.
  void UseViewer() {
    std::filesystem::copy_file(OwnFolder() + L"totalcmd_stand_in.exe", ViewerPath());
    SetClass(Extension, L"TesseraTestPage");
    SetClass(OpenCommand, L'"' + ViewerPath() + L"\" \"%1\"");
  }

  [[nodiscard]] std::wstring ViewerPath() const { return folder_.Root() + L"viewer.exe"; }
  [[nodiscard]] std::string ViewerLog() const {
    return ReadBytes(folder_.Root() + L"stand-in.log");
  }
  static HWND Viewer() { return FindWindowW(L"TTOTAL_CMD", nullptr); }
};

TEST_F(PageTest, MenuWritesUnsavedKeysToTheTemporaryFolderAndOpensThem) {
  UseViewer();
  StartAndLoad();
  MakeAChange();
  window_->Command(IDM_keyspage);
  WaitFor("the page to be opened", [] { return Viewer() != nullptr; });
  EXPECT_EQ(ViewerLog(),
            "start \"" + Utf8(ViewerPath()) + "\" \"" + Utf8(PageInTemporaryFolder()) + "\"\n");
  const std::string page = ReadBytes(PageInTemporaryFolder());
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>"));
  EXPECT_NE(page.find("cm_SrcComments"), std::string::npos);
  EXPECT_NE(page.find("\"Ctrl + Alt + K\" data-use=\"user\""), std::string::npos);
  EXPECT_TRUE(Modified());
}

TEST_F(PageTest, MenuTellsOfAPageThatCannotBeWrittenOrOpened) {
  std::filesystem::create_directory(PageInTemporaryFolder());
  StartAndLoad();
  for (const std::wstring failure : {L"Cannot write this file ", L"Cannot open this file "}) {
    window_->Command(IDM_keyspage);
    const std::wstring line = failure + PageInTemporaryFolder();
    WaitFor("the line " + Utf8(line), [&] { return window_->ControlText(IDC_lblStatus) == line; });
    EXPECT_TRUE(NoBoxOpen());
    Delete(PageInTemporaryFolder());
  }
}

struct Ended {
  DWORD Code = 0;
  std::string Error;  ///< what came from the standard error
};

/// Runs the program to its end, without a window of its own to look at.
class PageRunTest : public testing::Test {
 protected:
  void SetUp() override { SetEnvironmentVariableW(L"Commander_Path", folder_.Commander().c_str()); }
  void TearDown() override { SetEnvironmentVariableW(L"Commander_Path", nullptr); }

  /// With the folder of all as the current one.
  Ended Run(const std::wstring& arguments) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    EXPECT_NE(CreatePipe(&readEnd, &writeEnd, &inherited, 0), FALSE);
    const UniqueHandle reads = Own(readEnd);
    UniqueHandle writes = Own(writeEnd);
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    Ended ended;
    ended.Code = RunWith(arguments, writeEnd);
    writes.reset();
    std::array<char, 4096> bytes{};
    DWORD count = 0;
    while (ReadFile(readEnd, bytes.data(), bytes.size(), &count, nullptr) != FALSE && count != 0) {
      ended.Error.append(bytes.data(), count);
    }
    return ended;
  }

  /// The exit code.
  DWORD RunWith(const std::wstring& arguments, HANDLE standardError) {
    std::wstring line = L'"' + folder_.Executable() + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdError = standardError;
    PROCESS_INFORMATION started{};
    if (CreateProcessW(folder_.Executable().c_str(), line.data(), nullptr, nullptr, TRUE, 0,
                       nullptr, folder_.Root().c_str(), &startup, &started) == FALSE) {
      throw std::runtime_error("The program does not start, error " +
                               std::to_string(GetLastError()));
    }
    const UniqueHandle process = Own(started.hProcess);
    const UniqueHandle thread = Own(started.hThread);
    constexpr DWORD Limit = 20000;  // milliseconds
    if (WaitForSingleObject(process.get(), Limit) != WAIT_OBJECT_0) {
      TerminateProcess(process.get(), 99);
      ADD_FAILURE() << "the program does not end: " << Utf8(arguments);
    }
    DWORD code = 0;
    GetExitCodeProcess(process.get(), &code);
    return code;
  }

  /// Every file and folder, with what the files hold.
  [[nodiscard]] std::map<std::wstring, std::string> Everything() const {
    std::map<std::wstring, std::string> all;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.Root())) {
      const std::wstring path = entry.path().wstring();
      all[path] = entry.is_directory() ? "" : ReadBytes(path);
    }
    return all;
  }

  /// Expects a run that fails with that line and leaves everything as it was.
  void ExpectFailure(const std::wstring& arguments, const std::wstring& line) {
    SCOPED_TRACE(Utf8(arguments));
    const auto before = Everything();
    const Ended ended = Run(arguments);
    EXPECT_EQ(ended.Code, 1U);
    EXPECT_EQ(ended.Error, Utf8(line) + "\r\n");
    EXPECT_TRUE(Everything() == before) << "a file or folder has come, gone or changed";
  }

  [[nodiscard]] std::wstring Page() const { return folder_.Root() + L"keys.html"; }

  Folder folder_;
};

TEST_F(PageRunTest, PageIsWrittenAndNothingElse) {
  WriteBytes(folder_.WincmdIni() + L".tessera-new", "left over");
  auto expected = Everything();
  const Ended ended = Run(L"/page=keys.html");
  EXPECT_EQ(ended.Code, 0U);
  EXPECT_EQ(ended.Error, "");
  const std::string page = ReadBytes(Page());
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>"));
  EXPECT_NE(page.find("cm_SrcComments"), std::string::npos);
  EXPECT_TRUE(page.ends_with("</html>\n"));
  expected[Page()] = page;
  EXPECT_TRUE(Everything() == expected) << "settings, a copy, or a file that is left over";
}

TEST_F(PageRunTest, GivenFileIsReadAndTheFormerPageReplaced) {
  const std::wstring other = folder_.Root() + L"my keys.ini";
  WriteBytes(other, "[Shortcuts]\r\nCAS+K=cm_SrcShort\r\n");
  WriteBytes(Page(), "old");
  const std::wstring file = L'"' + other + L'"';
  const std::wstring page = L"\"/PAGE=" + Page() + L'"';
  for (const std::wstring& arguments : {file + L" " + page, page + L" " + file}) {
    EXPECT_EQ(Run(arguments).Code, 0U);
    EXPECT_NE(ReadBytes(Page()).find("\"Ctrl + Alt + Shift + K\" data-use=\"user\""),
              std::string::npos);
    Delete(Page());
  }
}

TEST_F(PageRunTest, PageIsInTheLanguageOfTheSettings) {
  folder_.UseLanguageFile(folder_.ShippedLanguage(L"Arabic.lng"));
  EXPECT_EQ(Run(L"/page=keys.html").Code, 0U);
  EXPECT_NE(ReadBytes(Page()).find("dir=\"rtl\""), std::string::npos);
  folder_.UseLanguageFile(folder_.ShippedLanguage(L"German.lng"));
  const std::wstring missing = folder_.Root() + L"gr\u00FCn.ini";
  ExpectFailure(L"gr\u00FCn.ini /page=keys.html", L"Diese Datei wurde nicht gefunden: " + missing);
}

TEST_F(PageRunTest, TargetsThatCannotBeWrittenAreLeftAsTheyAre) {
  const std::wstring root = folder_.Root();
  const auto expectUnwritten = [&](const std::wstring& name) {
    ExpectFailure(L"/page=" + name, L"Cannot write this file " + root + name);
  };
  expectUnwritten(L"none\\keys.html");
  expectUnwritten(L"commander");
  expectUnwritten(L"commander\\WINCMD.INI");
  ExpectFailure(L"/page=", L"The name of a file is missing: /page=FILE");
}

TEST_F(PageRunTest, MissingInputLeavesTheFormerPage) {
  WriteBytes(Page(), "old");
  const std::wstring page = L"/page=keys.html";
  ExpectFailure(L"none.ini " + page, L"Cannot find this file " + folder_.Root() + L"none.ini");
  Delete(folder_.DefaultKeysFile());
  ExpectFailure(page, L"Cannot find data file! Please open one to continue");
  Delete(folder_.WincmdIni());
  ExpectFailure(page, L"Cannot find Total Commander settings file [Wincmd.ini]");
  Delete(folder_.TotalcmdInc());
  ExpectFailure(page, L"Cannot find your Totalcmd.inc file !");
}

TEST_F(PageRunTest, InputThatIsHeldLeavesTheFormerPage) {
  WriteBytes(Page(), "old");
  const UniqueHandle held = Own(CreateFileW(folder_.TotalcmdInc().c_str(), GENERIC_WRITE, 0,
                                            nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(held);
  const Ended ended = Run(L"/page=keys.html");
  EXPECT_EQ(ended.Code, 1U);
  EXPECT_EQ(ended.Error, "Cannot read this file " + Utf8(folder_.TotalcmdInc()) + "\r\n");
  EXPECT_EQ(ReadBytes(Page()), "old");
}

TEST_F(PageRunTest, WithoutAnyStandardErrorTheExitCodeTells) {
  EXPECT_EQ(RunWith(L"/page=", nullptr), 1U);
  EXPECT_EQ(RunWith(L"/page=keys.html", nullptr), 0U);
}

}  // namespace
}  // namespace tessera::e2e::page_test
