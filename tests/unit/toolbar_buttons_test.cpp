// The buttons of the two toolbars.
#include <gtest/gtest.h>

#include <vector>

#include "app/Commands.h"
#include "app/ToolbarButtons.h"
#include "resources/icons.h"
#include "resources/resource.h"

namespace tessera::toolbar_buttons_test {
namespace {

struct Look {
  ToolbarStyle Style;
  int Command;
  int Icon;
  int DisabledIcon;
  int ToolTip;

  bool operator==(const Look&) const = default;
};

std::vector<Look> LooksOf(std::span<const ToolbarButton> buttons) {
  std::vector<Look> looks;
  for (const ToolbarButton& button : buttons) {
    looks.push_back({button.Style, button.Command, button.Icon, button.DisabledIcon,
                     static_cast<int>(button.ToolTip)});
  }
  return looks;
}

TEST(ToolbarButtons, MainToolbarOpensSavesSortsAndShowsTheOptions) {
  using enum ToolbarStyle;
  EXPECT_EQ(
      LooksOf(MainToolbar()),
      (std::vector<Look>{{DropDown, IDM_mnuFileOpen, IDI_OPEN, IDI_OPEN_DISABLED, 103},
                         {DropDown, IDM_mnuFileSave, IDI_SAVE, IDI_SAVE_DISABLED, 104},
                         {Separator, 0, 0, 0, 0},
                         {Check, IDM_mnuViewSortList, IDI_SORT, IDI_SORT_DISABLED, 149},
                         {Separator, 0, 0, 0, 0},
                         {Normal, IDM_mnuViewOptions, IDI_OPTIONS, IDI_OPTIONS_DISABLED, 150}}));
}

TEST(ToolbarButtons, PanelToolbarAssignsAndDeletes) {
  using enum ToolbarStyle;
  EXPECT_EQ(LooksOf(PanelToolbar()),
            (std::vector<Look>{{DropDown, IDM_assign, IDI_ASSIGN, IDI_ASSIGN_DISABLED, 0},
                               {Separator, 0, 0, 0, 0},
                               {DropDown, IDM_delete, IDI_DELETE, IDI_DELETE_DISABLED, 0}}));
  EXPECT_EQ(ButtonOf(IDM_assign)->Key, L"ENTER");
  EXPECT_EQ(ButtonOf(IDM_delete)->Key, L"DEL");
}

TEST(ToolbarButtons, EachMenuUnderAButtonHasOneItemButThatOfOpenWithTheRecentFiles) {
  EXPECT_EQ(ButtonOf(IDM_mnuFileOpen)->MenuCommand, 0);
  EXPECT_EQ(ButtonOf(IDM_mnuFileSave)->MenuCommand, IDM_restarttc);
  EXPECT_EQ(ButtonOf(IDM_mnuFileSave)->MenuCaption, TextId{116});
  EXPECT_EQ(ButtonOf(IDM_assign)->MenuCommand, IDM_new);
  EXPECT_EQ(ButtonOf(IDM_assign)->MenuCaption, TextId{3202});
  EXPECT_EQ(ButtonOf(IDM_delete)->MenuCommand, IDM_delall);
  EXPECT_EQ(ButtonOf(IDM_delete)->MenuCaption, TextId{3205});
}

TEST(ToolbarButtons, EachButtonIsACommand) {
  for (const std::span<const ToolbarButton> buttons : {MainToolbar(), PanelToolbar()}) {
    for (const ToolbarButton& button : buttons) {
      EXPECT_EQ(IsCommand(button.Command), button.Style != ToolbarStyle::Separator);
      EXPECT_TRUE(button.MenuCommand == 0 || IsCommand(button.MenuCommand));
    }
  }
}

TEST(ToolbarButtons, WhatNoToolbarHoldsHasNoButton) {
  EXPECT_EQ(ButtonOf(IDM_mnuFileExit), nullptr);
  EXPECT_EQ(ButtonOf(0), nullptr);
}

}  // namespace

}  // namespace tessera::toolbar_buttons_test
