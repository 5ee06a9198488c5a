// The language files that are shipped, read as the program reads them.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <vector>

#include "localisation/Mnemonic.h"
#include "localisation/Texts.h"
#include "localisation/TextTable.h"
#include "settings/ini/ProfileFile.h"
#include "shortcuts/HotkeyNotation.h"
#include "tests/support/MemoryFiles.h"
#include "tests/support/Repository.h"
#include "text/Text.h"
#include "text/Trim.h"

namespace tessera::shipped_languages_test {
namespace {

constexpr std::wstring_view Template = L"Template";

std::wstring PathOf(std::wstring_view language) { return std::wstring(language) + L".lng"; }

/// The bytes of all files in the folder of the languages, by name.
std::map<std::wstring, std::string> ReadLanguageFolder() {
  std::map<std::wstring, std::string> contents;
  for (const auto& entry : std::filesystem::directory_iterator(InRepository("Languages"))) {
    std::ifstream file(entry.path(), std::ios::binary);
    contents[entry.path().filename().wstring()].assign(std::istreambuf_iterator<char>(file), {});
  }
  return contents;
}

class ShippedLanguages : public testing::Test {
 protected:
  ShippedLanguages() {
    static const std::map<std::wstring, std::string> folder = ReadLanguageFolder();
    files_.Contents = folder;
  }

  /// Calls `check(name, texts)` for every language, the template included.
  template <typename Check>
  void ForEach(Check check) const {
    ASSERT_FALSE(files_.Contents.empty());
    for (const auto& [path, bytes] : files_.Contents) {
      SCOPED_TRACE(Encode(path));
      Texts texts(files_);
      ASSERT_TRUE(texts.UseLanguageFile(path));
      check(path.substr(0, path.rfind(L'.')), texts);
    }
  }

  /// Calls `check(english, translated)` for every text of every language.
  template <typename Check>
  void ForEachText(Check check) const {
    ForEach([&](const std::wstring&, const Texts& texts) {
      for (const BuiltInText& english : TextTable()) {
        SCOPED_TRACE(NumberOf(english.Id));
        check(english, texts.GetLangText(english.Id));
      }
    });
  }

  MemoryFiles files_;
};

bool IsLetter(wchar_t character) {
  const bool latin =
      (character >= L'A' && character <= L'Z') || (character >= L'a' && character <= L'z');
  return latin || character >= 0xC0;
}

bool IsInvisible(wchar_t character) {
  const auto code = static_cast<unsigned>(character);
  const auto isWithin = [code](unsigned first, unsigned last) {
    return code >= first && code <= last;
  };
  return code < 0x20 || isWithin(0x7F, 0x9F) || isWithin(0x200B, 0x200F) ||
         isWithin(0x2028, 0x202E) || isWithin(0x2066, 0x2069) || code == 0xFEFF || code == 0xFFFD;
}

/// About how wide a character is, in hundredths of the font's size.
int WidthOf(wchar_t character) {
  const auto isOneOf = [character](std::wstring_view letters) {
    return letters.find(character) != std::wstring_view::npos;
  };
  if (isOneOf(L" .:'()Iijlfrt")) return 30;
  if (isOneOf(L"MWmw")) return 80;
  if (character < 0x400) return character >= L'A' && character <= L'Z' ? 62 : 54;
  if (character < 0x600) return 62;      // Cyrillic
  return character < 0x2E80 ? 45 : 100;  // Arabic; Chinese and Japanese
}

TEST_F(ShippedLanguages, AreTheseAndATemplate) {
  for (const std::wstring_view language :
       {L"Arabic", L"ChineseSimplified", L"English", L"French", L"German", L"Italian", L"Japanese",
        L"Polish", L"Russian", L"Spanish", L"Template"}) {
    EXPECT_TRUE(files_.Contents.contains(PathOf(language))) << Encode(language);
  }
}

TEST_F(ShippedLanguages, HaveEveryTextOnceAndNothingElse) {
  std::multiset<std::wstring> expected{L"CodePage"};
  for (const BuiltInText& text : TextTable()) expected.insert(std::to_wstring(NumberOf(text.Id)));

  ForEach([&](const std::wstring& name, const Texts&) {
    const ProfileFile file(files_, PathOf(name));
    EXPECT_EQ(file.SectionNames(), std::vector<std::wstring>{L"UserLanguage"});
    std::multiset<std::wstring> found;
    for (const auto& [key, value] : file.Entries(L"UserLanguage")) {
      EXPECT_NE(TrimSpaces(value), L"") << Encode(key);
      if (key != L"RightToLeftLanguage") found.insert(key);
    }
    EXPECT_EQ(found, expected);
  });
}

TEST_F(ShippedLanguages, AreUtf8AndSaySo) {
  ForEach([&](const std::wstring& name, const Texts&) {
    const std::string& bytes = files_.Contents.at(PathOf(name));
    EXPECT_TRUE(bytes.starts_with(";")) << "a byte order mark, or no comment in the first line";
    EXPECT_EQ(Encode(Decode(bytes, Utf8CodePage), Utf8CodePage), bytes);
    EXPECT_EQ(ProfileFile(files_, PathOf(name)).ReadInteger(L"UserLanguage", L"CodePage", L"0"),
              Utf8CodePage);
  });
}

TEST_F(ShippedLanguages, EndEveryLineAsWindowsDoes) {
  ForEach([&](const std::wstring& name, const Texts&) {
    const std::string& bytes = files_.Contents.at(PathOf(name));
    EXPECT_TRUE(bytes.ends_with("\r\n"));
    EXPECT_EQ(std::ranges::count(bytes, '\n'), std::ranges::count(bytes, '\r'));
    for (std::size_t end = bytes.find('\n'); end != std::string::npos;
         end = bytes.find('\n', end + 1)) {
      ASSERT_TRUE(end > 0 && bytes[end - 1] == '\r') << bytes.substr(0, end);
    }
  });
}

TEST_F(ShippedLanguages, HoldNoInvisibleCharacters) {
  ForEachText([](const BuiltInText&, const std::wstring& text) {
    EXPECT_TRUE(std::ranges::none_of(text, IsInvisible));
  });
}

TEST_F(ShippedLanguages, FitWhereTheEnglishTextsFit) {
  ForEachText([](const BuiltInText& english, const std::wstring& text) {
    EXPECT_LE(text.size(), 2 * english.Text.size() + 12);
  });
}

TEST_F(ShippedLanguages, HeadTheColumnsOfKeysWithTextsThatAreNotCut) {
  // 2000 twips are 133 pixels; 33 go to the edges and the arrow of the sort. The font is 13 high.
  const int room = 100 * (133 - 33) / 13;
  ForEach([&](const std::wstring&, const Texts& texts) {
    for (const TextId heading : {TextId::DefaultHotkeyColumn, TextId::CurrentHotkeyColumn}) {
      const std::wstring text = texts.GetLangText(heading);
      int width = 0;
      for (const wchar_t character : text) width += WidthOf(character);
      EXPECT_LE(width, room) << Encode(text, Utf8CodePage);
    }
  });
}

TEST_F(ShippedLanguages, EndAsTheEnglishTextsDo) {
  ForEachText([](const BuiltInText& english, const std::wstring& text) {
    EXPECT_EQ(text.ends_with(L"..."), english.Text.ends_with(L"..."));
    EXPECT_EQ(text.ends_with(L" +"), english.Text.ends_with(L" +"));
    if (english.Text.ends_with(L":")) {
      EXPECT_TRUE(text.ends_with(L":") || text.ends_with(L"\uFF1A"));
    }
  });
}

TEST_F(ShippedLanguages, KeepTheNamesOfProgramsAndFiles) {
  ForEachText([](const BuiltInText& english, const std::wstring& text) {
    for (const std::wstring_view name : {L"Total Commander", L"[Wincmd.ini]", L"Totalcmd.inc"}) {
      if (english.Text.find(name) != std::wstring_view::npos) {
        EXPECT_NE(text.find(name), std::wstring::npos) << Encode(name);
      }
    }
  });
}

TEST_F(ShippedLanguages, HaveThePlacesForValuesOfTheEnglishTexts) {
  ForEachText([](const BuiltInText& english, const std::wstring& text) {
    for (const std::wstring_view place : {L"%1", L"%2", L"%3"}) {
      const std::size_t at = text.find(place);
      EXPECT_EQ(at != std::wstring::npos, english.Text.find(place) != std::wstring_view::npos);
      EXPECT_TRUE(at == std::wstring::npos || text.find(place, at + 1) == std::wstring::npos);
    }
  });
}

TEST_F(ShippedLanguages, NameTheProgramThatIsRestarted) {
  ForEach([](const std::wstring& name, const Texts& texts) {
    if (name == Template) return;
    EXPECT_NE(texts.GetLangText(TextId::SaveAndRestart).find(L"Total Commander"),
              std::wstring::npos);
  });
}

TEST_F(ShippedLanguages, AskWhetherToSave) {
  ForEach([](const std::wstring& name, const Texts& texts) {
    if (name == Template) return;
    EXPECT_NE(
        std::wstring_view(L"?\u061F\uFF1F").find(texts.GetLangText(TextId::SaveChangesTo).back()),
        std::wstring_view::npos);
  });
}

TEST_F(ShippedLanguages, KeepSignsOnTheLineOfTheirWord) {
  constexpr std::wstring_view Signs = L":!?";
  ForEach([&](const std::wstring& name, const Texts& texts) {
    if (name == Template) return;
    for (const BuiltInText& english : TextTable()) {
      const std::wstring text = texts.GetLangText(english.Id);
      for (std::size_t sign = text.find_first_of(Signs); sign != std::wstring::npos;
           sign = text.find_first_of(Signs, sign + 1)) {
        ASSERT_GT(sign, 0U);
        const bool isApart = text[sign - 1] == L'\u00A0';
        EXPECT_EQ(isApart, name == L"French") << NumberOf(english.Id);
        EXPECT_NE(text[sign - 1], L' ') << NumberOf(english.Id);
      }
    }
  });
}

TEST_F(ShippedLanguages, HaveMnemonicsWhereTheEnglishTextsHaveThem) {
  const std::set<TextId> mayHaveOne = {TextId::SaveAndRestart, TextId::UseContextMenuKey,
                                       TextId::ReverseOrder};
  ForEachText([&](const BuiltInText& english, const std::wstring& text) {
    const auto marks = std::ranges::count(text, L'&');
    if (mayHaveOne.contains(english.Id)) {
      EXPECT_LE(marks, 1);
    } else {
      EXPECT_EQ(marks, std::ranges::count(english.Text, L'&'));
    }
    if (marks != 0) {
      EXPECT_TRUE(IsLetter(MnemonicOf(text)));
    }
  });
}

TEST_F(ShippedLanguages, UseNoMnemonicTwiceInOnePlace) {
  const std::vector<TextId> places[] = {
      {TextId::MenuFile, TextId::MenuView, TextId::MenuHelp, TextId::ControlBox, TextId::AltBox,
       TextId::ShiftBox},
      {TextId::FileOpen, TextId::FileSave, TextId::FileRecent, TextId::FileExit,
       TextId::SaveAndRestart, TextId::FileExport},
      {TextId::ViewToolbar, TextId::ViewSortedList, TextId::ViewOptions},
      {TextId::Ok, TextId::Cancel, TextId::Apply, TextId::GridLines, TextId::FixedBorders,
       TextId::FlatUserInterface},
      {TextId::Ok, TextId::Cancel, TextId::Apply, TextId::ChangeFont},
      {TextId::Ok, TextId::Cancel, TextId::Apply, TextId::AutoRestart, TextId::UseContextMenuKey,
       TextId::ReverseOrder, TextId::KeepUnknownKeys, TextId::ForgetKeys, TextId::ShowOwnCommands},
      {TextId::Ok, TextId::Cancel, TextId::Apply, TextId::DefaultLanguage, TextId::OtherLanguage},
  };
  ForEach([&](const std::wstring&, const Texts& texts) {
    for (const std::vector<TextId>& place : places) {
      std::set<std::wstring> taken;
      for (const TextId id : place) {
        const wchar_t mnemonic = MnemonicOf(texts.GetLangText(id));
        if (mnemonic == L'\0') continue;
        EXPECT_TRUE(taken.insert(ToUpper(std::wstring(1, mnemonic))).second) << NumberOf(id);
      }
    }
  });
}

TEST_F(ShippedLanguages, AreRightToLeftWhereTheirLettersAre) {
  const auto isWrittenToTheLeft = [](wchar_t letter) { return letter >= 0x590 && letter < 0x900; };
  ForEach([&](const std::wstring&, const Texts& texts) {
    EXPECT_EQ(texts.RightToLeft(),
              std::ranges::any_of(texts.GetLangText(TextId::MenuFile), isWrittenToTheLeft));
  });
}

TEST_F(ShippedLanguages, CallTheModifiersByTheWordsThatReverseOrderRecognises) {
  ForEach([](const std::wstring&, const Texts& texts) {
    EXPECT_EQ(texts.GetLangText(TextId::CtrlName), L"Ctrl");
    EXPECT_EQ(texts.GetLangText(TextId::AltName), L"Alt");
    EXPECT_EQ(texts.GetLangText(TextId::ShiftName), L"Shift");
  });
}

/// Takes every key with every set of modifiers from a data file's form to the one that is saved.
void ExpectDefaultKeysAreSavedAsThemselves(const HotkeyNotation& notation) {
  for (const std::wstring_view key : KeyVocabulary()) {
    for (unsigned held = 0; held < 8; ++held) {
      std::wstring words;
      std::wstring letters;
      const auto add = [&](unsigned bit, std::wstring_view word) {
        if ((held & bit) == 0) return;
        words.append(word).append(L"+");
        letters += word.front();
      };
      add(1, L"Ctrl");
      add(2, L"Alt");
      add(4, L"Shift");
      if (held != 0) letters += L'+';
      EXPECT_EQ(notation.DisplayToNative(notation.DataFileToDisplay(words.append(key))),
                letters.append(key));
    }
  }
}

TEST_F(ShippedLanguages, LeadEveryDefaultKeyToTheKeyThatIsSaved) {
  ForEach([](const std::wstring&, const Texts& texts) {
    HotkeyNotation notation;
    notation.CtrlName = TrimSpaces(texts.GetLangText(TextId::CtrlName));
    notation.AltName = TrimSpaces(texts.GetLangText(TextId::AltName));
    notation.ShiftName = TrimSpaces(texts.GetLangText(TextId::ShiftName));
    ExpectDefaultKeysAreSavedAsThemselves(notation);
    notation.ReverseOrderHotkey = true;
    ExpectDefaultKeysAreSavedAsThemselves(notation);
  });
}

TEST_F(ShippedLanguages, PutTheSlipsOfTheBuiltInEnglishRight) {
  Texts texts(files_);
  ASSERT_TRUE(texts.UseLanguageFile(PathOf(L"English")));
  EXPECT_EQ(texts.GetLangText(TextId::AssignItTo), L"Do you want to assign it to:");
  EXPECT_NE(texts.GetLangText(TextId::NotSavedYet).find(L"have not yet been saved"),
            std::wstring::npos);
}

TEST_F(ShippedLanguages, HaveATemplateInTheEnglishOfTheProgram) {
  Texts texts(files_);
  ASSERT_TRUE(texts.UseLanguageFile(PathOf(Template)));
  for (const BuiltInText& english : TextTable()) {
    EXPECT_EQ(texts.GetLangText(english.Id), english.Text);
  }
}

}  // namespace
}  // namespace tessera::shipped_languages_test
