// The built-in texts.
#include <gtest/gtest.h>

#include <iterator>
#include <limits>

#include "localisation/TextTable.h"

namespace tessera::text_table_test {
namespace {

TEST(TextTable, IdsAscend) {
  const auto table = TextTable();
  for (std::size_t index = 1; index < table.size(); ++index) {
    EXPECT_LT(table[index - 1].Id, table[index].Id);
  }
}

TEST(TextTable, NoTextIsEmpty) {
  for (const BuiltInText& text : TextTable()) EXPECT_FALSE(text.Text.empty()) << NumberOf(text.Id);
}

TEST(TextTable, EveryTextIsFoundByItsId) {
  for (const BuiltInText& text : TextTable()) EXPECT_EQ(BuiltInTextOf(text.Id), text.Text);
}

TEST(TextTable, HasTheTextsWordForWord) {
  const BuiltInText texts[] = {
      {TextId{101}, L"&File"},
      {TextId{103}, L"&Open..."},
      {TextId{104}, L"&Save"},
      {TextId{107}, L"&Recent Files"},
      {TextId{108}, L"No Recent Files"},
      {TextId{109}, L"Clear List"},
      {TextId{110}, L"E&xit"},
      {TextId{116}, L"Save and Restart Bainioka"},
      {TextId{117}, L"&Export To Clipboard..."},
      {TextId{141}, L"&View"},
      {TextId{142}, L"&Toolbar"},
      {TextId{149}, L"Sorted &List"},
      {TextId{150}, L"&Options..."},
      {TextId{161}, L"&Help"},
      {TextId{162}, L"Help &Topics"},
      {TextId{400}, L"Hotkey:"},
      {TextId{401}, L"&Control +"},
      {TextId{402}, L"&Alt +"},
      {TextId{403}, L"&Shift +"},
      {TextId{404}, L"Ctrl"},
      {TextId{405}, L"Alt"},
      {TextId{406}, L"Shift"},
      {TextId{407}, L"Select Columns to Export"},
      {TextId{1001}, L"Options"},
      {TextId{1002}, L"Layout"},
      {TextId{1004}, L"Color and Font"},
      {TextId{1005}, L"Operation"},
      {TextId{1006}, L"Language"},
      {TextId{1008}, L"OK"},
      {TextId{1009}, L"Cancel"},
      {TextId{1010}, L"&Apply"},
      {TextId{1021}, L"Visual Effects :"},
      {TextId{1024}, L"Show &Grid Lines"},
      {TextId{1025}, L"Fixed &Borders"},
      {TextId{1026}, L"&Flat User Interface"},
      {TextId{1044}, L"&Change..."},
      {TextId{1051}, L"Text :"},
      {TextId{1052}, L"Foreground"},
      {TextId{1053}, L"Background"},
      {TextId{1054}, L"Current Menu :"},
      {TextId{1065}, L"Font :"},
      {TextId{1089}, L"Change Language :"},
      {TextId{1090}, L"Use &Default Language"},
      {TextId{1091}, L"&Other"},
      {TextId{1101}, L"Auto Complete :"},
      {TextId{1121}, L"Auto &restart Total Commander after saving changes."},
      {TextId{1122}, L"Use ContextMenu key instead of Alt key."},
      {TextId{1123}, L"Show Hotkeys in Reverse Order. (requires program restart)"},
      {TextId{3003}, L"Description"},
      {TextId{3004}, L"Command"},
      {TextId{3009}, L"Are you sure?"},
      {TextId{3015}, L"There is an error in file"},
      {TextId{3016}, L"Line:"},
      {TextId{3020}, L"Save changes to"},
      {TextId{3021}, L"Cannot find this file"},
      {TextId{3022}, L"Please verify that the correct path and file name are given."},
      {TextId{3023}, L"Cannot read this file"},
      {TextId{3046}, L"Cannot find Total Commander settings file [Wincmd.ini]"},
      {TextId{3047}, L"Cannot find your Totalcmd.inc file !"},
      {TextId{3048}, L"Cannot find language file!"},
      {TextId{3056}, L"File not found."},
      {TextId{3060}, L"Do you want assign it to :"},
      {TextId{3067}, L"(none)"},
      {TextId{3074}, L"Cannot find data file! Please open one to continue"},
      {TextId{3200}, L"Default Hotkey"},
      {TextId{3201}, L"Current Hotkey"},
      {TextId{3202}, L"Add Hotkey"},
      {TextId{3203}, L"Default hotkey for :"},
      {TextId{3204}, L"Current hotkey for :"},
      {TextId{3205}, L"Delete All Hotkeys"},
      {TextId{3206}, L"You are about to delete Current Hotkeys for ALL commands."},
      {TextId{3207}, L"in your Total Commander Start Menu"},
      {TextId{3208}, L"Important"},
      {TextId{3209},
       L"Hotkeys in this list has not saved yet to your Total Commander configuration file."},
      {TextId{3295},
       L"Tessera must end because of an error. Unsaved changes are in Wincmd.ini.unsaved."},
      {TextId{3296}, L"Tessera must end because of an error."},
      {TextId{3300}, L"Show"},
      {TextId{3301}, L"%1: %2"},
      {TextId{3302}, L"%1: free"},
      {TextId{3303}, L"%1 (current)"},
      {TextId{3304}, L"%1 (default)"},
      {TextId{3305}, L"%1 (default, overridden)"},
      {TextId{3306}, L"%1 (Start Menu)"},
      {TextId{3307}, L"this command"},
      {TextId{3308}, L"%1, %2"},
      {TextId{3309}, L"%1 and %2 more"},
      {TextId{3310}, L"%1. You will be asked about %2."},
      {TextId{3311}, L"%1. You will not be asked."},
      {TextId{3312}, L"Not saved: %1."},
      {TextId{3313}, L"Not saved: %1. The unsaved keys are in %2"},
      {TextId{3314}, L"access is denied"},
      {TextId{3315}, L"another program has the file open"},
      {TextId{3316}, L"the disk is full"},
      {TextId{3317}, L"the file or its folder is missing"},
      {TextId{3318}, L"another program keeps changing the file"},
      {TextId{3319}, L"the file could not be read when it was opened"},
      {TextId{3320}, L"error %1"},
      {TextId{3321}, L"%1 is open. Commands with keys of your own: %2"},
      {TextId{3322}, L"%1 is saved."},
      {TextId{3323}, L"%1 has the key %2 now."},
      {TextId{3324}, L"%1 has the further key %2 now."},
      {TextId{3325}, L"%1 It was taken from %2."},
      {TextId{3326}, L"%1 has lost %2."},
      {TextId{3327}, L"All keys are deleted. Commands that have lost theirs: %1"},
      {TextId{3328}, L"en"},
      {TextId{3340}, L"Assign Hotkey"},
      {TextId{3341}, L"Delete Current Hotkeys"},
      {TextId{3342}, L"Copy Command Name"},
      {TextId{3343}, L"Copy Row"},
      {TextId{3344}, L"Copy as Table"},
      {TextId{3345}, L"Show Who Has the Key"},
      {TextId{3350}, L"Undo"},
      {TextId{3351}, L"Redo"},
      {TextId{3352}, L"Undo: %1"},
      {TextId{3353}, L"Redo: %1"},
      {TextId{3354}, L"%1 to %2"},
      {TextId{3355}, L"also %1 to %2"},
      {TextId{3356}, L"delete the keys of %2"},
      {TextId{3357}, L"delete all keys"},
      {TextId{3358}, L"take %1 from the Start Menu"},
      {TextId{3359}, L"Taken back: %1."},
      {TextId{3360}, L"Made again: %1."},
      {TextId{3361}, L"%1 Its Start Menu key is gone: a save has taken it out of the file."},
      {TextId{3365}, L"Find:"},
      {TextId{3366}, L"Find a command or a key"},
      {TextId{3367}, L"Find..."},
      {TextId{3368}, L"Commands found: %1"},
      {TextId{3370}, L"Keep keys of unknown commands. (from the next open)"},
      {TextId{3371}, L"Forget the keys of former files. (from the next open)"},
      {TextId{3372}, L"Show own commands of usercmd.ini. (from the next open)"},
      {TextId{3373}, L"Own commands (usercmd.ini)"},
      {TextId{3374}, L"%1 The keys are in %2."},
      {TextId{3375}, L"%1 Lines that were left out: %2, added to %3."},
      {TextId{3376}, L"%1 Lines that were left out: %2, to be found only in %3."},
      {TextId{3377}, L"%1. Keys of former files are still shown"},
      {TextId{3378}, L"%1. Own commands are missing: %2 could not be read"},
      {TextId{3379}, L"%1 Total Commander is closed and was not found again."},
      {TextId{3380}, L"Start It"},
      {TextId{3381}, L"Keys as a page..."},
      {TextId{3382}, L"Cannot write this file"},
      {TextId{3383}, L"Cannot open this file"},
      {TextId{3384}, L"The name of a file is missing: /page=FILE"},
      {TextId{3386}, L"Keys of Total Commander"},
      {TextId{3387}, L"The keys are shown as they stand in the list. They are not saved yet."},
      {TextId{3388}, L"%1 of %2 free with %3"},
      {TextId{3389}, L"%1 of %2 free without a modifier"},
      {TextId{3390}, L"No modifier"},
      {TextId{3391}, L"Free"},
      {TextId{3392}, L"Default"},
      {TextId{3393}, L"Own key"},
      {TextId{3394}, L"Own key over a default"},
      {TextId{3395}, L"Start Menu"},
      {TextId{3396}, L"Other keys"},
      {TextId{3397}, L"By key"},
      {TextId{3398}, L"By command"},
      {TextId{3399}, L"Key"},
  };
  for (const BuiltInText& text : texts) {
    EXPECT_EQ(BuiltInTextOf(text.Id), text.Text) << NumberOf(text.Id);
  }
  EXPECT_EQ(std::size(texts), TextTable().size());
}

TEST(TextTable, AnUnknownIdHasNoText) {
  for (const int id :
       {0, -1, 100, 102, 3210, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_EQ(BuiltInTextOf(TextId{id}), L"") << id;
  }
}

}  // namespace
}  // namespace tessera::text_table_test
