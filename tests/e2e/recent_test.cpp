// The files opened last: on the File menu, on the Open button's menu, and in the settings.
#include <string>
#include <vector>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/MenuPicture.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::recent_test {
namespace {

class RecentTest : public EndToEndTest {
 protected:
  /// Makes files that can be opened, and puts them into the stored list.
  void SetUp() override {
    const std::string content = ReadBytes(folder_.WincmdIni());
    std::string settings = "[Tessera]\r\n";
    for (int number = 1; number <= 2; ++number) {
      others_.push_back(folder_.Root() + L"other" + std::to_wstring(number) + L".ini");
      WriteBytes(others_.back(), content);
      settings += "RecentFiles" + std::to_string(number) + "=" + Utf8(others_.back()) + "\r\n";
    }
    WriteBytes(folder_.SettingsFile(), settings);
  }

  /// The File menu's submenu.
  HWND OpenRecentMenu() {
    const HWND fileMenu = window_->OpenMenu('F');
    Press('R');
    WaitFor("the recent files", [&] { return window_->OpenMenus().size() == 2; });
    for (const HWND menu : window_->OpenMenus()) {
      if (menu != fileMenu) return menu;
    }
    return nullptr;
  }

  void ChooseClearList() {
    OpenRecentMenu();
    Press(VK_UP);  // from the first entry to the last
    Press(VK_RETURN);
  }

  void WaitUntilOpen(const std::wstring& path) {
    WaitFor(Utf8(path) + " to be open", [&] { return window_->Caption() == path + L" - Tessera"; });
    WaitFor("the window to answer", [&] { return window_->SelectedRow() == 0; });
  }

  /// Of the settings file, from the first entry to the first that is not there.
  [[nodiscard]] std::vector<std::string> Stored() const {
    std::vector<std::string> paths;
    for (const auto& [name, value] : SectionLines(SettingsText(), "Tessera")) {
      if (name.starts_with("RecentFiles")) {
        EXPECT_EQ(name, "RecentFiles" + std::to_string(paths.size() + 1));
        paths.push_back(value);
      }
    }
    return paths;
  }

  [[nodiscard]] static std::vector<std::string> Paths(const std::vector<std::wstring>& paths) {
    std::vector<std::string> bytes;
    for (const std::wstring& path : paths) bytes.push_back(Utf8(path));
    return bytes;
  }

  /// As captions show a long path.
  static std::wstring Shortened(const std::wstring& path) {
    constexpr std::size_t LongestWhole = 48;
    if (path.size() <= LongestWhole) return path;
    std::vector<std::wstring> parts{L""};
    for (const wchar_t letter : path) {
      if (letter == L'\\') {
        parts.emplace_back();
      } else {
        parts.back() += letter;
      }
    }
    const std::size_t separators = parts.size() - 1;
    if (separators < 3) throw std::runtime_error("Not needed by these tests: " + Utf8(path));
    return parts[0] + L"\\" + parts[1] + L"\\...\\" +
           (separators > 4 ? parts[separators - 1] + L"\\" : L"") + parts[separators];
  }

  static void ExpectCaptions(HWND menu, const std::vector<std::wstring>& captions) {
    LONG above = -1;
    for (const std::wstring& caption : captions) {
      const MenuEntry entry = WaitForMenuEntry(menu, caption);
      EXPECT_GT(entry.Top, above) << Utf8(caption);
      EXPECT_TRUE(entry.Enabled) << Utf8(caption);
      above = entry.Top;
    }
  }

  std::vector<std::wstring> others_;
};

TEST_F(RecentTest, OpenedFileComesFirst) {
  StartAndLoad();
  const std::wstring own = folder_.WincmdIni();
  const HWND menu = OpenRecentMenu();
  ExpectCaptions(menu, {L"&1 " + Shortened(own), L"&2 " + Shortened(others_[0]),
                        L"&3 " + Shortened(others_[1]), L"Clear List"});
  const auto topOf = [&](const std::wstring& caption) {
    return WaitForMenuEntry(menu, caption).Top;
  };
  const LONG last = topOf(L"&3 " + Shortened(others_[1]));
  EXPECT_GT(topOf(L"Clear List") - last, last - topOf(L"&2 " + Shortened(others_[0])))
      << "a line is between them";
  EXPECT_EQ(Stored(), Paths({own, others_[0], others_[1]}));
}

TEST_F(RecentTest, ChosenFileIsOpenedAndMovesToTheTop) {
  const std::wstring own = folder_.WincmdIni();
  WriteBytes(others_[1], "[Shortcuts]\r\nCA+K=cm_SrcTree\r\n\r\n");
  StartAndLoad();
  ASSERT_EQ(RowOf(L"cm_SrcTree")[3], L"---");
  OpenRecentMenu();
  Press('3');
  WaitUntilOpen(others_[1]);
  EXPECT_EQ(RowOf(L"cm_SrcTree")[3], L"Ctrl + Alt + K");
  EXPECT_EQ(RowOf(L"cm_SrcComments")[3], L"Ctrl + Alt + F1") << "keys of the first file stay";
  EXPECT_EQ(Stored(), Paths({others_[1], own, others_[0]}));
  ExpectCaptions(OpenRecentMenu(), {L"&1 " + Shortened(others_[1]), L"&2 " + Shortened(own),
                                    L"&3 " + Shortened(others_[0])});
}

TEST_F(RecentTest, OpenButtonListsTheSameFiles) {
  StartAndLoad();
  const HWND menu = window_->OpenButtonMenu(IDC_Toolbar1, IDM_mnuFileOpen);
  ExpectCaptions(menu, {L"&1 " + Shortened(folder_.WincmdIni()), L"&2 " + Shortened(others_[0]),
                        L"&3 " + Shortened(others_[1])});
  EXPECT_FALSE(FindMenuEntry(menu, L"Clear List"));
  Press('2');
  WaitUntilOpen(others_[0]);
}

TEST_F(RecentTest, MissingFileIsToldAndTakenOffTheList) {
  StartAndLoad();
  Delete(others_[0]);
  OpenRecentMenu();
  Press('2');
  const Box box = NextBox();
  EXPECT_EQ(Utf8(box.Text), "Cannot find this file " + Utf8(others_[0]) +
                                "\n\nPlease verify that the correct path and file name are given.");
  EXPECT_EQ(box.Buttons, std::vector<int>{IDOK});
  Answer(box, IDOK);
  const std::wstring own = folder_.WincmdIni();
  WaitFor("the entry to go", [&] { return Stored() == Paths({own, others_[1]}); });
  EXPECT_EQ(window_->Caption(), own + L" - Tessera");
  ExpectCaptions(OpenRecentMenu(), {L"&1 " + Shortened(own), L"&2 " + Shortened(others_[1])});
}

TEST_F(RecentTest, ClearListAsksAndNoKeepsIt) {
  StartAndLoad();
  const std::vector<std::string> before = Stored();
  ChooseClearList();
  const Box box = NextBox();
  EXPECT_EQ(box.Text, L"Are you sure?");
  EXPECT_EQ(box.Buttons, (std::vector<int>{IDYES, IDNO}));
  EXPECT_EQ(box.DefaultButton, IDNO);
  AnswerByKey(box.Window, VK_RETURN);
  Select(L"cm_SrcTree");
  EXPECT_EQ(Stored(), before);
}

TEST_F(RecentTest, ClearedListIsEmptyAndSaysSo) {
  StartAndLoad();
  ChooseClearList();
  Answer(NextBox(), IDYES);
  WaitFor("the stored list to be empty", [&] { return Stored().empty(); });
  const HWND menu = OpenRecentMenu();
  EXPECT_FALSE(WaitForMenuEntry(menu, L"No Recent Files").Enabled);
  EXPECT_FALSE(WaitForMenuEntry(menu, L"Clear List").Enabled);
  window_->CloseMenus();
  const HWND buttonMenu = window_->OpenButtonMenu(IDC_Toolbar1, IDM_mnuFileOpen);
  static_cast<void>(WaitForMenuEntry(buttonMenu, L"No Recent Files"));
}

TEST_F(RecentTest, UnsavedChangesAreAskedForFirst) {
  StartAndLoad();
  MakeAChange();
  OpenRecentMenu();
  Press('2');
  Answer(NextBox(), IDCANCEL);
  EXPECT_TRUE(Modified());
  EXPECT_EQ(window_->Caption(), folder_.WincmdIni() + L" - Tessera");
  OpenRecentMenu();
  Press('2');
  Answer(NextBox(), IDNO);
  WaitUntilOpen(others_[0]);
  EXPECT_FALSE(Modified());
}

}  // namespace
}  // namespace tessera::e2e::recent_test
