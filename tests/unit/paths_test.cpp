// Paths as texts: backslashes, existence, environment references, folders.
#include "settings/Paths.h"

#include <gtest/gtest.h>

#include "tests/support/FakeEnvironment.h"
#include "tests/support/FaultyFiles.h"

namespace tessera::paths_test {
namespace {

TEST(AddBackslash, AppendsOneWhereTheLastCharacterIsAnother) {
  EXPECT_EQ(AddBackslash(L"C:\\TC"), L"C:\\TC\\");
  EXPECT_EQ(AddBackslash(L"C:\\TC\\"), L"C:\\TC\\");
  EXPECT_EQ(AddBackslash(L"C:/TC/"), L"C:/TC/\\");
}

TEST(AddBackslash, EmptyPathBecomesABackslash) { EXPECT_EQ(AddBackslash(L""), L"\\"); }

TEST(FileExists, NetworkPathIsNotProbedWhenSkipped) {
  FaultyFiles files;
  files.Contents = {{L"\\\\server\\a.ini", ""}, {L"C:\\a.ini", ""}};
  EXPECT_TRUE(FileExists(files, L"\\\\server\\a.ini", false));
  EXPECT_FALSE(FileExists(files, L"\\\\server\\a.ini", true));
  EXPECT_TRUE(FileExists(files, L"C:\\a.ini", true));
  EXPECT_FALSE(FileExists(files, L"C:\\b.ini", false));
}

TEST(ExpandPath, ExpandsWholeSegmentsOnly) {
  FakeEnvironment environment;
  environment.Variables = {{L"tc", L"C:\\TC"}, {L"a b", L"x"}};
  const struct {
    const wchar_t* Path;
    const wchar_t* Expanded;
  } cases[] = {
      {L"%tc%\\wincmd.ini", L"C:\\TC\\wincmd.ini"},
      {L"D:\\%a b%\\%tc%", L"D:\\x\\C:\\TC"},
      {L"%tc%", L"C:\\TC"},
      {L"%tc%\\", L"C:\\TC\\"},
      {L"D:\\x%tc%\\f", L"D:\\x%tc%\\f"},
      {L"D:\\%tc%x\\f", L"D:\\%tc%x\\f"},
      {L"%tcx\\xtc%\\xtcx", L"%tcx\\xtc%\\xtcx"},
      {L"%unset%\\f", L"%unset%\\f"},
      {L"%\\%%\\f", L"%\\%%\\f"},
      {L"C:\\plain\\", L"C:\\plain\\"},
      {L"", L""},
  };
  for (const auto& [path, expanded] : cases) EXPECT_EQ(ExpandPath(environment, path), expanded);
}

TEST(DirectoryOf, IsThePathUpToItsLastBackslash) {
  EXPECT_EQ(DirectoryOf(L"C:\\TC\\Totalcmd.inc"), L"C:\\TC");
  EXPECT_EQ(DirectoryOf(L"C:\\Totalcmd.inc"), L"C:");
  EXPECT_EQ(DirectoryOf(L"C:\\TC\\"), L"C:\\TC");
  EXPECT_EQ(DirectoryOf(L"Totalcmd.inc"), L"");
}

}  // namespace
}  // namespace tessera::paths_test
