// Where Total Commander's files are looked for, and in what order.
#include <gtest/gtest.h>

#include <vector>

#include "settings/commander/LocateTotalCommander.h"
#include "settings/ini/MissingMarker.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/FakeRegistry.h"
#include "tests/support/FaultyFiles.h"

namespace tessera::locate_total_commander_test {
namespace {

const std::wstring Subkey = L"Software\\Ghisler\\Total Commander";

class LocateTest : public testing::Test {
 protected:
  LocateTest() { environment_.Variables[L"windir"] = L"C:\\Windows"; }

  void Register(RootKey root, const std::wstring& name, const std::wstring& text) {
    registry_.SetText(root, Subkey, name, text);
  }

  std::wstring LocateInc() { return LocateTotalcmdInc(sources_, directory_, ask_); }
  std::wstring LocateIni() { return LocateWincmdIni(sources_, directory_, userDefined_, ask_); }

  FaultyFiles files_;
  FakeRegistry registry_;
  FakeEnvironment environment_;
  LocateSources sources_{files_, registry_, environment_};

  std::wstring directory_ = L"C:\\Setting\\";
  std::wstring userDefined_{MissingMarker};
  std::vector<std::wstring> asked_;  // the folders that questions started in
  std::wstring answer_{MissingMarker};
  AskForMissingFile ask_ = [this](const std::wstring& folder) {
    asked_.push_back(folder);
    return answer_;
  };
};

class LocateTotalcmdIncTest : public LocateTest {};
class LocateWincmdIniTest : public LocateTest {};

TEST_F(LocateTotalcmdIncTest, CommanderPathWinsOverAnyRegistryValue) {
  environment_.Variables[L"Commander_Path"] = L"C:\\TC";
  Register(RootKey::CurrentUser, L"InstallDir", L"D:\\User");
  files_.Contents = {{L"C:\\TC\\Totalcmd.inc", ""}, {L"D:\\User\\Totalcmd.inc", ""}};
  EXPECT_EQ(LocateInc(), L"C:\\TC\\Totalcmd.inc");
  EXPECT_EQ(directory_, L"C:\\TC\\");
  EXPECT_TRUE(asked_.empty());
}

TEST_F(LocateTotalcmdIncTest, UnsetCommanderPathProbesTheRootOfTheCurrentDrive) {
  files_.Contents = {{L"\\Totalcmd.inc", ""}};
  EXPECT_EQ(LocateInc(), L"\\Totalcmd.inc");
  EXPECT_EQ(directory_, L"\\");
}

TEST_F(LocateTotalcmdIncTest, UserKeyWinsOverMachineKey) {
  Register(RootKey::CurrentUser, L"InstallDir", L"D:\\User");
  Register(RootKey::LocalMachine, L"InstallDir", L"D:\\Machine");
  files_.Contents = {{L"D:\\User\\Totalcmd.inc", ""}, {L"D:\\Machine\\Totalcmd.inc", ""}};
  EXPECT_EQ(LocateInc(), L"D:\\User\\Totalcmd.inc");
  EXPECT_EQ(directory_, L"D:\\User\\");
}

TEST_F(LocateTotalcmdIncTest, RegistryValueWithoutTheFileIsPassedOver) {
  Register(RootKey::CurrentUser, L"InstallDir", L"D:\\User");
  Register(RootKey::LocalMachine, L"InstallDir", L"%tools%\\TC");
  environment_.Variables[L"tools"] = L"E:\\Tools";
  files_.Contents = {{L"E:\\Tools\\TC\\Totalcmd.inc", ""}};
  EXPECT_EQ(LocateInc(), L"E:\\Tools\\TC\\Totalcmd.inc");
  EXPECT_EQ(directory_, L"E:\\Tools\\TC\\");
  EXPECT_TRUE(asked_.empty());
}

TEST_F(LocateTotalcmdIncTest, DirectoryOfTheSettingsIsExpandedAndStaysAsItIs) {
  directory_ = L"%tools%\\";
  environment_.Variables[L"tools"] = L"E:\\Tools";
  files_.Contents = {{L"E:\\Tools\\Totalcmd.inc", ""}};
  EXPECT_EQ(LocateInc(), L"E:\\Tools\\Totalcmd.inc");
  EXPECT_EQ(directory_, L"%tools%\\");
}

TEST_F(LocateTotalcmdIncTest, DirectoryOfTheSettingsMayBeOnAShare) {
  directory_ = L"\\\\server\\tc\\";
  files_.Contents = {{L"\\\\server\\tc\\Totalcmd.inc", ""}};
  EXPECT_EQ(LocateInc(), L"\\\\server\\tc\\Totalcmd.inc");
  EXPECT_TRUE(asked_.empty());
}

TEST_F(LocateTotalcmdIncTest, UserIsAskedOnceWhenNothingIsFound) {
  answer_ = L"F:\\Here\\Totalcmd.inc";
  EXPECT_EQ(LocateInc(), answer_);
  EXPECT_EQ(directory_, L"F:\\Here\\");
  EXPECT_EQ(asked_, std::vector<std::wstring>{L""});
}

TEST_F(LocateTotalcmdIncTest, CancelledQuestionGivesTheMarkerAndKeepsTheDirectory) {
  EXPECT_EQ(LocateInc(), MissingMarker);
  EXPECT_EQ(directory_, L"C:\\Setting\\");
}

TEST_F(LocateWincmdIniTest, LeadingDotResolvesAgainstTheTotalCommanderDirectory) {
  directory_ = L"%tools%\\";
  environment_.Variables[L"tools"] = L"E:\\Tools";
  Register(RootKey::CurrentUser, L"IniFileName", L".\\ini\\wincmd.ini");
  files_.Contents = {{L"E:\\Tools\\ini\\wincmd.ini", ""}};
  EXPECT_EQ(LocateIni(), L"E:\\Tools\\ini\\wincmd.ini");
}

TEST_F(LocateWincmdIniTest, BareNameResolvesAgainstTheWindowsDirectory) {
  Register(RootKey::CurrentUser, L"IniFileName", L"wincmd.ini");
  files_.Contents = {{L"C:\\Windows\\wincmd.ini", ""}};
  EXPECT_EQ(LocateIni(), L"C:\\Windows\\wincmd.ini");
}

TEST_F(LocateWincmdIniTest, EnvironmentReferenceIsExpandedBeforeEitherRule) {
  Register(RootKey::CurrentUser, L"IniFileName", L"%APPDATA%\\GHISLER\\wincmd.ini");
  environment_.Variables[L"APPDATA"] = L"C:\\Users\\U\\Roaming";
  files_.Contents = {{L"C:\\Users\\U\\Roaming\\GHISLER\\wincmd.ini", ""}};
  EXPECT_EQ(LocateIni(), L"C:\\Users\\U\\Roaming\\GHISLER\\wincmd.ini");

  environment_.Variables[L"APPDATA"] = L".";
  files_.Contents = {{L"C:\\Setting\\GHISLER\\wincmd.ini", ""}};
  EXPECT_EQ(LocateIni(), L"C:\\Setting\\GHISLER\\wincmd.ini");
}

TEST_F(LocateWincmdIniTest, MachineValueCountsOnlyWithoutAUserValue) {
  Register(RootKey::LocalMachine, L"IniFileName", L"D:\\machine.ini");
  files_.Contents = {{L"D:\\machine.ini", ""}};
  EXPECT_EQ(LocateIni(), L"D:\\machine.ini");

  Register(RootKey::CurrentUser, L"IniFileName", L"D:\\missing.ini");
  EXPECT_EQ(LocateIni(), MissingMarker);
}

TEST_F(LocateWincmdIniTest, UserDefinedFileThatExistsIsUsedWithoutAnyQuestion) {
  Register(RootKey::CurrentUser, L"IniFileName", L"D:\\missing.ini");
  userDefined_ = L"%tools%\\my.ini";
  environment_.Variables[L"tools"] = L"E:\\Tools";
  files_.Contents = {{L"E:\\Tools\\my.ini", ""}};
  EXPECT_EQ(LocateIni(), L"E:\\Tools\\my.ini");
  EXPECT_EQ(userDefined_, L"%tools%\\my.ini");
  EXPECT_TRUE(asked_.empty());
}

TEST_F(LocateWincmdIniTest, UserDefinedFileOfAKilledSaveIsThereAgain) {
  userDefined_ = L"E:\\my.ini";
  files_.Contents = {{L"E:\\my.ini.tessera-old", "old"}};
  EXPECT_EQ(LocateIni(), L"E:\\my.ini");
  EXPECT_EQ(files_.Contents[L"E:\\my.ini"], "old");
  EXPECT_TRUE(asked_.empty());
}

TEST_F(LocateWincmdIniTest, QuestionStartsInTheExpandedDirectory) {
  directory_ = L"%tools%\\";
  environment_.Variables[L"tools"] = L"E:\\Tools";
  EXPECT_EQ(LocateIni(), MissingMarker);
  EXPECT_EQ(asked_, std::vector<std::wstring>{L"E:\\Tools\\"});
}

TEST_F(LocateWincmdIniTest, AnswerBecomesTheUserDefinedFile) {
  answer_ = L"F:\\Here\\Wincmd.ini";
  EXPECT_EQ(LocateIni(), answer_);
  EXPECT_EQ(userDefined_, answer_);
  EXPECT_EQ(asked_, std::vector<std::wstring>{L"C:\\Setting\\"});
}

TEST_F(LocateWincmdIniTest, CancelledQuestionGivesTheMarker) {
  userDefined_ = L"D:\\gone.ini";
  EXPECT_EQ(LocateIni(), MissingMarker);
  EXPECT_EQ(userDefined_, MissingMarker);
}

}  // namespace
}  // namespace tessera::locate_total_commander_test
