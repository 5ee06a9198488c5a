// The page that shows all keys.
#include <gtest/gtest.h>

#include "export/KeysPage.h"
#include "tests/support/MemoryFiles.h"
#include "tests/unit/sample_catalogue.h"

namespace tessera::keys_page_test {
namespace {

class KeysPageTest : public testing::Test {
 protected:
  [[nodiscard]] std::string Page(const KeysPageHead& head = {L"C:\\TC\\Wincmd.ini"}) const {
    return BuildKeysPage(catalogue_, notation_, texts_, head);
  }

  [[nodiscard]] bool Holds(std::string_view piece) const {
    return Page().find(piece) != std::string::npos;
  }

  HotkeyNotation notation_;
  Catalogue catalogue_ = SampleCatalogue();
  MemoryFiles files_;
  Texts texts_{files_};
};

TEST_F(KeysPageTest, IsAPageInUtf8) {
  EXPECT_TRUE(Page().starts_with("<!DOCTYPE html>\n<html"));
  EXPECT_TRUE(Holds("<meta charset=\"utf-8\">"));
  EXPECT_TRUE(Page().ends_with("</body>\n</html>\n"));
}

TEST_F(KeysPageTest, NamesTheFileAndItsCommands) {
  EXPECT_TRUE(Holds("C:\\TC\\Wincmd.ini"));
  EXPECT_TRUE(Holds("cm_Refresh"));
  EXPECT_TRUE(Holds("Refresh description"));
}

TEST_F(KeysPageTest, IsWrittenInTheDirectionOfTheLanguage) {
  EXPECT_FALSE(Holds("dir=\"rtl\""));
  files_.Contents[L"rtl.lng"] = "[UserLanguage]\r\nRightToLeftLanguage=1\r\n";
  ASSERT_TRUE(texts_.UseLanguageFile(L"rtl.lng"));
  EXPECT_TRUE(Holds(" dir=\"rtl\">"));
}

TEST_F(KeysPageTest, EscapesWhatFilesHold) {
  catalogue_.ListView1.Edit(sample::View).Description = L"<script>\"&\"</script>";
  EXPECT_TRUE(Holds("&lt;script&gt;\"&amp;\"&lt;/script&gt;"));
}

}  // namespace
}  // namespace tessera::keys_page_test
