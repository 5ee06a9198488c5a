// The system's components.
#include "platform/win32/Components.h"

#include <gtest/gtest.h>

namespace tessera::components_test {
namespace {

/// The table of the interfaces that a process shares among its threads; every Windows has it.
constexpr GUID GlobalInterfaceTable{
    0x00000323, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
constexpr GUID Unknown{
    0x00000000, 0x0000, 0x0000, {0xc0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
constexpr GUID OfNoComponent{
    0x3d1f6c52, 0x0b8e, 0x4d6a, {0x9a, 0x51, 0x27, 0x84, 0xee, 0x10, 0x6b, 0x93}};

TEST(Components, AreStartedByTheFirstThatIsMade) {
  const UniqueComponent component = CreateComponent(GlobalInterfaceTable, Unknown);
  ASSERT_NE(component, nullptr);
  void* again = nullptr;
  ASSERT_EQ(component->QueryInterface(Unknown, &again), S_OK);
  EXPECT_EQ(UniqueComponent(static_cast<IUnknown*>(again)), component);
}

TEST(Components, NullWithoutSuchAComponentOrInterface) {
  EXPECT_EQ(CreateComponent(OfNoComponent, Unknown), nullptr);
  EXPECT_EQ(CreateComponent(GlobalInterfaceTable, OfNoComponent), nullptr);
}

TEST(Components, MayBeStartedAgain) {
  StartComponents();
  StartComponents();
  EXPECT_NE(CreateComponent(GlobalInterfaceTable, Unknown), nullptr);
}

}  // namespace
}  // namespace tessera::components_test
