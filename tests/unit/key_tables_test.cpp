// The two tables of the page of keys.
#include <gtest/gtest.h>

#include "export/KeyTables.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::key_tables_test {
namespace {

class KeyTablesTest : public testing::Test {
 protected:
  [[nodiscard]] std::string ByKey() const {
    const KeyUses uses(catalogue_, notation_);
    const std::vector<Keyboard> keyboards = MakeKeyboards(uses, notation_);
    std::string html;
    AppendTableByKey(html, uses, keyboards, KeysElsewhere(uses, keyboards), HolderFrames(texts_),
                     texts_);
    return html;
  }

  [[nodiscard]] std::string ByCommand() const {
    std::string html;
    AppendTableByCommand(html, catalogue_.ListView1, texts_, notation_.UndefinedHotkey);
    return html;
  }

  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
  MemoryFiles files_;
  Texts texts_{files_};
};

bool Holds(const std::string& html, std::string_view piece) {
  return html.find(piece) != std::string::npos;
}

TEST_F(KeyTablesTest, AKeyNamesItsHoldersAndLeadsToTheirRows) {
  catalogue_.StartMenuKeys[0] = {StartMenuKey(1, notation_), L"Paint", L"key1"};
  const std::string html = ByKey();
  EXPECT_TRUE(Holds(html, R"(<tr data-key="F6" data-use="user"><th><bdi>F6</bdi></th>)"
                          R"(<td><div><a href="#c3">cm_View</a> (current)</div></td></tr>)"))
      << html;
  EXPECT_TRUE(Holds(html, "<td><div><bdi>Paint</bdi> (Start Menu)</div></td>"));
}

TEST_F(KeyTablesTest, AKeyLeadsToTheFirstRowToo) {
  catalogue_.ListView1.Fill({SampleCommand(1, L"First", L"---", L"F6")});
  EXPECT_TRUE(Holds(ByKey(), R"(<a href="#c1">cm_First</a>)"));
}

TEST_F(KeyTablesTest, ARowHasItsTextsAndNothingWhereItHasNoKey) {
  const std::string html = ByCommand();
  EXPECT_TRUE(Holds(html, R"(<tr id="c3"><td>View description</td><td>cm_View</td><td></td>)"
                          "<td>F6</td></tr>\n"))
      << html;
  EXPECT_TRUE(Holds(html, "<td>cm_Search</td><td><s>F9 *</s></td><td></td></tr>\n"));
}

TEST_F(KeyTablesTest, ABlockIsNamedByItsHeadingWithoutItsLines) {
  const struct {
    const wchar_t* Heading;
    std::string Name;
  } cases[] = {
      {L"[___Group___]", "Group"}, {L"= - A_b [c] d -=", "A_b [c] d"}, {L"[____]", "[____]"}};
  for (const auto& [heading, name] : cases) {
    catalogue_.ListView1.Edit(sample::Heading).Description = heading;
    EXPECT_TRUE(Holds(ByCommand(), "</tbody>\n<tbody>\n<tr class=\"block\"><th colspan=\"4\">" +
                                       name + "</th></tr>\n"))
        << name;
  }
}

}  // namespace
}  // namespace tessera::key_tables_test
