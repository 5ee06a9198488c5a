// The entries of the menu bar.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "app/Commands.h"
#include "app/MenuBar.h"

namespace tessera::menu_bar_test {
namespace {

TEST(MenuBar, EntriesStandInTheirOrder) {
  std::vector<int> captions;
  for (const MenuEntry& entry : MenuBar()) captions.push_back(static_cast<int>(entry.Caption));
  EXPECT_EQ(captions, (std::vector{101, 103, 104, 116, 0, 117, 0, 107, 0, 110,  // File
                                   141, 142, 149, 0, 150,                       // View
                                   161, 162}));                                 // Help
}

TEST(MenuBar, EntriesAreCommandsMenusOrLines) {
  for (const MenuEntry& entry : MenuBar()) {
    EXPECT_EQ(IsCommand(entry.Command), entry.Kind == MenuEntryKind::Command);
    EXPECT_EQ(entry.Caption == TextId::None, entry.Kind == MenuEntryKind::Separator);
  }
  EXPECT_EQ(std::ranges::count(MenuBar(), MenuEntryKind::RecentFiles, &MenuEntry::Kind), 1);
}

}  // namespace

}  // namespace tessera::menu_bar_test
