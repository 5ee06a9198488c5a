// Which file holds a section.
#include <gtest/gtest.h>

#include <string>

#include "shortcuts/RedirectSection.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::redirect_section_test {
namespace {

constexpr const wchar_t* WincmdPath = L"C:\\tc\\ini\\wincmd.ini";

std::wstring PathWith(const std::string& content, const wchar_t* section = L"Shortcuts",
                      const std::wstring& path = WincmdPath) {
  MemoryFiles files;
  files.Contents[path] = content;
  FakeEnvironment environment;
  environment.Variables[L"COMMANDER_PATH"] = L"D:\\Total";
  return PathOfSection(ProfileFile(files, path), section, environment);
}

std::wstring PathWithLine(const std::string& value) {
  return PathWith("[Shortcuts]\r\nRedirectSection=" + value + "\r\nF5=cm_A\r\n");
}

TEST(RedirectSection, ASectionWithoutTheLineStaysInTheFile) {
  EXPECT_EQ(PathWith(""), WincmdPath);
  EXPECT_EQ(PathWith("[Shortcuts]\r\nF5=cm_A\r\n"), WincmdPath);
  EXPECT_EQ(PathWith("[user]\r\nRedirectSection=other.ini\r\n"), WincmdPath);
}

TEST(RedirectSection, NoughtAndNothingStandForNoOtherFile) {
  EXPECT_EQ(PathWithLine("0"), WincmdPath);
  EXPECT_EQ(PathWithLine(""), WincmdPath);
  EXPECT_EQ(PathWithLine("\"\""), WincmdPath);
}

TEST(RedirectSection, OneStandsForTheAlternateFile) {
  const std::string section = "[Shortcuts]\r\nRedirectSection=1\r\n";
  EXPECT_EQ(PathWith(section + "[Configuration]\r\nAlternateUserIni=user.ini\r\n"),
            L"C:\\tc\\ini\\user.ini");
  EXPECT_EQ(PathWith(section + "[Configuration]\r\nAlternateUserIni=%COMMANDER_PATH%\\u.ini\r\n"),
            L"D:\\Total\\u.ini");
  EXPECT_EQ(PathWith(section + "[Configuration]\r\nAlternateUserIni=\" user.ini \"\r\n"),
            L"C:\\tc\\ini\\user.ini");
  EXPECT_EQ(PathWith(section + "[Configuration]\r\nAlternateUserIni=\r\n"), WincmdPath);
  EXPECT_EQ(PathWith(section), WincmdPath);
}

TEST(RedirectSection, APathIsExpandedAndRelativeToTheFilesFolder) {
  const std::pair<const char*, const wchar_t*> cases[] = {
      {"shortcuts.ini", L"C:\\tc\\ini\\shortcuts.ini"},
      {"sub\\shortcuts.ini", L"C:\\tc\\ini\\sub\\shortcuts.ini"},
      {".\\shortcuts.ini", L"C:\\tc\\ini\\shortcuts.ini"},
      {"..\\shortcuts.ini", L"C:\\tc\\shortcuts.ini"},
      {"..\\..\\..\\..\\s.ini", L"C:\\s.ini"},
      {"E:\\a\\s.ini", L"E:\\a\\s.ini"},
      {"E:\\a\\.\\b\\..\\s.ini", L"E:\\a\\s.ini"},
      {"\\a\\s.ini", L"C:\\a\\s.ini"},
      {"\\\\server\\share\\s.ini", L"\\\\server\\share\\s.ini"},
      {"%COMMANDER_PATH%\\ini\\s.ini", L"D:\\Total\\ini\\s.ini"},
      {"%COMMANDER_PATH%/ini/s.ini", L"D:\\Total\\ini\\s.ini"},
      {"%COMMANDER_PATH%\\\\s.ini", L"D:\\Total\\s.ini"},
      {"\"E:\\a b\\s.ini\"", L"E:\\a b\\s.ini"},
      {"01", L"C:\\tc\\ini\\01"},
  };
  for (const auto& [value, path] : cases) EXPECT_EQ(PathWithLine(value), path) << value;
}

TEST(RedirectSection, NamesMatchWithoutRegardToLetterCase) {
  EXPECT_EQ(PathWith("[SHORTCUTS]\r\nredirectsection=s.ini\r\n"), L"C:\\tc\\ini\\s.ini");
}

TEST(RedirectSection, EachSectionHasItsOwnLine) {
  const std::string content =
      "[Shortcuts]\r\nRedirectSection=s.ini\r\n[user]\r\nRedirectSection=u.ini\r\n";
  EXPECT_EQ(PathWith(content, L"Shortcuts"), L"C:\\tc\\ini\\s.ini");
  EXPECT_EQ(PathWith(content, L"user"), L"C:\\tc\\ini\\u.ini");
}

TEST(RedirectSection, APathWithoutFolderLeavesTheOtherWithoutFolder) {
  for (const char* const value : {"u.ini", ".\\u.ini"}) {
    const std::string content = std::string("[user]\r\nRedirectSection=") + value + "\r\n";
    EXPECT_EQ(PathWith(content, L"user", L"wincmd.ini"), L"u.ini") << value;
  }
}

}  // namespace
}  // namespace tessera::redirect_section_test
