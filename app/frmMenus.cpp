// Menus, made from the table of their entries.
#include "app/frmMenus.h"

#include <string>

#include "app/ListMenu.h"
#include "resources/resource.h"

namespace tessera {
namespace {

void Append(HMENU menu, int id, const std::wstring& caption, bool enabled = true) {
  AppendMenuW(menu, MF_STRING | (enabled ? MF_ENABLED : MF_GRAYED), static_cast<UINT_PTR>(id),
              caption.c_str());
}

void AppendSeparator(HMENU menu) { AppendMenuW(menu, MF_SEPARATOR, 0, nullptr); }

HMENU AppendSubmenu(HMENU menu, const std::wstring& caption) {
  const HMENU submenu = CreatePopupMenu();
  AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(submenu), caption.c_str());
  return submenu;
}

void AppendRecentFiles(HMENU menu, const cRecentFiles& files) {
  for (int id = IDM_mnuFileRecentFiles1; const RecentEntry& entry : files.MenuEntries()) {
    Append(menu, id++, entry.Caption, entry.Enabled);
  }
}

}  // namespace

Unique<HMENU> MenuUnder(const ToolbarButton& button, const Editor& editor) {
  Unique<HMENU> menu(CreatePopupMenu());
  if (button.MenuCommand == 0) {
    AppendRecentFiles(menu.get(), editor.RecentFiles());
  } else {
    Append(menu.get(), button.MenuCommand, editor.Language().GetLangText(button.MenuCaption),
           CommandEnabled(editor, button.MenuCommand));
  }
  return menu;
}

Unique<HMENU> ContextMenu(const Editor& editor) {
  Unique<HMENU> menu(CreatePopupMenu());
  for (const MenuEntry& entry : ListMenu()) {
    if (entry.Kind == MenuEntryKind::Separator) {
      AppendSeparator(menu.get());
      continue;
    }
    Append(menu.get(), entry.Command, ListMenuCaption(entry, editor),
           CommandEnabled(editor, entry.Command));
  }
  return menu;
}

frmMenus::frmMenus(const Editor& editor) : editor_(editor) {}

void frmMenus::Build(HWND window) {
  window_ = window;
  const HMENU bar = CreateMenu();
  HMENU menu = nullptr;
  for (const MenuEntry& entry : MenuBar()) {
    const std::wstring caption = editor_.Language().GetLangText(entry.Caption);
    switch (entry.Kind) {
      case MenuEntryKind::Menu:
        menu = AppendSubmenu(bar, caption);
        break;
      case MenuEntryKind::Command:
        Append(menu, entry.Command, caption);
        break;
      case MenuEntryKind::RecentFiles:
        mnuRecent_ = AppendSubmenu(menu, caption);
        break;
      case MenuEntryKind::Separator:
        AppendSeparator(menu);
        break;
    }
  }
  const Unique<HMENU> former(GetMenu(window_));
  SetMenu(window_, bar);
}

void frmMenus::FillRecentFiles() const {
  while (DeleteMenu(mnuRecent_, 0, MF_BYPOSITION) != FALSE) {
  }
  const cRecentFiles& files = editor_.RecentFiles();
  AppendRecentFiles(mnuRecent_, files);
  AppendSeparator(mnuRecent_);
  const RecentEntry clear = files.ClearEntry();
  Append(mnuRecent_, IDM_mnuRecentClear, clear.Caption, clear.Enabled);
}

void frmMenus::ShowState(const CommandState& state) const {
  const HMENU menu = GetMenu(window_);
  const auto id = static_cast<UINT>(state.Id);
  EnableMenuItem(menu, id, state.Enabled ? MF_ENABLED : MF_GRAYED);
  CheckMenuItem(menu, id, state.Checked ? MF_CHECKED : MF_UNCHECKED);
}

}  // namespace tessera
