// The file of the user's own commands.
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shortcuts/UserCommands.h"
#include "tests/support/FakeClock.h"
#include "tests/support/Installation.h"
#include "tests/support/MemoryFiles.h"
#include "text/Utf8.h"

namespace tessera::user_commands_test {
namespace {

const std::wstring UserFile = L"C:\\TC\\usercmd.ini";

using Names = std::vector<std::wstring>;

class UserCommandFileTest : public testing::Test {
 protected:
  UserCommandFile Read(const std::string& content) {
    files_.Contents[UserFile] = content;
    return ReadUserCommands(files_, clock_, IniFile);
  }

  Names NamesIn(const std::string& content) {
    Names names;
    for (const UserCommand& command : Read(content).Commands) names.push_back(command.Name);
    return names;
  }

  std::wstring DescriptionIn(const std::string& lines) {
    const UserCommandFile file = Read("[em_a]\r\n" + lines);
    return file.Commands.size() == 1 ? file.Commands[0].Description : L"(none)";
  }

  MemoryFiles files_;
  FakeClock clock_;
};

TEST_F(UserCommandFileTest, EverySectionOfSuchANameIsACommand) {
  EXPECT_EQ(NamesIn("[em_a]\r\ncmd=x\r\n[other]\r\n[EM_B]\r\n[ em_c d ]\n[em_]\n[xem_e]\n"),
            (Names{L"em_a", L"EM_B", L"em_c d"}));
}

TEST_F(UserCommandFileTest, TheMenuTextDescribesACommandElseWhatItRuns) {
  EXPECT_EQ(DescriptionIn("cmd=c:\\x.exe\r\nmenu=Run &x\r\n"), L"Run &x");
  EXPECT_EQ(DescriptionIn("cmd=c:\\x.exe\r\n"), L"c:\\x.exe");
  EXPECT_EQ(DescriptionIn("menu=\r\ncmd=\"c:\\a b.exe\"\r\n"), L"c:\\a b.exe");
  EXPECT_EQ(DescriptionIn("button=x\r\n"), L"");
}

TEST_F(UserCommandFileTest, OfSectionsOfOneNameTheFirstCounts) {
  const UserCommandFile file =
      Read("[em_a]\r\nmenu=first\r\n[EM_A]\r\nmenu=second\r\n[em_a]\r\ncmd=third\r\n");
  ASSERT_EQ(file.Commands.size(), 1U);
  EXPECT_EQ(file.Commands[0].Name, L"em_a");
  EXPECT_EQ(file.Commands[0].Description, L"first");
}

std::string Utf16(std::string_view utf8, bool isBigEndian = false) {
  std::string bytes = Utf16LeFromUtf8("\xEF\xBB\xBF" + std::string(utf8));
  for (std::size_t at = 1; isBigEndian && at < bytes.size(); at += 2) {
    std::swap(bytes[at - 1], bytes[at]);
  }
  return bytes;
}

TEST_F(UserCommandFileTest, ItsEncodingIsTold) {
  const std::string utf8 = "[em_\xD0\x96]\r\nmenu=\xD0\xAF\r\n";
  for (const std::string& content :
       {"\xEF\xBB\xBF" + utf8, Utf16(utf8), Utf16(utf8, true), Utf16(utf8) + "x"}) {
    const UserCommandFile file = Read(content);
    ASSERT_EQ(file.Commands.size(), 1U);
    EXPECT_EQ(file.Commands[0].Name, L"em_\u0416");
    EXPECT_EQ(file.Commands[0].Description, L"\u042F");
  }
  const UserCommandFile ansi = Read("[em_\xE9]\r\nmenu=\xE8\r\n");
  ASSERT_EQ(ansi.Commands.size(), 1U);
  EXPECT_EQ(ansi.Commands[0].Name, L"em_\u00E9");
  EXPECT_EQ(ansi.Commands[0].Description, L"\u00E8");
}

TEST_F(UserCommandFileTest, NamesThatNoLineCouldHoldAreLeftOut) {
  const std::string longName = "em_" + std::string(997, 'x');
  EXPECT_EQ(NamesIn("[em_a\x01z]\n[em_b\tc]\n[em_\x7F]\n[" + longName + "]\n[" + longName + "y]\n"),
            Names{Decode(longName)});
  EXPECT_EQ(NamesIn("\xEF\xBB\xBF[em_\xFF]\n[em_ok]\n"), Names{L"em_ok"});
}

TEST_F(UserCommandFileTest, ControlCharactersOfADescriptionBecomeBlanks) {
  EXPECT_EQ(DescriptionIn("menu=\x01"
                          "a\tb\x7F\r\n"),
            L"a b");
}

TEST_F(UserCommandFileTest, WhateverItHoldsIsRead) {
  for (const std::string& content :
       {std::string(), std::string("em_a=1\r\n"), std::string("\xFF\xFE"), std::string("\xFE\xFF["),
        std::string(3000, '\0'), std::string("[em_"), std::string("[[[[]]]]=\n[]\n")}) {
    EXPECT_EQ(Read(content).Error, FileError::None);
    EXPECT_LE(Read(content).Commands.size(), 1U);
  }
}

TEST_F(UserCommandFileTest, AFileThatIsTooLargeIsNotRead) {
  const std::string beginning = "[em_a]\r\n;";
  const std::size_t limit = 4 << 20;
  EXPECT_EQ(Read(beginning + std::string(limit - beginning.size(), 'x')).Commands.size(), 1U);
  files_.Reads = 0;
  const UserCommandFile file = Read(beginning + std::string(limit, 'x'));
  EXPECT_TRUE(file.Commands.empty());
  EXPECT_EQ(file.Error, FileError::Other);
  EXPECT_EQ(files_.Reads, 0);
}

TEST_F(UserCommandFileTest, OneThatIsMissingOrLockedGivesNoCommands) {
  EXPECT_EQ(ReadUserCommands(files_, clock_, IniFile).Error, FileError::NotFound);
  files_.ReadErrors.assign(100, FileError::SharingViolation);
  const UserCommandFile file = Read("[em_a]\r\n");
  EXPECT_TRUE(file.Commands.empty());
  EXPECT_EQ(file.Error, FileError::SharingViolation);
  EXPECT_LE(clock_.SleptMilliseconds, 2000);
  files_.ReadErrors.assign(2, FileError::SharingViolation);
  EXPECT_EQ(NamesIn("[em_a]\r\n"), Names{L"em_a"}) << "held for a moment";
}

TEST_F(UserCommandFileTest, ItLiesBesideTheFileOfTheKeys) {
  files_.Contents[L"D:\\x\\usercmd.ini"] = "[em_a]\r\n";
  EXPECT_EQ(ReadUserCommands(files_, clock_, L"D:\\x\\my.ini").Commands.size(), 1U);
  files_.Contents[L"usercmd.ini"] = "[em_a]\r\n[em_b]\r\n";
  EXPECT_EQ(ReadUserCommands(files_, clock_, L"wincmd.ini").Commands.size(), 2U);
}

}  // namespace
}  // namespace tessera::user_commands_test
