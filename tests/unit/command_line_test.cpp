// The program in a command line.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "platform/CommandLine.h"

namespace tessera::command_line_test {
namespace {

TEST(SplitCommandLine, QuotesHoldTheProgram) {
  const auto isNoFile = [](const std::wstring&) { return false; };
  const auto call = SplitCommandLine(L"\"C:\\Total Commander\\t.exe\" /i=\"x y\"", isNoFile);
  ASSERT_TRUE(call);
  EXPECT_EQ(call->Program, L"C:\\Total Commander\\t.exe");
  EXPECT_EQ(call->Arguments, L" /i=\"x y\"");
  EXPECT_FALSE(SplitCommandLine(L"\"C:\\t.exe", isNoFile));
}

TEST(SplitCommandLine, UnquotedProgramIsTheFirstPartThatIsAFile) {
  std::vector<std::wstring> asked;
  const auto call = SplitCommandLine(L"C:\\a b\\c d.exe /x y", [&](const std::wstring& path) {
    asked.push_back(path);
    return path == L"C:\\a b\\c d.exe";
  });
  ASSERT_TRUE(call);
  EXPECT_EQ(call->Program, L"C:\\a b\\c d.exe");
  EXPECT_EQ(call->Arguments, L" /x y");
  EXPECT_EQ(asked, (std::vector<std::wstring>{L"C:\\a", L"C:\\a b\\c", L"C:\\a b\\c d.exe"}));
}

TEST(SplitCommandLine, ProgramMayBeOneCharacterLong) {
  const auto isFile = [](const std::wstring& path) { return path == L"t"; };
  for (const auto& [line, arguments] :
       {std::pair(L"t /x y", L" /x y"), std::pair(L"t", L""), std::pair(L"t ", L" ")}) {
    const auto call = SplitCommandLine(line, isFile);
    ASSERT_TRUE(call) << line;
    EXPECT_EQ(call->Program, L"t");
    EXPECT_EQ(call->Arguments, arguments);
  }
}

TEST(SplitCommandLine, WholeLineMayBeTheProgram) {
  const auto call =
      SplitCommandLine(L"a b", [](const std::wstring& path) { return path == L"a b"; });
  ASSERT_TRUE(call);
  EXPECT_EQ(call->Program, L"a b");
  EXPECT_EQ(call->Arguments, L"");
}

// The system would start "C:\Program.exe" for it, whatever that is.
TEST(SplitCommandLine, UnquotedLineWithoutAFileIsNoCall) {
  const auto isNoFile = [](const std::wstring&) { return false; };
  EXPECT_FALSE(SplitCommandLine(L"C:\\Program Files\\t.exe /x", isNoFile));
  EXPECT_FALSE(SplitCommandLine(L"", isNoFile));
}

TEST(FolderOfProgram, EndsInABackslash) {
  EXPECT_EQ(FolderOfProgram(L"C:\\a b\\t.exe"), L"C:\\a b\\");
  EXPECT_EQ(FolderOfProgram(L"C:\\t.exe"), L"C:\\");
  EXPECT_EQ(FolderOfProgram(L"t.exe"), L"");
}

}  // namespace
}  // namespace tessera::command_line_test
