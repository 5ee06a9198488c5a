// One line for each entry.
#include "app/MenuBar.h"

#include "resources/resource.h"

namespace tessera {
namespace {

using enum MenuEntryKind;

constexpr MenuEntry Entries[] = {
    {Menu, TextId::MenuFile},
    {Command, TextId::FileOpen, IDM_mnuFileOpen},
    {Command, TextId::FileSave, IDM_mnuFileSave},
    {Command, TextId::SaveAndRestart, IDM_mnuFileSavenRestartTC},
    {Separator},
    {Command, TextId::FileExport, IDM_mnuFileExportToClipboard},
    {Separator},
    {RecentFiles, TextId::FileRecent},
    {Separator},
    {Command, TextId::FileExit, IDM_mnuFileExit},
    {Menu, TextId::MenuView},
    {Command, TextId::ViewToolbar, IDM_mnuViewToolbar},
    {Command, TextId::ViewSortedList, IDM_mnuViewSortList},
    {Separator},
    {Command, TextId::ViewOptions, IDM_mnuViewOptions},
    {Menu, TextId::MenuHelp},
    {Command, TextId::HelpTopics, IDM_mnuHelpHelpTopics},
};

}  // namespace

std::span<const MenuEntry> MenuBar() { return Entries; }

}  // namespace tessera
