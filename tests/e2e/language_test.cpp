// Language files: where their texts appear, and what happens without one.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
// clang-format on

#include <optional>
#include <string>
#include <utility>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Expected.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/MenuPicture.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::language_test {
namespace {

class LanguageTest : public EndToEndTest {
 protected:
  std::wstring OwnFile(std::string_view content) {
    const std::wstring path = folder_.Root() + L"own.lng";
    WriteBytes(path, content);
    return path;
  }

  /// By the letters of the language in use.
  Dialog OpenOptions(WORD menu, WORD item) {
    window_->ChooseFromMenu(menu, item);
    return NextDialog(L"frmOptions");
  }

  void ChooseLanguageFile(const std::wstring& path) {
    window_->Command(IDM_mnuViewOptions);
    Dialog dialog = NextDialog(L"frmOptions");
    dialog.ClickControl(IDC_chkShowgridlines);
    dialog.ClickTab(IDC_tbsOptions, 3);
    dialog.ClickControl(IDC_optUseOtheLanguage);
    WaitFor("the text box", [&] { return dialog.Enabled(IDC_txtLanguageFilePath); });
    dialog.ClickControl(IDC_txtLanguageFilePath);
    WaitFor("the focus", [&] { return dialog.HasFocus(IDC_txtLanguageFilePath); });
    Type(path);
    WaitFor("the path", [&] { return dialog.ControlText(IDC_txtLanguageFilePath) == path; });
    dialog.CloseBy(IDC_cmdOK);
  }

  void ExpectGermanWindow() {
    WaitFor("German headings", [&] { return window_->Header(0).Text == L"Beschreibung"; });
    EXPECT_EQ(window_->Header(1).Text, L"Befehl");
    EXPECT_EQ(window_->Header(2).Text, L"Standardk\u00FCrzel");
    EXPECT_EQ(window_->Header(3).Text, L"Aktuelles K\u00FCrzel");
    EXPECT_EQ(window_->ButtonText(IDC_Toolbar1, IDM_mnuFileOpen), L"\u00D6ffnen...");
    EXPECT_EQ(window_->ButtonText(IDC_Toolbar1, IDM_mnuFileSave), L"Speichern");
    EXPECT_EQ(window_->ControlText(IDC_lblHotkey), L"Tastenk\u00FCrzel:");
    EXPECT_EQ(window_->ControlText(IDC_chkCtrlAlt0), L"&Strg +");
    EXPECT_EQ(window_->ControlText(IDC_chkCtrlAlt1), L"A&lt +");
    EXPECT_EQ(window_->ControlText(IDC_chkCtrlAlt2), L"&Umschalt +");
    EXPECT_EQ(window_->ControlText(IDC_cmdAllList), L"Tastenk\u00FCrzel:");
    EXPECT_EQ(window_->ControlText(IDC_lblFind), L"Suchen:");
    EXPECT_EQ(window_->ControlText(IDC_cmdShow), L"Zeigen");
    EXPECT_EQ(window_->ControlText(IDC_cmdUndo), L"R\u00FCckg\u00E4ngig");
    EXPECT_EQ(window_->Caption(), folder_.WincmdIni() + L" - Tessera");
    const HWND menu = window_->OpenMenu('D');
    for (const wchar_t* caption :
         {L"\u00D6&ffnen...", L"&Speichern", L"In die Z&wischenablage exportieren...",
          L"&Zuletzt ge\u00F6ffnete Dateien", L"&Beenden"}) {
      static_cast<void>(WaitForMenuEntry(menu, caption));
    }
    window_->CloseMenus();
  }

  void ExpectGermanDialogs() {
    Dialog dialog = OpenOptions('A', 'O');
    EXPECT_EQ(dialog.Caption(), L"Optionen");
    EXPECT_EQ(dialog.TabText(IDC_tbsOptions, 0), L"Darstellung");
    EXPECT_EQ(dialog.TabText(IDC_tbsOptions, 3), L"Sprache");
    EXPECT_EQ(dialog.ControlText(IDC_chkFixedBorders), L"Fester &Rahmen");
    EXPECT_EQ(dialog.ControlText(IDC_cmdApply), L"\u00DC&bernehmen");
    dialog.CloseByKey(VK_ESCAPE);
    window_->ChooseFromMenu('D', 'W');
    const Dialog exportDialog = NextDialog(L"frmExportToClipboard");
    EXPECT_EQ(exportDialog.Caption(), L"Zu exportierende Spalten");
    EXPECT_EQ(exportDialog.ControlText(IDC_chkColumn1), L"Befehl");
    EXPECT_EQ(exportDialog.ControlText(IDC_cmdCancel), L"Abbrechen");
  }

  /// A mirrored control begins its lines at the right and reads them from there.
  static bool Mirrored(const Window& window, int id) {
    return (GetWindowLongPtrW(window.Control(id), GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
  }

  static LONG LeftOf(const Window& window, int id) { return RectangleOf(window.Control(id)).left; }

  /// Labels, boxes, buttons and frames of all windows, and the order in which they stand.
  void ExpectDirection(bool fromTheRight) {
    for (const int id : {IDC_lblHotkey, IDC_chkCtrlAlt0, IDC_chkCtrlAlt1, IDC_chkCtrlAlt2,
                         IDC_cmdAllList, IDC_ListView1, IDC_Toolbar1}) {
      EXPECT_EQ(Mirrored(*window_, id), fromTheRight) << id;
    }
    EXPECT_EQ(LeftOf(*window_, IDC_lblHotkey) > LeftOf(*window_, IDC_chkCtrlAlt0), fromTheRight);
    window_->Command(IDM_mnuViewOptions);
    const Dialog options = NextDialog(L"frmOptions");
    for (const int id :
         {IDC_Frame1, IDC_chkShowgridlines, IDC_Frame7, IDC_Label3, IDC_Label4, IDC_cmdChangeFont,
          IDC_chkAlwaysRestartTC, IDC_optUseDefaultLanguage, IDC_optUseOtheLanguage,
          IDC_cmdBrowseForLangFile, IDC_tbsOptions, IDC_cmdOK, IDC_cmdCancel, IDC_cmdApply}) {
      EXPECT_EQ(Mirrored(options, id), fromTheRight) << id;
    }
    EXPECT_FALSE(Mirrored(options, IDC_txtLanguageFilePath)) << "paths read from the left";
    EXPECT_EQ(LeftOf(options, IDC_cmdOK) > LeftOf(options, IDC_cmdCancel), fromTheRight);
    PostMessageW(options.Handle(), WM_CLOSE, 0, 0);
    options.WaitUntilClosed();
    window_->Command(IDM_mnuFileExportToClipboard);
    const Dialog exportDialog = NextDialog(L"frmExportToClipboard");
    for (const int id : {IDC_Frame1, IDC_chkColumn0, IDC_chkColumn3, IDC_cmdOK, IDC_cmdCancel}) {
      EXPECT_EQ(Mirrored(exportDialog, id), fromTheRight) << id;
    }
    PostMessageW(exportDialog.Handle(), WM_CLOSE, 0, 0);
    exportDialog.WaitUntilClosed();
  }

  /// What the window shows inside its frame.
  [[nodiscard]] Picture WindowPicture() const {
    RECT inside{};
    GetClientRect(window_->Handle(), &inside);
    return TakePicture(OnScreen(window_->Handle(), inside));
  }

  /// The same when nothing in it changes any more, without the pointer.
  [[nodiscard]] Picture SettledPicture() const {
    constexpr DWORD BetweenLooks = 300;  // milliseconds
    MoveTo({1, 1});
    Picture last = WindowPicture();
    return *WaitFor("the window to be painted", [&]() -> std::optional<Picture> {
      Sleep(BetweenLooks);
      Picture now = WindowPicture();
      const bool settled = now.Pixels == last.Pixels;
      last = std::move(now);
      return settled ? std::optional(last) : std::nullopt;
    });
  }

  /// The keys list is made when it first opens, and stays.
  void ExpectDirectionOfTheKeysList(bool fromTheRight) {
    Select(L"cm_SrcTree");
    window_->ClickControl(IDC_cmdAllList);
    const Dialog keysList = NextDialog(L"frmKeysList");
    EXPECT_EQ(Mirrored(keysList, IDC_List1), fromTheRight);
    PostMessageW(keysList.Handle(), WM_CLOSE, 0, 0);
    keysList.WaitUntilClosed();
  }

  /// The first menu opens at the end where reading begins.
  void ExpectMenuAtTheRight(bool right) {
    BringToFront(window_->Handle());
    Press(VK_F10);
    Press(VK_DOWN);
    WaitFor("the menu to open", [&] { return !window_->OpenMenus().empty(); });
    const RECT menu = RectangleOf(window_->OpenMenus().front());
    const RECT window = RectangleOf(window_->Handle());
    EXPECT_EQ(menu.left - window.left > window.right - menu.right, right);
    window_->CloseMenus();
  }

  /// The menu below an arrow is flush with its button at the side where reading begins.
  void ExpectButtonMenusAtTheRight(bool right) {
    const auto expectFlush = [&](int toolbar, int button) {
      const RECT menu = RectangleOf(window_->OpenButtonMenu(toolbar, button));
      const RECT place = window_->ButtonRectangle(toolbar, button);
      EXPECT_EQ(right ? menu.right : menu.left, right ? place.right : place.left) << button;
      window_->CloseMenus();
    };
    // Away from the screen's edges, from which the system moves menus.
    SetWindowPos(window_->Handle(), nullptr, 300, 100, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    expectFlush(IDC_Toolbar1, IDM_mnuFileOpen);
    Select(L"cm_SrcTree");
    WaitFor("the button to be enabled",
            [&] { return window_->ButtonEnabled(IDC_Toolbar2, IDM_delete); });
    expectFlush(IDC_Toolbar2, IDM_delete);
  }
};

TEST_F(LanguageTest, ChosenLanguageIsAppliedToEveryWindowAtOnce) {
  StartAndLoad();
  ChooseLanguageFile(folder_.ShippedLanguage(L"German.lng"));
  ExpectGermanWindow();
  ExpectGermanDialogs();
}

TEST_F(LanguageTest, ArrowKeysGoFromOneChoiceToTheOther) {
  StartAndLoad();
  window_->Command(IDM_mnuViewOptions);
  Dialog dialog = NextDialog(L"frmOptions");
  dialog.ClickTab(IDC_tbsOptions, 3);
  dialog.ClickControl(IDC_optUseDefaultLanguage);
  WaitFor("the first choice", [&] { return dialog.HasFocus(IDC_optUseDefaultLanguage); });
  // Both go round: neither to the text box behind them.
  for (const auto& [key, next] : {std::pair{WORD{VK_UP}, IDC_optUseOtheLanguage},
                                  std::pair{WORD{VK_DOWN}, IDC_optUseDefaultLanguage}}) {
    Press(key);
    WaitFor("the other choice", [&, id = next] { return dialog.HasFocus(id); });
  }
  dialog.CloseBy(IDC_cmdCancel);
}

TEST_F(LanguageTest, StoredLanguageIsAppliedAtTheStart) {
  folder_.UseLanguageFile(folder_.ShippedLanguage(L"German.lng"));
  StartAndLoad();
  ExpectGermanWindow();
  ExpectGermanDialogs();
}

TEST_F(LanguageTest, DefaultLanguageCanBeChosenAgain) {
  folder_.UseLanguageFile(folder_.ShippedLanguage(L"German.lng"));
  StartAndLoad();
  Select(L"cm_SrcTree");
  window_->ClickControl(IDC_cmdAllList);
  const Dialog keysList = NextDialog(L"frmKeysList");
  EXPECT_EQ(keysList.Caption(), L"Tastenk\u00FCrzel:");
  window_->Command(IDM_mnuViewOptions);
  Dialog dialog = NextDialog(L"frmOptions");
  dialog.ClickTab(IDC_tbsOptions, 3);
  EXPECT_EQ(dialog.ControlText(IDC_txtLanguageFilePath), folder_.ShippedLanguage(L"German.lng"));
  EXPECT_TRUE(dialog.BoxChecked(IDC_optUseOtheLanguage));
  dialog.ClickControl(IDC_optUseDefaultLanguage);
  WaitFor("the path to be disabled", [&] { return !dialog.Enabled(IDC_txtLanguageFilePath); });
  dialog.CloseBy(IDC_cmdOK);
  WaitFor("English headings", [&] { return window_->Header(0).Text == L"Description"; });
  EXPECT_EQ(window_->ButtonText(IDC_Toolbar1, IDM_mnuFileSave), L"Save");
  EXPECT_EQ(keysList.Caption(), L"Hotkey:");
  EXPECT_EQ(Setting("UseDefaultLanguage"), "1");
  EXPECT_EQ(Setting("LanguageFile", "Common"), Utf8(folder_.ShippedLanguage(L"German.lng")));
}

TEST_F(LanguageTest, ArabicReadsFromTheRight) {
  folder_.UseLanguageFile(folder_.ShippedLanguage(L"Arabic.lng"));
  StartAndLoad();
  EXPECT_EQ(window_->Header(0).Text, L"\u0627\u0644\u0648\u0635\u0641");
  EXPECT_EQ(Send(window_->Control(IDC_ListView1), LVM_GETEXTENDEDLISTVIEWSTYLE) &
                (LVS_EX_GRIDLINES | LVS_EX_DOUBLEBUFFER),
            0);
  ExpectDirection(true);
  ExpectMenuAtTheRight(true);
  ExpectButtonMenusAtTheRight(true);
  ExpectDirectionOfTheKeysList(true);
}

TEST_F(LanguageTest, SwitchToArabicLooksAsAStartInIt) {
  // Wide enough for every language.
  const std::string size = "[Tessera]\r\nMainWindowWidth=12000\r\n";
  const auto startWith = [&](const std::wstring& language, const std::string& gridLines) {
    WriteBytes(folder_.SettingsFile(), size + "CommandListShowLines=" + gridLines +
                                           "\r\nUseDefaultLanguage=0\r\n[Common]\r\nLanguageFile=" +
                                           Utf8(folder_.ShippedLanguage(language)) + "\r\n");
    StartAndLoad();
    Select(L"cm_SrcTree");
  };
  startWith(L"Arabic.lng", "0");
  const Picture fresh = SettledPicture();
  Close();
  // The label of one is longer than the Arabic one, that of the other shorter.
  for (const wchar_t* before : {L"Russian.lng", L"ChineseSimplified.lng"}) {
    startWith(before, "1");
    ChooseLanguageFile(folder_.ShippedLanguage(L"Arabic.lng"));  // and switches the lines off
    MoveTo({1, 1});
    WaitFor("the Arabic window", [&] { return WindowPicture().Pixels == fresh.Pixels; });
    Close();
  }
}

TEST_F(LanguageTest, DirectionAloneKeepsTheEnglishTexts) {
  folder_.UseLanguageFile(OwnFile("[UserLanguage]\r\nRightToLeftLanguage=1\r\n"));
  StartAndLoad();
  EXPECT_EQ(window_->Header(0).Text, L"Description");
  EXPECT_EQ(window_->ControlText(IDC_lblHotkey), L"Hotkey:");
  ExpectDirection(true);
}

// Screen readers call a control without a text of its own by the label before it.
TEST_F(LanguageTest, LabelsStandDirectlyBeforeListAndChooser) {
  StartAndLoad();
  const auto expectLabel = [&](int label, int control, const wchar_t* text) {
    EXPECT_EQ(GetWindow(window_->Control(control), GW_HWNDPREV), window_->Control(label)) << label;
    EXPECT_EQ(window_->ControlText(label), text);
    EXPECT_NE(Send(window_->Control(label), WM_GETDLGCODE) & DLGC_STATIC, 0);
  };
  EXPECT_FALSE(window_->Visible(IDC_lblListView1));
  expectLabel(IDC_lblListView1, IDC_ListView1, L"Command");
  expectLabel(IDC_lblHotkey, IDC_Combo1, L"Hotkey:");
  ChooseLanguageFile(folder_.ShippedLanguage(L"German.lng"));
  ExpectGermanWindow();
  expectLabel(IDC_lblListView1, IDC_ListView1, L"Befehl");
  expectLabel(IDC_lblHotkey, IDC_Combo1, L"Tastenk\u00FCrzel:");
}

TEST_F(LanguageTest, EnglishReadsFromTheLeft) {
  StartAndLoad();
  ExpectDirection(false);
  ExpectMenuAtTheRight(false);
  ExpectButtonMenusAtTheRight(false);
  ExpectDirectionOfTheKeysList(false);
  ChooseLanguageFile(folder_.ShippedLanguage(L"Arabic.lng"));
  ExpectDirectionOfTheKeysList(true);
}

TEST_F(LanguageTest, EmptyAndAbsentTextsAreTheBuiltInOnes) {
  folder_.UseLanguageFile(
      OwnFile("[UserLanguage]\r\n1008=\r\n1009=Weg\r\n3003=Was\r\n3004=\r\n"
              "0=Zero\r\n-=Line\r\n"));
  StartAndLoad();
  EXPECT_EQ(window_->Header(0).Text, L"Was");
  EXPECT_EQ(window_->Header(1).Text, L"Command");
  EXPECT_EQ(window_->Header(2).Text, L"Default Hotkey");
  const HWND menu = window_->OpenMenu('V');
  const LONG toolbar = WaitForMenuEntry(menu, L"&Toolbar").Top;
  const LONG sortedList = WaitForMenuEntry(menu, L"Sorted &List").Top;
  const LONG options = WaitForMenuEntry(menu, L"&Options...").Top;
  EXPECT_GT(options - sortedList, sortedList - toolbar);
  EXPECT_LT(options - sortedList, 2 * (sortedList - toolbar)) << "a line, and no text";
  window_->CloseMenus();
  const Dialog dialog = OpenOptions('V', 'O');
  EXPECT_EQ(dialog.ControlText(IDC_cmdOK), L"OK");
  EXPECT_EQ(dialog.ControlText(IDC_cmdCancel), L"Weg");
}

TEST_F(LanguageTest, MissingFileIsToldOnceAndTheBuiltInTextsAreUsed) {
  folder_.UseLanguageFile(folder_.Root() + L"nowhere.lng");
  program_ = std::make_unique<Program>(folder_.Executable(), commanderPath_);
  const Box box = NextBox();
  EXPECT_EQ(box.Text, L"Cannot find language file!");
  EXPECT_EQ(box.Buttons, std::vector<int>{IDOK});
  Answer(box, IDOK);
  window_ = std::make_unique<MainWindow>(program_->WaitForWindow(), program_->Process());
  WaitFor("the list", [&] { return window_->RowCount() > 0; });
  EXPECT_EQ(window_->Header(0).Text, L"Description");
  EXPECT_EQ(Setting("UseDefaultLanguage"), "0") << "until the settings are saved";

  OpenOptions('V', 'O').CloseByKey(VK_ESCAPE);
  window_->ChooseFromMenu('F', 'E');
  NextDialog(L"frmExportToClipboard").CloseByKey(VK_ESCAPE);
  Select(L"cm_SrcTree");
  EXPECT_TRUE(NoBoxOpen());
}

TEST_F(LanguageTest, ChosenFileThatIsMissingIsToldAndTheTextsStayEnglish) {
  StartAndLoad();
  ChooseLanguageFile(folder_.Root() + L"nowhere.lng");
  const Box box = NextBox();
  EXPECT_EQ(box.Text, L"Cannot find language file!");
  EXPECT_NE(Send(window_->Control(IDC_ListView1), LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_GRIDLINES,
            0)
      << "the window has its new looks before the box is shown";
  Answer(box, IDOK);
  Select(L"cm_SrcTree");
  EXPECT_EQ(window_->Header(0).Text, L"Description");
}

constexpr COLORREF Aqua = RGB(0, 255, 255);

TEST_F(LanguageTest, TranslatorsSeeTheRoomOfTextsInAqua) {
  WriteBytes(folder_.SettingsFile(), "[Common]\r\nShowControlsBackColor=1\r\n");
  StartAndLoad();
  Select(L"cm_SrcTree");
  const auto expectAqua = [](const Window& window, std::initializer_list<int> ids) {
    for (const int id : ids) {
      const RECT place = RectangleOf(window.Control(id));
      const int half = (place.right - place.left) * (place.bottom - place.top) / 2;
      WaitFor("control " + std::to_string(id) + " to be aqua",
              [&] { return CountPixels(place, Aqua) > half; });
    }
  };
  expectAqua(*window_,
             {IDC_lblHotkey, IDC_chkCtrlAlt0, IDC_chkCtrlAlt1, IDC_chkCtrlAlt2, IDC_lblStatus});
  window_->Command(IDM_mnuViewOptions);
  Dialog dialog = NextDialog(L"frmOptions");
  expectAqua(dialog, {IDC_chkShowgridlines});
  dialog.ClickTab(IDC_tbsOptions, 1);
  expectAqua(dialog, {IDC_Label3});
  dialog.ClickTab(IDC_tbsOptions, 3);
  expectAqua(dialog, {IDC_optUseDefaultLanguage, IDC_txtLanguageFilePath});
}

TEST_F(LanguageTest, NobodyElseSeesAqua) {
  StartAndLoad();
  EXPECT_EQ(CountPixels(RectangleOf(window_->Handle()), Aqua), 0);
}

}  // namespace
}  // namespace tessera::e2e::language_test
