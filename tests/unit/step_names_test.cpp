#include "app/ListMenu.h"
#include "app/StatusLine.h"
#include "app/StepNames.h"
#include "resources/resource.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::step_names_test {
namespace {

using namespace installation;

constexpr unsigned CtrlAlt = 3;  // with F1 the key of the Start Menu's entry

class StepNamesTest : public EditorTest {
 protected:
  StepNamesTest() { Start(); }

  std::wstring NameOfLast() {
    return StepName(Editor.Document().Edits().ToUndo()->Name, Editor.Document().Rows(),
                    Editor.Language());
  }
  std::wstring MenuCaption(int command) {
    for (const MenuEntry& entry : ListMenu()) {
      if (entry.Command == command) return ListMenuCaption(entry, Editor);
    }
    return L"no such entry";
  }
};

TEST_F(StepNamesTest, NameTheKeyAndTheCommand) {
  Assign(Pack, 1, L"F9");
  EXPECT_EQ(NameOfLast(), L"Ctrl + F9 to cm_Pack");
  Compose(4, L"X");
  Editor.Work(&HotkeyPanel::Add);
  EXPECT_EQ(NameOfLast(), L"also Shift + X to cm_Pack");
  Editor.Work(&HotkeyPanel::Delete);
  EXPECT_EQ(NameOfLast(), L"delete the keys of cm_Pack");
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Editor.Work(&HotkeyPanel::DeleteAll);
  EXPECT_EQ(NameOfLast(), L"delete all keys");
}

TEST_F(StepNamesTest, OfACancelledEditNameWhatIsLeft) {
  MessageBoxes.Answers = {BoxAnswer::Yes, BoxAnswer::No};
  Ini() = "[Shortcuts]\r\nCA+F1=cm_View\r\n[user]\r\nmenu1=Paint\r\nkey1=1\r\n";
  Editor.OpenShortcutFile(false, IniFile, true);
  Assign(Pack, CtrlAlt, L"F1");
  EXPECT_EQ(NameOfLast(), L"take Ctrl + Alt + F1 from the Start Menu");
}

TEST_F(StepNamesTest, CaptionsTellWhatComesNext) {
  EXPECT_EQ(UndoCaption(Editor), L"Undo");
  EXPECT_EQ(RedoCaption(Editor), L"Redo");
  Assign(Pack, 1, L"F9");
  EXPECT_EQ(UndoCaption(Editor), L"Undo: Ctrl + F9 to cm_Pack");
  EXPECT_EQ(RedoCaption(Editor), L"Redo");
  Editor.Work(&CommandList::Undo);
  EXPECT_EQ(UndoCaption(Editor), L"Undo");
  EXPECT_EQ(RedoCaption(Editor), L"Redo: Ctrl + F9 to cm_Pack");
}

TEST_F(StepNamesTest, TheMenuOfTheListHasTheSameNames) {
  Assign(Pack, 1, L"F9");
  EXPECT_EQ(MenuCaption(IDM_undo), L"Undo: Ctrl + F9 to cm_Pack");
  EXPECT_EQ(MenuCaption(IDM_redo), L"Redo");
  EXPECT_EQ(MenuCaption(IDM_assign), L"Assign Hotkey\tENTER");
}

TEST_F(StepNamesTest, TheLineSaysWhatWasTakenBackUntilAnotherRowIsSelected) {
  Assign(Pack, 1, L"F9");
  Editor.Work(&HotkeyPanel::ResetPanel);
  Editor.Work(&CommandList::Undo);
  EXPECT_EQ(StatusText(Editor), L"Taken back: Ctrl + F9 to cm_Pack.");
  Editor.Work(&CommandList::Redo);
  EXPECT_EQ(StatusText(Editor), L"Made again: Ctrl + F9 to cm_Pack.");
  Editor.Work(&CommandList::SelectRow, View);
  EXPECT_EQ(StatusText(Editor), L"View a file");
}

TEST_F(StepNamesTest, TheLineSaysThatAStartMenuKeyStaysAway) {
  MessageBoxes.Answers = {BoxAnswer::Yes};
  Assign(Pack, CtrlAlt, L"F1");
  Editor.FileSave();
  Editor.Work(&HotkeyPanel::ResetPanel);
  Editor.Work(&CommandList::Undo);
  EXPECT_EQ(StatusText(Editor),
            L"Taken back: Ctrl + Alt + F1 to cm_Pack. Its Start Menu key is gone: a save has taken "
            L"it out of the file.");
}

}  // namespace
}  // namespace tessera::step_names_test
