// The page that shows all keys.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "export/KeysPage.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/hostile_rows.h"
#include "tests/unit/html_reader.h"
#include "tests/unit/rounds.h"
#include "tests/unit/sample_catalogue.h"
#include "text/Text.h"

namespace tessera::keys_page_test {
namespace {

using Strings = std::vector<std::string>;

class KeysPageTest : public testing::Test {
 protected:
  [[nodiscard]] std::string Html(bool modified = false) const {
    return BuildKeysPage(catalogue_, notation_, texts_, {L"C:\\TC\\Wincmd.ini", modified});
  }

  [[nodiscard]] HtmlPage Page(bool modified = false) const {
    HtmlPage page = ReadHtml(Html(modified));
    EXPECT_EQ(page.Problem, "");
    return page;
  }

  CommandEntry& Edit(RowKey row) { return catalogue_.ListView1.Edit(row); }

  void UseLanguage(const std::string& texts) {
    files_.Contents[L"x.lng"] = "[UserLanguage]\r\nCodePage=65001\r\n" + texts;
    ASSERT_TRUE(texts_.UseLanguageFile(L"x.lng"));
  }

  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
  MemoryFiles files_;
  Texts texts_{files_};
};

/// What the one keyboard that has the key says of its use.
std::string UseIn(const HtmlPage& page, const std::string& key) {
  const auto found = page.Find("g", "data-key", key);
  return found.size() == 1 ? found[0]->Get("data-use") : "";
}

/// The texts of the cells of a table's rows, one row behind the other.
Strings CellsOf(const HtmlPage& page, std::string_view table) {
  Strings texts;
  for (const HtmlElement& element : page.Elements) {
    const bool isCell = element.Name == "td" || element.Name == "th";
    if (isCell && page.IsWithin(element, table)) texts.push_back(element.Text);
  }
  return texts;
}

TEST_F(KeysPageTest, DrawsEveryKeyWithEverySetOfModifiers) {
  const HtmlPage page = Page();
  EXPECT_EQ(page.Find("section", "class", "keyboard").size(), 8U);
  EXPECT_EQ(page.Find("g", "class", "key").size(), 8 * KeyVocabulary().size());
  for (const std::wstring_view key : KeyVocabulary()) {
    const std::string held = Utf8FromWide(notation_.DisplayKey({.Ctrl = true}, key));
    EXPECT_EQ(page.Find("g", "data-key", held).size(), 1U) << held;
  }
}

TEST_F(KeysPageTest, TellsWhoHasAKeyByItsUse) {
  catalogue_.StartMenuKeys[2] = {StartMenuKey(3, notation_), L"&Notepad", L"key1"};
  const HtmlPage page = Page();
  EXPECT_EQ(UseIn(page, "F1"), "free");
  EXPECT_EQ(UseIn(page, "F5"), "default");
  EXPECT_EQ(UseIn(page, "F6"), "user");
  EXPECT_EQ(UseIn(page, "F9"), "over");
  EXPECT_EQ(UseIn(page, "Ctrl + R"), "default");
  EXPECT_EQ(UseIn(page, "Ctrl + Alt + F3"), "startmenu");
}

TEST_F(KeysPageTest, CountsTheFreeKeysOfEachKeyboard) {
  const HtmlPage page = Page();
  const auto counts = page.Find("p", "class", "count");
  ASSERT_EQ(counts.size(), 8U);
  EXPECT_EQ(counts[0]->Text, "61 of 67 free without a modifier");
  EXPECT_EQ(counts[0]->Get("data-free"), "61");
  EXPECT_EQ(counts[1]->Text, "66 of 67 free with Ctrl");
  EXPECT_EQ(counts[7]->Text, "67 of 67 free with Ctrl + Alt + Shift");
  EXPECT_EQ(counts[7]->Get("data-all"), "67");
  for (const HtmlElement* section : page.Find("section", "class", "keyboard")) {
    const std::string names = section->Get("data-modifiers");
    EXPECT_EQ(page.Find("section", "data-modifiers", names).size(), 1U) << names;
  }
}

TEST_F(KeysPageTest, ShowsShortNamesOnKeysAndWholeOnesInTitles) {
  catalogue_.StartMenuKeys[2] = {StartMenuKey(3, notation_), L"&Notepad", L"key1"};
  const HtmlPage page = Page();
  EXPECT_EQ(page.Find("g", "data-key", "F9")[0]->Text,
            "F9\ncm_Sync (current)\ncm_Search (default, overridden)Sync");
  EXPECT_EQ(page.Find("g", "data-key", "F5")[0]->Text, "F5\ncm_Copy (default)Copy");
  EXPECT_EQ(page.Find("g", "data-key", "F1")[0]->Text, "F1: free");
  EXPECT_EQ(page.Find("g", "data-key", "Ctrl + Alt + F3")[0]->Text,
            "Ctrl + Alt + F3\n&Notepad (Start Menu)Notepad");
}

TEST_F(KeysPageTest, ListsEachHeldKeyOnceWithAllItsHolders) {
  catalogue_.StartMenuKeys[2] = {StartMenuKey(3, notation_), L"&Notepad", L"key1"};
  Edit(sample::Pack).CurrentKeys = L"F13 = f5";
  EXPECT_EQ(CellsOf(Page(), "by-key"), (Strings{"Key",
                                                "Command",
                                                "F2",
                                                "cm_Refresh (default)",
                                                "F5",
                                                "cm_Pack (current)cm_Copy (default)",
                                                "F6",
                                                "cm_View (current)",
                                                "F7",
                                                "cm_Refresh (current)",
                                                "F8",
                                                "cm_Refresh (current)",
                                                "F9",
                                                "cm_Sync (current)cm_Search (default, overridden)",
                                                "Ctrl + R",
                                                "cm_Refresh (default)",
                                                "Ctrl + Alt + F3",
                                                "&Notepad (Start Menu)",
                                                "F13",
                                                "cm_Pack (current)"}));
}

TEST_F(KeysPageTest, ListsAllCommandsInTheirBlocksWhateverTheListShows) {
  catalogue_.ListView1.RemoveHeadings();
  catalogue_.ListView1.Sort(Column::Command, SortDirection::Descending);
  const Strings cells = CellsOf(Page(), "by-command");
  EXPECT_EQ(Strings(cells.begin(), cells.begin() + 9),
            (Strings{"Description", "Command", "Default Hotkey", "Current Hotkey", "Group",
                     "Copy description", "cm_Copy", "F5", ""}));
  EXPECT_EQ(Strings(cells.end() - 8, cells.end()),
            (Strings{"Search description", "cm_Search", "F9 *", "", "Sync description", "cm_Sync",
                     "", "F9"}));
}

TEST_F(KeysPageTest, IsNamedByItsTitle) {
  const HtmlPage page = Page();
  EXPECT_EQ(page.Find("title")[0]->Text, "Keys of Total Commander");
  EXPECT_EQ(page.Find("h1")[0]->Text, "Keys of Total Commander");
}

TEST_F(KeysPageTest, HasAHeadingOverEachOfItsParts) {
  Edit(sample::Pack).CurrentKeys = L"F13";
  const HtmlPage page = Page();
  Strings headings;
  for (const HtmlElement* heading : page.Find("h2")) headings.push_back(heading->Text);
  EXPECT_EQ(headings,
            (Strings{"No modifier", "Ctrl", "Alt", "Shift", "Ctrl + Alt", "Ctrl + Shift",
                     "Alt + Shift", "Ctrl + Alt + Shift", "Other keys", "By key", "By command"}));
}

TEST_F(KeysPageTest, HasABoxToSearchIn) {
  const HtmlPage page = Page();
  EXPECT_EQ(page.Find("p", "id", "finder")[0]->Text, "Find: ");
  EXPECT_EQ(page.Find("input", "id", "search")[0]->Get("placeholder"), "Find a command or a key");
}

TEST_F(KeysPageTest, HasKeysThatCannotBeDrawnInARowOfTheirOwn) {
  EXPECT_TRUE(Page().Find("section", "id", "others").empty());
  Edit(sample::Pack).CurrentKeys = L"F13 = Ctrl + OEM_5";
  const HtmlPage page = Page();
  EXPECT_EQ(page.Find("section", "id", "others").size(), 1U);
  const auto keys = page.Find("li", "class", "key");
  ASSERT_EQ(keys.size(), 2U);
  EXPECT_EQ(keys[1]->Get("data-key"), "Ctrl + OEM_5");
  EXPECT_EQ(keys[1]->Get("data-use"), "user");
  EXPECT_EQ(keys[1]->Text, "Ctrl + OEM_5 cm_Pack");
}

TEST_F(KeysPageTest, SaysThatKeysAreNotSaved) {
  EXPECT_TRUE(Page().Find("p", "id", "unsaved").empty());
  EXPECT_EQ(Page(true).Find("p", "id", "unsaved").size(), 1U);
}

TEST_F(KeysPageTest, NamesTheFileAndExplainsTheLooks) {
  const HtmlPage page = Page();
  EXPECT_EQ(page.Find("p", "id", "path")[0]->Text, "C:\\TC\\Wincmd.ini");
  for (const char* use : {"free", "default", "user", "over", "startmenu"}) {
    const auto entries = page.Find("li", "data-use", use);
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_TRUE(page.IsWithin(*entries[0], "legend"));
    EXPECT_NE(entries[0]->Text, " ");
  }
  std::size_t corners = 0;
  for (const HtmlElement* corner : page.Find("use", "href", "#corner")) {
    if (!page.IsWithin(*corner, "legend")) continue;
    ++corners;
    EXPECT_EQ(page.Elements[page.Elements[corner->Parent].Parent].Get("data-use"), "over");
  }
  EXPECT_EQ(corners, 1U);
}

TEST_F(KeysPageTest, RefersToNothingOutsideItself) {
  const std::string html = Html();
  for (const char* piece : {"http:", "https:", "src=", "url(h", "@import", "<link", "fetch"}) {
    EXPECT_EQ(html.find(piece), std::string::npos) << piece;
  }
  const auto policies = Page().Find("meta", "http-equiv", "Content-Security-Policy");
  ASSERT_EQ(policies.size(), 1U);
}

TEST_F(KeysPageTest, IsWrittenInTheLanguageAndItsDirection) {
  EXPECT_EQ(Page().Find("html")[0]->Attributes,
            (std::map<std::string, std::string>{{"dir", "ltr"}, {"lang", "en"}}));
  UseLanguage("RightToLeftLanguage=1\r\n3328=ar\r\n3303=[%1]\r\n3388=%3: %1/%2\r\n");
  const HtmlPage page = Page();
  EXPECT_EQ(page.Find("html")[0]->Attributes,
            (std::map<std::string, std::string>{{"dir", "rtl"}, {"lang", "ar"}}));
  EXPECT_EQ(page.Find("div", "class", "board").size(), 8U);
  for (const HtmlElement* board : page.Find("div", "class", "board")) {
    EXPECT_EQ(board->Get("dir"), "ltr") << "keyboards are not mirrored";
  }
  EXPECT_EQ(page.Find("p", "class", "count")[1]->Text, "Ctrl: 66/67");
  EXPECT_EQ(page.Find("tr", "data-key", "F6")[0]->Text, "F6[cm_View]");
}

TEST_F(KeysPageTest, TakesTextsOfALanguageWithoutPlacesAndWithSigns) {
  UseLanguage("3302=<%1>\r\n3303=<mine>\r\n3304=&%1\"\r\n3328=\"x\" y=\"\r\n3366=\"<\r\n");
  EXPECT_EQ(Page().Find("tr", "data-key", "F5")[0]->Text, "F5&cm_Copy\"");
  EXPECT_EQ(Page().Find("tr", "data-key", "F6")[0]->Text, "F6<mine>cm_View");
  EXPECT_EQ(Page().Find("g", "data-key", "F1")[0]->Text, "<F1>");
  EXPECT_EQ(Page().Find("g", "data-key", "F6")[0]->Text, "F6\n<mine>cm_ViewView");
}

TEST_F(KeysPageTest, EscapesWhatFilesHold) {
  const std::wstring hostile =
      L"<script>alert(\"&amp;\")</script>' \x202E" + std::wstring(4000, L'x');
  Edit(sample::View).Description = hostile;
  Edit(sample::View).CommandName = L"</title>\"><b>";
  Edit(sample::View).CurrentKeys = L"<b>\"&";
  catalogue_.StartMenuKeys[2] = {StartMenuKey(3, notation_), hostile, L"key1"};
  const HtmlPage page = Page();
  EXPECT_EQ(page.Find("script").size(), 1U);
  EXPECT_EQ(page.Find("tr", "data-key", "<b>\"&").size(), 1U);
  const Strings cells = CellsOf(page, "by-command");
  EXPECT_NE(std::ranges::find(cells, Utf8FromWide(hostile)), cells.end());
}

TEST_F(KeysPageTest, ListsAKeyOnceThatSeveralKeyboardsHave) {
  notation_.CtrlName = L"Strg";
  notation_.ReverseOrderHotkey = true;  // which tells of "Strg" nothing
  Edit(sample::Pack).CurrentKeys = L"F3";
  const HtmlPage page = Page();
  EXPECT_EQ(page.Find("g", "data-key", "F3").size(), 2U);
  EXPECT_EQ(page.Find("tr", "data-key", "F3").size(), 1U);
}

TEST_F(KeysPageTest, OfAnEmptyListShowsFreeKeys) {
  catalogue_.ListView1.Fill({});
  const HtmlPage page = Page();
  EXPECT_EQ(page.Find("g", "data-use", "free").size(), 8 * KeyVocabulary().size());
  EXPECT_EQ(CellsOf(page, "by-key"), (Strings{"Key", "Command"}));
}

TEST_F(KeysPageTest, IsWellFormedForAnyRowsAndHasEachKeyOnce) {
  for (int round = 0; round < Rounds(12); ++round) {
    SCOPED_TRACE(round);
    HostileRows random(static_cast<unsigned>(round));
    notation_.ReverseOrderHotkey = round % 3 == 0;
    catalogue_.ListView1.Fill(random.Make(notation_));
    catalogue_.StartMenuKeys[1] = {StartMenuKey(2, notation_), random.HostileText(), L"key1"};
    random.Held.insert(ToUpper(StartMenuKey(2, notation_)));

    const HtmlPage page = Page();
    std::multiset<std::wstring> listed;
    std::size_t commands = 0;
    for (const HtmlElement* row : page.Find("tr")) {
      if (row->Has("data-key")) listed.insert(ToUpper(WideFromUtf8(row->Get("data-key"))));
      if (row->Has("id")) ++commands;
    }
    EXPECT_EQ(listed, (std::multiset<std::wstring>{random.Held.begin(), random.Held.end()}));
    std::size_t expected = 0;
    catalogue_.ListView1.ForEachRow([&expected](const CommandEntry& row) {
      if (!row.IsHeading()) ++expected;
    });
    EXPECT_EQ(commands, expected);
  }
}

/// Key number `number` of all that can be chosen; the count starts again behind the last.
std::wstring ChosenKey(std::size_t number, const HotkeyNotation& notation) {
  const auto keys = KeyVocabulary();
  const std::size_t held = number / keys.size();
  return notation.DisplayKey({(held & 1) != 0, (held & 2) != 0, (held & 4) != 0},
                             keys[number % keys.size()]);
}

TEST_F(KeysPageTest, IsSmallForAllTheCommandsThatThereAre) {
  std::vector<CommandEntry> rows;
  for (RowKey key = 1; key <= 700; ++key) {
    rows.push_back(SampleCommand(key, L"SomeUsualCommand" + std::to_wstring(key),
                                 ChosenKey(key, notation_), L"---"));
    rows.back().Description = L"A description that is as long as those of most commands are";
    if (key % 3 == 0) rows.back().CurrentKeys = ChosenKey(key + 100, notation_);
  }
  catalogue_.ListView1.Fill(std::move(rows));
  EXPECT_LT(Html().size(), 400'000U);
}

TEST(HtmlReader, FindsWhatIsWrong) {
  const std::string begin = "<!DOCTYPE html>\n<html>";
  EXPECT_EQ(ReadHtml(begin + "<p a=\"&amp;\">x</p></html>\n").Problem, "");
  for (const char* wrong :
       {"<p>", "</p>", "<p></b>", "<p a=b></p>", "<p a=\"x></p>", "<p a=\"1\" a=\"2\"></p>",
        "<p>&nbsp;</p>", "<p>&</p>", "<p>\x01</p>", "<p>\xFF</p>", "<p>\xEF\xBF\xBF</p>", "<p/>",
        "<a href=\"#x\"></a>", "<a href=\"x\"></a>", "<p id=\"x\"></p><p id=\"x\"></p>", "<>"}) {
    EXPECT_NE(ReadHtml(begin + wrong + "</html>\n").Problem, "") << wrong;
  }
  EXPECT_NE(ReadHtml("<html></html>").Problem, "");
}

}  // namespace
}  // namespace tessera::keys_page_test
