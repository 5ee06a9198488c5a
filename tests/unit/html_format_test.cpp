// Where the header says that a piece of HTML stands.
#include <gtest/gtest.h>

#include <cstdlib>

#include "export/HtmlFormat.h"

namespace tessera::html_format_test {
namespace {

std::size_t OffsetOf(const std::string& format, const std::string& name) {
  const std::size_t at = format.find("\r\n" + name + ":");
  EXPECT_NE(at, std::string::npos) << name;
  return std::strtoul(format.c_str() + at + name.size() + 3, nullptr, 10);
}

std::string PieceOf(const std::string& format) {
  const std::size_t begin = OffsetOf(format, "StartFragment");
  return format.substr(begin, OffsetOf(format, "EndFragment") - begin);
}

std::string PageOf(const std::string& format) {
  const std::size_t begin = OffsetOf(format, "StartHTML");
  return format.substr(begin, OffsetOf(format, "EndHTML") - begin);
}

TEST(HtmlFormat, IsAHeaderAndAPage) {
  EXPECT_EQ(HtmlFormat("<b>x</b>"),
            "Version:0.9\r\n"
            "StartHTML:0000000105\r\n"
            "EndHTML:0000000181\r\n"
            "StartFragment:0000000139\r\n"
            "EndFragment:0000000147\r\n"
            "<html><body>\r\n<!--StartFragment--><b>x</b><!--EndFragment-->\r\n</body></html>");
}

TEST(HtmlFormat, OffsetsCountBytes) {
  const std::string piece = "\xC3\x9C\xD8\xA7\xE4\xB8\xAD";
  const std::string format = HtmlFormat(piece);
  EXPECT_EQ(PieceOf(format), piece);
  EXPECT_TRUE(format.ends_with(PageOf(format)));
}

TEST(HtmlFormat, PieceAndPageAreFoundAtAnyLength) {
  for (const std::size_t length : {0U, 1U, 9U, 10U, 860U, 5000U, 1000000U}) {
    const std::string format = HtmlFormat(std::string(length, 'x'));
    EXPECT_EQ(PieceOf(format).size(), length);
    EXPECT_TRUE(PageOf(format).starts_with("<html>"));
    EXPECT_TRUE(PageOf(format).ends_with("</html>"));
    EXPECT_EQ(OffsetOf(format, "EndHTML"), format.size());
  }
}

}  // namespace
}  // namespace tessera::html_format_test
