// The page of keys, from the menu of the list.
#include "app/Commands.h"
#include "app/StatusLine.h"
#include "resources/resource.h"
#include "tests/unit/editor_fixture.h"

namespace tessera::editor_page_test {
namespace {

using namespace installation;

const std::wstring PageFile = L"C:\\Temp\\Tessera keys.html";

TEST_F(EditorTest, ThePageIsWrittenToTheTemporaryFolderAndOpened) {
  Start();
  const auto before = Files.Contents;
  RunCommand(Editor, IDM_keyspage);
  EXPECT_EQ(Files.Contents.at(PageFile), Editor.KeysPage());
  EXPECT_EQ(Calls, (Log{L"OpenDocument " + PageFile}));
  EXPECT_EQ(Files.Contents.size(), before.size() + 1);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
}

TEST_F(EditorTest, TheNextPageTakesThePlaceOfTheFormerAndShowsUnsavedKeys) {
  Start();
  Editor.ShowKeysPage();
  const auto before = Files.Contents;
  Assign(Pack, 3, L"K");
  Editor.ShowKeysPage();
  for (const char* const text : {"id=\"unsaved\"", "\"Ctrl + Alt + K\" data-use=\"user\""}) {
    EXPECT_EQ(before.at(PageFile).find(text), std::string::npos) << text;
    EXPECT_NE(Files.Contents.at(PageFile).find(text), std::string::npos) << text;
  }
  EXPECT_EQ(Files.Contents.size(), before.size());
  EXPECT_EQ(Ini(), IniContent);
}

TEST_F(EditorTest, ThePageHoldsAllCommandsWhateverTheBoxHasFound) {
  Start();
  const std::string page = Editor.KeysPage();
  Editor.Work(&CommandList::Search, L"no such command");
  EXPECT_EQ(Editor.List().Shown().Count(), 0U);
  EXPECT_EQ(Editor.KeysPage(), page);
}

TEST_F(EditorTest, APageThatCannotBeWrittenIsToldAndNotOpened) {
  Start();
  Files.WriteErrors = {FileError::DiskFull};
  Editor.ShowKeysPage();
  EXPECT_EQ(StatusText(Editor), L"Cannot write this file " + PageFile);
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_TRUE(Calls.empty());
  EXPECT_FALSE(Files.Contents.contains(PageFile));
}

TEST_F(EditorTest, APageThatCannotBeOpenedIsTold) {
  Start();
  Programs.OpenSucceeds = false;
  Editor.ShowKeysPage();
  EXPECT_EQ(StatusText(Editor), L"Cannot open this file " + PageFile);
  EXPECT_EQ(MessageBoxes.BeepCount, 1);
  EXPECT_TRUE(MessageBoxes.Shown.empty());
  EXPECT_TRUE(Files.Contents.contains(PageFile));
}

}  // namespace
}  // namespace tessera::editor_page_test
