#include "platform/Pinned.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "app/Editor.h"

namespace tessera::pinned_test {
namespace {

template <typename Class>
class PinnedTest : public testing::Test {};

using Classes = testing::Types<Editor, Document, InputFiles, CommandList, HotkeyAssignment,
                               HotkeyPanel, KeysList>;
TYPED_TEST_SUITE(PinnedTest, Classes);

TYPED_TEST(PinnedTest, IsNeitherCopiedNorMoved) {
  EXPECT_FALSE(std::is_copy_constructible_v<TypeParam>);
  EXPECT_FALSE(std::is_move_constructible_v<TypeParam>);
  EXPECT_FALSE(std::is_copy_assignable_v<TypeParam>);
  EXPECT_FALSE(std::is_move_assignable_v<TypeParam>);
}

}  // namespace
}  // namespace tessera::pinned_test
