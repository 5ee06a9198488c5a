// The built-in texts.
#include <gtest/gtest.h>

#include <limits>

#include "localisation/TextTable.h"

namespace tessera {
namespace {

TEST(TextTable, HoldsAllTexts) { EXPECT_EQ(TextTable().size(), 73U); }

TEST(TextTable, IdsAscend) {
  const auto table = TextTable();
  for (std::size_t index = 1; index < table.size(); ++index) {
    EXPECT_LT(table[index - 1].Id, table[index].Id);
  }
}

TEST(TextTable, NoTextIsEmpty) {
  for (const BuiltInText& text : TextTable()) EXPECT_FALSE(text.Text.empty()) << text.Id;
}

TEST(TextTable, EveryTextIsFoundByItsId) {
  for (const BuiltInText& text : TextTable()) EXPECT_EQ(BuiltInTextOf(text.Id), text.Text);
}

TEST(TextTable, HasTheTextsWordForWord) {
  const BuiltInText texts[] = {
      {101, L"&File"},
      {103, L"&Open..."},
      {116, L"Save and Restart Bainioka"},
      {401, L"&Control +"},
      {404, L"Ctrl"},
      {1021, L"Visual Effects :"},
      {1123, L"Show Hotkeys in Reverse Order. (requires program restart)"},
      {3016, L"Line:"},
      {3022, L"Please verify that the correct path and file name are given."},
      {3046, L"Cannot find Total Commander settings file [Wincmd.ini]"},
      {3047, L"Cannot find your Totalcmd.inc file !"},
      {3060, L"Do you want assign it to :"},
      {3067, L"(none)"},
      {3206, L"You are about to delete Current Hotkeys for ALL commands."},
      {3209, L"Hotkeys in this list has not saved yet to your Total Commander configuration file."},
  };
  for (const BuiltInText& text : texts) EXPECT_EQ(BuiltInTextOf(text.Id), text.Text) << text.Id;
}

TEST(TextTable, AnUnknownIdHasNoText) {
  for (const int id :
       {0, -1, 100, 102, 3210, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_EQ(BuiltInTextOf(id), L"") << id;
  }
}

}  // namespace
}  // namespace tessera
