// The default keys that are shipped, read as the program reads them, for the commands of the
// demonstration folder, which has all that are known.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "settings/ini/ProfileFile.h"
#include "shortcuts/DefaultHotkeys.h"
#include "shortcuts/InternalCommands.h"
#include "shortcuts/SaveShortcuts.h"
#include "shortcuts/WincmdIni.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/MemoryFiles.h"
#include "tests/support/Repository.h"
#include "text/Text.h"

namespace tessera::shipped_data_test {
namespace {

constexpr const wchar_t* DataPath = L"tc default hotkeys.hky";
constexpr const wchar_t* WincmdPath = L"C:\\tc\\wincmd.ini";

std::string Bytes(const std::string& path) {
  std::ifstream file(InRepository(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class ShippedData : public testing::Test {
 protected:
  ShippedData() {
    files_.Contents[DataPath] = Bytes("Data Files/tc default hotkeys.hky");
    rows_ = ReadInternalCommands(commands_, notation_.UndefinedHotkey, [] {});
    FillDefaultKeys(rows_, DataFile(), notation_, [] {});
  }

  [[nodiscard]] ProfileFile DataFile() const { return {files_, DataPath}; }

  [[nodiscard]] std::vector<std::pair<std::wstring, std::wstring>> Entries() const {
    return DataFile().Entries(L"TC Default Hotkeys");
  }

  HotkeyNotation notation_;
  MemoryFiles files_;
  std::wstring commands_ = DecodeInternalCommands(Bytes("demo/Totalcmd.inc"));
  std::vector<CommandEntry> rows_;
};

TEST_F(ShippedData, EveryCodeIsThatOfACommandAndStandsOnce) {
  std::set<std::wstring> known;
  for (const CommandEntry& row : rows_) known.emplace(row.CommandCode);
  std::set<std::wstring> seen;
  for (const auto& [code, keys] : Entries()) {
    EXPECT_TRUE(known.contains(code)) << Encode(code);
    EXPECT_TRUE(seen.insert(code).second) << Encode(code);
  }
  EXPECT_GT(seen.size(), 100U);
}

TEST_F(ShippedData, EveryKeyIsThatOfOneCommand) {
  std::map<std::wstring, std::wstring_view> owners;
  for (const CommandEntry& row : rows_) {
    for (const std::wstring& key : notation_.KeysOf(row.DefaultKeys)) {
      const auto [owner, isNew] = owners.emplace(ToUpper(key), row.CommandName);
      EXPECT_TRUE(isNew) << Encode(key) << ": " << Encode(owner->second) << ", "
                         << Encode(row.CommandName);
    }
  }
  EXPECT_GT(owners.size(), 100U);
}

TEST_F(ShippedData, EveryKeyCanBeChosen) {
  std::set<std::wstring> names;
  for (const std::wstring_view name : KeyVocabulary()) names.insert(WithNum(name));
  for (const CommandEntry& row : rows_) {
    for (const std::wstring& key : notation_.KeysOf(row.DefaultKeys)) {
      EXPECT_TRUE(names.contains(std::wstring(KeyPart(key)))) << Encode(key);
    }
  }
}

TEST_F(ShippedData, EveryKeyIsShownAsTheSameKeyOfAUser) {
  Catalogue catalogue;
  catalogue.lvwHidden = rows_;
  for (CommandEntry& row : catalogue.lvwHidden) row.CurrentKeys = row.DefaultKeys;
  BuildDisplayTable(catalogue, notation_, [] {});
  FakeClock clock;
  const FakeEnvironment environment;
  ASSERT_EQ(SaveShortcuts(catalogue, notation_, {WincmdPath}, files_, clock, environment).Error,
            FileError::None);

  std::vector<CommandEntry> again = rows_;
  ReadShortcuts(again, {files_, WincmdPath}, notation_, [] {});
  for (const CommandEntry& row : again) {
    EXPECT_EQ(notation_.KeysOf(row.CurrentKeys), notation_.KeysOf(row.DefaultKeys))
        << Encode(row.CommandName);
  }
}

/// The widths of the pictures in an icon file.
std::set<int> WidthsIn(const std::string& icon) {
  constexpr std::size_t HeaderLength = 6;
  constexpr std::size_t EntryLength = 16;
  std::set<int> widths;
  const auto count = static_cast<std::size_t>(static_cast<unsigned char>(icon.at(4)));
  for (std::size_t picture = 0; picture < count; ++picture) {
    widths.insert(static_cast<unsigned char>(icon.at(HeaderLength + picture * EntryLength)));
  }
  return widths;
}

TEST(ShippedIcons, HaveAPictureForEachUsualScaling) {
  int icons = 0;
  for (const auto& file : std::filesystem::directory_iterator(InRepository("resources/icons"))) {
    if (file.path().extension() != ".ico") continue;
    ++icons;
    const std::set<int> widths =
        WidthsIn(Bytes("resources/icons/" + file.path().filename().string()));
    for (const int percent : {100, 125, 150, 175, 200, 250, 300}) {
      EXPECT_TRUE(widths.contains(16 * percent / 100)) << file.path() << " at " << percent << " %";
    }
  }
  EXPECT_GT(icons, 10);
}

}  // namespace
}  // namespace tessera::shipped_data_test
