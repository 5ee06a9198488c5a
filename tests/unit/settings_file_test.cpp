// The file of the settings as one thing: how often it is read, and who may write it.
#include "settings/SettingsFile.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::settings_file_test {
namespace {

using namespace installation;

class SettingsFileTest : public testing::Test {
 protected:
  FileError WriteOne() {
    return file_.Change([](ProfileFile& stored) { stored.WriteString(L"a", L"b", L"c"); });
  }

  MemoryFiles Files;
  FakeClock Clock;
  FakeEnvironment Environment;
  tessera::SettingsFile file_{Files, Clock, Environment};
};

TEST_F(SettingsFileTest, LiesInTheProgramsFolder) {
  EXPECT_EQ(SettingsPath(Environment), VantorFile);
  Environment.Directory = L"D:\\";
  EXPECT_EQ(SettingsPath(Environment), L"D:\\vantor.ini");
}

TEST_F(SettingsFileTest, AChangeKeepsWhatOthersWroteSinceTheStart) {
  Files.Contents[VantorFile] = "[a]\r\nb=1\r\n";
  EXPECT_EQ(file_.Read().ReadString(L"a", L"b", L""), L"1");
  Files.Contents[VantorFile] = "[a]\r\nb=1\r\nd=2\r\n";
  EXPECT_EQ(WriteOne(), FileError::None);
  EXPECT_EQ(Files.Contents[VantorFile], "[a]\r\nb=c\r\nd=2\r\n");
}

TEST_F(SettingsFileTest, AChangeIsOneReadAndOneWriteAndLeavesNoCopies) {
  Files.Contents[VantorFile] = "[a]\r\nb=1\r\n";
  EXPECT_EQ(WriteOne(), FileError::None);
  EXPECT_EQ(Files.Reads, 1);
  EXPECT_EQ(Files.Writes, 1);
  EXPECT_EQ(Files.Contents.size(), 1U);
}

TEST_F(SettingsFileTest, AMissingFileIsCreatedByAChangeAlone) {
  EXPECT_EQ(file_.Read().ReadError(), FileError::NotFound);
  EXPECT_TRUE(Files.Contents.empty());
  EXPECT_EQ(WriteOne(), FileError::None);
  EXPECT_EQ(Files.Contents[VantorFile], "[a]\r\nb=c\r\n");
}

TEST_F(SettingsFileTest, AFileThatCouldNotBeReadAtTheStartIsNotChanged) {
  Files.Contents[VantorFile] = "[a]\r\nb=1\r\n";
  Files.ReadErrors.assign(100, FileError::AccessDenied);
  EXPECT_EQ(file_.Read().ReadError(), FileError::AccessDenied);
  Files.ReadErrors.clear();
  EXPECT_EQ(WriteOne(), FileError::AccessDenied);
  EXPECT_EQ(Files.Contents[VantorFile], "[a]\r\nb=1\r\n");
}

TEST_F(SettingsFileTest, AFolderThatRefusesIsWaitedForOnceAndTriedEachTime) {
  Files.WriteErrors.assign(100, FileError::AccessDenied);
  EXPECT_EQ(WriteOne(), FileError::AccessDenied);
  const int waited = Clock.SleptMilliseconds;
  EXPECT_GT(waited, 0);
  for (int change = 0; change < 3; ++change) {
    const int writes = Files.Writes;
    EXPECT_EQ(WriteOne(), FileError::AccessDenied);
    EXPECT_GT(Files.Writes, writes);
  }
  EXPECT_EQ(Clock.SleptMilliseconds, waited);

  Files.WriteErrors.clear();
  EXPECT_EQ(WriteOne(), FileError::None);
  Files.Contents.clear();
  Files.WriteErrors = {FileError::SharingViolation};
  EXPECT_EQ(WriteOne(), FileError::None) << "waited for again";
  EXPECT_GT(Clock.SleptMilliseconds, waited);
}

TEST_F(SettingsFileTest, AFolderThatRefusedIsNotWaitedForAfterAnotherErrorEither) {
  Files.WriteErrors.assign(100, FileError::AccessDenied);
  EXPECT_EQ(WriteOne(), FileError::AccessDenied);
  const int waited = Clock.SleptMilliseconds;
  for (const FileError error : {FileError::DiskFull, FileError::AccessDenied}) {
    Files.WriteErrors.assign(100, error);
    EXPECT_EQ(WriteOne(), error);
  }
  EXPECT_EQ(Clock.SleptMilliseconds, waited);
}

TEST_F(SettingsFileTest, AFileThatIsNotChangedIsNoFolderThatRefuses) {
  Files.Contents[VantorFile] = "[a]\r\nb=1\r\n";
  Files.ReadErrors.assign(100, FileError::AccessDenied);
  EXPECT_EQ(file_.Read().ReadError(), FileError::AccessDenied);
  Files.ReadErrors.clear();
  EXPECT_EQ(WriteOne(), FileError::AccessDenied);
  const int waited = Clock.SleptMilliseconds;
  Files.ReadErrors = {FileError::SharingViolation};
  EXPECT_EQ(WriteOne(), FileError::AccessDenied);
  EXPECT_GT(Clock.SleptMilliseconds, waited);
}

TEST_F(SettingsFileTest, WhatAKilledChangeLeftIsClearedUpByTheNext) {
  Files.Contents = {{VantorFile, "[a]\r\nb=1\r\n"}, {VantorFile + L".tessera-new", "[a"}};
  EXPECT_EQ(WriteOne(), FileError::None);
  EXPECT_EQ(Files.Contents.size(), 1U);
}

// -- All that the program writes into it

struct Writer {
  const char* Name;
  void (*Write)(Editor&);
  const char* Written;
};

constexpr Writer Writers[] = {
    {"End", [](Editor& editor) { editor.Unload({.Left = 123}, {}); }, "MainWindowLeft=123\r\n"},
    {"Options",
     [](Editor& editor) {
       editor.BeginOptions().Click(OptionBox::ShowGridLines);
       editor.BeginOptions().Apply();
       editor.EndOptions();
     },
     "SortedColumn=3\r\n"},
    {"Export",
     [](Editor& editor) {
       editor.BeginExport().Click(Column::Description);
       editor.BeginExport().Ok();
     },
     "ClipOptions=1,1,1,1\r\n"},
    {"RecentFiles", [](Editor& editor) { editor.OpenShortcutFile(false, IniFile, true); },
     "RecentFiles1=C:\\TC\\Wincmd.ini\r\n"},
    {"MissingFiles", [](Editor& editor) { editor.Activate(); },
     "UserDefinedWincmd=C:\\TC\\Other.ini\r\n"},
    {"DefaultKeys", [](Editor& editor) { editor.Activate(); },
     "DefaultHotKeysDataFile=D:\\keys.hky\r\n"},
};

class EachWriterOfTheSettings : public EditorTest, public testing::WithParamInterface<Writer> {
 protected:
  EachWriterOfTheSettings() {
    Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
    Files.Contents[L"D:\\keys.hky"] = SmallInstallation().DefaultKeys;
    Files.Contents.erase(IniFile);
    Files.Contents.erase(DataFile);
    Dialogs.OpenAnswers = {OtherIniFile, L"D:\\keys.hky"};
  }

  bool Writes() {
    GetParam().Write(Editor);
    return StoredSettings().find(GetParam().Written) != std::string::npos;
  }
};

TEST_P(EachWriterOfTheSettings, ChangesTheFile) {
  StoredSettings() = "[Tessera]\r\n";
  Editor.Load();
  EXPECT_TRUE(Writes());
}

TEST_P(EachWriterOfTheSettings, CreatesTheFileThatIsMissing) {
  Editor.Load();
  Files.Contents.erase(VantorFile);
  EXPECT_TRUE(Writes());
}

TEST_P(EachWriterOfTheSettings, ChangesNothingWhenTheFileCouldNotBeReadAtTheStart) {
  const std::string stored = "[Tessera]\r\nFontSize=20\r\nRecentFiles1=C:\\a.ini\r\n";
  StoredSettings() = stored;
  Files.ReadErrors.assign(100, FileError::SharingViolation);
  Editor.Load();
  Files.ReadErrors.clear();
  EXPECT_FALSE(Writes());
  EXPECT_EQ(StoredSettings(), stored);
}

INSTANTIATE_TEST_SUITE_P(Editor, EachWriterOfTheSettings, testing::ValuesIn(Writers),
                         [](const auto& test) { return std::string(test.param.Name); });

TEST_F(EditorTest, AStartReadsTheSettingsOnce) {
  StoredSettings() = "[Tessera]\r\nRecentFiles1=a\r\nClipOptions=1,0,0,1\r\n";
  Editor.Load();
  EXPECT_EQ(Files.Reads, 1);
  EXPECT_EQ(Editor.RecentFiles().ListItems(1), L"a");
  EXPECT_EQ(Editor.BeginExport().Selection().ClipOptions(), L"1,0,0,1");
}

}  // namespace
}  // namespace tessera::settings_file_test
