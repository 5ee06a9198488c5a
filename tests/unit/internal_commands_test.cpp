// The lines of "Totalcmd.inc" and the rows that they give.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "shortcuts/InternalCommands.h"
#include "tests/support/Kept.h"

namespace tessera::internal_commands_test {
namespace {

std::vector<CommandEntry> Read(std::string_view bytes) {
  return ReadInternalCommands(Kept(DecodeInternalCommands(bytes)), L"none", [] {});
}

TEST(InternalCommands, ACommandLineHasNameCodeAndDescription) {
  const auto rows = Read("cm_SrcComments=300;Source: Show comments\r\n");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].Key, 1u);
  EXPECT_EQ(rows[0].CommandName, L"cm_SrcComments");
  EXPECT_EQ(rows[0].CommandCode, L"300");
  EXPECT_EQ(rows[0].Description, L"Source: Show comments");
  EXPECT_EQ(rows[0].DefaultKeys, L"none");
  EXPECT_EQ(rows[0].CurrentKeys, L"none");
  EXPECT_EQ(rows[0].Tag, L"300");
  EXPECT_FALSE(rows[0].IsHeading());
}

TEST(InternalCommands, AHeadingLineHasNothingButItsText) {
  const auto rows = Read("[_______File_______]=0");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].Description, L"[_______File_______]");
  EXPECT_EQ(rows[0].Tag, L"commentblock");
  EXPECT_EQ(rows[0].CommandName, L"");
  EXPECT_EQ(rows[0].CommandCode, L"");
  EXPECT_EQ(rows[0].DefaultKeys, L"");
  EXPECT_EQ(rows[0].CurrentKeys, L"");
}

struct CommandCase {
  const char* Line;
  const wchar_t* Name;
  const wchar_t* Code;
  const wchar_t* Description;
};

TEST(InternalCommands, TheFirstSignsDivideACommandLine) {
  const CommandCase cases[] = {
      {"CM_Foo=5;Bar", L"CM_Foo", L"5", L"Bar"},
      {"  cm_Foo = 5 ; Bar  ", L"cm_Foo", L"5", L"Bar"},
      {"\tcm_Foo=5;Bar\t", L"cm_Foo", L"5", L"Bar"},
      {"cm_Foo=5;a=b;c", L"cm_Foo", L"5", L"a=b;c"},
      {"cm_Foo=;", L"cm_Foo", L"", L""},
      {"cm_=;x", L"cm_", L"", L"x"},
      {"cm_Foo=-7;Bar", L"cm_Foo", L"-7", L"Bar"},
      {"cm_Foo=5=6;Bar", L"cm_Foo", L"5=6", L"Bar"},
      {"cm_Foo;a=b", L"cm_Foo;a", L"", L"a=b"},
  };
  for (const CommandCase& expected : cases) {
    const auto rows = Read(expected.Line);
    ASSERT_EQ(rows.size(), 1u) << expected.Line;
    EXPECT_EQ(rows[0].CommandName, expected.Name) << expected.Line;
    EXPECT_EQ(rows[0].CommandCode, expected.Code) << expected.Line;
    EXPECT_EQ(rows[0].Tag, expected.Code) << expected.Line;
    EXPECT_EQ(rows[0].Description, expected.Description) << expected.Line;
  }
}

TEST(InternalCommands, AMissingSignCostsTheLastCharacter) {
  const CommandCase cases[] = {
      {"cm_Foo", L"cm_Fo", L"", L""},
      {"cm_Foo=300", L"cm_Foo", L"30", L""},
      {"cm_Foo=3", L"cm_Foo", L"", L""},
      {"cm_Foo=", L"cm_Foo", L"", L""},
      {"cm_Foo;Bar", L"cm_Foo;Ba", L"", L"Bar"},
      {"cm_", L"cm", L"", L""},
  };
  for (const CommandCase& expected : cases) {
    const auto rows = Read(expected.Line);
    ASSERT_EQ(rows.size(), 1u) << expected.Line;
    EXPECT_EQ(rows[0].CommandName, expected.Name) << expected.Line;
    EXPECT_EQ(rows[0].CommandCode, expected.Code) << expected.Line;
    EXPECT_EQ(rows[0].Description, expected.Description) << expected.Line;
  }
}

TEST(InternalCommands, AHeadingLosesAZeroAtItsEnd) {
  const std::pair<const char*, const wchar_t*> cases[] = {
      {"Header=00", L"Header"},
      {"Header=10", L"Header=10"},
      {"Header=0", L"Header"},
      {"Header= 0", L"Header"},
      {"Header=-0", L"Header"},
      {"Header=0.0", L"Header"},
      {"Header=1=0", L"Header=1"},
      {"Header=0=1", L"Header=0=1"},
      {"Header=x0", L"Header"},  // a text without a leading number counts as 0
      {"Header 0", L"Header 0"},
      {"Header=", L"Header="},
      {"Header=0x", L"Header=0x"},
      {"=0", L""},
      {"; cm_Foo=5;Bar", L"; cm_Foo=5;Bar"},
      {"em_Foo=5", L"em_Foo=5"},
      {"cm", L"cm"},
      {"xcm_Foo=1;", L"xcm_Foo=1;"},
  };
  for (const auto& [line, heading] : cases) {
    const auto rows = Read(line);
    ASSERT_EQ(rows.size(), 1u) << line;
    EXPECT_TRUE(rows[0].IsHeading()) << line;
    EXPECT_EQ(rows[0].Description, heading) << line;
  }
}

TEST(InternalCommands, EmptyAndBlankLinesTakeNoKey) {
  const auto rows = Read("\r\n   \r\ncm_A=1;a\r\n\r\n\t\r\ncm_B=2;b\r\n\r\n");
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].Key, 1u);
  EXPECT_EQ(rows[1].Key, 2u);
  EXPECT_EQ(rows[1].CommandName, L"cm_B");
}

TEST(InternalCommands, AnyLineEndEndsALine) {
  for (const std::string end : {"\r\n", "\n", "\r"}) {
    int steps = 0;
    const std::wstring text = DecodeInternalCommands("cm_A=1;a" + end + end + "cm_B=2;b" + end);
    const auto rows = ReadInternalCommands(text, L"---", [&steps] { ++steps; });
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].Description, L"a");
    EXPECT_EQ(rows[1].Description, L"b");
    EXPECT_EQ(steps, 3);  // one for every line, the empty one included
  }
}

TEST(InternalCommands, NothingGivesNothing) {
  EXPECT_TRUE(Read("").empty());
  EXPECT_TRUE(Read("\xEF\xBB\xBF").empty());
}

TEST(InternalCommands, AByteOrderMarkMeansUtf8) {
  const auto rows = Read(
      "\xEF\xBB\xBF"
      "cm_A=1;Gr\xC3\xBC\xC3\x9F"
      "e\r\n");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_FALSE(rows[0].IsHeading());
  EXPECT_EQ(rows[0].Description, L"Gr\u00FC\u00DFe");
}

TEST(InternalCommands, WithoutAMarkBytesAreInTheAnsiCodePage) {
  const auto rows = Read(
      "cm_A=1;Gr\xFC\xDF"
      "e\r\n");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].Description, L"Gr\u00FC\u00DFe");
}

TEST(InternalCommands, ANulIsACharacterLikeAnother) {
  const auto rows = Read(std::string_view("cm_A\0B=1;x\0y\r\n\0\r\n", 17));
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].CommandName, std::wstring_view(L"cm_A\0B", 6));
  EXPECT_EQ(rows[0].Description, std::wstring_view(L"x\0y", 3));
  EXPECT_TRUE(rows[1].IsHeading());
}

TEST(InternalCommands, AnyBytesAreRead) {
  std::mt19937 random(1);
  std::string bytes(10'000'000, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random() & 0xFF);
  std::size_t steps = 0;
  const std::wstring text = DecodeInternalCommands(bytes);
  const auto rows = ReadInternalCommands(text, L"---", [&steps] { ++steps; });
  ASSERT_FALSE(rows.empty());
  EXPECT_LE(rows.size(), steps);
  EXPECT_EQ(rows.back().Key, rows.size());
}

}  // namespace
}  // namespace tessera::internal_commands_test
