// Settings and a language file full of values that no one should store: the real windows bear them.
#include <string>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::hostile_test {
namespace {

class HostileTest : public EndToEndTest {
 protected:
  /// Every text but the names of the modifiers, which the expected rows are made with.
  void WriteLanguageFile(const std::wstring& path) {
    std::string lines = "[UserLanguage]\r\n";
    for (int id = 1; id < 5000; ++id) {
      const bool isModifier = id >= 404 && id <= 406;
      if (isModifier) continue;
      lines += std::to_string(id) + "=%s%99999999s%n &\x01\x07\x1B&& ";
      lines.append(id % 3 == 0 ? 5000 : 20, 'x').append("\r\n");
    }
    WriteBytes(path, lines);
  }

  void WriteSettings(const std::wstring& languageFile) {
    std::string lines =
        "[Tessera]\r\nUseDefaultLanguage=0\r\nFontSize=-32768\r\nFontStyle=99999\r\n"
        "FontScript=-7\r\nForegroundColor=99999999999\r\nBackgroundColor=-1\r\n"
        "MainWindowLeft=32767\r\nMainWindowTop=-32768\r\nMainWindowWidth=-5\r\n"
        "MainWindowHeight=32767\r\nColumnHeadersPosition=4,4,x\r\n"
        "ColumnHeadersSize=99999999,,-5\r\nSortOrder=9\r\nSortedColumn=77\r\n";
    lines.append("FontName=").append(5000, 'f').append("\r\n");
    for (int file = 1; file <= 16; ++file) {
      lines.append("RecentFiles").append(std::to_string(file)).append("=Q:\\&%s\x01\\");
      lines.append(file % 2 == 0 ? 5000 : 300, 'p').append("\r\n");
    }
    lines += "[Common]\r\nNumberOfRecentFiles=99\r\nLanguageFile=" + Utf8(languageFile) + "\r\n";
    WriteBytes(folder_.SettingsFile(), lines);
  }

  /// Shows a dialog, and closes it by its close button.
  void ShowDialog(int command, const std::wstring& className) {
    window_->Command(command);
    const Dialog dialog = NextDialog(className);
    PostMessageW(dialog.Handle(), WM_CLOSE, 0, 0);
    dialog.WaitUntilClosed();
  }
};

TEST_F(HostileTest, EveryWindowIsShownAndTheFileIsSaved) {
  const std::wstring languageFile = folder_.Root() + L"own.lng";
  WriteLanguageFile(languageFile);
  WriteSettings(languageFile);
  std::string manyKeys;
  for (int key = 0; key < 1000; ++key) {
    manyKeys.append("K").append(std::to_string(key)).append("=cm_SrcShort\r\n");
  }
  WriteBytes(folder_.WincmdIni(), "[Shortcuts]\r\n" + manyKeys + "A+1=cm_SrcTree\r\n\r\n[a]\r\nb");
  StartAndLoad();
  const RECT window = RectangleOf(window_->Handle());
  EXPECT_LE(window.right - window.left, GetSystemMetrics(SM_CXSCREEN));
  EXPECT_TRUE(window_->Header(1).Text.starts_with(L"%s%99999999s%n &"));
  ShowDialog(IDM_mnuViewOptions, L"frmOptions");
  ShowDialog(IDM_mnuFileExportToClipboard, L"frmExportToClipboard");
  window_->Command(IDM_mnuFileRecentFiles2);
  AnswerByKey(NextBox().Window, VK_RETURN);  // the file is missing

  window_->SelectByAutomation(window_->FindCommand(L"cm_SrcTree"));
  window_->Command(IDM_delete);
  WaitFor("the change", [&] { return Modified(); });
  window_->Command(IDM_mnuFileSave);
  WaitFor("the save to end", [&] { return !Modified(); });
  EXPECT_EQ(ReadBytes(folder_.WincmdIni()), "[Shortcuts]\r\n" + manyKeys + "\r\n[a]\r\nb");

  PostMessageW(window_->Handle(), WM_CLOSE, 0, 0);
  EXPECT_EQ(program_->WaitForEnd(), 0U);
}

}  // namespace
}  // namespace tessera::e2e::hostile_test
