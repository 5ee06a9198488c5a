// Looking up texts, with and without a language file.
#include "localisation/Texts.h"

#include <gtest/gtest.h>

#include "tests/support/FaultyFiles.h"

namespace tessera::texts_test {
namespace {

const std::wstring Path = L"C:\\Tessera\\Languages\\Test.lng";

class TextsTest : public testing::Test {
 protected:
  /// Texts that use a language file with this content.
  Texts& With(const std::string& content) {
    files_.Contents[Path] = content;
    EXPECT_TRUE(texts_.UseLanguageFile(Path));
    return texts_;
  }

  FaultyFiles files_;
  Texts texts_{files_};
};

TEST_F(TextsTest, StartWithTheBuiltInOnes) {
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"OK");
  EXPECT_EQ(texts_.GetLangText(TextId::NotSavedYet),
            L"Hotkeys in this list has not saved yet to your Total Commander configuration file.");
  EXPECT_FALSE(texts_.RightToLeft());
  EXPECT_EQ(files_.CallCount, 0);
}

TEST_F(TextsTest, ComeFromTheLanguageFile) {
  With("[UserLanguage]\r\n1008=In Ordnung\r\n1009 = Abbrechen \r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"In Ordnung");
  EXPECT_EQ(texts_.GetLangText(TextId::Cancel), L"Abbrechen");
}

TEST_F(TextsTest, AreBuiltInWhereTheLanguageLacksThemOrHasThemEmpty) {
  With("[UserLanguage]\r\n1008=\r\n1009=\"\"\r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"OK");
  EXPECT_EQ(texts_.GetLangText(TextId::Cancel), L"Cancel");
  EXPECT_EQ(texts_.GetLangText(TextId::Apply), L"&Apply");
}

TEST_F(TextsTest, OfAnIdThatNeitherHasAreEmpty) {
  EXPECT_EQ(With("[UserLanguage]\r\n1008=x\r\n").GetLangText(TextId{9999}), L"");
  texts_.UseBuiltIn();
  EXPECT_EQ(texts_.GetLangText(TextId{9999}), L"");
}

TEST_F(TextsTest, MayStandBehindAByteOrderMark) {
  With("\xEF\xBB\xBF[UserLanguage]\r\nCodePage=65001\r\n1008=\xD0\x96\r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"\u0416");
  With("\xEF\xBB\xBF;mine\r\n[UserLanguage]\r\n1008=x\r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"x");
}

TEST_F(TextsTest, MayHaveIdsThatTheBuiltInTableLacks) {
  EXPECT_EQ(With("[UserLanguage]\r\n9999=new\r\n").GetLangText(TextId{9999}), L"new");
}

TEST_F(TextsTest, KeepBlanksInsideTheirQuotes) {
  EXPECT_EQ(With("[UserLanguage]\r\n1008=\" OK \"\r\n").GetLangText(TextId::Ok), L" OK ");
}

TEST_F(TextsTest, ComeFromTheirOwnSectionOnly) {
  With("[Other]\r\n1008=wrong\r\n[userlanguage]\r\n1009=right\r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"OK");
  EXPECT_EQ(texts_.GetLangText(TextId::Cancel), L"right");
}

TEST_F(TextsTest, AreKeyedByPlainDecimalNumbers) {
  With("[UserLanguage]\r\n01008=zero\r\n+1009=plus\r\n1 010=blank\r\n101=exact\r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"OK");
  EXPECT_EQ(texts_.GetLangText(TextId::Cancel), L"Cancel");
  EXPECT_EQ(texts_.GetLangText(TextId::Apply), L"&Apply");
  EXPECT_EQ(texts_.GetLangText(TextId::MenuFile), L"exact");
}

TEST_F(TextsTest, OfARepeatedKeyAreTheFirst) {
  With("[UserLanguage]\r\n1008=first\r\n1008=second\r\n1009=\r\n1009=second\r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"first");
  EXPECT_EQ(texts_.GetLangText(TextId::Cancel), L"Cancel");
}

TEST_F(TextsTest, AreCutAt4095Bytes) {
  With("[UserLanguage]\r\n1008=" + std::string(4095, 'a') + "\r\n1009=" + std::string(4096, 'b') +
       "\r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), std::wstring(4095, L'a'));
  EXPECT_EQ(texts_.GetLangText(TextId::Cancel), std::wstring(4095, L'b'));
}

TEST_F(TextsTest, AreReadOnce) {
  With("[UserLanguage]\r\nRightToLeftLanguage=1\r\n1008=x\r\n");
  const int calls = files_.CallCount;
  files_.Contents[Path] = "[UserLanguage]\r\n1008=y\r\n";
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"x");
  EXPECT_TRUE(texts_.RightToLeft());
  EXPECT_EQ(files_.CallCount, calls);
}

TEST_F(TextsTest, MayBeRightToLeftWithoutATextOfTheirOwn) {
  With("[UserLanguage]\r\nRightToLeftLanguage=1\r\n");
  EXPECT_TRUE(texts_.RightToLeft());
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"OK");
}

TEST_F(TextsTest, AreRightToLeftForEveryNumberButZero) {
  EXPECT_TRUE(With("[UserLanguage]\r\nRightToLeftLanguage=-1\r\n").RightToLeft());
  EXPECT_TRUE(With("[UserLanguage]\r\nRightToLeftLanguage=2x\r\n").RightToLeft());
  EXPECT_FALSE(With("[UserLanguage]\r\nRightToLeftLanguage=0\r\n").RightToLeft());
  EXPECT_FALSE(With("[UserLanguage]\r\nRightToLeftLanguage=yes\r\n").RightToLeft());
  EXPECT_FALSE(With("[UserLanguage]\r\n").RightToLeft());
}

TEST_F(TextsTest, AreDecodedWithTheCodePageThatTheFileNames) {
  With("[UserLanguage]\r\n1008=\xD0\x94\xD0\xB0\r\nCodePage=65001\r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"\u0414\u0430");
}

TEST_F(TextsTest, AreInTheAnsiCodePageWithoutAUsableCodePage) {
  const std::string bytes = "\xC4\xE9";
  for (const std::string line : {"", "CodePage=\r\n", "CodePage=0\r\n", "CodePage=-65001\r\n"}) {
    EXPECT_EQ(With("[UserLanguage]\r\n" + line + "1008=" + bytes + "\r\n").GetLangText(TextId::Ok),
              Decode(bytes));
  }
}

TEST_F(TextsTest, OfAFileInUtf16NeedNoCodePage) {
  std::string bytes = "\xFF\xFE";
  for (const char unit : std::string("[UserLanguage]\r\nCodePage=1252\r\n1008=\x14")) {
    // The last character is U+0414.
    bytes += {unit, unit == '\x14' ? '\x04' : '\0'};
  }
  EXPECT_EQ(With(bytes).GetLangText(TextId::Ok), L"\u0414");
}

TEST_F(TextsTest, ForgetTheCodePageOfTheLanguageBefore) {
  With("[UserLanguage]\r\nCodePage=65001\r\n1008=\xC3\xA4\r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"\u00E4");
  EXPECT_EQ(With("[UserLanguage]\r\n1008=\xC3\xA4\r\n").GetLangText(TextId::Ok),
            Decode("\xC3\xA4"));
}

TEST_F(TextsTest, StayAsTheyWereWhenTheFileDoesNotExist) {
  EXPECT_FALSE(texts_.UseLanguageFile(L"C:\\nowhere.lng"));
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"OK");

  With("[UserLanguage]\r\nRightToLeftLanguage=1\r\n1008=x\r\n");
  EXPECT_FALSE(texts_.UseLanguageFile(L"C:\\nowhere.lng"));
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"x");
  EXPECT_TRUE(texts_.RightToLeft());
}

TEST_F(TextsTest, AreThoseOfTheLanguageChosenLast) {
  With("[UserLanguage]\r\nRightToLeftLanguage=1\r\n1008=x\r\n1009=y\r\n");
  With("[UserLanguage]\r\n1008=z\r\n");
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"z");
  EXPECT_EQ(texts_.GetLangText(TextId::Cancel), L"Cancel");
  EXPECT_FALSE(texts_.RightToLeft());
}

TEST_F(TextsTest, AreBuiltInAgainWhenTheLanguageIsLeft) {
  With("[UserLanguage]\r\nRightToLeftLanguage=1\r\n1008=x\r\n").UseBuiltIn();
  const int calls = files_.CallCount;
  EXPECT_EQ(texts_.GetLangText(TextId::Ok), L"OK");
  EXPECT_FALSE(texts_.RightToLeft());
  EXPECT_EQ(files_.CallCount, calls);
}

}  // namespace
}  // namespace tessera::texts_test
