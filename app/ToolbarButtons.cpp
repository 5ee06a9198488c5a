// One entry for each button.
#include "app/ToolbarButtons.h"

#include <algorithm>

#include "resources/icons.h"
#include "resources/resource.h"

namespace tessera {
namespace {

using enum ToolbarStyle;

constexpr ToolbarButton MainButtons[] = {
    {.Style = DropDown,
     .Command = IDM_mnuFileOpen,
     .Icon = IDI_OPEN,
     .DisabledIcon = IDI_OPEN_DISABLED,
     .ToolTip = TextId::FileOpen},
    {.Style = DropDown,
     .Command = IDM_mnuFileSave,
     .Icon = IDI_SAVE,
     .DisabledIcon = IDI_SAVE_DISABLED,
     .ToolTip = TextId::FileSave,
     .MenuCommand = IDM_restarttc,
     .MenuCaption = TextId::SaveAndRestart},
    {.Style = Separator},
    {.Style = Check,
     .Command = IDM_mnuViewSortList,
     .Icon = IDI_SORT,
     .DisabledIcon = IDI_SORT_DISABLED,
     .ToolTip = TextId::ViewSortedList},
    {.Style = Separator},
    {.Style = Normal,
     .Command = IDM_mnuViewOptions,
     .Icon = IDI_OPTIONS,
     .DisabledIcon = IDI_OPTIONS_DISABLED,
     .ToolTip = TextId::ViewOptions},
};

constexpr ToolbarButton PanelButtons[] = {
    {.Style = DropDown,
     .Command = IDM_assign,
     .Icon = IDI_ASSIGN,
     .DisabledIcon = IDI_ASSIGN_DISABLED,
     .Key = L"ENTER",
     .MenuCommand = IDM_new,
     .MenuCaption = TextId::AddHotkey},
    {.Style = Separator},
    {.Style = DropDown,
     .Command = IDM_delete,
     .Icon = IDI_DELETE,
     .DisabledIcon = IDI_DELETE_DISABLED,
     .Key = L"DEL",
     .MenuCommand = IDM_delall,
     .MenuCaption = TextId::DeleteAllHotkeys},
};

}  // namespace

std::span<const ToolbarButton> MainToolbar() { return MainButtons; }

std::span<const ToolbarButton> PanelToolbar() { return PanelButtons; }

const ToolbarButton* ButtonOf(int command) {
  for (const std::span<const ToolbarButton> buttons : {MainToolbar(), PanelToolbar()}) {
    const auto found = std::ranges::find(buttons, command, &ToolbarButton::Command);
    if (command != 0 && found != buttons.end()) return &*found;
  }
  return nullptr;
}

}  // namespace tessera
