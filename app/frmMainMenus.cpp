// The menus and the commands behind them, by table.
#include <algorithm>

#include "app/frmMain.h"
#include "resources/resource.h"

namespace tessera {

namespace {

bool Always(const Editor& /*editor*/) { return true; }
bool Never(const Editor& /*editor*/) { return false; }

/// Runs an operation of the editor, or of a part that it lets work.
template <auto Operation>
void Run(Editor& editor) {
  if constexpr (requires { (editor.*Operation)(); }) {
    (editor.*Operation)();
  } else {
    editor.Work(Operation);
  }
}

struct Command {
  int Id;
  void (*Run)(Editor&);  ///< none for what the window does itself
  bool (*Enabled)(const Editor&);
  bool (*Checked)(const Editor&) = Never;
};

constexpr Command Commands[] = {
    {IDM_mnuFileOpen, Run<&Editor::FileOpen>, Always},
    {IDM_mnuFileSave, Run<&Editor::FileSave>,
     [](const Editor& editor) { return editor.Document().Modified(); }},
    {IDM_mnuFileSavenRestartTC, Run<&Editor::FileSaveAndRestart>,
     [](const Editor& editor) { return editor.Document().SaveAndRestartEnabled(); }},
    {IDM_restarttc, Run<&Editor::FileSaveAndRestart>,
     [](const Editor& editor) { return editor.Document().RestartButtonEnabled(); }},
    {IDM_mnuFileExportToClipboard, nullptr, Always},
    {IDM_mnuRecentClear, Run<&Editor::ClearRecentFiles>,
     [](const Editor& editor) { return editor.RecentFiles().ClearEntry().Enabled; }},
    {IDM_mnuFileExit, nullptr, Always},
    {IDM_mnuViewToolbar, Run<&Editor::ToggleToolbar>, Always,
     [](const Editor& editor) { return editor.Options().ToolbarVisible != 0; }},
    {IDM_mnuViewSortList, Run<&CommandList::ToggleSortedList>, Always,
     [](const Editor& editor) { return editor.Options().SortedList != 0; }},
    {IDM_mnuViewOptions, nullptr, Always},
    {IDM_mnuHelpHelpTopics, Run<&Editor::ShowHelpTopics>, Always},
    {IDM_assign, Run<&HotkeyPanel::Assign>,
     [](const Editor& editor) { return editor.Panel().AssignEnabled(); }},
    {IDM_new, Run<&HotkeyPanel::Add>,
     [](const Editor& editor) { return editor.Panel().AddEnabled(); }},
    {IDM_delete, Run<&HotkeyPanel::Delete>,
     [](const Editor& editor) { return editor.Panel().DeleteEnabled(); }},
    {IDM_delall, Run<&HotkeyPanel::DeleteAll>, Always},
};

const Command* CommandOf(int id) {
  const auto* const found = std::ranges::find(Commands, id, &Command::Id);
  return found != std::end(Commands) ? found : nullptr;
}

bool IsRecentFile(int id) {
  return id >= IDM_mnuFileRecentFiles1 && id <= IDM_mnuFileRecentFiles16;
}

/// An item of a menu; with Id 0 the heading of a menu, without a caption too a separator. The
/// submenu of recent files has an ID of its own here.
struct MenuItem {
  int Id;
  TextId Caption = TextId::None;
};

constexpr int RecentSubmenu = -1;

constexpr MenuItem MenuBar[] = {
    {0, TextId::MenuFile},
    {IDM_mnuFileOpen, TextId::FileOpen},
    {IDM_mnuFileSave, TextId::FileSave},
    {IDM_mnuFileSavenRestartTC, TextId::SaveAndRestart},
    {0},
    {IDM_mnuFileExportToClipboard, TextId::FileExport},
    {0},
    {RecentSubmenu, TextId::FileRecent},
    {0},
    {IDM_mnuFileExit, TextId::FileExit},
    {0, TextId::MenuView},
    {IDM_mnuViewToolbar, TextId::ViewToolbar},
    {IDM_mnuViewSortList, TextId::ViewSortedList},
    {0},
    {IDM_mnuViewOptions, TextId::ViewOptions},
    {0, TextId::MenuHelp},
    {IDM_mnuHelpHelpTopics, TextId::HelpTopics},
};

}  // namespace

void frmMain::BuildMenus() {
  const Texts& texts = editor_.Language();
  const HMENU bar = CreateMenu();
  HMENU menu = nullptr;
  for (const MenuItem& item : MenuBar) {
    const std::wstring caption = texts.GetLangText(item.Caption);
    if (item.Id == RecentSubmenu) {
      mnuRecent_ = CreatePopupMenu();
      FillRecentMenu(mnuRecent_, true);
      AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(mnuRecent_), caption.c_str());
    } else if (item.Id != 0) {
      AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(item.Id), caption.c_str());
    } else if (item.Caption == TextId::None) {
      AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    } else {
      menu = CreatePopupMenu();
      AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), caption.c_str());
    }
  }
  const Unique<HMENU> former(GetMenu(window_));
  SetMenu(window_, bar);
}

void frmMain::SyncCommands() {
  const HMENU menu = GetMenu(window_);
  for (const Command& command : Commands) {
    const bool enabled = command.Enabled(editor_);
    const bool checked = command.Checked(editor_);
    ShowOnToolbars(command.Id, enabled, checked);
    EnableMenuItem(menu, static_cast<UINT>(command.Id), enabled ? MF_ENABLED : MF_GRAYED);
    CheckMenuItem(menu, static_cast<UINT>(command.Id), checked ? MF_CHECKED : MF_UNCHECKED);
  }
}

bool frmMain::CommandEnabled(int id) const {
  const Command* const command = CommandOf(id);
  return command != nullptr && command->Enabled(editor_);
}

void frmMain::OnCommand(int id, HWND control) {
  const Command* const command = CommandOf(id);
  if ((command == nullptr && !IsRecentFile(id)) || !AcceptsInput()) {
    return;
  }
  if (control == Toolbar1_) {
    windowsSystem_.Seams().Clock.DoEvents();
  }
  editor_.RefreshRestartItems();
  if (id == IDM_mnuFileExit) {
    PostMessageW(window_, WM_CLOSE, 0, 0);
  } else if (!AcceptsInput() || OpenRecentFile(id) || OpenDialog(id)) {
    // done, or the events before it have started something else
  } else if (command != nullptr && command->Run != nullptr && command->Enabled(editor_)) {
    command->Run(editor_);
  }
  Sync();
  if (id == IDM_mnuViewToolbar) {
    LayOut();
  } else if (id == IDM_mnuViewSortList || id == IDM_mnuFileOpen) {
    ShowSelectedRow();
  }
}

bool frmMain::OpenDialog(int id) {
  if (id == IDM_mnuFileExportToClipboard) {
    ShowExport();
  } else if (id == IDM_mnuViewOptions) {
    ShowOptions();
  } else {
    return false;
  }
  return true;
}

bool frmMain::OpenRecentFile(int id) {
  if (!IsRecentFile(id)) {
    return false;
  }
  editor_.OpenRecentFile(id - IDM_mnuFileRecentFiles1 + 1);
  Sync();
  ShowSelectedRow();
  return true;
}

void frmMain::OnInitMenu() {
  editor_.RefreshRestartItems();
  FillRecentMenu(mnuRecent_, true);
  SyncCommands();
}

void frmMain::FillRecentMenu(HMENU menu, bool withClearEntry) const {
  while (DeleteMenu(menu, 0, MF_BYPOSITION) != FALSE) {
  }
  const auto append = [menu](int id, const RecentEntry& entry) {
    AppendMenuW(menu, MF_STRING | (entry.Enabled ? MF_ENABLED : MF_GRAYED),
                static_cast<UINT_PTR>(id), entry.Caption.c_str());
  };
  for (int id = IDM_mnuFileRecentFiles1;
       const RecentEntry& entry : editor_.RecentFiles().MenuEntries()) {
    append(id++, entry);
  }
  if (withClearEntry) {
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    append(IDM_mnuRecentClear, editor_.RecentFiles().ClearEntry());
  }
}

}  // namespace tessera
