// Values that no one should store anywhere: the program starts, works and saves all the same.
#include <gtest/gtest.h>

#include "tests/support/MemoryFiles.h"
#include "tests/support/SampleProgram.h"

namespace tessera::hostile_values_test {
namespace {

using namespace installation;

using World = SampleProgram<MemoryFiles>;

/// Edits, sorts, saves and closes as a user would.
void ExpectWorkingProgram(World& world) {
  ASSERT_EQ(world.Editor.Document().Rows().Count(), 5U);
  world.Assign(Pack, 1, L"J");
  EXPECT_TRUE(world.Editor.Document().Modified());
  world.Editor.Work(&CommandList::ToggleSortedList);
  world.Editor.Work(&CommandList::ToggleSortedList);
  world.Editor.FileSave();
  EXPECT_FALSE(world.Editor.Document().Modified());
  EXPECT_TRUE(world.Editor.QueryUnload());
  world.Editor.Unload({}, ReadColumnLayout(world.Editor.Options()));
}

TEST(HostileValues, SettingsOutOfRangeAndNoNumbersLeaveAWorkingProgram) {
  for (const char* value : {"-1", "99999999999999999999", "1e400", "-1e400", "nan", "inf", "abc",
                            "", "\"", "0x10", "1.5", "\xFF\xFE", "-32768", "32768", "\"5"}) {
    std::string content;
    for (const char* key : {"CommandListShowLines",
                            "FixedBorders",
                            "FlatUserInterface",
                            "ForegroundColor",
                            "BackgroundColor",
                            "FontScript",
                            "FontSize",
                            "FontStyle",
                            "MainWindowTop",
                            "MainWindowLeft",
                            "MainWindowHeight",
                            "MainWindowWidth",
                            "MainWindowMaxmized",
                            "ToolbarVisible",
                            "ColumnHeadersPosition",
                            "ColumnHeadersSize",
                            "UseContextMenuKey",
                            "SortOrder",
                            "SortedColumn",
                            "ReverseOrderHotkey",
                            "KeepUnknownShortcuts",
                            "ForgetKeysAtOpen",
                            "ShowUserCommands"}) {
      content.append(key).append("=").append(value).append("\r\n");
    }
    World world;
    world.Files.Contents[VantorFile] = "[Tessera]\r\n" + content +
                                       "[Common]\r\nNumberOfRecentFiles=" + value +
                                       "\r\nShowControlsBackColor=" + value + "\r\n";
    world.Start();
    SCOPED_TRACE(value);
    ExpectWorkingProgram(world);
    EXPECT_GE(world.Editor.Options().NumberOfRecentFiles, 2);
    EXPECT_LE(world.Editor.Options().NumberOfRecentFiles, 16);
  }
}

TEST(HostileValues, ColumnListsOfAnyLengthGiveFourColumns) {
  for (const wchar_t* list :
       {L"", L"1", L"1,2,3", L"1,2,3,4,5,6,7,8", L",,,,", L"4,4,4,4", L"0,1,2,3", L"-5,1,2,3",
        L"a,b,c,d", L"1e9,1e9,1e9,1e9", L"99999999999999999999"}) {
    Settings settings;
    settings.ColumnHeadersPosition = list;
    settings.ColumnHeadersSize = list;
    const ColumnLayout layout = ReadColumnLayout(settings);
    EXPECT_TRUE(std::is_permutation(layout.Positions.begin(), layout.Positions.end(),
                                    std::array{1, 2, 3, 4}.begin()));
    for (const int width : layout.Widths) {
      EXPECT_GE(width, 0);
      EXPECT_LE(width, 1000000);
    }
  }
}

TEST(HostileValues, LongPathsAreOpenedAndSaved) {
  for (const std::size_t length : {300U, 5000U}) {
    World world;
    world.Start();
    const std::wstring path =
        std::wstring(L"C:\\").append(length - 17, L'd').append(L"\\f\\Wincmd.ini");
    world.Files.Contents[path] = "[Shortcuts]\r\nA+V=cm_Copy\r\n";
    world.Editor.OpenShortcutFile(false, path, true);
    EXPECT_EQ(world.Editor.Document().Rows().At(Copy).CurrentKeys, L"Alt + V");
    world.Assign(Pack, 0, L"X");
    world.Editor.FileSave();
    EXPECT_EQ(world.Files.Contents[path], "[Shortcuts]\r\nA+V=cm_Copy\r\nX=cm_Pack\r\n");
    EXPECT_EQ(world.Files.Contents[path + L".bak"], "[Shortcuts]\r\nA+V=cm_Copy\r\n");
    // A path beyond the buffer of a read comes back cut, and is then reported as missing.
    World next;
    next.Files.Contents = world.Files.Contents;
    next.Start();
    next.Editor.mnuFileRecentFiles_Click(2);
    EXPECT_EQ(next.MessageBoxes.Shown.size(), length < ProfileBufferLength ? 0U : 1U);
  }
}

TEST(HostileValues, ALanguageFileIsShownAsItIs) {
  World world;
  world.Files.Contents[VantorFile] =
      "[Tessera]\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=C:\\x.lng\r\n";
  world.Files.Contents[L"C:\\x.lng"] =
      "[UserLanguage]\r\n3203=%s%n%d\x01 "
      "&&\x1B[\r\n3060=%99999999s\r\n404=%s\r\n405=&\r\n406=\x07\r\n";
  world.Files.Contents[IniFile] = "[Shortcuts]\r\nCAS+F1=cm_Copy\r\n";
  world.Start();
  EXPECT_EQ(world.Editor.Document().Rows().At(Copy).CurrentKeys, L"%s + & + Shift + F1")
      << "a name of control characters alone is no name";
  world.MessageBoxes.Answers = {BoxAnswer::No};
  world.Assign(Pack, 0, L"F5");
  ASSERT_EQ(world.MessageBoxes.Shown.size(), 1U);
  EXPECT_EQ(world.MessageBoxes.Shown[0].Text,
            L"%s%n%d\x01 &&\x1B[  cm_Copy\t\n\n%99999999s  cm_Pack\t");
  world.Assign(Pack, 7, L"F2");
  world.Editor.FileSave();
  EXPECT_EQ(world.Files.Contents[IniFile], "[Shortcuts]\r\nCAS+F1=cm_Copy\r\nCAS+F2=cm_Pack\r\n");
}

TEST(HostileValues, AColumnOfManyKeysIsReadEditedAndSaved) {
  World world;
  std::string lines;
  for (int i = 0; i < 1000; ++i) lines += "K" + std::to_string(i) + "=cm_Copy\r\n";
  world.Files.Contents[IniFile] = "[Shortcuts]\r\n" + lines;
  world.Start();
  EXPECT_GT(world.Editor.Document().Rows().At(Copy).CurrentKeys.size(), 5000U);
  world.Editor.Work(&CommandList::SelectRow, Copy);
  world.Compose(1, L"J");
  world.Editor.Work(&HotkeyPanel::Add);
  world.Editor.FileSave();
  EXPECT_EQ(world.Files.Contents[IniFile], "[Shortcuts]\r\n" + lines + "C+J=cm_Copy\r\n");
  world.Editor.Work(&HotkeyPanel::Delete);
  world.Editor.FileSave();
  EXPECT_EQ(world.Files.Contents[IniFile], "");
}

TEST(HostileValues, ThirtyThousandShortcutsAreReadAndSaved) {
  World world;
  std::string commands;
  std::string lines;
  for (int i = 0; i < 30'000; ++i) {
    const std::string number = std::to_string(i);
    commands += "cm_N" + number + "=" + number + ";n\r\n";
    lines += "K" + number + "=cm_N" + number + "\r\n";
  }
  world.Files.Contents[IncFile] = commands;
  world.Files.Contents[DataFile] = "";
  world.Files.Contents[IniFile] = "[Shortcuts]\r\n" + lines + "[a]\nb";
  world.Start();
  ASSERT_EQ(world.Editor.Document().Rows().Count(), 30'000U);
  EXPECT_EQ(world.Editor.Document().Rows().At(29'999).CurrentKeys, L"K29999");
  world.Assign(29'999, 0, L"X");
  world.Editor.FileSave();
  lines.replace(lines.rfind("K29999"), 6, "X");
  EXPECT_TRUE(world.Files.Contents[IniFile] == "[Shortcuts]\r\n" + lines + "[a]\nb");
}

TEST(HostileValues, AFileOfFiftyMegabytesIsSavedInOneSection) {
  World world;
  std::string before = "[Big]\n";
  while (before.size() < 50U << 20U) {
    before += "key" + std::to_string(before.size()) + " = v \xE4\n";
  }
  const std::string after = "[user]\nmenu1=a\n;end";
  world.Files.Contents[IniFile] = before + "[Shortcuts]\nF3=cm_Copy\n" + after;
  world.Start();
  world.Assign(Pack, 0, L"X");
  world.Editor.FileSave();
  EXPECT_FALSE(world.Editor.Document().Modified());
  EXPECT_TRUE(world.Files.Contents[IniFile] ==
              before + "[Shortcuts]\nF3=cm_Copy\r\nX=cm_Pack\r\n" + after);
}

TEST(HostileValues, FilesThatVanishWhileOpenAreMadeAnewOrAskedFor) {
  World world;
  world.Files.Contents[IniFile] = "[Shortcuts]\r\nF3=cm_Copy\r\n";
  world.Start();
  world.Assign(Pack, 0, L"X");
  for (const std::wstring& path : {IniFile, VantorFile, IncFile, DataFile}) {
    world.Files.Contents.erase(path);
  }
  world.Editor.FileSave();
  EXPECT_FALSE(world.Editor.Document().Modified());
  EXPECT_EQ(world.Files.Contents[IniFile], "[Shortcuts]\r\nF3=cm_Copy\r\nX=cm_Pack\r\n");
  world.Editor.OpenShortcutFile(false, IniFile, false);
  EXPECT_EQ(world.Editor.Document().Rows().Count(), 5U) << "the commands are read once";
  EXPECT_EQ(world.MessageBoxes.Shown.size(), 1U) << "about the default keys";
  world.Editor.Unload({}, {});
  EXPECT_TRUE(world.Files.Contents.contains(VantorFile));
}

TEST(HostileValues, ARegistryValueOfAnotherTypeOrWithoutItsEndLeadsToTheQuestion) {
  const RegistryValue values[] = {
      {4, std::string("\x01\0\0\0", 4)}, {3, "C:\\TC\\Wincmd.ini"},
      {1, {}, L"C:\\TC\\Wincmd.ini"},    {1, {}, L""},
      {1, {}, std::wstring(L"\0\0", 2)}, {7, std::string("a\0b\0\0", 5)},
      {2, {}, std::wstring(2000, L'x')}, {99, "\xFF"}};
  for (const RegistryValue& value : values) {
    World world;
    for (const wchar_t* name : {L"IniFileName", L"InstallDir"}) {
      world.Registry.Values[{RootKey::CurrentUser, L"Software\\Ghisler\\Total Commander", name}] =
          value;
    }
    world.Start();
    EXPECT_EQ(world.Dialogs.OpenRequests.size(), 1U);
    EXPECT_EQ(world.Editor.Document().Rows().Count(), 0U);
    EXPECT_FALSE(world.Editor.Document().Modified());
    world.Files.Contents[IniFile] = "";
    world.Editor.OpenShortcutFile(false, IniFile, false);
    ExpectWorkingProgram(world);
  }
}

/// Files of which those in one folder cannot be written.
class LockedFolder final : public MemoryFiles {
 public:
  [[nodiscard]] FileError Write(const std::wstring& path, std::string_view bytes) override {
    const bool isLocked = path.starts_with(L"C:\\Tessera\\");
    return isLocked ? FileError::AccessDenied : MemoryFiles::Write(path, bytes);
  }
};

TEST(HostileValues, AProgramFolderThatCannotBeWrittenStopsNothing) {
  SampleProgram<LockedFolder> world;
  world.Start();
  world.Assign(Pack, 0, L"X");
  world.Editor.FileSave();
  EXPECT_FALSE(world.Editor.Document().Modified());
  EXPECT_EQ(world.Files.Contents[IniFile], "[Shortcuts]\r\nX=cm_Pack\r\n");
  world.Editor.Unload({}, {});
  EXPECT_FALSE(world.Files.Contents.contains(VantorFile));
  EXPECT_EQ(world.Editor.Options().MainWindowWidth, 0) << "as given to Unload";
}

TEST(HostileValues, ARecentFileOnAMissingDriveIsReportedAndGoes) {
  World world;
  world.Files.Contents[VantorFile] =
      "[Tessera]\r\nRecentFiles1=Q:\\gone\\Wincmd.ini\r\nRecentFiles2=C:\\TC\\Wincmd.ini\r\n";
  world.Start();
  world.Editor.mnuFileRecentFiles_Click(2);
  ASSERT_EQ(world.MessageBoxes.Shown.size(), 1U);
  EXPECT_NE(world.MessageBoxes.Shown[0].Text.find(L"Q:\\gone\\Wincmd.ini"), std::wstring::npos);
  EXPECT_EQ(world.Files.Contents[VantorFile].find("gone"), std::string::npos);
  ExpectWorkingProgram(world);
}

}  // namespace
}  // namespace tessera::hostile_values_test
