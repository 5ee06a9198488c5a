// The entries of the list's context menu.
#include <gtest/gtest.h>

#include <vector>

#include "app/Commands.h"
#include "app/ListMenu.h"

namespace tessera::list_menu_test {
namespace {

TEST(ListMenu, EntriesStandInTheirOrder) {
  std::vector<int> captions;
  for (const MenuEntry& entry : ListMenu()) captions.push_back(static_cast<int>(entry.Caption));
  EXPECT_EQ(captions, (std::vector{3340, 3202, 0, 3341, 3205, 0, 3350, 3351, 0, 3345, 3367, 0, 3342,
                                   3343, 3344, 0, 3381}));
}

TEST(ListMenu, EntriesAreCommandsOrLines) {
  for (const MenuEntry& entry : ListMenu()) {
    const bool isLine = entry.Kind == MenuEntryKind::Separator;
    EXPECT_EQ(entry.Kind == MenuEntryKind::Command, !isLine);
    EXPECT_EQ(IsCommand(entry.Command), !isLine);
    EXPECT_EQ(entry.Caption == TextId::None, isLine);
  }
}

}  // namespace
}  // namespace tessera::list_menu_test
