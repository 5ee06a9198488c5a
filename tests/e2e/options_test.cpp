// The options dialog: each control, the three buttons, and what follows in the window.
// clang-format off
#include <windows.h>  // must come first
#include <commctrl.h>
#include <dlgs.h>
// clang-format on

#include <initializer_list>
#include <string>

#include "resources/resource.h"
#include "tests/e2e/EndToEndTest.h"
#include "tests/e2e/Input.h"
#include "tests/e2e/Screen.h"
#include "tests/support/win32/Wait.h"

namespace tessera::e2e::options_test {
namespace {

enum Tab { Layout, ColorAndFont, Operation, Language };

struct BoxCase {
  int Id;
  Tab On;
  std::wstring Text;
  std::string Setting;
  bool AtStart;
};

const std::vector<BoxCase> Boxes{
    {IDC_chkShowgridlines, Layout, L"Show &Grid Lines", "CommandListShowLines", false},
    {IDC_chkFixedBorders, Layout, L"Fixed &Borders", "FixedBorders", true},
    {IDC_chkFlatUserInterface, Layout, L"&Flat User Interface", "FlatUserInterface", false},
    {IDC_chkAlwaysRestartTC, Operation, L"Auto &restart Total Commander after saving changes.",
     "AlwaysRestartTC", false},
    {IDC_chkUseContextMenuKey, Operation, L"Use ContextMenu key instead of Alt key.",
     "UseContextMenuKey", false},
    {IDC_chkReverseOrderHotkey, Operation,
     L"Show Hotkeys in Reverse Order. (requires program restart)", "ReverseOrderHotkey", false},
    {IDC_chkKeepUnknownShortcuts, Operation, L"Keep keys of unknown commands. (from the next open)",
     "KeepUnknownShortcuts", false},
    {IDC_chkForgetKeysAtOpen, Operation, L"Forget the keys of former files. (from the next open)",
     "ForgetKeysAtOpen", false},
    {IDC_chkShowUserCommands, Operation, L"Show own commands of usercmd.ini. (from the next open)",
     "ShowUserCommands", false}};

class OptionsTest : public EndToEndTest {
 protected:
  void SetUp() override { StartAndLoad(); }

  Dialog OpenOptions() {
    window_->ChooseFromMenu('V', 'O');
    return NextDialog(L"frmOptions");
  }

  static void GoTo(Dialog& dialog, Tab tab) {
    if (dialog.ChosenTab(IDC_tbsOptions) != tab) dialog.ClickTab(IDC_tbsOptions, tab);
  }

  static void Toggle(Dialog& dialog, const BoxCase& box) {
    GoTo(dialog, box.On);
    const bool before = dialog.BoxChecked(box.Id);
    dialog.ClickControl(box.Id);
    WaitFor("box " + box.Setting, [&] { return dialog.BoxChecked(box.Id) != before; });
  }

  static void WaitForApply(const Dialog& dialog, bool enabled) {
    WaitFor(enabled ? "Apply to be enabled" : "Apply to be disabled",
            [&] { return dialog.Enabled(IDC_cmdApply) == enabled; });
  }

  [[nodiscard]] LONG_PTR ListStyle(int which) const {
    return GetWindowLongPtrW(window_->Control(IDC_ListView1), which);
  }

  void WaitForEdges(bool border, bool edge, bool listBorder, bool listEdge) const {
    const HWND toolbar = window_->Control(IDC_Toolbar1);
    WaitFor("the list's edges", [&] {
      return ((ListStyle(GWL_STYLE) & WS_BORDER) != 0) == listBorder &&
             ((ListStyle(GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0) == listEdge;
    });
    EXPECT_EQ(ListStyle(GWL_EXSTYLE) & WS_EX_DLGMODALFRAME, 0);
    WaitFor("the toolbar's edges around its buttons", [&] {
      RECT inside{};
      GetClientRect(toolbar, &inside);
      return ((GetWindowLongPtrW(toolbar, GWL_STYLE) & WS_BORDER) != 0) == border &&
             ((GetWindowLongPtrW(toolbar, GWL_EXSTYLE) & WS_EX_STATICEDGE) != 0) == edge &&
             inside.bottom == HIWORD(Send(toolbar, TB_GETBUTTONSIZE));
    });
  }

  [[nodiscard]] bool ListHasGridLines() const {
    return (Send(window_->Control(IDC_ListView1), LVM_GETEXTENDEDLISTVIEWSTYLE) &
            LVS_EX_GRIDLINES) != 0;
  }

  /// What the program does after a dialog has been done once a later click is answered.
  void WaitUntilApplied() { Select(L"cm_SrcTree"); }
};

TEST_F(OptionsTest, TabsAndControlsBearTheirTexts) {
  Dialog dialog = OpenOptions();
  EXPECT_EQ(dialog.Caption(), L"Options");
  const std::array tabs{L"Layout", L"Color and Font", L"Operation", L"Language"};
  for (int tab = 0; tab < 4; ++tab) {
    EXPECT_EQ(dialog.TabText(IDC_tbsOptions, tab), tabs.at(static_cast<std::size_t>(tab)));
  }
  for (const BoxCase& box : Boxes) {
    GoTo(dialog, box.On);
    EXPECT_EQ(dialog.ControlText(box.Id), box.Text);
    EXPECT_EQ(dialog.BoxChecked(box.Id), box.AtStart) << box.Setting;
    for (const BoxCase& other : Boxes) {
      EXPECT_EQ(dialog.Visible(other.Id), other.On == box.On) << other.Setting;
    }
  }
  const std::vector<std::pair<int, std::wstring>> texts{
      {IDC_Frame1, L"Visual Effects :"},
      {IDC_Frame7, L"Text :"},
      {IDC_Label3, L"Foreground"},
      {IDC_Label4, L"Background"},
      {IDC_Frame3, L"Font :"},
      {IDC_cmdChangeFont, L"&Change..."},
      {IDC_Frame4, L"Change Language :"},
      {IDC_optUseDefaultLanguage, L"Use &Default Language"},
      {IDC_optUseOtheLanguage, L"&Other"},
      {IDC_cmdBrowseForLangFile, L"..."},
      {IDC_cmdOK, L"OK"},
      {IDC_cmdCancel, L"Cancel"},
      {IDC_cmdApply, L"&Apply"}};
  for (const auto& [id, text] : texts) EXPECT_EQ(dialog.ControlText(id), text);
  EXPECT_FALSE(dialog.Enabled(IDC_cmdApply));
  EXPECT_EQ(LOWORD(Send(dialog.Handle(), DM_GETDEFID)), IDC_cmdOK);
  const auto goesOn = [&](int id) {
    return (GetWindowLongPtrW(dialog.Control(id), GWL_STYLE) & WS_GROUP) == 0;
  };
  for (const int id :
       {IDC_cmdOK, IDC_cmdCancel, IDC_cmdApply, IDC_tbsOptions, IDC_Frame1, IDC_chkShowgridlines,
        IDC_chkFixedBorders, IDC_optUseDefaultLanguage, IDC_txtLanguageFilePath}) {
    EXPECT_FALSE(goesOn(id)) << "no arrow goes to " << id;
  }
  EXPECT_TRUE(goesOn(IDC_optUseOtheLanguage)) << "arrows go from option to option";
}

TEST_F(OptionsTest, KeysTurnThePages) {
  Dialog dialog = OpenOptions();
  // At once: what the display reports of its keyboard meanwhile would have Ctrl released.
  const auto turn = [&](std::initializer_list<WORD> keys, Tab expected) {
    PressTogether(keys);
    WaitFor("tab " + std::to_string(expected),
            [&] { return dialog.ChosenTab(IDC_tbsOptions) == expected; });
  };
  const auto waitForFocus = [&](int id) {
    WaitFor("control " + std::to_string(id) + " to have the focus",
            [&] { return dialog.HasFocus(id); });
  };
  waitForFocus(IDC_chkShowgridlines);
  turn({VK_CONTROL, VK_TAB}, ColorAndFont);
  waitForFocus(IDC_lblColorChange0);
  EXPECT_FALSE(dialog.Visible(IDC_chkShowgridlines));
  const RECT swatch = RectangleOf(dialog.Control(IDC_lblColorChange0));
  const RECT dots{swatch.left + 3, swatch.top + 3, swatch.right - 3, swatch.top + 4};
  WaitFor("the focus to be seen, black and black turned round", [&] {
    const int turned = CountPixels(dots, RGB(255, 255, 255));
    return turned > 0 && turned + CountPixels(dots, RGB(0, 0, 0)) == dots.right - dots.left;
  });
  turn({VK_CONTROL, VK_SHIFT, VK_TAB}, Layout);
  turn({VK_CONTROL, VK_SHIFT, VK_TAB}, Language);
  waitForFocus(IDC_optUseDefaultLanguage);  // the one that is chosen
  turn({VK_CONTROL, VK_NEXT}, Layout);
  turn({VK_CONTROL, VK_PRIOR}, Language);
  dialog.ClickTab(IDC_tbsOptions, Operation);
  turn({VK_CONTROL, VK_NEXT}, Language);
  EXPECT_TRUE(dialog.HasFocus(IDC_tbsOptions)) << "the tabs keep it";
  EXPECT_FALSE(dialog.Enabled(IDC_cmdApply));
  dialog.ClickControl(IDC_optUseOtheLanguage);
  waitForFocus(IDC_optUseOtheLanguage);
  turn({VK_CONTROL, VK_PRIOR}, Operation);
  waitForFocus(IDC_chkAlwaysRestartTC);
  turn({VK_CONTROL, VK_NEXT}, Language);
  waitForFocus(IDC_optUseOtheLanguage);
  dialog.CloseByKey(VK_ESCAPE);
}

TEST_F(OptionsTest, OkStoresEveryBox) {
  Dialog dialog = OpenOptions();
  for (const BoxCase& box : Boxes) Toggle(dialog, box);
  dialog.CloseBy(IDC_cmdOK);
  WaitUntilApplied();
  for (const BoxCase& box : Boxes) {
    EXPECT_EQ(Setting(box.Setting), box.AtStart ? "0" : "1") << box.Setting;
  }
  dialog = OpenOptions();
  EXPECT_EQ(dialog.ChosenTab(IDC_tbsOptions), Operation) << "the last tab stays";
  for (const BoxCase& box : Boxes) {
    GoTo(dialog, box.On);
    EXPECT_NE(dialog.BoxChecked(box.Id), box.AtStart) << box.Setting;
  }
}

TEST_F(OptionsTest, CancelEscapeAndTheCloseButtonForgetTheBoxes) {
  const std::array<void (*)(Dialog&), 3> ways{[](Dialog& dialog) { dialog.CloseBy(IDC_cmdCancel); },
                                              [](Dialog& dialog) { dialog.CloseByKey(VK_ESCAPE); },
                                              [](Dialog& dialog) { dialog.CloseByCaption(); }};
  const RECT before = window_->CellRectangle(1, 1);
  for (const auto& close : ways) {
    Dialog dialog = OpenOptions();
    Toggle(dialog, Boxes[0]);
    close(dialog);
    WaitUntilApplied();
    const RECT after = window_->CellRectangle(1, 1);
    EXPECT_NE(EqualRect(&after, &before), FALSE) << "the rows stay in their places";
    EXPECT_EQ(Setting(Boxes[0].Setting), "0");
    EXPECT_FALSE(ListHasGridLines());
  }
  EXPECT_FALSE(OpenOptions().BoxChecked(Boxes[0].Id));
}

TEST_F(OptionsTest, ApplyIsEnabledByEachChangeAndDisabledByItself) {
  Dialog dialog = OpenOptions();
  const auto change = [&](const auto& changeSomething) {
    EXPECT_FALSE(dialog.Enabled(IDC_cmdApply));
    changeSomething();
    WaitForApply(dialog, true);
    dialog.ClickControl(IDC_cmdApply);
    WaitForApply(dialog, false);
  };
  for (const BoxCase& box : Boxes) change([&] { Toggle(dialog, box); });
  GoTo(dialog, Language);
  change([&] { dialog.ClickControl(IDC_optUseOtheLanguage); });
  change([&] {
    dialog.ClickControl(IDC_txtLanguageFilePath);
    WaitFor("the box to have the focus", [&] { return dialog.HasFocus(IDC_txtLanguageFilePath); });
    Type(L"x");
  });
  change([&] { dialog.ClickControl(IDC_optUseDefaultLanguage); });
}

TEST_F(OptionsTest, WhatWasAppliedStaysAfterCancel) {
  Dialog dialog = OpenOptions();
  Toggle(dialog, Boxes[0]);
  WaitForApply(dialog, true);
  dialog.ClickControl(IDC_cmdApply);
  WaitForApply(dialog, false);
  dialog.CloseBy(IDC_cmdCancel);
  WaitUntilApplied();
  EXPECT_EQ(Setting(Boxes[0].Setting), "1");
  EXPECT_TRUE(ListHasGridLines());
}

TEST_F(OptionsTest, LayoutIsAppliedToTheList) {
  const auto has = [&](int which, LONG_PTR bit) { return (ListStyle(which) & bit) != 0; };
  ASSERT_FALSE(ListHasGridLines());
  ASSERT_TRUE(has(GWL_STYLE, WS_BORDER) || has(GWL_EXSTYLE, WS_EX_CLIENTEDGE));
  Dialog dialog = OpenOptions();
  for (const BoxCase& box : {Boxes[0], Boxes[1], Boxes[2]}) Toggle(dialog, box);
  dialog.CloseBy(IDC_cmdOK);
  WaitFor("grid lines", [&] { return ListHasGridLines(); });
  WaitFor("the border to go",
          [&] { return !has(GWL_STYLE, WS_BORDER) && !has(GWL_EXSTYLE, WS_EX_CLIENTEDGE); });
}

TEST_F(OptionsTest, BothLooksReachTheListAndCrosswiseTheToolbar) {
  WaitForEdges(false, true, false, true);
  const auto toggle = [&](const BoxCase& box) {
    Dialog dialog = OpenOptions();
    Toggle(dialog, box);
    dialog.CloseBy(IDC_cmdOK);
  };
  toggle(Boxes[1]);  // borders no longer fixed
  WaitForEdges(true, false, false, false);
  toggle(Boxes[2]);  // flat
  WaitForEdges(false, false, false, false);
  toggle(Boxes[1]);
  WaitUntilApplied();
  WaitForEdges(false, false, true, false);
}

TEST_F(OptionsTest, LanguageThatIsChosenAlreadyIsNoChange) {
  Dialog dialog = OpenOptions();
  GoTo(dialog, Language);
  dialog.ClickControl(IDC_optUseDefaultLanguage);
  GoTo(dialog, Layout);  // answered after the click
  EXPECT_FALSE(dialog.Enabled(IDC_cmdApply));
}

TEST_F(OptionsTest, FocusGoesFromApplyToOk) {
  Dialog dialog = OpenOptions();
  Toggle(dialog, Boxes[0]);
  WaitForApply(dialog, true);
  dialog.ClickControl(IDC_cmdApply);
  WaitForApply(dialog, false);
  EXPECT_TRUE(dialog.HasFocus(IDC_cmdOK));
  dialog.CloseByKey(VK_RETURN);
}

TEST_F(OptionsTest, LanguageFileIsBrowsedForInTheFolderLanguages) {
  Dialog dialog = OpenOptions();
  // Before it has the focus, by which a button of such a group is checked too.
  EXPECT_TRUE(dialog.BoxChecked(IDC_optUseDefaultLanguage));
  GoTo(dialog, Language);
  EXPECT_FALSE(dialog.Enabled(IDC_txtLanguageFilePath));
  EXPECT_FALSE(dialog.Enabled(IDC_cmdBrowseForLangFile));
  EXPECT_EQ(dialog.ControlText(IDC_txtLanguageFilePath), L"");
  dialog.ClickControl(IDC_optUseOtheLanguage);
  WaitFor("the browse button", [&] { return dialog.Enabled(IDC_cmdBrowseForLangFile); });
  EXPECT_TRUE(dialog.Enabled(IDC_txtLanguageFilePath));
  dialog.ClickControl(IDC_cmdBrowseForLangFile);
  const HWND files = WaitForFileDialog(program_->Id());
  EXPECT_EQ(IsWindowEnabled(dialog.Handle()), FALSE);
  EXPECT_EQ(TextOf(GetDlgItem(files, cmb1)), L"Language File (*.lng)");
  BringToFront(files);
  Type(L"German.lng");  // found only when the dialog stands in that folder
  AnswerByKey(files, VK_RETURN);
  const std::wstring path = folder_.ShippedLanguage(L"German.lng");
  WaitFor("the path", [&] { return dialog.ControlText(IDC_txtLanguageFilePath) == path; });
  dialog.CloseBy(IDC_cmdOK);
  WaitFor("the setting", [&] { return Setting("LanguageFile", "Common") == Utf8(path); });
  EXPECT_EQ(Setting("UseDefaultLanguage"), "0");
}

TEST_F(OptionsTest, PathIsSelectedWhenTheBoxGetsTheFocus) {
  Dialog dialog = OpenOptions();
  GoTo(dialog, Language);
  dialog.ClickControl(IDC_optUseOtheLanguage);
  WaitFor("the text box", [&] { return dialog.Enabled(IDC_txtLanguageFilePath); });
  const auto typeInto = [&](const std::wstring& text) {
    dialog.ClickControl(IDC_txtLanguageFilePath);
    WaitFor("the focus", [&] { return dialog.HasFocus(IDC_txtLanguageFilePath); });
    Type(text);
    WaitFor("the text " + Utf8(text),
            [&] { return dialog.ControlText(IDC_txtLanguageFilePath) == text; });
  };
  typeInto(L"first.lng");
  dialog.ClickControl(IDC_optUseOtheLanguage);
  WaitFor("the focus to go", [&] { return !dialog.HasFocus(IDC_txtLanguageFilePath); });
  typeInto(L"second.lng");  // takes the place of what was selected
}

}  // namespace
}  // namespace tessera::e2e::options_test
