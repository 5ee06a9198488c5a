// The INI engine against the system's own profile functions, on files in the form in which these
// write them: there Windows and its stand-ins agree.
#include <windows.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "settings/ini/IniDocument.h"

namespace tessera::profile_oracle_test {
namespace {

constexpr std::string_view names[] = {"alpha",
                                      "Beta",
                                      "two words",
                                      "CA+F1",
                                      "1",
                                      "x.y",
                                      "\"q\"",
                                      "ALPHA",
                                      "k;x",
                                      "C+[",
                                      "a]",
                                      "~!@#",
                                      "long name of a key that goes on"};
constexpr std::string_view values[] = {"",
                                       "1",
                                       "cm_SrcComments",
                                       "\"quoted\"",
                                       "'single'",
                                       "\"  blanks inside  \"",
                                       "\"open",
                                       "\"\"twice\"\"",
                                       "\"a\" \"b\"",
                                       "a=b=c",
                                       "v ; no comment",
                                       "[brackets]",
                                       "\xE4\xF6\xFC\x80",
                                       "/a\\b:c*d?e",
                                       "%COMMANDER_PATH%\\wincmd.ini"};

class ProfileOracle : public testing::TestWithParam<unsigned> {
 protected:
  ProfileOracle() { std::filesystem::create_directory(folder_); }
  ~ProfileOracle() override {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  template <std::size_t Count>
  std::string OneOf(const std::string_view (&choices)[Count]) {
    return std::string(choices[engine_() % Count]);
  }

  std::string Section() { return "Section " + std::to_string(engine_() % 4); }

  /// A file as the profile functions write it; sections may repeat, and keys may.
  std::string NormalFile() {
    std::string text;
    for (std::size_t sections = 1 + engine_() % 5; sections > 0; --sections) {
      text.append("[").append(Section()).append("]\r\n");
      for (std::size_t keys = engine_() % 8; keys > 0; --keys) {
        text.append(OneOf(names)).append("=").append(OneOf(values)).append("\r\n");
      }
    }
    return text;
  }

  void WriteFile(const std::string& bytes) {
    // Each content has a file of its own: the system may answer from what it remembers of one.
    path_ = (folder_ / (std::to_string(++files_) + ".ini")).string();
    std::ofstream(path_, std::ios::binary) << bytes;
  }

  [[nodiscard]] std::string ReadFile() const {
    std::ifstream file(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  std::string SystemString(const std::string& section, const std::string& key) {
    const DWORD length = GetPrivateProfileStringA(section.c_str(), key.c_str(), "(default)",
                                                  buffer_, sizeof buffer_, path_.c_str());
    return {buffer_, length};
  }

  std::string SystemKeys(const std::string& section) {
    return {buffer_, GetPrivateProfileStringA(section.c_str(), nullptr, "", buffer_, sizeof buffer_,
                                              path_.c_str())};
  }

  std::string SystemSection(const std::string& section) {
    return {buffer_,
            GetPrivateProfileSectionA(section.c_str(), buffer_, sizeof buffer_, path_.c_str())};
  }

  std::string SystemNames() {
    return {buffer_, GetPrivateProfileSectionNamesA(buffer_, sizeof buffer_, path_.c_str())};
  }

  void ExpectSameAnswers(const IniDocument& document) {
    std::string expectedNames;
    for (const auto name : document.SectionNames()) expectedNames.append(name).push_back('\0');
    ASSERT_EQ(SystemNames(), expectedNames);
    for (int number = 0; number < 5; ++number) {
      const std::string section = "SECTION " + std::to_string(number);
      std::string lines;
      for (const std::string& line : document.Lines(section)) lines.append(line).push_back('\0');
      ASSERT_EQ(SystemSection(section), lines);
      std::string keys;
      for (const auto& entry : document.Entries(section)) keys.append(entry.Name).push_back('\0');
      ASSERT_EQ(SystemKeys(section), keys);
      for (const std::string_view name : names) {
        const std::string key(name);
        ASSERT_EQ(SystemString(section, key),
                  WithoutQuotes(document.Find(section, key).value_or("(default)")));
      }
    }
  }

  std::mt19937 engine_{GetParam()};

 private:
  static std::filesystem::path TemporaryFolder() {
    return std::filesystem::temp_directory_path() /
           ("profile_oracle_" + std::to_string(GetCurrentProcessId()));
  }

  std::filesystem::path folder_ = TemporaryFolder();
  std::string path_;
  int files_ = 0;
  char buffer_[32768] = {};

 protected:
  [[nodiscard]] const char* Path() const { return path_.c_str(); }
};

TEST_P(ProfileOracle, ReadsAsTheSystemReads) {
  const std::string text = NormalFile();
  WriteFile(text);
  SCOPED_TRACE(text);
  ExpectSameAnswers(IniDocument(text));
}

TEST_P(ProfileOracle, WritesAsTheSystemWrites) {
  WriteFile(NormalFile());
  for (int edit = 0; edit < 6; ++edit) {
    const std::string before = ReadFile();
    SCOPED_TRACE(before);
    IniDocument document(before);
    const std::string section = Section();
    const std::string key = OneOf(names);
    const std::string value = OneOf(values);
    if (edit % 3 == 2) {
      // A key that only a later section of the same name has is a case in which systems differ.
      if (!document.Find(section, key)) continue;
      document.Remove(section, key);
      ASSERT_TRUE(WritePrivateProfileStringA(section.c_str(), key.c_str(), nullptr, Path()));
    } else {
      document.Set(section, key, value);
      ASSERT_TRUE(WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), Path()));
    }
    ASSERT_EQ(ReadFile(), document.Bytes()) << section << ", " << key << ", " << value;
  }
}

TEST_P(ProfileOracle, RemovesSectionsAsTheSystemRemovesThem) {
  const std::string before = NormalFile();
  WriteFile(before);
  SCOPED_TRACE(before);
  IniDocument document(before);
  const std::string section = Section();
  document.RemoveSection(section);
  ASSERT_TRUE(WritePrivateProfileStringA(section.c_str(), nullptr, nullptr, Path()));
  ASSERT_EQ(ReadFile(), document.Bytes()) << section;
}

INSTANTIATE_TEST_SUITE_P(Seeds, ProfileOracle, testing::Range(1u, 41u));

}  // namespace
}  // namespace tessera::profile_oracle_test
