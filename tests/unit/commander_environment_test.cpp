#include <gtest/gtest.h>

#include "settings/commander/CommanderEnvironment.h"
#include "tests/support/FakeEnvironment.h"

namespace tessera::commander_environment_test {
namespace {

TEST(CommanderEnvironment, TellsTheFolderWhereTheVariableIsMissing) {
  FakeEnvironment inherited;
  CommanderEnvironment environment(inherited);
  EXPECT_EQ(environment.Variable(L"COMMANDER_PATH"), L"");
  environment.SetTotalCommanderDirectory(L"C:\\TC\\");
  EXPECT_EQ(environment.Variable(L"COMMANDER_PATH"), L"C:\\TC");
  EXPECT_EQ(environment.Variable(L"Commander_Path"), L"C:\\TC");
}

TEST(CommanderEnvironment, LeavesEveryOtherVariableAndASetOneAsTheyAre) {
  FakeEnvironment inherited;
  inherited.Variables = {{L"Commander_Path", L"D:\\TC"}, {L"windir", L"C:\\Windows"}};
  CommanderEnvironment environment(inherited);
  environment.SetTotalCommanderDirectory(L"C:\\TC\\");
  EXPECT_EQ(environment.Variable(L"Commander_Path"), L"D:\\TC");
  EXPECT_EQ(environment.Variable(L"windir"), L"C:\\Windows");
  EXPECT_EQ(environment.Variable(L"other"), L"");
  EXPECT_EQ(environment.ProgramDirectory(), inherited.ProgramDirectory());
  EXPECT_EQ(environment.TemporaryDirectory(), inherited.TemporaryDirectory());
  EXPECT_EQ(environment.ScreenSize().Width, inherited.Screen.Width);
  EXPECT_EQ(environment.ScreenSize().Height, inherited.Screen.Height);
}

}  // namespace
}  // namespace tessera::commander_environment_test
