// Characters of keys, in the layout that the tests run with.
#include <gtest/gtest.h>

#include "platform/win32/KeyCharacter.h"

namespace tessera::key_character_test {
namespace {

wchar_t CharacterOf(WPARAM key) {
  MSG message{};
  message.wParam = key;
  message.lParam = static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC))
                   << 16;
  return KeyCharacter(message);
}

TEST(KeyCharacter, IsWhatTheKeyGivesByItself) {
  EXPECT_EQ(CharacterOf('A'), L'a');
  EXPECT_EQ(CharacterOf('7'), L'7');
  EXPECT_EQ(CharacterOf(VK_SPACE), L' ');
}

TEST(KeyCharacter, IsNoneForKeysThatGiveNone) {
  EXPECT_EQ(CharacterOf(VK_F5), L'\0');
  EXPECT_EQ(CharacterOf(VK_LEFT), L'\0');
}

}  // namespace
}  // namespace tessera::key_character_test
