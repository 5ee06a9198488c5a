// What the panel's toolbar does, and more that concerns the selected row.
#include "app/ListMenu.h"

#include "resources/resource.h"

namespace tessera {
namespace {

using enum MenuEntryKind;

constexpr MenuEntry Entries[] = {
    {Command, TextId::AssignHotkey, IDM_assign},
    {Command, TextId::AddHotkey, IDM_new},
    {Separator},
    {Command, TextId::DeleteHotkeys, IDM_delete},
    {Command, TextId::DeleteAllHotkeys, IDM_delall},
    {Separator},
    {Command, TextId::CopyCommandName, IDM_copycommand},
    {Command, TextId::CopyRow, IDM_copyrow},
    {Command, TextId::CopyAsTable, IDM_copytable},
};

}  // namespace

std::span<const MenuEntry> ListMenu() { return Entries; }

}  // namespace tessera
