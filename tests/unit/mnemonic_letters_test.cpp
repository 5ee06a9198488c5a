#include <gtest/gtest.h>

#include "app/MnemonicLetters.h"
#include "tests/support/MemoryFiles.h"

namespace tessera::mnemonic_letters_test {
namespace {

TEST(MnemonicLetters, AreThoseOfTheMenuBarAndTheBoxes) {
  MemoryFiles files;
  const Texts texts(files);
  EXPECT_EQ(MnemonicLetters(texts), L"FVHCAS");
}

TEST(MnemonicLetters, FollowTheLanguageAndSkipCaptionsWithoutOne) {
  MemoryFiles files;
  files.Contents[L"Own.lng"] =
      "[UserLanguage]\r\nCodePage=65001\r\n101=&Datei\r\n103=&Qffnen\r\n141=Ansicht\r\n161=\xE5(&X)"
      "\r\n"
      "401=&\xD0\xA4 +\r\n402=A&lt +\r\n403=Shift && +\r\n400=&Hotkey\r\n";
  Texts texts(files);
  ASSERT_TRUE(texts.UseLanguageFile(L"Own.lng"));
  EXPECT_EQ(MnemonicLetters(texts), L"DX\x0424l");
}

}  // namespace
}  // namespace tessera::mnemonic_letters_test
