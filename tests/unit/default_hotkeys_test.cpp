// The default keys of the data file.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shortcuts/DefaultHotkeys.h"
#include "tests/support/Kept.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::default_hotkeys_test {
namespace {

CommandEntry Command(const std::wstring& code) {
  CommandEntry row;
  row.CommandName = Kept(L"cm_" + code);
  row.CommandCode = Kept(code);
  row.DefaultKeys = L"old";
  row.CurrentKeys = L"F9";
  row.Tag = row.CommandCode;
  return row;
}

/// The default keys that one value of the data file gives.
std::wstring KeysOfValue(const std::string& value, const HotkeyNotation& notation = {}) {
  MemoryFiles files;
  files.Contents[L"keys.hky"] = "[TC Default Hotkeys]\r\n300=" + value + "\r\n";
  std::vector<CommandEntry> rows{Command(L"300")};
  FillDefaultKeys(rows, ProfileFile(files, L"keys.hky"), notation, [] {});
  return rows[0].DefaultKeys;
}

TEST(DefaultHotkeys, AValueIsShownInDisplayNotation) {
  EXPECT_EQ(KeysOfValue("Ctrl+Shift+F1=Alt+F2"), L"Ctrl + Shift + F1 = Alt + F2");
  EXPECT_EQ(KeysOfValue("F1"), L"F1");
}

TEST(DefaultHotkeys, AValueWithoutModifierIsShownAsWritten) {
  EXPECT_EQ(KeysOfValue("F1=F2"), L"F1=F2");
  EXPECT_EQ(KeysOfValue(""), L"");
}

TEST(DefaultHotkeys, AValueThatIsTheUndefinedMarkerGivesNoKeyAndNoIcon) {
  EXPECT_EQ(KeysOfValue("---"), L"---");

  Catalogue catalogue;
  MemoryFiles files;
  files.Contents[L"keys.hky"] = "[TC Default Hotkeys]\r\n300=---\r\n301=---\r\n";
  catalogue.lvwHidden = {Command(L"300"), Command(L"301")};
  catalogue.lvwHidden[0].Key = 1;
  catalogue.lvwHidden[1].Key = 2;
  catalogue.lvwHidden[0].CurrentKeys = L"---";
  const HotkeyNotation notation;
  FillDefaultKeys(catalogue.lvwHidden, ProfileFile(files, L"keys.hky"), notation, [] {});
  BuildDisplayTable(catalogue, notation, [] {});
  EXPECT_EQ(catalogue.ListView1.At(0).Icon, RowIcon::None);
  EXPECT_EQ(catalogue.ListView1.At(1).Icon, RowIcon::HasKey);  // by its current key
}

TEST(DefaultHotkeys, AMissingCodeOrFileGivesTheUndefinedMarker) {
  MemoryFiles files;
  files.Contents[L"keys.hky"] = "[TC Default Hotkeys]\r\n300=F1\r\n[Other]\r\n301=F2\r\n";
  HotkeyNotation notation;
  notation.UndefinedHotkey = L"none";
  std::vector<CommandEntry> rows{Command(L"301")};
  FillDefaultKeys(rows, ProfileFile(files, L"keys.hky"), notation, [] {});
  EXPECT_EQ(rows[0].DefaultKeys, L"none");
  rows[0].DefaultKeys = L"old";
  FillDefaultKeys(rows, ProfileFile(files, L"missing.hky"), notation, [] {});
  EXPECT_EQ(rows[0].DefaultKeys, L"none");
}

TEST(DefaultHotkeys, ACodeIsLookedUpTrimIniBlanks) {
  MemoryFiles files;
  files.Contents[L"keys.hky"] = "[tc default hotkeys]\r\n300=F1\r\n";
  std::vector<CommandEntry> rows{Command(L" 300 ")};
  FillDefaultKeys(rows, ProfileFile(files, L"keys.hky"), HotkeyNotation{}, [] {});
  EXPECT_EQ(rows[0].DefaultKeys, L"F1");
}

TEST(DefaultHotkeys, HeadingsAreLeftAloneAndEveryRowIsAStep) {
  MemoryFiles files;
  files.Contents[L"keys.hky"] = "[TC Default Hotkeys]\r\n300=F1\r\n";
  CommandEntry heading;
  heading.Tag = CommentBlockTag;
  std::vector<CommandEntry> rows{heading, Command(L"300")};
  int steps = 0;
  FillDefaultKeys(rows, ProfileFile(files, L"keys.hky"), HotkeyNotation{}, [&steps] { ++steps; });
  EXPECT_EQ(steps, 2);
  EXPECT_EQ(rows[0].DefaultKeys, L"");
  EXPECT_EQ(rows[1].DefaultKeys, L"F1");
  EXPECT_EQ(rows[1].CurrentKeys, L"F9");
}

TEST(DefaultHotkeys, AValueIsCutAtTheBuffersLength) {
  EXPECT_EQ(KeysOfValue(std::string(499, 'x')), std::wstring(499, L'x'));
  EXPECT_EQ(KeysOfValue(std::string(500, 'x')), std::wstring(499, L'x'));
}

TEST(DefaultHotkeys, AnUndefinedMarkerIsCutAsAValueIs) {
  HotkeyNotation notation;
  notation.UndefinedHotkey = std::wstring(600, L'-');
  MemoryFiles files;
  std::vector<CommandEntry> rows{Command(L"300")};
  FillDefaultKeys(rows, ProfileFile(files, L"keys.hky"), notation, [] {});
  EXPECT_EQ(rows[0].DefaultKeys, std::wstring(499, L'-'));
}

}  // namespace
}  // namespace tessera::default_hotkeys_test
