// What the panel's toolbar does, and more that concerns the selected row.
#include "app/ListMenu.h"

#include "app/StepNames.h"
#include "app/ToolbarButtons.h"
#include "localisation/Mnemonic.h"
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
    {Command, TextId::Undo, IDM_undo},
    {Command, TextId::Redo, IDM_redo},
    {Separator},
    {Command, TextId::ShowWhoHasTheKey, IDM_show},
    {Command, TextId::FindCommand, IDM_find},
    {Separator},
    {Command, TextId::CopyCommandName, IDM_copycommand},
    {Command, TextId::CopyRow, IDM_copyrow},
    {Command, TextId::CopyAsTable, IDM_copytable},
    {Separator},
    {Command, TextId::KeysAsPage, IDM_keyspage},
};

}  // namespace

std::span<const MenuEntry> ListMenu() { return Entries; }

std::wstring ListMenuCaption(const MenuEntry& entry, const Editor& editor) {
  if (entry.Command == IDM_undo) return DoubleAmpersands(UndoCaption(editor));
  if (entry.Command == IDM_redo) return DoubleAmpersands(RedoCaption(editor));
  std::wstring caption = editor.Language().GetLangText(entry.Caption);
  // The key that does the same stands at the other edge.
  const ToolbarButton* const button = ButtonOf(entry.Command);
  if (button != nullptr) caption.append(1, L'\t').append(button->Key);
  return caption;
}

}  // namespace tessera
