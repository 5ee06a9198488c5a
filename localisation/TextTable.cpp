// The built-in English texts. They are fixed word for word: language files are made against them.
#include "localisation/TextTable.h"

#include <algorithm>

namespace tessera {
namespace {

constexpr BuiltInText Table[] = {
    {TextId::MenuFile, L"&File"},
    {TextId::FileOpen, L"&Open..."},
    {TextId::FileSave, L"&Save"},
    {TextId::FileRecent, L"&Recent Files"},
    {TextId::NoRecentFiles, L"No Recent Files"},
    {TextId::ClearList, L"Clear List"},
    {TextId::FileExit, L"E&xit"},
    {TextId::SaveAndRestart, L"Save and Restart Bainioka"},
    {TextId::FileExport, L"&Export To Clipboard..."},
    {TextId::MenuView, L"&View"},
    {TextId::ViewToolbar, L"&Toolbar"},
    {TextId::ViewSortedList, L"Sorted &List"},
    {TextId::ViewOptions, L"&Options..."},
    {TextId::MenuHelp, L"&Help"},
    {TextId::HelpTopics, L"Help &Topics"},
    {TextId::Hotkey, L"Hotkey:"},
    {TextId::ControlBox, L"&Control +"},
    {TextId::AltBox, L"&Alt +"},
    {TextId::ShiftBox, L"&Shift +"},
    {TextId::CtrlName, L"Ctrl"},
    {TextId::AltName, L"Alt"},
    {TextId::ShiftName, L"Shift"},
    {TextId::ExportTitle, L"Select Columns to Export"},
    {TextId::OptionsTitle, L"Options"},
    {TextId::LayoutTab, L"Layout"},
    {TextId::ColorAndFontTab, L"Color and Font"},
    {TextId::OperationTab, L"Operation"},
    {TextId::LanguageTab, L"Language"},
    {TextId::Ok, L"OK"},
    {TextId::Cancel, L"Cancel"},
    {TextId::Apply, L"&Apply"},
    {TextId::VisualEffects, L"Visual Effects :"},
    {TextId::GridLines, L"Show &Grid Lines"},
    {TextId::FixedBorders, L"Fixed &Borders"},
    {TextId::FlatUserInterface, L"&Flat User Interface"},
    {TextId::ChangeFont, L"&Change..."},
    {TextId::TextColors, L"Text :"},
    {TextId::Foreground, L"Foreground"},
    {TextId::Background, L"Background"},
    {TextId::CurrentMenu, L"Current Menu :"},
    {TextId::Font, L"Font :"},
    {TextId::ChangeLanguage, L"Change Language :"},
    {TextId::DefaultLanguage, L"Use &Default Language"},
    {TextId::OtherLanguage, L"&Other"},
    {TextId::AutoComplete, L"Auto Complete :"},
    {TextId::AutoRestart, L"Auto &restart Total Commander after saving changes."},
    {TextId::UseContextMenuKey, L"Use ContextMenu key instead of Alt key."},
    {TextId::ReverseOrder, L"Show Hotkeys in Reverse Order. (requires program restart)"},
    {TextId::DescriptionColumn, L"Description"},
    {TextId::CommandColumn, L"Command"},
    {TextId::AreYouSure, L"Are you sure?"},
    {TextId::ErrorInFile, L"There is an error in file"},
    {TextId::Line, L"Line:"},
    {TextId::SaveChangesTo, L"Save changes to"},
    {TextId::CannotFindThisFile, L"Cannot find this file"},
    {TextId::VerifyPath, L"Please verify that the correct path and file name are given."},
    {TextId::CannotReadThisFile, L"Cannot read this file"},
    {TextId::NoWincmdIni, L"Cannot find Total Commander settings file [Wincmd.ini]"},
    {TextId::NoTotalcmdInc, L"Cannot find your Totalcmd.inc file !"},
    {TextId::NoLanguageFile, L"Cannot find language file!"},
    {TextId::FileNotFound, L"File not found."},
    {TextId::AssignItTo, L"Do you want assign it to :"},
    {TextId::EmptyEntry, L"(none)"},
    {TextId::NoDataFile, L"Cannot find data file! Please open one to continue"},
    {TextId::DefaultHotkeyColumn, L"Default Hotkey"},
    {TextId::CurrentHotkeyColumn, L"Current Hotkey"},
    {TextId::AddHotkey, L"Add Hotkey"},
    {TextId::DefaultHotkeyFor, L"Default hotkey for :"},
    {TextId::CurrentHotkeyFor, L"Current hotkey for :"},
    {TextId::DeleteAllHotkeys, L"Delete All Hotkeys"},
    {TextId::AboutToDeleteAll, L"You are about to delete Current Hotkeys for ALL commands."},
    {TextId::InStartMenu, L"in your Total Commander Start Menu"},
    {TextId::Important, L"Important"},
    {TextId::NotSavedYet,
     L"Hotkeys in this list has not saved yet to your Total Commander configuration file."},
    {TextId::MustEnd,
     L"Tessera must end because of an error. Unsaved changes are in Wincmd.ini.unsaved."},
    {TextId::MustEndNothingKept, L"Tessera must end because of an error."},
};

}  // namespace

std::span<const BuiltInText> TextTable() { return Table; }

std::wstring_view BuiltInTextOf(TextId id) {
  const auto found = std::ranges::lower_bound(Table, id, {}, &BuiltInText::Id);
  return found != std::end(Table) && found->Id == id ? found->Text : std::wstring_view();
}

}  // namespace tessera
