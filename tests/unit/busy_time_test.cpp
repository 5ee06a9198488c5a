// While a load or a save runs, events are handled, and none of them does anything.
#include "app/BusyTime.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::busy_time_test {
namespace {

using namespace installation;

struct Operation {
  const char* Name;
  Reaction (*Run)(Editor&);
};

/// Lets an operation without a reaction have an empty one.
template <auto Function, auto... Arguments>
Reaction Run(Editor& editor) {
  if constexpr (requires { (editor.*Function)(Arguments...); }) {
    static_cast<void>((editor.*Function)(Arguments...));
    return {};
  } else {
    return editor.Work(Function, Arguments...);
  }
}

/// Everything that events can set off, where the window shows no dialog.
constexpr Operation Operations[] = {
    {"SelectRow", Run<&CommandList::SelectRow, View>},
    {"Search", [](Editor& editor) { return editor.Work(&CommandList::Search, L"copy"); }},
    {"EndSearch",
     [](Editor& editor) {
       editor.Work(&CommandList::Search, L"copy");
       return editor.Work(&CommandList::EndSearch);
     }},
    {"SetCanSearch",
     [](Editor& editor) {
       editor.Work(&CommandList::Search, L"copy");
       return editor.Work(&CommandList::SetCanSearch, false);
     }},
    {"SortByColumn", Run<&CommandList::SortByColumn, 2>},
    {"ToggleSortedList", Run<&CommandList::ToggleSortedList>},
    {"SetBox", Run<&HotkeyPanel::SetBox, Modifier::Ctrl, true>},
    {"ChooseKey", Run<&HotkeyPanel::ChooseKey, 3>},
    {"Assign", Run<&HotkeyPanel::Assign>},
    {"Add", Run<&HotkeyPanel::Add>},
    {"Delete", Run<&HotkeyPanel::Delete>},
    {"DeleteAll", Run<&HotkeyPanel::DeleteAll>},
    {"Undo", Run<&CommandList::Undo>},
    {"Redo",
     [](Editor& editor) {
       editor.Work(&CommandList::Undo);
       return editor.Work(&CommandList::Redo);
     }},
    {"Show",
     [](Editor& editor) {
       editor.Work(&HotkeyPanel::ChooseKey, 4);  // the default key of a command
       return editor.Work(&HolderTour::Show);
     }},
    {"ResetPanel", Run<&HotkeyPanel::ResetPanel>},
    {"Ctrl down",
     [](Editor& editor) {
       return editor.Work(&HotkeyPanel::KeyDown, KeyEvent{.Code = KeyCode::Ctrl, .CtrlHeld = true});
     }},
    {"Enter",
     [](Editor& editor) {
       return editor.Work(&HotkeyPanel::KeyDown, KeyEvent{.Code = KeyCode::Enter});
     }},
    {"Del",
     [](Editor& editor) {
       return editor.Work(&HotkeyPanel::KeyDown, KeyEvent{.Code = KeyCode::Delete});
     }},
    {"Alt up",
     [](Editor& editor) {
       return editor.Work(&HotkeyPanel::KeyUp, KeyEvent{.Code = KeyCode::Alt});
     }},
    {"TimerTick", Run<&HotkeyPanel::TimerTick>},
    {"ToggleKeysList", Run<&KeysList::ToggleKeysList>},
    {"Select in the keys list", Run<&KeysList::Select, 5>},
    {"Enter in the keys list", Run<&KeysList::KeyDown, KeyCode::Enter>},
    {"ReleaseMouse",
     [](Editor& editor) {
       editor.Work(&KeysList::ReleaseMouse);
       return editor.Work(&KeysList::Select, 5);
     }},
    {"ChooserDropsDown", Run<&KeysList::ChooserDropsDown>},
    {"FileOpen", Run<&Editor::FileOpen>},
    {"FileSave", Run<&Editor::FileSave>},
    {"FileSaveAndRestart", Run<&Editor::FileSaveAndRestart>},
    {"OpenShortcutFile",
     [](Editor& editor) {
       editor.OpenShortcutFile(false, OtherIniFile, true);
       return Reaction{};
     }},
    {"mnuFileRecentFiles_Click", Run<&Editor::mnuFileRecentFiles_Click, 2>},
    {"ClearRecentFiles", Run<&Editor::ClearRecentFiles>},
    {"CopyCommandName", Run<&Editor::CopyCommandName>},
    {"CopyRow", Run<&Editor::CopyRow>},
    {"CopyTable", Run<&Editor::CopyTable>},
    {"ShowKeysPage", Run<&Editor::ShowKeysPage>},
    {"QueryUnload", Run<&Editor::QueryUnload>},
};

/// What the user sees of the rows and the panel.
std::vector<std::wstring> Shown(const Editor& editor) {
  std::vector<std::wstring> texts{editor.Document().Caption(), editor.Panel().ComposeKey(),
                                  std::to_wstring(editor.List().SelectedRow())};
  for (std::size_t row = 0; row < editor.Document().Rows().Count(); ++row) {
    for (const Column column : {Column::Command, Column::Defaults, Column::Current}) {
      texts.emplace_back(CellText(editor.Document().Rows().At(row), column));
    }
  }
  return texts;
}

/// Everything that events can set off; told apart from the rest of a test by happening while the
/// editor is busy.
void DoEverything(Editor& editor) {
  // First, since the options reset the panel, which would hide what the others do to it.
  editor.BeginOptions();
  editor.EndOptions();
  editor.BeginExport();
  editor.EndExport();
  for (const Operation& operation : Operations) operation.Run(editor);
  editor.Activate();
  EXPECT_FALSE(editor.QueryUnload());
}

class BusyTimeTest : public EditorTest {
 protected:
  /// A state in which every operation does something.
  void Prepare() {
    Files.Contents[OtherIniFile] = "[Shortcuts]\r\n";
    Programs.Windows[L"TTOTAL_CMD"] = 7;
    StoredSettings() = "[Tessera]\r\nRecentFiles1=C:\\TC\\Other.ini\r\n";
    Start();
    Assign(Pack, L"X");
    Choose(L"Y");
    Editor.Work(&KeysList::ToggleKeysList);
    Editor.Work(&KeysList::KeyDown, KeyCode{40});
    Editor.Work(&KeysList::Select, 4);
  }

  /// All that an operation can change or ask.
  [[nodiscard]] std::vector<std::wstring> State() const {
    std::vector<std::wstring> state = Shown(Editor);
    const KeysList& keys = Editor.AllKeys();
    for (const int number :
         {static_cast<int>(Editor.Document().Modified()), static_cast<int>(keys.Visible()),
          keys.Selection(), static_cast<int>(keys.PanelToolbarEnabled()),
          int{Editor.Options().SortOrder}, static_cast<int>(MessageBoxes.Shown.size()),
          MessageBoxes.BeepCount, static_cast<int>(Dialogs.OpenRequests.size()),
          static_cast<int>(Calls.size()), static_cast<int>(Clipboard.Texts.size()), Files.Writes}) {
      state.push_back(std::to_wstring(number));
    }
    return state;
  }

  /// What the operation does in that state: its reaction and the state's change.
  bool DoesSomething(const Operation& operation) {
    const std::vector<std::wstring> before = State();
    const Reaction reaction = operation.Run(Editor);
    return State() != before || reaction.StartTimer || reaction.Handled || reaction.Changed ||
           reaction.Restored || reaction.FocusTo != Reaction::Focus::Unchanged;
  }
};

TEST_F(BusyTimeTest, NoOperationDoesAnythingDuringASave) {
  Prepare();
  bool tried = false;
  Clock.OnDoEvents = [&] {
    EXPECT_TRUE(Editor.Document().Busy());
    for (const Operation& operation : Operations) {
      EXPECT_FALSE(DoesSomething(operation)) << operation.Name;
    }
    tried = true;
  };
  Editor.FileSaveAndRestart();
  EXPECT_TRUE(tried);
  EXPECT_FALSE(Editor.Document().Busy());
}

class EachOperation : public BusyTimeTest, public testing::WithParamInterface<Operation> {};

TEST_P(EachOperation, DoesSomethingAtAnyOtherTime) {
  Prepare();
  MessageBoxes.Answers = {BoxAnswer::No};
  EXPECT_TRUE(DoesSomething(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Editor, EachOperation, testing::ValuesIn(Operations),
                         [](const auto& test) {
                           std::string name(test.param.Name);
                           std::erase(name, ' ');
                           return name;
                         });

TEST_F(BusyTimeTest, EventsDuringALoadChangeNothing) {
  Start();
  int disturbances = 0;
  tessera::Editor* busyEditor = nullptr;
  tessera::Editor editor(Seams, [&](const LoadProgress&) {
    if (busyEditor != nullptr && busyEditor->Document().Busy()) {
      ++disturbances;
      DoEverything(*busyEditor);
    }
  });
  busyEditor = &editor;
  Clock.StepPerReading = 1;  // a long load
  editor.Load();
  editor.Activate();
  EXPECT_GT(disturbances, 2);
  EXPECT_EQ(Shown(editor), Shown(Editor));
  EXPECT_FALSE(editor.Document().Modified());
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_TRUE(Dialogs.OpenRequests.empty());
  EXPECT_TRUE(Clipboard.Texts.empty());
  EXPECT_EQ(Ini(), IniContent);
}

TEST_F(BusyTimeTest, EventsDuringASaveChangeNothing) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  const std::vector<std::wstring> before = Shown(Editor);
  Clock.OnDoEvents = [this] { DoEverything(Editor); };
  Editor.FileSaveAndRestart();
  Clock.OnDoEvents = nullptr;
  EXPECT_GT(Clock.DoEventsCount, 0);
  // The options, which the window does not open at such a time, reset the panel.
  EXPECT_EQ(Editor.Panel().ChosenKey(), NoKeyChosen);
  Choose(L"X");
  EXPECT_EQ(Shown(Editor), before);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_TRUE(Clipboard.Texts.empty());
  EXPECT_EQ(std::count(Calls.begin(), Calls.end(), L"SendClose 7"), 1);
  EXPECT_NE(Ini().find("X=cm_Pack\r\n"), std::string::npos);
}

TEST(BusyTime, EndsWithAnExceptionToo) {
  bool busy = false;
  try {
    const BusyTime time(busy);
    EXPECT_TRUE(busy);
    throw 1;
  } catch (int) {
    EXPECT_FALSE(busy);
  }
}

TEST_F(EditorTest, AMissingRecentFileStaysInTheListDuringASave) {
  StoredSettings() = "[Tessera]\r\nRecentFiles1=C:\\gone.ini\r\n";
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  Clock.OnDoEvents = [this] { Editor.mnuFileRecentFiles_Click(2); };
  Editor.FileSaveAndRestart();
  EXPECT_GT(Clock.DoEventsCount, 0);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_EQ(Editor.RecentFiles().ListItems(2), L"C:\\gone.ini");
}

TEST_F(EditorTest, AKeyReleasedDuringASaveTurnsNoToggle) {
  Programs.Windows[L"TTOTAL_CMD"] = 7;
  Start();
  Assign(Pack, L"X");
  int pauses = 0;
  Clock.OnDoEvents = [&] {
    if (pauses++ == 0) Editor.Work(&HotkeyPanel::KeyUp, KeyEvent{.Code = KeyCode::Shift});
  };
  Editor.FileSaveAndRestart();
  EXPECT_GT(pauses, 0);
  Clock.OnDoEvents = nullptr;
  Editor.Work(&HotkeyPanel::KeyDown, KeyEvent{.Code = KeyCode::Shift, .ShiftHeld = true});
  EXPECT_TRUE(Editor.Panel().BoxChecked(Modifier::Shift));
}

}  // namespace
}  // namespace tessera::busy_time_test
