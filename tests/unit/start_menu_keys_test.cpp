// The keys of the Start Menu entries in section "user".
#include <gtest/gtest.h>

#include <string>

#include "shortcuts/StartMenuKeys.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::start_menu_keys_test {
namespace {

StartMenuKeyTable Read(const std::string& content, const HotkeyNotation& notation = {}) {
  MemoryFiles files;
  files.Contents[L"C:\\tc\\wincmd.ini"] = content;
  return ReadStartMenuKeys(ProfileFile(files, L"C:\\tc\\wincmd.ini"), notation);
}

int UsedSlots(const StartMenuKeyTable& table) {
  int used = 0;
  for (const StartMenuSlot& slot : table) {
    const bool isEmpty = slot.Key.empty() && slot.Caption.empty() && slot.ValueName.empty();
    used += isEmpty ? 0 : 1;
  }
  return used;
}

TEST(StartMenuKeys, NumbersAreFunctionKeysWithAndWithoutShift) {
  const HotkeyNotation notation;
  EXPECT_EQ(StartMenuKey(1, notation), L"Ctrl + Alt + F1");
  EXPECT_EQ(StartMenuKey(12, notation), L"Ctrl + Alt + F12");
  EXPECT_EQ(StartMenuKey(13, notation), L"Ctrl + Alt + Shift + F1");
  EXPECT_EQ(StartMenuKey(24, notation), L"Ctrl + Alt + Shift + F12");
}

TEST(StartMenuKeys, FollowTheModifierNamesAndTheReverseOrder) {
  HotkeyNotation notation;
  notation.CtrlName = L"Strg";
  notation.ShiftName = L"Umschalt";
  EXPECT_EQ(StartMenuKey(14, notation), L"Strg + Alt + Umschalt + F2");
  HotkeyNotation reverse;
  reverse.ReverseOrderHotkey = true;
  EXPECT_EQ(StartMenuKey(14, reverse), L"F2 + Ctrl + Alt + Shift");
}

TEST(StartMenuKeys, AnEntryWithAKeyFillsItsSlot) {
  const auto table = Read(
      "[user]\r\nmenu1=Notepad\r\nkey1=14\r\nmenu2=Calc\r\nmenu3=Paint\r\n"
      "key3=1\r\n");
  EXPECT_EQ(UsedSlots(table), 2);
  EXPECT_EQ(table[13].Key, L"Ctrl + Alt + Shift + F2");
  EXPECT_EQ(table[13].Caption, L"Notepad");
  EXPECT_EQ(table[13].ValueName, L"key1");
  EXPECT_EQ(table[0].Caption, L"Paint");
  EXPECT_EQ(table[0].ValueName, L"key3");
}

TEST(StartMenuKeys, ReadingStopsAtTheFirstMissingEntry) {
  const auto table = Read("[user]\r\nmenu1=a\r\nkey1=1\r\nkey2=2\r\nmenu3=c\r\nkey3=3\r\n");
  EXPECT_EQ(UsedSlots(table), 1);
  EXPECT_EQ(table[0].Caption, L"a");
}

TEST(StartMenuKeys, AnEmptyCaptionIsAnEntry) {
  const auto table = Read("[user]\r\nmenu1=\r\nmenu2=b\r\nkey2=5\r\n");
  EXPECT_EQ(table[4].Caption, L"b");
}

TEST(StartMenuKeys, ALaterEntryTakesTheSlot) {
  const auto table = Read("[user]\r\nmenu1=a\r\nkey1=4\r\nmenu2=b\r\nkey2=4\r\n");
  EXPECT_EQ(UsedSlots(table), 1);
  EXPECT_EQ(table[3].Caption, L"b");
  EXPECT_EQ(table[3].ValueName, L"key2");
}

TEST(StartMenuKeys, NumbersThatNameNoSlotFillNone) {
  for (const char* number : {"0", "", "x", "-1", "25", "99999999999", "-99999999999", "1e300"}) {
    const auto table = Read(std::string("[user]\r\nmenu1=a\r\nkey1=") + number + "\r\n");
    EXPECT_EQ(UsedSlots(table), 0) << number;
  }
  EXPECT_EQ(UsedSlots(Read("[user]\r\nmenu1=a\r\nkey1=24\r\n")), 1);
}

TEST(StartMenuKeys, AMissingSectionHasNone) {
  EXPECT_EQ(UsedSlots(Read("[Shortcuts]\r\nF5=cm_A\r\n")), 0);
  EXPECT_EQ(UsedSlots(Read("")), 0);
}

TEST(StartMenuKeys, ACaptionBehindTheByteOrderMarkIsUtf8) {
  const auto table =
      Read("[user]\r\nmenu1=\xEF\xBB\xBF\xD0\xAF\r\nkey1=1\r\nmenu2=\xDF\r\nkey2=2\r\n");
  EXPECT_EQ(table[0].Caption, L"\u042F");
  EXPECT_EQ(table[1].Caption, L"\u00DF");
}

}  // namespace
}  // namespace tessera::start_menu_keys_test
