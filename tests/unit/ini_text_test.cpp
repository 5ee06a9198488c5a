// Taking INI lines apart.
#include <gtest/gtest.h>

#include "settings/ini/IniText.h"

namespace tessera::ini_text_test {
namespace {

using namespace std::string_view_literals;

TEST(HeaderName, IsWhatStandsBetweenTheBracketsOnOneLine) {
  struct Case {
    std::string_view Text;
    std::string_view Name;
  };
  for (const auto& [text, name] : {Case{"[a]"sv, "a"sv},
                                   {""sv, ""sv},
                                   {" \t"sv, ""sv},
                                   {"[a]b]\r\nc=1"sv, "a"sv},
                                   {" \t[ a b\t] c"sv, "a b"sv},
                                   {"[a"sv, "a"sv},
                                   {"[a \r\nb]"sv, "a"sv},
                                   {"[a\rb]"sv, "a"sv},
                                   {"[[a]"sv, "[a"sv},
                                   {"[]"sv, ""sv},
                                   {"["sv, ""sv},
                                   {"[\nb]"sv, ""sv},
                                   {"[a\0]"sv, "a\0"sv},
                                   {"[\0a]"sv, "a"sv}}) {
    EXPECT_EQ(HeaderName(text), name) << text;
  }
}

}  // namespace
}  // namespace tessera::ini_text_test
