// One line for each command.
#include "app/Commands.h"

#include <algorithm>

#include "resources/resource.h"

namespace tessera {
namespace {

bool Always(const Editor& /*editor*/) { return true; }
bool Never(const Editor& /*editor*/) { return false; }

bool CommandSelected(const Editor& editor) { return editor.List().CommandSelected(); }

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
  int Id = 0;
  void (*Run)(Editor&) = nullptr;  ///< none for what the window does itself
  bool (*Enabled)(const Editor&) = Always;
  bool (*Checked)(const Editor&) = Never;
  WindowTask Task = WindowTask::None;
};

constexpr Command Commands[] = {
    {.Id = IDM_mnuFileOpen, .Run = Run<&Editor::FileOpen>, .Task = WindowTask::ShowSelectedRow},
    {.Id = IDM_mnuFileSave,
     .Run = Run<&Editor::FileSave>,
     .Enabled = [](const Editor& editor) { return editor.Document().Modified(); }},
    {.Id = IDM_mnuFileSavenRestartTC,
     .Run = Run<&Editor::FileSaveAndRestart>,
     .Enabled = [](const Editor& editor) { return editor.Document().SaveAndRestartEnabled(); }},
    {.Id = IDM_restarttc,
     .Run = Run<&Editor::FileSaveAndRestart>,
     .Enabled = [](const Editor& editor) { return editor.Document().RestartButtonEnabled(); }},
    {.Id = IDM_mnuFileExportToClipboard, .Task = WindowTask::ShowExport},
    {.Id = IDM_mnuRecentClear,
     .Run = Run<&Editor::ClearRecentFiles>,
     .Enabled = [](const Editor& editor) { return editor.RecentFiles().ClearEntry().Enabled; }},
    {.Id = IDM_mnuFileExit, .Task = WindowTask::Close},
    {.Id = IDM_mnuViewToolbar,
     .Run = Run<&Editor::ToggleToolbar>,
     .Checked = [](const Editor& editor) { return editor.Options().ToolbarVisible != 0; },
     .Task = WindowTask::LayOut},
    {.Id = IDM_mnuViewSortList,
     .Run = Run<&CommandList::ToggleSortedList>,
     .Checked = [](const Editor& editor) { return editor.Options().SortedList != 0; },
     .Task = WindowTask::ShowSelectedRow},
    {.Id = IDM_mnuViewOptions, .Task = WindowTask::ShowOptions},
    {.Id = IDM_mnuHelpHelpTopics, .Run = Run<&Editor::ShowHelpTopics>},
    {.Id = IDM_assign,
     .Run = Run<&HotkeyPanel::Assign>,
     .Enabled = [](const Editor& editor) { return editor.Panel().AssignEnabled(); }},
    {.Id = IDM_new,
     .Run = Run<&HotkeyPanel::Add>,
     .Enabled = [](const Editor& editor) { return editor.Panel().AddEnabled(); }},
    {.Id = IDM_delete,
     .Run = Run<&HotkeyPanel::Delete>,
     .Enabled = [](const Editor& editor) { return editor.Panel().DeleteEnabled(); }},
    {.Id = IDM_delall, .Run = Run<&HotkeyPanel::DeleteAll>},
    {.Id = IDM_undo,
     .Run = Run<&CommandList::Undo>,
     .Enabled = [](const Editor& editor) { return editor.Document().Edits().ToUndo() != nullptr; },
     .Task = WindowTask::ShowSelectedRow},
    {.Id = IDM_redo,
     .Run = Run<&CommandList::Redo>,
     .Enabled = [](const Editor& editor) { return editor.Document().Edits().ToRedo() != nullptr; },
     .Task = WindowTask::ShowSelectedRow},
    {.Id = IDM_show,
     .Run = Run<&Editor::Show>,
     .Enabled = [](const Editor& editor) { return editor.ShowEnabled(); },
     .Task = WindowTask::ShowSelectedRow},
    {.Id = IDM_find,
     .Enabled = [](const Editor& editor) { return editor.List().CanSearch(); },
     .Task = WindowTask::FocusFindBox},
    {.Id = IDM_copycommand, .Run = Run<&Editor::CopyCommandName>, .Enabled = CommandSelected},
    {.Id = IDM_copyrow, .Run = Run<&Editor::CopyRow>, .Enabled = CommandSelected},
    {.Id = IDM_copytable, .Run = Run<&Editor::CopyTable>},
    {.Id = IDM_keyspage, .Run = Run<&Editor::ShowKeysPage>},
};

const Command* CommandOf(int id) {
  const auto* const found = std::ranges::find(Commands, id, &Command::Id);
  return found != std::end(Commands) ? found : nullptr;
}

bool IsRecentFile(int id) {
  return id >= IDM_mnuFileRecentFiles1 && id <= IDM_mnuFileRecentFiles16;
}

}  // namespace

std::vector<CommandState> CommandStates(const Editor& editor) {
  const bool onPanel = editor.AllKeys().PanelToolbarEnabled();
  std::vector<CommandState> states;
  for (const Command& command : Commands) {
    const bool enabled = command.Enabled(editor);
    states.push_back({command.Id, enabled, enabled && onPanel, command.Checked(editor)});
  }
  return states;
}

bool IsCommand(int id) { return CommandOf(id) != nullptr || IsRecentFile(id); }

bool CommandEnabled(const Editor& editor, int id) {
  const Command* const command = CommandOf(id);
  return command != nullptr && command->Enabled(editor);
}

WindowTask RunCommand(Editor& editor, int id) {
  if (IsRecentFile(id)) {
    editor.mnuFileRecentFiles_Click(id - IDM_mnuFileRecentFiles1 + 1);
    return WindowTask::ShowSelectedRow;
  }
  const Command* const command = CommandOf(id);
  if (command == nullptr || !command->Enabled(editor)) return WindowTask::None;
  if (command->Run != nullptr) command->Run(editor);
  return command->Task;
}

}  // namespace tessera
