// Keys that the user leaves alone are saved as the keys that they were.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "shortcuts/NativeKey.h"
#include "shortcuts/ReadKeys.h"
#include "shortcuts/SaveShortcuts.h"
#include "shortcuts/WincmdIni.h"
#include "tests/support/FakeClock.h"
#include "tests/support/FakeEnvironment.h"
#include "tests/support/Kept.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/rounds.h"

namespace tessera::read_keys_test {
namespace {

using Names = std::vector<std::wstring>;

CommandEntry EmptyRow() {
  CommandEntry row;
  row.CurrentKeys = L"---";
  return row;
}

CommandEntry RowOf(const Names& names, const HotkeyNotation& notation) {
  CommandEntry row = EmptyRow();
  row.CurrentKeys = notation.UndefinedHotkey;
  for (const std::wstring& name : names) AddReadKey(row, name, notation);
  return row;
}

Names Saved(const Names& names, const HotkeyNotation& notation = {}) {
  return NativeKeysOf(RowOf(names, notation), notation);
}

HotkeyNotation Reversed() {
  HotkeyNotation notation;
  notation.ReverseOrderHotkey = true;
  return notation;
}

HotkeyNotation German(bool reversed) {
  HotkeyNotation notation;
  notation.CtrlName = L"Strg";
  notation.ShiftName = L"Umschalt";
  notation.ReverseOrderHotkey = reversed;
  return notation;
}

HotkeyNotation SeparatedBy(const wchar_t* separator) {
  HotkeyNotation notation;
  notation.MultiHotkeySeparator = separator;
  return notation;
}

HotkeyNotation MarkedBy(const wchar_t* marker) {
  HotkeyNotation notation;
  notation.UndefinedHotkey = marker;
  return notation;
}

// -- One name

TEST(ReadKeys, NameThatWouldBecomeAnotherKeyIsWrittenAsItWasRead) {
  for (const wchar_t* const name :
       {L"OEM_+", L"NUM+", L"W+Q", L"c+k", L"Ctrl+F2", L"C+A+B", L"Num X", L"Shift", L"---"}) {
    EXPECT_EQ(Saved({name}), Names{name});
    EXPECT_EQ(Saved({L"F3", name, L"F4"}), (Names{L"F3", name, L"F4"}));
    EXPECT_EQ(Saved({name}, Reversed()), Names{name});
  }
}

TEST(ReadKeys, NameThatReversingBreaksIsWrittenAsItWasRead) {
  for (const wchar_t* const name : {L"C+OEM_+", L"C+NUM+", L"C+ALT"}) {
    EXPECT_EQ(Saved({name}, Reversed()), Names{name});
    EXPECT_EQ(Saved({L"C+F3", name}, Reversed()), (Names{L"C+F3", name}));
  }
}

TEST(ReadKeys, ModifierThatReversingALocalisedNameDropsIsWritten) {
  EXPECT_EQ(Saved({L"CAS+F3", L"S+A", L"A+X"}, German(true)), (Names{L"CAS+F3", L"S+A", L"A+X"}));
  EXPECT_EQ(RowOf({L"CAS+F3"}, German(true)).CurrentKeys, L"F3 + Alt");
}

TEST(ReadKeys, NameThatIsTheSameKeyIsWrittenInTheNotationsForm) {
  EXPECT_EQ(Saved({L"SC+a", L"A C + F5", L"++"}), (Names{L"CS+A", L"CA+F5", L"+"}));
  EXPECT_EQ(Saved({L"SC+a", L"W+Q"}), (Names{L"CS+A", L"W+Q"})) << "beside an odd one too";
}

TEST(ReadKeys, NameThatWouldBeAnotherLineIsWrittenAsItWasRead) {
  EXPECT_EQ(Saved({L"+;x", L"+[F3]", L"+redirectsection", L"+F3"}),
            (Names{L"+;x", L"+[F3]", L"+redirectsection", L"F3"}));
}

TEST(ReadKeys, OfKeypadKeysTheSecondOneKeepsItsNum) {
  EXPECT_EQ(Saved({L"-", L"*", L"C+/"}), (Names{L"-", L"Num *", L"C+Num /"}));
  EXPECT_EQ(Saved({L"W+Q", L"-", L"*"}), (Names{L"W+Q", L"-", L"Num *"}));
  EXPECT_EQ(Saved({L"Num X", L"-"}), (Names{L"Num X", L"-"})) << "the first is no keypad key";
  EXPECT_EQ(Saved({L"C++", L"A+-"}, German(true)), (Names{L"C++", L"A+Num -"}));
  EXPECT_EQ(Saved({L"-", L"C+*"}, German(true)), (Names{L"-", L"C+*"})) << "else it were Num *";
}

// -- Cells

TEST(ReadKeys, CellThatReadsLikeTheMarkerIsWrittenAsItWasRead) {
  EXPECT_EQ(Saved({L"F3"}, MarkedBy(L"F3")), Names{L"F3"});
  EXPECT_EQ(Saved({L"+F3"}, MarkedBy(L"F3")), Names{L"+F3"});
  EXPECT_EQ(Saved({L"F3", L"F4"}, MarkedBy(L"F3")), (Names{L"F3", L"F4"}));
  EXPECT_EQ(Saved({L"C+F3", L"F4"}, MarkedBy(L"Ctrl + F3 = F4")), (Names{L"C+F3", L"F4"}));
}

TEST(ReadKeys, NameThatHoldsTheSeparatorIsWrittenOnce) {
  const HotkeyNotation notation = SeparatedBy(L" , ");
  EXPECT_EQ(Saved({L"SC+,"}, notation), Names{L"CS+,"}) << "alone it is not parted";
  EXPECT_EQ(Saved({L"SC+,", L"F3"}, notation), (Names{L"SC+,", L"F3"}));
  EXPECT_EQ(Saved({L"F3", L"C+A,B", L"F4"}, notation), (Names{L"F3", L"C+A,B", L"F4"}));
  EXPECT_EQ(Saved({L"C+F3"}, SeparatedBy(L" + ")), Names{L"C+F3"});
  EXPECT_EQ(Saved({L"F3", L"A+F4"}, SeparatedBy(L"  ")), (Names{L"F3", L"A+F4"}));
  EXPECT_EQ(Saved({L"-", L"F3"}, SeparatedBy(L" - - ")), (Names{L"-", L"F3"}));
}

TEST(ReadKeys, OnlyRowsWithAnOddNameRememberAnything) {
  EXPECT_TRUE(RowOf({L"C+F3", L"SC+a", L"-", L"A++", L"+"}, {}).ReadKeys.empty());
  EXPECT_EQ(RowOf({L"C+F3", L"W+Q", L"F4"}, {}).ReadKeys.size(), 3U);
}

TEST(ReadKeys, AddingBesideANameKeepsIt) {
  CommandEntry row = RowOf({L"OEM_+"}, {});
  EXPECT_EQ(row.CurrentKeys, L"");
  AddComposedKey(row, L"Ctrl + F3", {});
  EXPECT_EQ(NativeKeysOf(row, {}), (Names{L"OEM_+", L"C+F3"}));
}

TEST(ReadKeys, ForgottenKeyHasNoNameAnyMore) {
  CommandEntry row = RowOf({L"W+Q", L"c+k", L"F3"}, {});
  ForgetKey(row, L"K", {});
  EXPECT_EQ(NativeKeysOf(row, {}), (Names{L"W+Q", L"F3"}));
  AddComposedKey(row, L"K", {});
  EXPECT_EQ(NativeKeysOf(row, {}), (Names{L"W+Q", L"F3", L"K"})) << "composed anew";
}

TEST(ReadKeys, NameOfSeveralPiecesGoesWithOneOfThem) {
  const HotkeyNotation notation = SeparatedBy(L" , ");
  CommandEntry row = RowOf({L"C+A,B", L"F3"}, notation);
  ForgetKey(row, L"B", notation);
  EXPECT_EQ(NativeKeysOf(row, notation), (Names{L"C+A", L"F3"}));
}

TEST(ReadKeys, KeysAreRememberedWhenTheModifiersGetOtherNames) {
  CommandEntry row = RowOf({L"C+F3", L"S+A", L"-"}, {});
  RememberKeys(row, {});
  EXPECT_EQ(NativeKeysOf(row, German(false)), (Names{L"C+F3", L"S+A", L"-"}));
  CommandEntry empty = EmptyRow();
  RememberKeys(empty, {});
  EXPECT_TRUE(empty.ReadKeys.empty());
}

// -- Whole files

/// A line as a key and its command.
using Line = std::pair<std::wstring, std::wstring>;

class UntouchedSave {
 public:
  explicit UntouchedSave(HotkeyNotation notation) : notation_(std::move(notation)) {
    for (RowKey key = 1; key <= RowCount; ++key) {
      CommandEntry row;
      row.Key = key;
      row.CommandName = Kept(CommandOf(key));
      row.DefaultKeys = row.CurrentKeys = notation_.UndefinedHotkey;
      catalogue_.lvwHidden.push_back(std::move(row));
    }
  }

  static constexpr RowKey RowCount = 4;

  static std::wstring CommandOf(RowKey row) { return L"cm_" + std::to_wstring(row); }

  /// The keys that are in the file after it was read and saved.
  std::set<Line> KeysAfter(const std::vector<Line>& lines) {
    std::string& content = files_.Contents[Path];
    content = "[Shortcuts]\r\n";
    for (const auto& [name, command] : lines) content += Encode(name + L"=" + command + L"\r\n");
    ReadShortcuts(catalogue_.lvwHidden, Ini().Shortcuts(), notation_, [] {});
    BuildDisplayTable(catalogue_, notation_, [] {});
    content.clear();
    EXPECT_EQ(SaveShortcuts(catalogue_, notation_, {Path}, files_, clock_, environment_).Error,
              FileError::None);
    std::set<Line> keys;
    for (const auto& [name, command] : Ini().Shortcuts().Entries(L"Shortcuts")) {
      keys.emplace(CanonicalKey(name), command);
    }
    return keys;
  }

 private:
  static constexpr const wchar_t* Path = L"C:\\tc\\wincmd.ini";

  WincmdIni Ini() { return {files_, clock_, environment_, Path}; }

  HotkeyNotation notation_;
  Catalogue catalogue_;
  MemoryFiles files_;
  FakeClock clock_;
  FakeEnvironment environment_;
};

/// What users and programs have written, or may.
const Names& OddNames() {
  static const Names names{L"OEM_+", L"C+OEM_+", L"NUM+",    L"C+NUM+",   L"CAS+NUM-", L"W+Q",
                           L"W+F3",  L"c+k",     L"ca+f5",   L"Ctrl+F2",  L"C+",       L"S+",
                           L"A+C+X", L"C+A+B",   L"---",     L"C+---",    L"+;x",      L"+[F3]",
                           L"+#",    L"Num X",   L"NumLock", L"Num",      L"C+ALT",    L"A+CTRL",
                           L"Shift", L"S+SHIFT", L"Strg",    L"Alt + F4", L"C+,",      L",",
                           L"C+A,B", L"a , b",   L"F3 F4",   L"S+A , B",  L"C+\xE4",   L"\xFC+\xF6",
                           L"SC+m",  L"ACS + n", L"'q'",     L"C+\"",     L"#"};
  return names;
}

/// The whole vocabulary with all sets of modifiers, and the odd names.
Names AllNames() {
  Names names = OddNames();
  for (const std::wstring_view prefix :
       {L"", L"C+", L"A+", L"CA+", L"S+", L"SC+", L"AS+", L"CAS+"}) {
    for (const std::wstring_view key : KeyVocabulary()) {
      names.push_back(std::wstring(prefix).append(key));
    }
  }
  return names;
}

bool IsKeypadKey(std::wstring_view canonical) {
  const std::wstring_view name = canonical.substr(canonical.find(L'+') + 1);
  return name == L"+" || name == L"-" || name == L"*" || name == L"/";
}

/// A cell's second keypad key as it is saved. In reverse order a "+" with modifiers is cut from it.
std::wstring WithNumInside(const std::wstring& name, bool reversed) {
  if (name == L"+") return L"Num +";
  const std::size_t key = name.find(L'+') + 1;
  if (reversed && name.ends_with(L"++")) return name.substr(0, key) + L"Num";
  return name.substr(0, key) + L"Num " + name.substr(key);
}

/// What the file is to hold: the same keys, but that a second keypad key keeps its "Num".
std::set<Line> Expected(const std::vector<Line>& lines, bool reversed) {
  std::set<Line> keys;
  std::set<std::wstring> withKeypadKey;
  for (const auto& [name, command] : lines) {
    std::wstring key = CanonicalKey(name);
    const bool isSecond = IsKeypadKey(key) && !withKeypadKey.insert(command).second;
    if (isSecond) key = CanonicalKey(WithNumInside(name, reversed));
    keys.emplace(std::move(key), command);
  }
  return keys;
}

void EraseKeypadKeys(std::vector<Line>& lines) {
  std::erase_if(lines, [](const Line& line) { return IsKeypadKey(CanonicalKey(line.first)); });
}

class ReadKeysRandom : public testing::Test {
 protected:
  /// Lines with names that are different keys, for a few commands.
  std::vector<Line> RandomLines() {
    static const Names all = AllNames();
    std::vector<Line> lines;
    std::set<std::wstring> keys;
    for (std::size_t count = 1 + engine_() % 8; count > 0; --count) {
      const bool isOdd = engine_() % 2 == 0;
      const std::wstring& name = all[engine_() % (isOdd ? OddNames().size() : all.size())];
      if (!keys.insert(CanonicalKey(name)).second) continue;
      lines.emplace_back(name, UntouchedSave::CommandOf(1 + engine_() % UntouchedSave::RowCount));
    }
    return lines;
  }

  std::mt19937 engine_{20260101};
};

TEST_F(ReadKeysRandom, UntouchedSaveLeavesTheSameKeys) {
  std::vector<HotkeyNotation> notations{{},
                                        Reversed(),
                                        German(false),
                                        German(true),
                                        MarkedBy(L"F3"),
                                        MarkedBy(L""),
                                        MarkedBy(L"F3 = F4")};
  for (int round = 0; round < Rounds(150); ++round) {
    for (const HotkeyNotation& notation : notations) {
      std::vector<Line> lines = RandomLines();
      if (notation == German(true)) EraseKeypadKeys(lines);  // some lose their modifiers
      const std::set<Line> after = UntouchedSave(notation).KeysAfter(lines);
      ASSERT_EQ(after, Expected(lines, notation.ReverseOrderHotkey)) << round;
    }
  }
}

/// Here a name such as "C+-" may hold the separator, and is then written as it was read, "Num" or
/// not.
TEST_F(ReadKeysRandom, UntouchedSaveLeavesTheSameKeysWhateverTheSeparator) {
  for (const wchar_t* const separator : {L" , ", L" + ", L" - - ", L" F ", L" -=- ", L"  "}) {
    for (int round = 0; round < Rounds(60); ++round) {
      HotkeyNotation notation = SeparatedBy(separator);
      notation.ReverseOrderHotkey = round % 2 == 1;
      std::vector<Line> lines = RandomLines();
      EraseKeypadKeys(lines);
      ASSERT_EQ(UntouchedSave(notation).KeysAfter(lines),
                Expected(lines, notation.ReverseOrderHotkey))
          << Encode(separator) << round;
    }
  }
}

}  // namespace
}  // namespace tessera::read_keys_test
