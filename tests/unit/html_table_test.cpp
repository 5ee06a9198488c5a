// The list as a table for other programs.
#include <gtest/gtest.h>

#include "export/HtmlTable.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/sample_catalogue.h"
#include "text/Utf8.h"

namespace tessera::html_table_test {
namespace {

constexpr ExportColumns AllOfThem{true, true, true, true};
constexpr ExportColumns CommandAndDefaults{false, true, true, false};

class HtmlTableTest : public testing::Test {
 protected:
  std::wstring Table(const ExportColumns& columns = AllOfThem) const {
    return WideFromUtf8(BuildHtmlTable(catalogue_.ListView1, columns, texts_, L"---"));
  }

  [[nodiscard]] bool Holds(const std::wstring& piece) const {
    return Table().find(piece) != std::wstring::npos;
  }

  CommandEntry& Edit(RowKey key) { return catalogue_.ListView1.Edit(key); }

  Catalogue catalogue_ = SampleCatalogue();
  MemoryFiles files_;
  Texts texts_{files_};
};

TEST_F(HtmlTableTest, HasTheRowsThatAreExportedAndTheirHeadings) {
  EXPECT_EQ(Table(CommandAndDefaults),
            L"<table>\r\n<tr><th>Command</th><th>Default Hotkey</th></tr>\r\n"
            L"<tr><td>cm_Copy</td><td>F5</td></tr>\r\n"
            L"<tr><td>cm_Refresh</td><td>F2 = Ctrl + R</td></tr>\r\n"
            L"<tr><td>cm_Search</td><td><s>F9 *</s></td></tr>\r\n</table>");
  EXPECT_TRUE(Holds(L"<tr><td>View description</td><td>cm_View</td><td>---</td><td>F6</td></tr>"));
  EXPECT_FALSE(Holds(L"cm_Pack")) << "it has no key";
  EXPECT_FALSE(Holds(L"Group")) << "headings are left out";
}

TEST_F(HtmlTableTest, HasTheFirstRowWhereHeadingsAreLeftOut) {
  catalogue_.ListView1.RemoveHeadings();
  EXPECT_TRUE(Holds(L"<td>cm_Copy</td>"));
}

TEST_F(HtmlTableTest, IsItsHeadingsAloneForAnEmptyList) {
  catalogue_.ListView1.Fill({});
  EXPECT_EQ(Table(CommandAndDefaults),
            L"<table>\r\n<tr><th>Command</th><th>Default Hotkey</th></tr>\r\n</table>");
}

TEST_F(HtmlTableTest, DefaultsThatAreFreeAgainAreNotStruckThrough) {
  EXPECT_TRUE(Holds(L"<s>F9 *</s>"));
  Edit(sample::Search).DefaultKeys = L"F9";  // still red
  EXPECT_FALSE(Holds(L"<s>"));
  Edit(sample::Search).DefaultKeys = L"Ctrl + Num *";
  EXPECT_FALSE(Holds(L"<s>"));
  Edit(sample::Search).DefaultKeys = L"Ctrl + Num * *";
  EXPECT_TRUE(Holds(L"<s>Ctrl + Num * *</s>"));
}

TEST_F(HtmlTableTest, OnlyDefaultsAreStruckThrough) {
  Edit(sample::Search).CurrentKeys = L"F9 *";
  EXPECT_TRUE(Holds(L"<td><s>F9 *</s></td><td>F9 *</td>"));
  Edit(sample::Search).DefaultKeysAreRed = false;
  EXPECT_FALSE(Holds(L"<s>"));
}

TEST_F(HtmlTableTest, SignsOfHtmlAreEscaped) {
  Edit(sample::View).Description = L"<b>&amp; \"x\" </td>";
  EXPECT_TRUE(Holds(L"<td>&lt;b&gt;&amp;amp; \"x\" &lt;/td&gt;</td>"));
}

TEST_F(HtmlTableTest, ControlCharactersAreBlanksAndMarksOfDirectionStay) {
  const std::wstring odd(
      L"a\0b\tc\r\nd\x1B"
      L"e\x85"
      L"f\x200F\x202Eg",
      15);
  Edit(sample::View).Description = odd;
  EXPECT_TRUE(Holds(L"<td>a b c  d e f\x200F\x202Eg</td>"));
  EXPECT_EQ(RowText(catalogue_.ListView1.Row(sample::View)),
            L"a b c  d e f\x200F\x202Eg\tcm_View\t---\tF6");
}

TEST_F(HtmlTableTest, LongCellsAreWhole) {
  const std::wstring text(5000, L'&');
  Edit(sample::View).Description = text;
  EXPECT_GT(Table().size(), 25000U);
  EXPECT_TRUE(RowText(catalogue_.ListView1.Row(sample::View)).starts_with(text + L"\tcm_View"));
}

TEST_F(HtmlTableTest, ARowIsCopiedWithAllItsCells) {
  EXPECT_EQ(RowText(catalogue_.ListView1.Row(sample::Refresh)),
            L"Refresh description\tcm_Refresh\tF2 = Ctrl + R\tF7 = F8");
}

}  // namespace
}  // namespace tessera::html_table_test
