// The built-in texts.
#include <gtest/gtest.h>

#include <iterator>
#include <limits>

#include "localisation/TextTable.h"

namespace tessera {
namespace {

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
      {104, L"&Save"},
      {107, L"&Recent Files"},
      {108, L"No Recent Files"},
      {109, L"Clear List"},
      {110, L"E&xit"},
      {116, L"Save and Restart Bainioka"},
      {117, L"&Export To Clipboard..."},
      {141, L"&View"},
      {142, L"&Toolbar"},
      {149, L"Sorted &List"},
      {150, L"&Options..."},
      {161, L"&Help"},
      {162, L"Help &Topics"},
      {400, L"Hotkey:"},
      {401, L"&Control +"},
      {402, L"&Alt +"},
      {403, L"&Shift +"},
      {404, L"Ctrl"},
      {405, L"Alt"},
      {406, L"Shift"},
      {407, L"Select Columns to Export"},
      {1001, L"Options"},
      {1002, L"Layout"},
      {1004, L"Color and Font"},
      {1005, L"Operation"},
      {1006, L"Language"},
      {1008, L"OK"},
      {1009, L"Cancel"},
      {1010, L"&Apply"},
      {1021, L"Visual Effects :"},
      {1024, L"Show &Grid Lines"},
      {1025, L"Fixed &Borders"},
      {1026, L"&Flat User Interface"},
      {1044, L"&Change..."},
      {1051, L"Text :"},
      {1052, L"Foreground"},
      {1053, L"Background"},
      {1054, L"Current Menu :"},
      {1065, L"Font :"},
      {1089, L"Change Language :"},
      {1090, L"Use &Default Language"},
      {1091, L"&Other"},
      {1101, L"Auto Complete :"},
      {1121, L"Auto &restart Total Commander after saving changes."},
      {1122, L"Use ContextMenu key instead of Alt key."},
      {1123, L"Show Hotkeys in Reverse Order. (requires program restart)"},
      {3003, L"Description"},
      {3004, L"Command"},
      {3009, L"Are you sure?"},
      {3015, L"There is an error in file"},
      {3016, L"Line:"},
      {3020, L"Save changes to"},
      {3021, L"Cannot find this file"},
      {3022, L"Please verify that the correct path and file name are given."},
      {3046, L"Cannot find Total Commander settings file [Wincmd.ini]"},
      {3047, L"Cannot find your Totalcmd.inc file !"},
      {3048, L"Cannot find language file!"},
      {3056, L"File not found."},
      {3060, L"Do you want assign it to :"},
      {3067, L"(none)"},
      {3074, L"Cannot find data file! Please open one to continue"},
      {3200, L"Default Hotkey"},
      {3201, L"Current Hotkey"},
      {3202, L"Add Hotkey"},
      {3203, L"Default hotkey for :"},
      {3204, L"Current hotkey for :"},
      {3205, L"Delete All Hotkeys"},
      {3206, L"You are about to delete Current Hotkeys for ALL commands."},
      {3207, L"in your Total Commander Start Menu"},
      {3208, L"Important"},
      {3209, L"Hotkeys in this list has not saved yet to your Total Commander configuration file."},
  };
  for (const BuiltInText& text : texts) EXPECT_EQ(BuiltInTextOf(text.Id), text.Text) << text.Id;
  EXPECT_EQ(std::size(texts), TextTable().size());
}

TEST(TextTable, AnUnknownIdHasNoText) {
  for (const int id :
       {0, -1, 100, 102, 3210, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_EQ(BuiltInTextOf(id), L"") << id;
  }
}

}  // namespace
}  // namespace tessera
