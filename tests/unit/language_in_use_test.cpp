// The language of the whole program, at its start and after a change.
#include <algorithm>

#include "tests/unit/editor_fixture.h"

namespace tessera::language_in_use_test {
namespace {

using namespace installation;

/// By the options, closed by OK; gives whether the program has another language now.
bool ChooseLanguage(Editor& editor, const std::wstring& path) {
  OptionsSelection& options = editor.BeginOptions();
  options.UseDefaultLanguage(false);
  options.EditLanguageFilePath(path);
  options.Apply();
  return editor.EndOptions().LanguageChanged;
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
  Files.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n404=Strg\r\n405=\" \"\r\n406=Hoch\r\n";
  Start();
  EXPECT_EQ(Editor.Document().Rows().At(View).CurrentKeys, L"Strg + F3");
  Editor.Work(&HotkeyPanel::SetBox, Modifier::Alt, true);
  Assign(Pack, L"X");
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Alt + X") << "a blank name is no name";
  Editor.FileSave();
  EXPECT_NE(Ini().find("[Shortcuts]\r\nF3=cm_Copy\r\nC+F3=cm_View\r\nA+X=cm_Pack\r\n"),
            std::string::npos);
  Compose(4, L"Y");
  Editor.Work(&HotkeyPanel::Assign);
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Hoch + Y");
}

TEST_F(EditorTest, AnotherLanguageIsInUseAfterTheOptions) {
  Files.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n104=Speichern\r\n108=Keine\r\n";
  Start();
  EXPECT_TRUE(ChooseLanguage(Editor, L"C:\\de.lng"));
  EXPECT_EQ(Editor.Language().GetLangText(TextId::FileSave), L"Speichern");
  Editor.BeginOptions().UseDefaultLanguage(true);
  Editor.BeginOptions();
  EXPECT_FALSE(Editor.EndOptions().LanguageChanged) << "nothing was applied";
  OptionsSelection& again = Editor.BeginOptions();
  again.UseDefaultLanguage(true);
  again.Apply();
  EXPECT_TRUE(Editor.EndOptions().LanguageChanged);
  EXPECT_EQ(Editor.Language().GetLangText(TextId::FileSave), L"&Save");
}

TEST_F(EditorTest, AnotherLetterCaseOfThePathIsNoOtherLanguage) {
  StoredSettings() = "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\de.lng\r\n";
  Files.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n104=Speichern\r\n";
  Files.Contents[L"C:\\DE.LNG"] = "[UserLanguage]\r\n104=Sichern\r\n";
  Start();
  OptionsSelection& options = Editor.BeginOptions();
  options.EditLanguageFilePath(L"C:\\DE.LNG");
  options.Apply();
  EXPECT_FALSE(Editor.EndOptions().LanguageChanged);
  EXPECT_EQ(Editor.Language().GetLangText(TextId::FileSave), L"Speichern");
}

TEST_F(EditorTest, ALanguageFileThatGoesDuringTheRunChangesTheLanguage) {
  StoredSettings() = "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\de.lng\r\n";
  Files.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n104=Speichern\r\n";
  Start();
  Files.Contents.erase(L"C:\\de.lng");
  Editor.BeginOptions();
  EXPECT_TRUE(Editor.EndOptions().LanguageChanged);
  EXPECT_EQ(Editor.Language().GetLangText(TextId::FileSave), L"&Save");
}

TEST_F(EditorTest, ALanguageFileThatGoesIsReportedByTheExportToo) {
  StoredSettings() = "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\de.lng\r\n";
  Files.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n104=Speichern\r\n";
  Start();
  Files.Contents.erase(L"C:\\de.lng");
  Editor.BeginExport();
  EXPECT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(Editor.Language().GetLangText(TextId::FileSave), L"&Save");
}

TEST_F(EditorTest, ALanguageFileThatIsMissingIsReportedOnce) {
  Start();
  EXPECT_TRUE(ChooseLanguage(Editor, L"C:\\no.lng"));
  Editor.BeginExport();
  Editor.BeginOptions();
  EXPECT_EQ(MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(Editor.Options().UseDefaultLanguage, 1);
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
  files.Contents = Files.Contents;
  files.Contents[language] = "[UserLanguage]\r\n104=Speichern\r\nRightToLeftLanguage=1\r\n";
  const auto timesLookedAt = [&](const char* useDefault) {
    files.Contents[VantorFile] = std::string("[Tessera]\r\nUseDefaultLanguage=") + useDefault +
                                 "\r\n[Common]\r\nLanguageFile=C:\\de.lng\r\n";
    files.Paths.clear();
    tessera::Editor editor(
        {files, Registry, Environment, MessageBoxes, Dialogs, Programs, Clock, Clipboard},
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

TEST_F(EditorTest, TheRecentFilesFollowTheLanguage) {
  Files.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n109=Liste leeren\r\n";
  Start();
  ChooseLanguage(Editor, L"C:\\de.lng");
  EXPECT_EQ(Editor.RecentFiles().ClearEntry().Caption, L"Liste leeren");
}

TEST_F(EditorTest, AnotherLanguageNamesTheModifiersFromTheNextOpenOn) {
  Files.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n404=Strg\r\n";
  Files.Contents[OtherIniFile] = "[Shortcuts]\r\nC+X=cm_Pack\r\n";
  Start();
  ChooseLanguage(Editor, L"C:\\de.lng");
  Editor.Work(&HotkeyPanel::SetBox, Modifier::Ctrl, true);
  Choose(L"X");
  EXPECT_EQ(Editor.Panel().ComposeKey(), L"Ctrl + X");
  Editor.OpenShortcutFile(false, OtherIniFile, true);
  EXPECT_EQ(Editor.Document().Rows().At(Pack).CurrentKeys, L"Strg + X");
}

TEST_F(EditorTest, KeysThatAreShownInAFormerLanguageAreSavedAsTheKeysThatTheyAre) {
  Files.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n404=Strg\r\n";
  Start();
  ChooseLanguage(Editor, L"C:\\de.lng");
  Files.Contents[OtherIniFile] = "";
  Editor.OpenShortcutFile(false, OtherIniFile, true);
  EXPECT_EQ(Editor.Document().Rows().At(View).CurrentKeys, L"Ctrl + F3");
  Assign(Pack, L"X");
  Editor.FileSave();
  EXPECT_EQ(Files.Contents[OtherIniFile],
            "[Shortcuts]\r\nF3=cm_Copy\r\nC+F3=cm_View\r\nX=cm_Pack\r\n");
}

TEST_F(EditorTest, AfterAChangeOfTheLanguageTheSearchLooksAtTheRowsAnew) {
  Files.Contents[L"C:\\de.lng"] = "[UserLanguage]\r\n104=Speichern\r\n";
  Start();
  Editor.Work(&CommandList::SelectRow, View);
  Editor.Work(&CommandList::Search, L"ctrl+f3");
  ASSERT_EQ(Editor.List().Shown().FoundCount(), 1U);
  Editor.Work(&HotkeyPanel::Delete);
  EXPECT_EQ(Editor.List().Shown().FoundCount(), 1U) << "an edited row stays in view";
  ASSERT_TRUE(ChooseLanguage(Editor, L"C:\\de.lng"));
  EXPECT_EQ(Editor.List().Shown().SearchText(), L"ctrl+f3");
  EXPECT_EQ(Editor.List().Shown().FoundCount(), 0U);
  EXPECT_FALSE(Editor.List().CommandSelected());
}

}  // namespace
}  // namespace tessera::language_in_use_test
